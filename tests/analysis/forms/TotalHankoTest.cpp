#include "analysis/DiffusionEditor.h"
#include "analysis/StatisticsLines.h"
#include "analysis/forms/DiffusionPreview.h"
#include "analysis/forms/frmTotalHanko.h"
#include "platform/StandardColors.h"
#include "render/forms/SymbolPicker.h"
#include "tests/analysis/forms/AnalysisForm.h"
#include "tests/support/Transcript.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QValidator>

namespace {

const QByteArray First = "1,1,9,1,1,0,1,\"w1\"\r\n";
const QByteArray Second = "2,2,10,1,1,0,1,\"w2\"\r\n";

QByteArray fileContents(const DiffusionSymbols& symbols)
{
    SequentialWriter file;
    writeDiffusionSymbols(file, symbols);
    return file.bytes();
}

/// The form of diffusion symbols with two word forms.
class TotalHanko : public AnalysisForm<frmTotalHanko>
{
protected:
    TotalHanko() : AnalysisForm(2) {}

    void choose(const char* name, int number) { control<QComboBox>(name).setCurrentIndex(number); }
    void save() { menu("mnuTotalHankoSave").trigger(); }
    void open(const char* file) { AnalysisForm::open("mnuTotalHankoOpen", file); }
};

} // namespace

TEST(DiffusionEditor, SymbolsFollowTheWordForms)
{
    CumulativeTable table;
    fillTable(table, 2);
    DiffusionSymbols symbols;
    followWordforms(table, {}, symbols);
    EXPECT_EQ(fileContents(symbols), "\"\",2\r\n" + First + Second);

    const QStringList former = wordformNames(table);
    symbols.DiffusionCaption(2) = QStringLiteral("mine");
    symbols.DiffusionHanko(2).HankoNo = 50;
    fillTable(table, 3);
    table.WordformName(1) = QStringLiteral("new");
    followWordforms(table, former, symbols);
    EXPECT_EQ(fileContents(symbols), "\"\",3\r\n1,1,9,1,1,0,1,\"new\"\r\n50,2,10,1,1,0,1,\"mine\"\r\n"
                                     "3,3,11,1,1,0,1,\"w3\"\r\n");
    table.NumWordforms = 1;
    followWordforms(table, former, symbols);
    EXPECT_EQ(symbols.NDiffusion, 1);
    EXPECT_EQ(symbols.DiffusionHanko(2).HankoNo, 50) << "what was set is not lost with a word form";
    table.NumWordforms = 11;
    EXPECT_EQ(errorOf([&] { followWordforms(table, {}, symbols); }).number(),
              ErrorNumber::SubscriptOutOfRange);
}

TEST(DiffusionPreview, RowsTellWhereTheSymbolIsDrawn)
{
    TestSurvey survey;
    fillTable(survey.varn, 2);
    followWordforms(survey.varn, {}, survey.varn);
    survey.varn.DiffusionCaption(1) = QString(300, QLatin1Char('m'));
    survey.varn.DiffusionHanko(1).HankoNo = 49; // a circle
    survey.varn.DiffusionHanko(2).HankoNo = 5000;
    survey.varn.MinimumPoints(2) = 3;
    for (const auto& [minimum, marked] : {std::pair(0, 3), {2, 2}, {3, 1}, {4, 0}}) {
        survey.varn.MinimumPoints(1) = static_cast<qint16>(minimum);
        EXPECT_EQ(markedLocalities(survey.varn, survey.varn, 1, 3), marked);
    }
    DrawSurface surface;
    surface.Width = 6000;
    surface.Height = diffusionPreviewHeight();
    drawDiffusionPreview(survey.varn, 2, surface);
    const QString caption = surface.drawing().texts.at(4);
    EXPECT_EQ(caption.endsWith(QStringLiteral("mm...")), anyFont());
    EXPECT_LE(surface.TextWidth(caption), 4550 - 900 - 1320);
    const std::string rows = QString(R"(
box 0,990 6000,1590 filled #dbe9f9 pen 1/0/#dbe9f9
"Caption" 1320,~195 10pt color #606060
"Minimum" >4550,~195 10pt color #606060
"Localities" >5850,~195 10pt color #606060
line 0,390 6000,390 pen 1/0/7
"1" >400,~690 10pt color #606060
"%1" 1320,~690 10pt
"4" >4550,~690 10pt
"0" >5850,~690 10pt
ellipse 860,690 100,100 pen 1/0/1
"2" >400,~1290 10pt color #606060
"w2" 1320,~1290 10pt
"3" >4550,~1290 10pt
"2" >5850,~1290 10pt
"?" >935,~1290 10pt color #b00000
)")
                                 .arg(caption)
                                 .toStdString();
    EXPECT_EQ(transcriptLike(rows, surface.drawing()), rows);
    EXPECT_EQ(diffusionPreviewHeight(), 390 + 10 * 600 + 150);
    survey.varn.NDiffusion = 0;
    drawDiffusionPreview(survey.varn, 0, surface);
    EXPECT_TRUE(surface.drawing().operations.empty());
}

TEST(StatisticsLines, FiguresOfAWordForm)
{
    CumulativeTable table;
    fillTable(table, 3);
    SequentialReader file(QStringLiteral("1,0\r\n3\r\n3,1,2.999,3\r\n0,0\r\n"));
    EXPECT_EQ(statisticsLines(table, readStatistics(file), 3).join(QLatin1Char('\n')), R"(Kt=3 w3
Median =3
Mode   =1
Average=2.99
Standard Dev. Sigma=3
Av - Sigma=-0.01
Av + SIgma=5.99)");
}

TEST_F(TotalHanko, WhatIsEditedIsSavedAndReadBack)
{
    click("cmdNext");
    EXPECT_EQ(text("txtHanrei"), QStringLiteral("w2"));
    EXPECT_FALSE(form.isWindowModified()) << "showing a word form edits nothing";
    type("txtHankoNumber", "49");
    type("txtHanrei", "caption");
    type("txtMinimum", "3");
    type("txtExplain", "comment");
    choose("cboColor", 4);
    choose("cboBack", 5);
    choose("cboSize", 2);
    choose("cboWidth", 1);
    control<QCheckBox>("chkPat").setChecked(false);
    EXPECT_TRUE(form.isWindowModified());
    type("txtMinimum", "40000");
    EXPECT_EQ(dialogs.errors.size(), 1U);
    type("txtFileName", "mine");
    save();
    EXPECT_FALSE(form.isWindowModified());
    const QByteArray saved = "\"comment\",2\r\n" + First + "49,4,5,0,2,1,3,\"caption\"\r\n";
    EXPECT_EQ(survey.read(ling("mine.htL")), saved);

    for (const char* number : {"48", "49"}) {
        type("txtHankoNumber", number);
        EXPECT_EQ(form.isWindowModified(), number == std::string_view("48")) << "taken back";
    }
    type("txtMinimum", "");
    for (const bool overwrite : {false, true}) {
        dialogs.yesNo = {overwrite};
        save();
        EXPECT_EQ(survey.read(ling("mine.htL")) == saved, !overwrite);
    }
    survey.write(ling("mine.htL"), saved);
    control<QListWidget>("lstWordform").setCurrentRow(0);
    Q_EMIT form.findChild<SymbolPicker*>()->symbolChosen(17);
    const QByteArray edited = "\"comment\",2\r\n17,1,9,1,1,0,1,\"w1\"\r\n49,4,5,0,2,1,0,\"caption\"\r\n";
    dialogs.yesNo = {false};
    open("mine.htL");
    EXPECT_EQ(fileContents(varn), edited) << "the changes were kept";
    dialogs.yesNo = {true};
    open("mine.htL");
    EXPECT_EQ(fileContents(varn), saved);
    EXPECT_EQ(text("txtHankoNumber"), QStringLiteral("1"));
    EXPECT_FALSE(form.isWindowModified());
    survey.write(ling("short.htL"), "\"x\",2\r\n" + First);
    open("short.htL");
    EXPECT_EQ(dialogs.errors.size(), 2U);
    EXPECT_EQ(fileContents(varn), saved);
}

TEST_F(TotalHanko, NumbersOfSixteenBitsCanBeTyped)
{
    int position = 0;
    for (const char* box : {"txtMinimum", "txtHankoNumber"}) {
        for (QString typed : {"-1", "a", "99999"}) {
            EXPECT_NE(control<QLineEdit>(box).validator()->validate(typed, position), QValidator::Acceptable);
        }
    }
}

TEST_F(TotalHanko, AFileOfAnotherNumberOfWordFormsIsTold)
{
    survey.write(ling("one.htL"), "\"x\",1\r\n50,1,9,1,1,0,-2,\"first\"\r\n");
    survey.write(ling("three.htL"), "\"x\",3\r\n" + QByteArray("50,16,9,1,1,0,2,\"w\"\r\n").repeated(3));
    open("one.htL");
    EXPECT_EQ(dialogs.shown.size(), 2U);
    EXPECT_EQ(fileContents(varn), "\"x\",2\r\n50,1,9,1,1,0,-2,\"first\"\r\n" + Second);
    EXPECT_TRUE(form.isWindowModified()) << "the file has fewer";

    dialogs.yesNo = {true};
    open("three.htL");
    EXPECT_EQ(varn.NDiffusion, 2);
    click("cmdNext");
    EXPECT_EQ(control<QComboBox>("cboColor").currentIndex(), -1);
    EXPECT_EQ(varn.DiffusionHanko(2).LineColor, 16) << "what the list does not have is not changed unasked";
}

TEST_F(TotalHanko, StatisticsAreOfTheCountsAsTheyAre)
{
    click("cmdStatistics");
    EXPECT_EQ(varn.Average(2), 4);
    varn.Counts(2, 3) = 0;
    click("cmdStatistics");
    EXPECT_EQ(varn.Average(2), 3);
}

TEST_F(TotalHanko, AFormThatWasOpenedFollowsTheTableWhenItComesToTheFront)
{
    fillTable(varn, 3);
    frmTotalHanko unopened(varn, dialogs);
    for (const auto& [shown, symbols] : {std::pair(&unopened, 2), {&form, 3}}) {
        QEvent activated(QEvent::WindowActivate);
        QApplication::sendEvent(shown, &activated);
        EXPECT_EQ(varn.NDiffusion, symbols);
    }
    EXPECT_EQ(listed("lstWordform"), QStringList({"w1", "w2", "w3"}));
}

TEST_F(TotalHanko, WithoutATableThereIsNothingToSet)
{
    varn.NumWordforms = 0;
    form.Form_Load();
    type("txtMinimum", "9");
    EXPECT_EQ(varn.MinimumPoints(1), 1);
    fillTable(varn, 10);
    form.Form_Load();
    EXPECT_EQ(varn.NDiffusion, 10);
    EXPECT_EQ(text("txtHanrei"), QStringLiteral("w1"));
}
