#include "exchange/DraftFault.h"

#include "platform/RunTimeError.h"

#include <QStringList>

#include <new>

namespace {

QString told(const RunTimeError& error)
{
    QStringList lines{error.detail().isEmpty() ? error.text() + QLatin1Char('.') : error.detail()};
    const FilePlace& place = error.place();
    if (error.hasPlace()) {
        QString where = place.path;
        where += place.line > 0 ? QStringLiteral(", row %1").arg(place.line) : QString();
        where += place.field > 0 ? QStringLiteral(", column %1").arg(place.field) : QString();
        lines << where;
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace

QString faultOf(const std::function<void()>& work)
{
    try {
        work();
    } catch (const RunTimeError& error) {
        return told(error);
    } catch (const std::bad_alloc&) {
        return told(RunTimeError(ErrorNumber::OutOfMemory));
    }
    return {};
}
