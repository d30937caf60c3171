#include "exchange/ImportReport.h"

#include <algorithm>

namespace {

constexpr int NamedThings = 5;

}

void ImportReport::tell(const QString& line)
{
    m_told << line;
}

void ImportReport::leaveOut(const QString& reason, const QString& what)
{
    auto same = std::ranges::find(m_leftOut, reason, &LeftOut::reason);
    if (same == m_leftOut.end()) {
        same = m_leftOut.insert(same, {reason, 0, {}});
    }
    ++same->count;
    if (same->first.size() < NamedThings) {
        same->first << what;
    }
}

QString ImportReport::text() const
{
    QString text = m_told.join(QLatin1Char('\n'));
    for (const LeftOut& leftOut : m_leftOut) {
        const bool more = leftOut.count > leftOut.first.size();
        text +=
            QStringLiteral("\nLeft out, %1: %2 (%3%4)")
                .arg(leftOut.reason)
                .arg(leftOut.count)
                .arg(leftOut.first.join(QStringLiteral(", ")), more ? QStringLiteral(", ...") : QString());
    }
    return text;
}
