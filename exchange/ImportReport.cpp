#include "exchange/ImportReport.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int NamedThings = 5;

}

void ImportReport::tell(const QString& line)
{
    m_told << line;
}

void ImportReport::note(const QString& remark, const QString& what)
{
    add(m_noted, remark, what);
}

void ImportReport::leaveOut(const QString& reason, const QString& what)
{
    add(m_leftOut, QStringLiteral("Left out, ") + reason, what);
}

QString ImportReport::text() const
{
    QStringList lines = m_told;
    for (const auto* all : {&m_noted, &m_leftOut}) {
        std::ranges::transform(*all, std::back_inserter(lines), line);
    }
    return lines.join(QLatin1Char('\n'));
}

void ImportReport::add(std::vector<Things>& all, const QString& remark, const QString& what)
{
    auto same = std::ranges::find(all, remark, &Things::remark);
    if (same == all.end()) {
        same = all.insert(same, {remark, 0, {}});
    }
    ++same->count;
    if (same->first.size() < NamedThings) {
        same->first << what;
    }
}

QString ImportReport::line(const Things& things)
{
    const bool more = things.count > things.first.size();
    return QStringLiteral("%1: %2 (%3%4)")
        .arg(things.remark)
        .arg(things.count)
        .arg(things.first.join(QStringLiteral(", ")), more ? QStringLiteral(", ...") : QString());
}
