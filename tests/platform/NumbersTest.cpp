#include "platform/Numbers.h"

#include "tests/support/TestDrive.h"

#include <cmath>
#include <limits>
#include <utility>

TEST(Numbers, HalvesRoundToTheEvenNeighbour)
{
    const std::pair<double, int> rows[] = {
        {10.5, 10}, {11.5, 12}, {-1.5, -2}, {32767.4, 32767}, {-32768.5, -32768}};
    for (const auto& [value, expected] : rows) {
        EXPECT_EQ(toInteger(value), expected) << value;
    }
}

TEST(Numbers, ResultsOutsideTheirTypeAreErrors)
{
    using enum ErrorNumber;
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double value : {32767.5, 40000.0, -32769.0, infinity, std::nan("")}) {
        EXPECT_EQ(errorOf([value] { toInteger(value); }).number(), Overflow) << value;
    }
    for (const double value : {1e39, -infinity, std::nan("")}) {
        EXPECT_EQ(errorOf([value] { toSingle(value); }).number(), Overflow) << value;
    }
    EXPECT_EQ(errorOf([] { toSingle(-1.23456789012e40); }).detail(), "-1.23456789e+40 is not a single.");
    EXPECT_EQ(errorOf([] { toInteger(1e9 + 2.25); }).detail(), "1000000002 is not a 16-bit integer.");
    EXPECT_EQ(errorOf([] { divide(1, 0); }).number(), DivisionByZero);
    EXPECT_EQ(errorOf([] { divide(1e308, 1e-308); }).number(), Overflow);
    EXPECT_EQ(errorOf([] { integerDivide(1, 0); }).number(), DivisionByZero);
    EXPECT_EQ(errorOf([] { modulo(1, 0); }).number(), DivisionByZero);
}

TEST(Numbers, ValReadsTheNumberAtTheStart)
{
    const std::pair<const char*, double> rows[] = {
        {"", 0},    {"abc", 0}, {"12", 12},    {" 1 2 mm", 12}, {"-0.5", -0.5}, {"+3", 3},   {".25x", 0.25},
        {"inf", 0}, {"nan", 0}, {"1e3", 1000}, {"1e999", 0},    {"--1", 0},     {"+-1", -1}, {"150mm", 150}};
    for (const auto& [text, expected] : rows) {
        EXPECT_EQ(Val(QString::fromUtf8(text)), expected) << text;
    }
}
