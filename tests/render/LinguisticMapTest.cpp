#include "render/LinguisticMap.h"

#include "render/BlankMap.h"
#include "render/Legend.h"
#include "shell/MapParts.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

#include <functional>

namespace {

/// A survey on which a twip is a map unit; its records draw outline circles.
struct SymbolSurvey : TestSurvey
{
    SymbolSurvey() { varn.Scale = 1; }

    void setWords(int locality, const QStringList& words)
    {
        varn.NLocate = std::max(varn.NLocate, static_cast<qint16>(locality));
        varn.WordCount(locality) = static_cast<qint16>(words.size());
        for (int j = 1; j <= words.size(); ++j) {
            varn.WordData(locality, j) = words[j - 1];
        }
    }

    void addRecord(const QString& kind, qint16 sizeCode)
    {
        const int k = ++varn.NHanrei;
        varn.HankoWord(k) = kind;
        varn.Hanko(k) = {49, 0, 0, 0, sizeCode, 0};
    }

    std::string drawn()
    {
        frmMap.Cls();
        PlotLinguisticData(linguisticMapParts(varn), surfaces);
        return transcript(frmMap.drawing());
    }
};

} // namespace

TEST(LinguisticMap, ARecordMarksEveryFormThatContainsItsKindInItsSlot)
{
    SymbolSurvey survey;
    survey.setWords(1, {"AB"});
    survey.setWords(2, {"B", "", "ab"});
    survey.setWords(3, {"xA"});
    survey.addRecord("A", 1);
    survey.addRecord("AB", 2);
    survey.addRecord("", 0); // an empty kind is in every form that is not empty
    EXPECT_EQ(survey.drawn(), R"(
ellipse 150,250 100,100 pen 1/0/0
ellipse 550.5,650.5 100,100 pen 1/0/0
ellipse 150,250 150,150 pen 1/0/0
ellipse 150,250 50,50 pen 1/0/0
ellipse 350,450 50,50 pen 1/0/0
ellipse 350,450 50,50 pen 1/0/0
ellipse 550.5,650.5 50,50 pen 1/0/0
)") << "record by record, in letter case";
    EXPECT_EQ(survey.varn.ScreenXY(1, 0), 150);
    for (const auto& [position, third] : {std::pair(HankoRight, "510,450"),
                                          {HankoLeft, "190,450"},
                                          {HankoUp, "350,290"},
                                          {HankoDown, "350,610"}}) {
        survey.varn.HankoPosition = position;
        EXPECT_NE(survey.drawn().find(std::string("ellipse ") + third), std::string::npos) << third;
    }
}

TEST(LinguisticMap, AThickSymbolLeavesThinLinesOnFormAndPrinter)
{
    SymbolSurvey survey;
    survey.setWords(1, {"a"});
    survey.addRecord("a", 1);
    survey.varn.Hanko(1).LineThick = 2;
    DrawSurface printer;
    const MapSurfaces surfaces{{printer, survey.frmMap}, survey.surfaces.area};
    const std::function<void()> steps[] = {
        [&] { PlotLinguisticData(linguisticMapParts(survey.varn), surfaces); },
        [&] { PlotHanrei(linguisticMapParts(survey.varn), surfaces); },
        [&] { PlotLineData(survey.varn, survey.varn, surfaces); }};
    for (const auto& draw : steps) {
        printer.DrawWidth = survey.frmMap.DrawWidth = 7;
        draw();
        EXPECT_EQ(std::pair(printer.DrawWidth, survey.frmMap.DrawWidth), std::pair(1, 1));
    }
    EXPECT_EQ(printer.drawing().pens.at(0).width, 5) << "the symbol was thick";
}

TEST(LinguisticMap, ByWholeWordFormsARecordMarksItsKindAloneAndTheEmptyKindTheRest)
{
    SymbolSurvey survey;
    survey.varn.WholeWordForms = true;
    survey.setWords(1, {"AB", "A"});
    survey.setWords(2, {"B", ""});
    survey.addRecord("", 0);
    survey.addRecord("A", 1);
    survey.addRecord("AB", 2);
    EXPECT_EQ(survey.drawn(), R"(
ellipse 350,450 50,50 pen 1/0/0
ellipse 150,250 100,100 pen 1/0/0
ellipse 150,250 150,150 pen 1/0/0
)");
}
