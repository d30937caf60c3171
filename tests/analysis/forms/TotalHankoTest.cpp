#include "analysis/DiffusionEditor.h"
#include "analysis/StatisticsLines.h"
#include "analysis/forms/DiffusionPreview.h"
#include "analysis/forms/frmTotalHanko.h"
#include "platform/StandardColors.h"
#include "render/forms/SymbolPicker.h"
#include "tests/support/Controls.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"
#include "tests/support/Transcript.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QValidator>

namespace {

const QString Folder = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\");

void fillTable(CumulativeTable& table, int wordforms)
{
    table.NumWordforms = wordforms;
    table.NumItemsAccumulated = 3;
    for (int k = 1; k <= wordforms; ++k) {
        table.WordformName(k) = QStringLiteral("w%1").arg(k);
        table.WordformSymbolColor(k) = k;
        table.WordformPaintColor(k) = static_cast<qint16>(8 + k);
        for (int j = 1; j <= 3; ++j) {
            table.Counts(k, j) = static_cast<qint16>(j);
        }
    }
}

/// The form of diffusion symbols on the map of a `TestSurvey` with two word forms.
class TotalHanko : public testing::Test
{
protected:
    TotalHanko()
    {
        fillTable(survey.varn, 2);
        form.Form_Load();
    }

    template <typename Control>
    Control& control(const char* name)
    {
        return child<Control>(form, name);
    }
    void click(const char* name) { control<QPushButton>(name).click(); }
    void trigger(const char* name) { control<QAction>(name).trigger(); }
    void type(const char* name, const char* text) { control<QLineEdit>(name).setText(QLatin1String(text)); }
    QString text(const char* name) { return control<QLineEdit>(name).text(); }

    void open(const char* file)
    {
        dialogs.files = {survey.drive().hostPath(Folder + QLatin1String(file))};
        trigger("mnuTotalHankoOpen");
    }

    TestSurvey survey;
    VarnModule& varn = survey.varn;
    ScriptedDialogs dialogs;
    frmTotalHanko form{varn, dialogs};
};

} // namespace

TEST(DiffusionEditor, SymbolsFollowTheWordForms)
{
    CumulativeTable table;
    fillTable(table, 2);
    DiffusionSymbols symbols;
    followWordforms(table, {}, symbols);
    EXPECT_EQ(symbols.NDiffusion, 2);
    EXPECT_EQ(symbols.DiffusionCaption(2), QStringLiteral("w2"));
    EXPECT_EQ(symbols.DiffusionHanko(2), (HankoStyle{2, 2, 10, 1, 1, 0}));
    EXPECT_EQ(symbols.MinimumPoints(2), 1);

    const QStringList former = wordformNames(table);
    symbols.DiffusionCaption(2) = QStringLiteral("mine");
    symbols.DiffusionHanko(2).HankoNo = 50;
    table.NumWordforms = 3;
    for (int k = 1; k <= 3; ++k) {
        table.WordformName(k) = QStringLiteral("new%1").arg(k);
    }
    followWordforms(table, former, symbols);
    EXPECT_EQ(symbols.DiffusionCaption(1), QStringLiteral("new1"));
    EXPECT_EQ(symbols.DiffusionCaption(2), QStringLiteral("mine"));
    EXPECT_EQ(symbols.DiffusionCaption(3), QStringLiteral("new3"));

    table.NumWordforms = 1;
    followWordforms(table, former, symbols);
    EXPECT_EQ(symbols.NDiffusion, 1);
    table.NumWordforms = 2;
    followWordforms(table, former, symbols);
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
    EXPECT_TRUE(wasPrinted(surface.drawing(), QStringLiteral("?"))) << "a symbol that does not exist";
    EXPECT_EQ(operationsOf<EllipseOperation>(surface.drawing()).size(), 1U);
    const QRgb gray = qRgb(96, 96, 96);
    const QRgb black = QBColor(0);
    struct Row
    {
        const char* text;
        QRgb color;
        float end;
        float middle;
    };
    const Row rows[] = {
        {"Minimum", gray, 4550, 195},     {"Localities", gray, 5850, 195}, {"1", gray, 400, 690},
        {"2", gray, 400, 1290},           {"3", black, 4550, 1290},        {"0", black, 5850, 690},
        {"?", qRgb(176, 0, 0), 935, 1290}};
    for (const Row& row : rows) {
        const auto texts = operationsOf<TextOperation>(surface.drawing());
        EXPECT_TRUE(std::ranges::any_of(texts, [&](const TextOperation& text) {
            const QString& words = surface.drawing().texts[text.text];
            return words == QLatin1String(row.text) && text.color == row.color &&
                   std::abs(text.x + surface.TextWidth(words) - row.end) < 1 &&
                   std::abs(text.y + surface.TextHeight() / 2 - row.middle) < 1;
        })) << row.text;
    }
    const QString caption = surface.drawing().texts.at(4);
    EXPECT_EQ(caption.endsWith(QStringLiteral("mm...")), anyFont());
    EXPECT_LE(surface.TextWidth(caption), 4550 - 900 - 1320);
    EXPECT_EQ(printedAt(surface.drawing(), caption).x(), 1320);
    EXPECT_EQ(printedAt(surface.drawing(), QStringLiteral("Caption")).x(), 1320);
    const auto shapes = transcript(surface.drawing());
    EXPECT_TRUE(shapes.starts_with("\nbox 0,990 6000,1590 filled #dbe9f9"));
    EXPECT_NE(shapes.find("\nline 0,390 6000,390 pen 1/0/7"), std::string::npos);
    EXPECT_NE(shapes.find("\nellipse 860,690 "), std::string::npos);
}

TEST(StatisticsLines, FiguresOfAWordForm)
{
    CumulativeTable table;
    table.WordformName(3) = QStringLiteral("form");
    Statistics statistics;
    statistics.Median(3) = 3;
    statistics.Mode(3) = 1;
    statistics.Average(3) = 2.999;
    statistics.Sigma(3) = 3;
    EXPECT_EQ(
        statisticsLines(table, statistics, 3),
        QStringList({QStringLiteral("Kt=3 form"), QStringLiteral("Median =3"), QStringLiteral("Mode   =1"),
                     QStringLiteral("Average=2.99"), QStringLiteral("Standard Dev. Sigma=3"),
                     QStringLiteral("Av - Sigma=-0.01"), QStringLiteral("Av + SIgma=5.99")}));
}

TEST_F(TotalHanko, WhatIsEditedIsStoredForTheWordFormShown)
{
    EXPECT_EQ(control<QListWidget>("lstWordform").count(), 2);
    EXPECT_FALSE(control<QPushButton>("cmdBefore").isEnabled());
    EXPECT_FALSE(form.isWindowModified());
    click("cmdNext");
    EXPECT_EQ(control<QListWidget>("lstWordform").currentRow(), 1);
    EXPECT_EQ(text("txtHanrei"), QStringLiteral("w2"));
    EXPECT_FALSE(form.isWindowModified()) << "showing a word form edits nothing";

    type("txtHankoNumber", "49");
    type("txtHanrei", "caption");
    type("txtMinimum", "3");
    type("txtExplain", "comment");
    control<QComboBox>("cboColor").setCurrentIndex(4);
    control<QComboBox>("cboBack").setCurrentIndex(5);
    control<QComboBox>("cboSize").setCurrentIndex(2);
    control<QComboBox>("cboWidth").setCurrentIndex(1);
    control<QCheckBox>("chkPat").setChecked(false);
    EXPECT_EQ(varn.DiffusionHanko(2), (HankoStyle{49, 4, 5, 0, 2, 1}));
    EXPECT_EQ(varn.DiffusionHanko(1), (HankoStyle{1, 1, 9, 1, 1, 0}));
    EXPECT_EQ(varn.MinimumPoints(2), 3);
    EXPECT_EQ(varn.DiffusionCaption(2), QStringLiteral("caption"));
    EXPECT_TRUE(form.isWindowModified());

    type("txtMinimum", "40000");
    ASSERT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(varn.MinimumPoints(2), 3);
    type("txtMinimum", "");
    EXPECT_EQ(varn.MinimumPoints(2), 0);
    for (const char* box : {"txtMinimum", "txtHankoNumber"}) {
        int position = 0;
        for (const char* typed : {"-1", "a", "99999"}) {
            QString text = QLatin1String(typed);
            EXPECT_NE(control<QLineEdit>(box).validator()->validate(text, position), QValidator::Acceptable);
        }
    }

    control<QListWidget>("lstWordform").setCurrentRow(0);
    EXPECT_EQ(text("txtHankoNumber"), QStringLiteral("1"));
    Q_EMIT form.findChild<SymbolPicker*>()->symbolChosen(17);
    EXPECT_EQ(varn.DiffusionHanko(1).HankoNo, 17);
}

TEST_F(TotalHanko, SymbolsAreSavedAndReadBack)
{
    type("txtExplain", "c");
    type("txtHankoNumber", "50");
    type("txtMinimum", "2");
    trigger("mnuTotalHankoSave");
    EXPECT_EQ(dialogs.shown.size(), 1U) << "a name is asked for";
    type("txtFileName", "mine");
    trigger("mnuTotalHankoSave");
    EXPECT_FALSE(form.isWindowModified());
    const QString path = Folder + QStringLiteral("mine.htL");
    const QByteArray saved = "\"c\",2\r\n50,1,9,1,1,0,2,\"w1\"\r\n2,2,10,1,1,0,1,\"w2\"\r\n";
    EXPECT_EQ(survey.read(path), saved);

    for (const char* number : {"49", "50", "51"}) {
        type("txtHankoNumber", number);
        EXPECT_EQ(form.isWindowModified(), number != std::string_view("50"));
    }
    for (const bool overwrite : {false, true}) {
        dialogs.yesNo = {overwrite};
        trigger("mnuTotalHankoSave");
        EXPECT_EQ(survey.read(path) == saved, !overwrite);
    }

    survey.write(path, saved);
    type("txtMinimum", "7");
    dialogs.yesNo = {false};
    open("mine.htL");
    EXPECT_EQ(varn.MinimumPoints(1), 7) << "the changes were kept";
    dialogs.yesNo = {false};
    QCloseEvent close;
    QCoreApplication::sendEvent(&form, &close);
    EXPECT_FALSE(close.isAccepted());

    dialogs.yesNo = {true};
    open("mine.htL");
    EXPECT_EQ(varn.MinimumPoints(1), 2);
    EXPECT_EQ(text("txtHankoNumber"), QStringLiteral("50"));
    EXPECT_FALSE(form.isWindowModified());
    survey.write(Folder + QStringLiteral("short.htL"), "\"x\",2\r\n50,1,9,1,1,0,2,\"w1\"\r\n");
    open("short.htL");
    EXPECT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(varn.DiffusionComment, QStringLiteral("c"));
}

TEST_F(TotalHanko, AFileOfAnotherNumberOfWordFormsIsTold)
{
    survey.write(Folder + QStringLiteral("one.htL"), "\"x\",1\r\n50,1,9,1,1,0,-2,\"first\"\r\n");
    survey.write(Folder + QStringLiteral("three.htL"),
                 "\"x\",3\r\n" + QByteArray("50,16,9,1,1,0,2,\"w\"\r\n").repeated(3));
    open("one.htL");
    EXPECT_EQ(dialogs.shown.size(), 2U);
    EXPECT_EQ(varn.NDiffusion, 2);
    EXPECT_EQ(varn.DiffusionCaption(2), QStringLiteral("w2"));
    EXPECT_EQ(varn.MinimumPoints(1), -2);
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
    click("cmdNext");
    click("cmdStatistics");
    EXPECT_TRUE(dialogs.errors.empty());
    EXPECT_EQ(varn.Average(2), 2);
    for (int j = 1; j <= 3; ++j) {
        varn.Counts(2, j) = 0;
    }
    click("cmdStatistics");
    ASSERT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(dialogs.errors[0].title, QStringLiteral("Run-time error '11': Division by zero"));
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
