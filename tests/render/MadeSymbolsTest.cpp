#include "render/MadeSymbols.h"

#include <gtest/gtest.h>
#include <set>
#include <tuple>

namespace {

std::vector<KindFrequency> manyKinds(int kinds)
{
    std::vector<KindFrequency> all;
    all.reserve(static_cast<std::size_t>(kinds));
    for (int i = 0; i < kinds; ++i) {
        all.push_back({QStringLiteral("kind-%1").arg(i, 3, 10, QLatin1Char('0')), kinds - i});
    }
    return all;
}

using Shape = std::tuple<qint16, qint16, qint16, qint16>;

Shape shapeOf(const HankoStyle& symbol)
{
    return {symbol.HankoNo, symbol.PaintOn, symbol.SymbolSize, symbol.LineThick};
}

/// How many symbols of records 1 to `last` differ, with their colours or without.
std::pair<size_t, size_t> differing(const SymbolSet& set, int last)
{
    std::set<Shape> shapes;
    std::set<std::pair<Shape, qint16>> symbols;
    for (int k = 1; k <= last; ++k) {
        shapes.insert(shapeOf(set.Hanko(k)));
        symbols.insert({shapeOf(set.Hanko(k)), set.Hanko(k).LineColor});
    }
    return {symbols.size(), shapes.size()};
}

/// The symbol of a kind in a set.
HankoStyle symbolOf(const SymbolSet& set, const QString& kind)
{
    int k = set.NHanrei;
    while (k > 0 && set.HankoWord(k) != kind) {
        --k;
    }
    return set.Hanko(k);
}

} // namespace

TEST(MadeSymbols, KindsComeByFrequencyThenInBinaryOrder)
{
    const QString a = QStringLiteral("a");
    const QString b = QStringLiteral("B");
    const QString c = QStringLiteral("c");
    const auto kinds = kindsByFrequency({{a, c}, {}, {c, b}});
    ASSERT_EQ(kinds.size(), 3U);
    EXPECT_EQ(QStringList({kinds[0].kind, kinds[1].kind, kinds[2].kind}), QStringList({c, b, a}));
    EXPECT_EQ(kinds[0].count, 2);
}

TEST(MadeSymbols, AllSymbolsOfASetDifferAndTheFirstByShapeAlone)
{
    for (const int polygons : {0, 31}) {
        const SymbolSet set = makeSymbols({manyKinds(100)}, false, polygons).front();
        ASSERT_EQ(set.NHanrei, 100);
        EXPECT_EQ(differing(set, 100).first, 100U);
        EXPECT_EQ(differing(set, 25).second, 25U) << "for readers that see no colours";
        for (int k = 1; k <= set.NHanrei; ++k) {
            EXPECT_LE(set.Hanko(k).HankoNo, 152 + polygons) << k;
        }
        EXPECT_EQ(set.HankoWord(1), QStringLiteral("kind-000"));
        EXPECT_FALSE(set.HankoCaption(1).contains(QLatin1Char('-'))) << "it would not be in the legend";
    }
}

TEST(MadeSymbols, OneDotStandsForTheRarestOfTooManyKinds)
{
    const SymbolSet set = makeSymbols({manyKinds(156)}, false, 31).front();
    ASSERT_EQ(set.NHanrei, 100);
    EXPECT_EQ(set.HankoWord(1), QString());
    EXPECT_EQ(set.HankoCaption(1), QStringLiteral("other (57)"));
    EXPECT_EQ(set.HankoWord(100), QStringLiteral("kind-098"));
    EXPECT_EQ(differing(set, 100).first, 100U);
    EXPECT_TRUE(set.Explain.contains(QStringLiteral("Whole Word Forms")));
}

TEST(MadeSymbols, LongCaptionsAreCutShortInLongLegends)
{
    const QString wide(20, QLatin1Char('m'));
    std::vector<KindFrequency> kinds = manyKinds(99);
    kinds.push_back({wide, 1});
    const SymbolSet set = makeSymbols({kinds}, false, 31).front();
    EXPECT_EQ(set.HankoWord(100), wide);
    EXPECT_EQ(set.HankoCaption(100).back(), QChar(0x2026));
    EXPECT_TRUE(wide.startsWith(set.HankoCaption(100).chopped(1)));
    EXPECT_EQ(makeSymbols({{kinds[99]}}, false, 31).front().HankoCaption(1), wide);
}

TEST(MadeSymbols, ACategoryHasOneSymbolInAllItems)
{
    const QString yes = QStringLiteral("yes");
    const QString no = QStringLiteral("no");
    const QString rare = QStringLiteral("rare");
    std::vector<KindFrequency> many = manyKinds(99);
    many.push_back({no, 1});
    const auto sets = makeSymbols({{{yes, 9}, {no, 1}}, {{no, 8}, {yes, 2}, {rare, 1}}, many, {}}, true, 31);
    EXPECT_EQ(symbolOf(sets[0], yes), symbolOf(sets[1], yes));
    EXPECT_EQ(symbolOf(sets[0], no), symbolOf(sets[1], no));
    EXPECT_EQ(symbolOf(sets[0], no), symbolOf(sets[2], no));
    EXPECT_EQ(differing(sets[1], 3).second, 3U);
    EXPECT_EQ(differing(sets[2], 100).first, 100U);
    EXPECT_EQ(sets[3].NHanrei, 0);
}
