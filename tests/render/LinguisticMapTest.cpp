#include "render/LinguisticMap.h"

#include "render/BlankMap.h"
#include "render/Legend.h"
#include "shell/MapParts.h"
#include "tests/support/TestDrive.h"

#include <functional>

namespace {

void setWords(VarnModule& varn, int locality, const QStringList& words)
{
    varn.NLocate = std::max(varn.NLocate, static_cast<qint16>(locality));
    varn.WordCount(locality) = static_cast<qint16>(words.size());
    for (int j = 1; j <= words.size(); ++j) {
        varn.WordData(locality, j) = words[j - 1];
    }
}

/// Adds a record whose symbol is an outline circle of the given size code.
void addSymbol(VarnModule& varn, const QString& kind, int sizeCode)
{
    const int k = ++varn.NHanrei;
    varn.HankoWord(k) = kind;
    varn.Hanko(k) = {49, 0, 0, 0, static_cast<qint16>(sizeCode), 0};
}

/// Centre and radius of each circle that the map's symbols draw.
std::vector<std::array<float, 3>> plottedCircles(TestSurvey& survey)
{
    survey.frmMap.Cls();
    survey.varn.Scale = 1;
    PlotLinguisticData(linguisticMapParts(survey.varn), survey.surfaces);
    std::vector<std::array<float, 3>> circles;
    for (const auto& circle : operationsOf<EllipseOperation>(survey.frmMap.drawing())) {
        circles.push_back({circle.x, circle.y, circle.halfWidth});
    }
    return circles;
}

using Circles = std::vector<std::array<float, 3>>;

} // namespace

TEST(LinguisticMap, WordFormsStandInTheirSlots)
{
    TestSurvey survey;
    setWords(survey.varn, 1, {QStringLiteral("a"), QStringLiteral("unknown"), QStringLiteral("a")});
    addSymbol(survey.varn, QStringLiteral("a"), 1);
    struct Row
    {
        qint16 position;
        std::array<float, 3> third;
    };
    const Row rows[] = {{HankoCenter, {150, 250, 100}},
                        {HankoRight, {310, 250, 100}},
                        {HankoLeft, {-10, 250, 100}},
                        {HankoUp, {150, 90, 100}},
                        {HankoDown, {150, 410, 100}}};
    for (const Row& row : rows) {
        survey.varn.HankoPosition = row.position;
        EXPECT_EQ(plottedCircles(survey), (Circles{{150, 250, 100}, row.third})) << row.position;
    }
    EXPECT_EQ(survey.varn.ScreenXY(1, 0), 150);
}

TEST(LinguisticMap, AThickSymbolLeavesThinLinesOnFormAndPrinter)
{
    TestSurvey survey;
    setWords(survey.varn, 1, {QStringLiteral("a")});
    addSymbol(survey.varn, QStringLiteral("a"), 1);
    survey.varn.Hanko(1).LineThick = 2;
    survey.varn.HankoCaption(1) = QStringLiteral("a");
    DrawSurface printer;
    const MapSurfaces surfaces{printer, survey.frmMap};
    const std::function<void()> steps[] = {
        [&] { PlotLinguisticData(linguisticMapParts(survey.varn), surfaces); },
        [&] { PlotHanrei(linguisticMapParts(survey.varn), surfaces); },
        [&] { PlotLineData(survey.varn, survey.varn, surfaces); },
    };
    for (const auto& draw : steps) {
        printer.DrawWidth = 7;
        survey.frmMap.DrawWidth = 7;
        draw();
        EXPECT_EQ(printer.DrawWidth, 1);
        EXPECT_EQ(survey.frmMap.DrawWidth, 1);
    }
    EXPECT_EQ(printer.drawing().pens.at(0).width, 5) << "the symbol was thick";
}

TEST(LinguisticMap, ARecordMarksEveryFormThatContainsItsKind)
{
    TestSurvey survey;
    setWords(survey.varn, 1, {QStringLiteral("AB")});
    setWords(survey.varn, 2, {QStringLiteral("B"), QStringLiteral("ab"), QString()});
    setWords(survey.varn, 3, {QStringLiteral("xA")});
    addSymbol(survey.varn, QStringLiteral("A"), 1);
    addSymbol(survey.varn, QStringLiteral("AB"), 2);
    EXPECT_EQ(plottedCircles(survey), (Circles{{150, 250, 100}, {550.5F, 650.5F, 100}, {150, 250, 150}}))
        << "record by record, in letter case";

    survey.varn.NHanrei = 0;
    addSymbol(survey.varn, QString(), 1);
    EXPECT_EQ(plottedCircles(survey).size(), 4U) << "an empty kind is in every form that is not empty";
}

TEST(LinguisticMap, ByWholeWordFormsARecordMarksItsKindAloneAndTheEmptyKindTheRest)
{
    TestSurvey survey;
    survey.varn.WholeWordForms = true;
    setWords(survey.varn, 1, {QStringLiteral("AB"), QStringLiteral("A")});
    setWords(survey.varn, 2, {QStringLiteral("B"), QString()});
    addSymbol(survey.varn, QString(), 0);
    addSymbol(survey.varn, QStringLiteral("A"), 1);
    addSymbol(survey.varn, QStringLiteral("AB"), 2);
    EXPECT_EQ(plottedCircles(survey), (Circles{{350, 450, 50}, {150, 250, 100}, {150, 250, 150}}));
}

TEST(LinguisticMap, BothInputsAreNeededInEitherOrder)
{
    LoadedState state;
    dataLoaded(state);
    EXPECT_EQ(state.LoadState, 1);
    EXPECT_FALSE(canDrawLinguisticMap(state));
    dataLoaded(state);
    EXPECT_EQ(state.LoadState, 1);
    symbolSetLoaded(state);
    EXPECT_EQ(state.LoadState, 2);
    dataLoaded(state);
    EXPECT_EQ(state.LoadState, 2) << "reloading never lowers it";
    EXPECT_TRUE(canDrawLinguisticMap(state));

    state = {};
    symbolSetLoaded(state);
    EXPECT_EQ(state.LoadState, 3);
    dataLoaded(state);
    EXPECT_EQ(state.LoadState, 4);
    EXPECT_TRUE(canDrawLinguisticMap(state));
}
