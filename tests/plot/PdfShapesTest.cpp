#include "plot/PdfShapes.h"

#include <gtest/gtest.h>

namespace {

std::string number(double value)
{
    std::string text = std::to_string(value);
    return text.substr(0, text.find('.') + 5);
}

std::string point(double x, double y, const char* operation)
{
    return number(x) + ' ' + number(y) + ' ' + operation + '\n';
}

/// A toothed square with its lower left corner at (x, y), as a page draws it.
std::string square(double x, double y, double side, const std::string& painting)
{
    std::string path = point(x, y, "m") + point(x + side, y, "l");
    for (int i = 10; i >= 0; --i) {
        path += point(x + side * i / 10, y + side / (1 + i % 2), "l");
    }
    return path + "h\n" + painting + '\n';
}

struct Pages
{
    explicit Pages(std::vector<std::string> contents) : m_contents(std::move(contents))
    {
        for (const std::string& content : m_contents) {
            shapes.add(content);
        }
    }

    PdfShapes shapes;

private:
    std::vector<std::string> m_contents;
};

} // namespace

TEST(PdfShapes, WhatPagesRepeatIsAnObjectThatIsPlaced)
{
    std::vector<std::string> contents(2);
    std::string expected = "0.5 w\n";
    contents[0] = expected;
    for (int i = 0; i < 12; ++i) {
        const double x = 100.1234 + 7.7771 * i;
        contents[static_cast<std::size_t>(i / 6)] += square(x, -3, 20, "B*");
    }
    contents[1] += "BT\n(S h f) Tj\nET\n";
    const Pages pages(contents);

    const auto objects = pages.shapes.objects();
    ASSERT_EQ(objects.size(), 1U);
    EXPECT_TRUE(objects[0].content.starts_with("0 0 m\n20 0 l\n20 20 l\n18 10 l\n16 20 l\n"));
    EXPECT_TRUE(objects[0].content.ends_with("\n0 20 l\nh\nB*\n"));
    EXPECT_EQ(objects[0].box, (PdfBox{0, 0, 20, 20}));
    const std::string first = pages.shapes.page(0).value();
    EXPECT_TRUE(first.starts_with("0.5 w\nq 1 0 0 1 100.12 -3 cm " + objects[0].name + " Do Q\n")) << first;
    EXPECT_EQ(first.find(" m\n"), std::string::npos);
    const std::string second = pages.shapes.page(1).value();
    EXPECT_TRUE(second.ends_with(" Do Q\nBT\n(S h f) Tj\nET\n")) << second;
}

TEST(PdfShapes, WhatIsNotRepeatedAsAWholeStaysAsItIs)
{
    std::string clips;
    std::string lines;
    std::string sizes;
    std::string interrupted;
    std::string paintings;
    for (int i = 0; i < 12; ++i) {
        clips += square(i, i, 20, "W n");
        lines += point(i, 1, "m") + "5 5 l\nS\n";
        sizes += square(i, i, 20 + i, "S");
        interrupted += point(i, i, "m") + "1 0 0 RG\n" + point(i + 5, i, "l") + "S\n";
        paintings += square(0, 0, 20, i % 6 == 0 ? "f" : i % 6 == 1 ? "S" : "b*");
    }
    for (const std::string& content : {clips, lines, sizes, interrupted, std::string("S"), std::string()}) {
        const Pages pages({content});
        EXPECT_FALSE(pages.shapes.page(0)) << content;
        EXPECT_TRUE(pages.shapes.objects().empty());
    }
    const Pages painted({paintings});
    ASSERT_EQ(painted.shapes.objects().size(), 1U) << "that used often enough";
    EXPECT_TRUE(painted.shapes.objects()[0].content.ends_with("b*\n"));
    EXPECT_TRUE(painted.shapes.page(0)->starts_with(square(0, 0, 20, "f") + square(0, 0, 20, "S") + "q "));
}

TEST(PdfShapes, PointsThatDifferByRoundingAreOneShape)
{
    std::string content;
    for (int i = 0; i < 20; ++i) {
        content += square(1e4 / (i + 3), 1e4 / (i + 7), 40 + (i % 2 == 0 ? 0.001 : -0.001), "f");
    }
    const Pages pages({content});
    ASSERT_EQ(pages.shapes.objects().size(), 1U);
    EXPECT_EQ(pages.shapes.objects()[0].content.find("-0"), std::string::npos);
}
