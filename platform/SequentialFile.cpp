#include "platform/SequentialFile.h"

#include "platform/Numbers.h"

#include <QLocale>

#include <charconv>
#include <cmath>

namespace {

bool isBlank(QChar character)
{
    return character == QLatin1Char(' ') || character == QLatin1Char('\t');
}

bool isLineEnd(QChar character)
{
    return character == QLatin1Char('\r') || character == QLatin1Char('\n');
}

QString shown(QStringView text)
{
    constexpr qsizetype MaxShown = 40;
    return text.size() <= MaxShown ? text.toString() : text.left(MaxShown).toString() + QStringLiteral("...");
}

[[noreturn]] void raiseNotA(const char* kind, QStringView text)
{
    throw RunTimeError(ErrorNumber::TypeMismatch,
                       QStringLiteral("\"%1\" is not a %2.").arg(shown(text), QLatin1String(kind)));
}

} // namespace

SequentialReader::SequentialReader(QString text) : m_text(std::move(text)) {}

bool SequentialReader::atLineEnd() const
{
    return !atEnd() && isLineEnd(m_text[m_position]);
}

bool SequentialReader::hasMore() const
{
    return !QStringView(m_text).mid(m_position).trimmed().isEmpty();
}

void SequentialReader::skipBlanks()
{
    while (!atEnd() && isBlank(m_text[m_position])) {
        ++m_position;
    }
}

void SequentialReader::skipLineEnd()
{
    const bool carriageReturn = m_text[m_position] == QLatin1Char('\r');
    ++m_position;
    if (carriageReturn && !atEnd() && m_text[m_position] == QLatin1Char('\n')) {
        ++m_position;
    }
    ++m_line;
    m_fieldsOnLine = 0;
}

void SequentialReader::skipToNumber()
{
    skipBlanks();
    while (atLineEnd()) {
        skipLineEnd();
        skipBlanks();
    }
}

void SequentialReader::beginField()
{
    m_fieldLine = m_line;
    m_field = ++m_fieldsOnLine;
    if (atEnd()) {
        throw RunTimeError(ErrorNumber::InputPastEndOfFile);
    }
}

/// Passes over what separates a field from the next: blanks, then a comma or a line end.
void SequentialReader::endField()
{
    skipBlanks();
    if (atLineEnd()) {
        skipLineEnd();
    } else if (!atEnd() && m_text[m_position] == QLatin1Char(',')) {
        ++m_position;
    }
}

SequentialReader::Field SequentialReader::nextQuoted()
{
    Field field{{}, true, false};
    const qsizetype start = ++m_position;
    while (!atEnd()) {
        const QChar character = m_text[m_position];
        if (character == QLatin1Char('"')) {
            const bool doubled = m_position + 1 < m_text.size() && m_text[m_position + 1] == QLatin1Char('"');
            if (!doubled) {
                field.text = QStringView(m_text).mid(start, m_position - start);
                ++m_position;
                return field;
            }
            field.hasDoubledQuotes = true;
            m_position += 2;
        } else if (isLineEnd(character)) {
            skipLineEnd();
        } else {
            ++m_position;
        }
    }
    throw RunTimeError(ErrorNumber::InputPastEndOfFile, QStringLiteral("A closing quote is missing."));
}

QString SequentialReader::readString()
{
    skipBlanks();
    beginField();
    if (m_text[m_position] != QLatin1Char('"')) {
        const qsizetype start = m_position;
        while (!atEnd() && !atLineEnd() && m_text[m_position] != QLatin1Char(',')) {
            ++m_position;
        }
        QString text = QStringView(m_text).mid(start, m_position - start).trimmed().toString();
        endField();
        return text;
    }
    const Field field = nextQuoted();
    skipBlanks();
    if (!atEnd() && !atLineEnd() && m_text[m_position] != QLatin1Char(',')) {
        throw RunTimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("A comma is missing after \"%1\".").arg(shown(field.text)));
    }
    QString text = field.text.toString();
    endField();
    if (field.hasDoubledQuotes) {
        text.replace(QLatin1String("\"\""), QLatin1String("\""));
    }
    return text;
}

QStringView SequentialReader::nextNumber()
{
    skipToNumber();
    beginField();
    if (m_text[m_position] == QLatin1Char('"')) {
        const Field field = nextQuoted();
        raiseNotA("number", field.text);
    }
    const qsizetype start = m_position;
    while (!atEnd() && !atLineEnd() && !isBlank(m_text[m_position]) &&
           m_text[m_position] != QLatin1Char(',')) {
        ++m_position;
    }
    return QStringView(m_text).mid(start, m_position - start);
}

double SequentialReader::readNumber()
{
    const QStringView text = nextNumber();
    const QByteArray digits = text.toLatin1();
    const char* first = digits.constData() + (digits.startsWith('+') ? 1 : 0);
    const char* last = digits.constData() + digits.size();
    double value = 0;
    const auto result = std::from_chars(first, last, value);
    if (result.ec == std::errc::result_out_of_range) {
        throw RunTimeError(ErrorNumber::Overflow, QStringLiteral("%1 is too large.").arg(shown(text)));
    }
    if (result.ec != std::errc() || result.ptr != last || !std::isfinite(value)) {
        raiseNotA("number", text);
    }
    endField();
    return value;
}

qint16 SequentialReader::readInteger()
{
    return toInteger(readNumber());
}

float SequentialReader::readSingle()
{
    return toSingle(readNumber());
}

bool SequentialReader::readBoolean()
{
    skipToNumber();
    const bool literal = !atEnd() && m_text[m_position] == QLatin1Char('#');
    if (!literal) {
        return readNumber() != 0;
    }
    const QStringView text = nextNumber();
    const bool value = text.compare(QLatin1String("#TRUE#"), Qt::CaseInsensitive) == 0;
    if (!value && text.compare(QLatin1String("#FALSE#"), Qt::CaseInsensitive) != 0) {
        raiseNotA("Boolean", text);
    }
    endField();
    return value;
}

QVariant SequentialReader::readValue()
{
    skipToNumber();
    if (!atEnd() && m_text[m_position] == QLatin1Char('#')) {
        return readBoolean();
    }
    const bool quoted = !atEnd() && m_text[m_position] == QLatin1Char('"');
    const QString text = readString();
    bool isNumber = false;
    const double number = quoted ? 0 : QLocale::c().toDouble(text, &isNumber);
    return isNumber ? QVariant(number) : QVariant(text);
}

qint16 SequentialReader::readCount()
{
    const qint16 count = readInteger();
    if (count < 0) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("%1 is not a count of records.").arg(count));
    }
    return count;
}

void SequentialWriter::append(const QString& field)
{
    QByteArray text = field.toUtf8();
    text.replace("\"", "\"\"");
    m_bytes.append('"').append(text).append('"');
}

void SequentialWriter::append(bool field)
{
    m_bytes.append(field ? "#TRUE#" : "#FALSE#");
}

void SequentialWriter::append(float field)
{
    m_bytes.append(shortest(field));
}

void SequentialWriter::append(double field)
{
    m_bytes.append(shortest(field));
}

void SequentialWriter::append(const QVariant& field)
{
    switch (field.typeId()) {
    case QMetaType::QString:
        append(field.toString());
        break;
    case QMetaType::Bool:
        append(field.toBool());
        break;
    default:
        append(field.toDouble());
        break;
    }
}
