#include "platform/RunTimeError.h"

#include <QStringList>

#include <utility>

namespace {

QString errorText(ErrorNumber number)
{
    switch (number) {
    case ErrorNumber::InvalidProcedureCall:
        return QStringLiteral("Invalid procedure call or argument");
    case ErrorNumber::Overflow:
        return QStringLiteral("Overflow");
    case ErrorNumber::OutOfMemory:
        return QStringLiteral("Out of memory");
    case ErrorNumber::SubscriptOutOfRange:
        return QStringLiteral("Subscript out of range");
    case ErrorNumber::DivisionByZero:
        return QStringLiteral("Division by zero");
    case ErrorNumber::TypeMismatch:
        return QStringLiteral("Type mismatch");
    case ErrorNumber::BadFileName:
        return QStringLiteral("Bad file name or number");
    case ErrorNumber::FileNotFound:
        return QStringLiteral("File not found");
    case ErrorNumber::FileAlreadyOpen:
        return QStringLiteral("File already open");
    case ErrorNumber::DeviceIOError:
        return QStringLiteral("Device I/O error");
    case ErrorNumber::DiskFull:
        return QStringLiteral("Disk full");
    case ErrorNumber::InputPastEndOfFile:
        return QStringLiteral("Input past end of file");
    case ErrorNumber::PermissionDenied:
        return QStringLiteral("Permission denied");
    case ErrorNumber::PathNotFound:
        return QStringLiteral("Path not found");
    }
    return QStringLiteral("Unknown error");
}

} // namespace

RunTimeError::RunTimeError(ErrorNumber number, QString detail)
    : m_number(number), m_detail(std::move(detail)), m_what(message().toUtf8())
{}

RunTimeError RunTimeError::at(FilePlace place) const
{
    RunTimeError placed = *this;
    placed.m_place = std::move(place);
    placed.m_what = placed.message().toUtf8();
    return placed;
}

RunTimeError RunTimeError::during(const QString& what) const
{
    RunTimeError told = *this;
    told.m_detail = m_detail.isEmpty() ? what : what + QLatin1Char(' ') + m_detail;
    told.m_what = told.message().toUtf8();
    return told;
}

QString RunTimeError::text() const
{
    return errorText(m_number);
}

QString RunTimeError::title() const
{
    return QStringLiteral("Run-time error '%1': %2").arg(static_cast<int>(m_number)).arg(text());
}

QString RunTimeError::where() const
{
    QStringList lines;
    if (hasPlace()) {
        QString file = QStringLiteral("File: ") + m_place.path;
        if (m_place.line > 0) {
            file += QStringLiteral("\nLine %1").arg(m_place.line);
        }
        if (m_place.field > 0) {
            file += QStringLiteral(", field %1").arg(m_place.field);
        }
        lines << file;
    }
    if (!m_detail.isEmpty()) {
        lines << m_detail;
    }
    return lines.join(QLatin1Char('\n'));
}

QString RunTimeError::message() const
{
    const QString more = where();
    return more.isEmpty() ? title() : title() + QLatin1Char('\n') + more;
}
