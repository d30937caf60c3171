#include "symbols/forms/SymbolPreview.h"

#include "render/SymbolSample.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

namespace {

/// A preview of the records of a map.
class SymbolPreview : public testing::Test, protected TestSurvey
{
protected:
    SymbolPreview()
    {
        surface.Width = 6000;
        surface.Height = 390 + 20 * 350;
    }

    void add(const QString& word, const QString& caption, const HankoStyle& hanko)
    {
        const int k = ++varn.NHanrei;
        varn.HankoWord(k) = word;
        varn.HankoCaption(k) = caption;
        varn.Hanko(k) = hanko;
    }

    DrawSurface surface;
};

} // namespace

TEST_F(SymbolPreview, RecordsStandInRowsWithWhatIsWrongInRed)
{
    add("ame", "Rain", {49, 4, 0, 0, 1, 1});
    add("u", "U", {5000, 0, 0, 0, 1, 1});
    add("a\\Q", "cap", {51, 12, 9, 1, 0, 0});
    varn.CurrentHanko = 3;
    varn.MapFontSize = 30;
    EXPECT_EQ(DisplayHanrei(varn, 2, 3, surface), 4290);
    const char* const rows = R"(
box 0,740 6000,1090 filled #dbe9f9 pen 1/0/#dbe9f9
"2" >500,~565 11pt color #606060
"?" |960,~565 11pt color #b00000
"u" 1470,~565 11pt
"3" >500,~915 11pt color #606060
ellipse 960,915 50,50 pen 1/0/12
ellipse 960,915 25,25 filled 9 pen 1/0/12
"a\Q" 1470,~915 11pt color #b00000
"U" 3270,~565 11pt
"cap" 3270,~915 11pt
"Kind" 1470,~165 11pt color #606060
"Caption" 3270,~165 11pt color #606060
line 0,330 6000,330 pen 1/0/7
)";
    EXPECT_EQ(transcriptLike(rows, surface.drawing()), rows);
    EXPECT_EQ(DisplayHanrei(varn, 1, 0, surface), 0);
    EXPECT_TRUE(surface.drawing().operations.empty());
}

TEST_F(SymbolPreview, CaptionsStandBehindTheLongestKind)
{
    const QString kind(60, 'm');
    const QString caption(60, 'w');
    add(kind, caption, {49, 4, 0, 0, 1, 1});
    varn.CurrentHanko = 2; // is not shown
    varn.MapFontSize = 2;
    const float end = DisplayHanrei(varn, 1, 1, surface);
    const std::string row = QString(R"(
"1" >500,~565 8pt color #606060
ellipse 960,565 100,100 pen 3/0/4
"%1" 1470,~565 8pt
"%2" +300,~565 8pt
)")
                                .arg(kind, caption)
                                .toStdString();
    EXPECT_EQ(transcriptLike(row, surface.drawing()).substr(0, row.size()), row);
    EXPECT_NEAR(end, printedAt(surface.drawing(), caption).x() + surface.TextWidth(caption) + 120, 1);
}

TEST_F(SymbolPreview, ARowIsFoundByItsHeight)
{
    constexpr float Usual = 390 + 20 * 350;
    const std::tuple<float, float, std::optional<int>> rows[] = {{Usual, 389, std::nullopt},
                                                                 {Usual, 391, 5},
                                                                 {Usual, 739, 5},
                                                                 {Usual, 741, 6},
                                                                 {Usual, 1091, std::nullopt},
                                                                 {100, 719, 5},
                                                                 {100, 721, 6},
                                                                 {90000, 809, 5},
                                                                 {90000, 811, 6}};
    for (const auto& [height, y, record] : rows) {
        surface.Height = height;
        EXPECT_EQ(recordAt(y, 5, 6, surface), record) << height << ' ' << y;
    }
    EXPECT_EQ(smallestPreviewHeight(), 390 + 20 * 330);
}

TEST_F(SymbolPreview, CodedWordsAreLettersAndFaultyOnesStayAsWritten)
{
    varn.VarnPath = varn.Drive.varnPath(INSTALLATION_FOLDER); // with its glyphs
    add("a\\E1b", "plain", {1, 0, 0, 0, 1, 1});
    add("a\\Zxb", QString(), {1, 0, 0, 0, 1, 1});
    DisplayHanrei(varn, 1, 2, surface);
    EXPECT_EQ(operationsOf<PictureOperation>(surface.drawing()).size(), 1U);
    EXPECT_TRUE(wasPrinted(surface.drawing(), "b"));
    EXPECT_TRUE(wasPrinted(surface.drawing(), "a\\Zxb"));
}

TEST_F(SymbolPreview, SymbolsThatCannotBeDrawnAreMarked)
{
    const std::pair<HankoStyle, bool> rows[] = {
        {{161, 0, 0, 0, 1, 1}, false}, {{-1, 0, 0, 0, 1, 1}, false}, {{49, 16, 0, 0, 1, 1}, false},
        {{49, 0, -1, 0, 1, 1}, false}, {{160, 0, 0, 0, 1, 1}, true}, {{49, 15, 15, 7, 9, -4}, true}};
    for (const auto& [hanko, isDrawn] : rows) {
        varn.NHanrei = 0;
        add("k", QString(), hanko);
        DisplayHanrei(varn, 1, 1, surface);
        EXPECT_EQ(canDraw(hanko, varn), isDrawn) << hanko.HankoNo;
        EXPECT_EQ(wasPrinted(surface.drawing(), "?"), !isDrawn) << hanko.HankoNo;
    }
}
