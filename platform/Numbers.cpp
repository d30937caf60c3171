#include "platform/Numbers.h"

#include "platform/RunTimeError.h"

#include <QString>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

template <typename Number>
QByteArray shortestForm(Number value)
{
    constexpr std::size_t MostDigits = 64;
    std::array<char, MostDigits> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return QByteArray(digits.data(), end - digits.data());
}

} // namespace

qint16 toInteger(double value)
{
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<qint16>::min() && rounded <= std::numeric_limits<qint16>::max())) {
        throw RunTimeError(ErrorNumber::Overflow,
                           QStringLiteral("%1 is not a 16-bit integer.").arg(value, 0, 'g', 10));
    }
    return static_cast<qint16>(rounded);
}

float toSingle(double value)
{
    if (!(std::abs(value) <= std::numeric_limits<float>::max())) {
        throw RunTimeError(ErrorNumber::Overflow,
                           QStringLiteral("%1 is not a single.").arg(value, 0, 'g', 10));
    }
    return static_cast<float>(value);
}

double divide(double dividend, double divisor)
{
    if (divisor == 0) {
        throw RunTimeError(ErrorNumber::DivisionByZero);
    }
    const double quotient = dividend / divisor;
    if (!std::isfinite(quotient)) {
        throw RunTimeError(ErrorNumber::Overflow);
    }
    return quotient;
}

int integerDivide(int dividend, int divisor)
{
    if (divisor == 0) {
        throw RunTimeError(ErrorNumber::DivisionByZero);
    }
    return dividend / divisor;
}

int modulo(int dividend, int divisor)
{
    if (divisor == 0) {
        throw RunTimeError(ErrorNumber::DivisionByZero);
    }
    return dividend % divisor;
}

double Val(QStringView text)
{
    QByteArray digits;
    for (const QChar character : text) {
        if (!character.isSpace()) {
            digits.append(character.unicode() < 128 ? static_cast<char>(character.unicode()) : 'x');
        }
    }
    const qsizetype start = digits.startsWith('+') ? 1 : 0;
    const char next = digits.size() > start ? digits[start] : 'x';
    if (next != '-' && next != '.' && (next < '0' || next > '9')) {
        return 0; // from_chars would also take "inf" and "nan"
    }
    double value = 0;
    const auto result =
        std::from_chars(digits.constData() + start, digits.constData() + digits.size(), value);
    return result.ec == std::errc() && std::isfinite(value) ? value : 0;
}

QByteArray shortest(float value)
{
    return shortestForm(value);
}

QByteArray shortest(double value)
{
    return shortestForm(value);
}
