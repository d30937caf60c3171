#include "exchange/Degrees.h"

#include <QLocale>
#include <QRegularExpression>

#include <cmath>

namespace {

/// -1 for what lies south or west.
double signOf(const QString& letters)
{
    static const QString negative = QStringLiteral("SW南西-\u2212");
    return !letters.isEmpty() && negative.contains(letters.at(0), Qt::CaseInsensitive) ? -1 : 1;
}

} // namespace

std::optional<double> decimalNumber(QString text)
{
    text =
        text.trimmed().replace(QChar(0x2212), QLatin1Char('-')).replace(QLatin1Char(','), QLatin1Char('.'));
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<double> degrees(const QString& text)
{
    if (const std::optional<double> number = decimalNumber(text)) {
        return number;
    }
    static const QRegularExpression pattern(
        QStringLiteral("^([NSEW]|[北南東西][緯経]?|[-+\u2212])?\\s*(\\d+(?:[.,]\\d+)?)\\s*[°º度:d\\s]?\\s*"
                       "(?:(\\d+(?:[.,]\\d+)?)\\s*['\u2032\u2019分:m\\s]?\\s*)?"
                       "(?:(\\d+(?:[.,]\\d+)?)\\s*(?:[\"\u2033\u201D秒s]|''|\u2032\u2032)?\\s*)?([NSEW]|["
                       "北南東西][緯経]?)?$"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    const QRegularExpressionMatch match = pattern.match(text.trimmed());
    const auto part = [&match](int number) { return decimalNumber(match.captured(number)).value_or(0); };
    if (!match.hasMatch() || part(3) >= 60 || part(4) >= 60) {
        return std::nullopt;
    }
    const double value = part(2) + part(3) / 60 + part(4) / 3600;
    return signOf(match.captured(1)) * signOf(match.captured(5)) * value;
}

QString coordinateText(double number)
{
    return QString::number(number, 'f', QLocale::FloatingPointShortest);
}
