#include "tests/support/RecordingPrinter.h"
#include "tests/support/TestProgram.h"

#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QStatusBar>

namespace {

/// A started program with an item and its symbols loaded.
class LoadedProgram : public StartedForms
{
protected:
    LoadedProgram()
    {
        program.load("mnuInputWord", "rain.dbs");
        program.load("mnuHankoInput", "rain.han");
        program.dialogs.shown.clear();
    }

    template <typename Control>
    Control& control(const char* name) const
    {
        return child<Control>(program.main, name);
    }

    QPushButton& printSwitch() const { return child<QPushButton>(program.map(), "lblInsatsumode"); }

    void choosePrinter(const PageLayout& chosen = {})
    {
        program.dialogs.printer = std::make_unique<RecordingPrinter>(documents, chosen);
        control<QPushButton>("cmdPrinter").click();
    }

    QString status() const { return program.map().statusBar()->currentMessage(); }

    RecordingPrinter::Documents documents;
};

} // namespace

TEST_F(LoadedProgram, WithoutAPrinterNothingIsPrinted)
{
    program.menu("mnuFilePrint").trigger();
    printSwitch().click();
    control<QPushButton>("cmdSettingPrinter").click();
    EXPECT_FALSE(control<QGroupBox>("fraSetMergin").isHidden());
    control<QPushButton>("cmdPrinter").click(); // the dialog is cancelled
    EXPECT_TRUE(control<QGroupBox>("fraSetMergin").isHidden());
    const std::vector<Shown> shown = {
        {QStringLiteral("Printer is not connected.  Please connect the printer in the Main Form."),
         QStringLiteral("Print")},
        {QStringLiteral("Printer is not connected. Please connect the printer in the Main Form."),
         QStringLiteral("Print")},
        {QString(), QStringLiteral("printer")},
        {QStringLiteral("Printer is not connected."), QStringLiteral("Set Printer")},
    };
    EXPECT_EQ(program.dialogs.shown, shown);
    EXPECT_EQ(printSwitch().text(), QStringLiteral("Don't print"));
}

TEST_F(LoadedProgram, TheSwitchSendsEveryDrawingToThePrinter)
{
    choosePrinter();
    program.dialogs.yesNo = {true};
    program.menu("mnuFilePrint").trigger();
    EXPECT_EQ(printSwitch().text(), QStringLiteral("Print A4 Landscape"));
    program.menu("mnuMapLing").trigger();
    EXPECT_EQ(status(), QStringLiteral("Printed: Test - rain"));
    program.menu("mnuHankoList").trigger();
    ASSERT_EQ(documents.size(), 2U);
    EXPECT_TRUE(wasPrinted(documents[0].at(0), QStringLiteral("UYU")));
    EXPECT_EQ(documents[0].name, QStringLiteral("Test - rain"));
    EXPECT_TRUE(wasPrinted(documents[1].at(0), QStringLiteral("1")));
    EXPECT_EQ(documents[1].name, QStringLiteral("Test - Symbols"));

    program.varn.VarnMapName.clear();
    program.menu("mnuHankoList").trigger();
    ASSERT_EQ(documents.size(), 3U);
    EXPECT_EQ(documents[2].name, QStringLiteral("Symbols")) << "no name, no dash";

    printSwitch().click();
    program.menu("mnuMapLing").trigger();
    EXPECT_EQ(documents.size(), 3U);
    EXPECT_TRUE(wasPrinted(program.drawing(), QStringLiteral("UYU")));
}

TEST_F(LoadedProgram, ABlankMapIsTheSameOnPaperAndOnScreen)
{
    program.menu("mnuMapBlank").trigger();
    const std::vector<QString> shown = program.drawing().texts;
    choosePrinter();
    printSwitch().click();
    program.menu("mnuMapBlank").trigger();
    ASSERT_EQ(documents.size(), 1U);
    EXPECT_EQ(documents[0].at(0).texts, shown);
    EXPECT_EQ(documents[0].name, QStringLiteral("Test - Blank Map"));
    EXPECT_TRUE(wasPrinted(documents[0][0], QStringLiteral("Title")));
    EXPECT_FALSE(wasPrinted(documents[0][0], QStringLiteral("UYU"))) << "no legend";

    const QString names = survey.hostPath(QStringLiteral("names.map"));
    survey.write(QStringLiteral("C:\\names.map"), "1\r\n5,5\r\n\"Cape\"\r\n5,9\r\n\"1 km\",1,10\r\n");
    program.dialogs.files = {names};
    program.main.findChild<QAction*>(QStringLiteral("mnuImportPlaceNames"))->trigger();
    EXPECT_TRUE(wasPrinted(program.drawing(), QStringLiteral("Cape"))) << "the form is drawn on again";
}

TEST_F(LoadedProgram, AMapLargerThanThePaperIsPrintedOnRequestOnly)
{
    choosePrinter();
    printSwitch().click();
    program.dialogs.inputs = {QStringLiteral("250")};
    program.menu("mnuMapSize").trigger();
    program.dialogs.yesNo = {false, true};
    program.menu("mnuMapBlank").trigger();
    EXPECT_EQ(program.dialogs.shown.back().text,
              QStringLiteral(
                  "The drawing is larger than the paper within its margins and will be cut. Print it ?"));
    EXPECT_TRUE(documents.empty());
    EXPECT_EQ(status(), QString());
    program.menu("mnuMapBlank").trigger();
    EXPECT_EQ(documents.size(), 1U);
}

TEST_F(LoadedProgram, ThePageOfThePrinterIsTakenOverAndMayBeChangedAfterwards)
{
    PageLayout chosen;
    chosen.PaperOrientation = PageOrientation::Portrait;
    chosen.LeftMargin = 10;
    choosePrinter(chosen);
    EXPECT_EQ(control<QLineEdit>("txtLeftMergin").text(), QStringLiteral("10"));
    EXPECT_EQ(control<QPushButton>("lblDisplayPaperSize").text(),
              QStringLiteral("A4 Portrait(297 X 210) mm"));
    EXPECT_EQ(control<QComboBox>("cboOrientation").currentText(), QStringLiteral("Portrait"));
    printSwitch().click();
    EXPECT_EQ(printSwitch().text(), QStringLiteral("Print A4 Portrait"));
    control<QPushButton>("lblDisplayPaperSize").click();
    EXPECT_EQ(printSwitch().text(), QStringLiteral("Print A4 Landscape"));
    program.menu("mnuMapLing").trigger();
    ASSERT_EQ(documents.size(), 1U);
    EXPECT_EQ(documents[0].orientation, PageOrientation::Landscape);
}

TEST_F(LoadedProgram, CancellingThePrinterDialogTurnsPrintingOff)
{
    choosePrinter();
    printSwitch().click();
    control<QPushButton>("cmdPrinter").click(); // the dialog is cancelled
    EXPECT_EQ(printSwitch().text(), QStringLiteral("Don't print"));
    program.menu("mnuMapLing").trigger();
    EXPECT_TRUE(wasPrinted(program.drawing(), QStringLiteral("UYU")));
    EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
}

TEST_F(LoadedProgram, TheMapFormInFrontShowsWhatOtherFormsChanged)
{
    const QLabel* loaded = nullptr;
    for (const QLabel* label : program.map().statusBar()->findChildren<QLabel*>()) {
        loaded = label->accessibleName() == QStringLiteral("Loaded files") ? label : loaded;
    }
    ASSERT_NE(loaded, nullptr);
    const auto bringToFront = [] {
        QEvent event(QEvent::WindowActivate);
        QCoreApplication::sendEvent(&Program::map(), &event);
    };
    EXPECT_TRUE(loaded->text().startsWith(QStringLiteral("Item: Rain (3 localities)")));
    program.varn.NLocality = 4;
    program.varn.LoadState = 0;
    program.varn.ContrastAnalysed = true;
    bringToFront();
    EXPECT_TRUE(loaded->text().startsWith(
        QStringLiteral("The item has 3 localities, the map has 4.    |    Item: Rain")));
    EXPECT_FALSE(program.menu("mnuMapLing").isEnabled());
    EXPECT_TRUE(program.menu("mnuRank").isEnabled());
    program.varn.ItemFileName.clear();
    program.varn.LoadState = 2;
    program.varn.ContrastAnalysed = false;
    bringToFront();
    EXPECT_TRUE(loaded->text().startsWith(QStringLiteral("No linguistic file loaded")));
    EXPECT_TRUE(program.menu("mnuMapLing").isEnabled());
    EXPECT_FALSE(program.menu("mnuRank").isEnabled());
}

TEST_F(LoadedProgram, TheTabKeyGoesFromTheMapToThePrintSwitch)
{
    EXPECT_EQ(printSwitch().accessibleDescription(), QStringLiteral("Turn printing on or off"));
    EXPECT_EQ(printSwitch().toolTip(), printSwitch().accessibleDescription());
    EXPECT_TRUE(printSwitch().isFlat());
    QStringList visited;
    const QWidget* const map = program.map().findChild<QWidget*>(QStringLiteral("scrMap"));
    const QWidget* widget = map;
    do {
        if ((widget->focusPolicy() & Qt::TabFocus) != 0) {
            visited << widget->objectName();
        }
        widget = widget->nextInFocusChain();
    } while (widget != map);
    EXPECT_EQ(visited, QStringList({QStringLiteral("scrMap"), QStringLiteral("optHankoCenter"),
                                    QStringLiteral("optHankoRight"), QStringLiteral("optHankoLeft"),
                                    QStringLiteral("optHankoUp"), QStringLiteral("optHankoDown"),
                                    QStringLiteral("lblInsatsumode")}));
}

TEST_F(LoadedProgram, PaperAndMarginsFollowTheirBoxes)
{
    auto& paper = control<QComboBox>("cboPaperSize");
    auto& label = control<QPushButton>("lblDisplayPaperSize");
    paper.setCurrentText(QStringLiteral("A3"));
    Q_EMIT paper.activated(paper.currentIndex());
    EXPECT_EQ(paper.currentText(), QStringLiteral("A4"));
    EXPECT_EQ(label.text(), QStringLiteral("A4 Landscape(210 X 297) mm"));
    label.click();
    EXPECT_EQ(label.text(), QStringLiteral("A4 Portrait(297 X 210) mm"));
    EXPECT_EQ(control<QComboBox>("cboOrientation").currentText(), QStringLiteral("Portrait"));

    EXPECT_EQ(control<QLabel>("lblPaperSpace").text(), QStringLiteral("Height:297(mm) Width:210(mm)"));
    control<QPushButton>("cmdSettingPrinter").click();
    EXPECT_EQ(program.main.focusWidget(), &paper);
    EXPECT_EQ(paper.itemText(0) + paper.itemText(1) + paper.itemText(2) + paper.itemText(3),
              QStringLiteral("B5A4B4A3"));
    const std::pair<const char*, qint16 PageLayout::*> boxes[] = {
        {"txtTopMergin", &PageLayout::TopMargin},
        {"txtBottomMergin", &PageLayout::BottomMargin},
        {"txtRightMergin", &PageLayout::RightMargin}};
    qint16 expected = 31;
    for (const auto& [name, margin] : boxes) {
        control<QLineEdit>(name).setText(QString::number(expected));
        EXPECT_EQ(program.varn.*margin, expected++) << name;
    }
    auto& left = control<QLineEdit>("txtLeftMergin");
    const std::pair<const char*, int> rows[] = {{"12.5", 12}, {"13.5", 14}, {"wide", 0}, {"", 0}, {"-3", -3}};
    for (const auto& [text, margin] : rows) {
        left.setText(QLatin1String(text));
        EXPECT_EQ(program.varn.LeftMargin, margin) << text;
    }
    left.setText(QStringLiteral("99999"));
    EXPECT_EQ(program.varn.LeftMargin, -3);
    ASSERT_EQ(program.dialogs.errors.size(), 1U);
    EXPECT_TRUE(program.dialogs.errors[0].title.contains(QStringLiteral("'6'")));
}

TEST_F(LoadedProgram, WhatIsShownIsSavedAndCopied)
{
    program.menu("mnuMapLing").trigger();
    const QString svg = survey.hostPath(QStringLiteral("map.svg"));
    const QString png = survey.hostPath(QStringLiteral("map.png"));
    program.dialogs.savedFiles = {svg, png, std::nullopt, survey.hostPath(QStringLiteral("no/map.pdf"))};
    program.dialogs.inputs = {QStringLiteral("96")};
    program.menu("mnuSaveMapAs").trigger();
    program.menu("mnuSaveMapAs").trigger();
    EXPECT_TRUE(survey.read(QStringLiteral("C:\\map.svg")).contains(">UYU<"));
    EXPECT_EQ(QImage(png).size(), QSize(800, 600));
    program.menu("mnuSaveMapAs").trigger(); // cancelled
    EXPECT_TRUE(program.dialogs.errors.empty());
    program.menu("mnuSaveMapAs").trigger();
    ASSERT_EQ(program.dialogs.errors.size(), 1U);
    EXPECT_TRUE(program.dialogs.errors[0].title.contains(QStringLiteral("'76'")));

    program.dialogs.savedFiles = {png};
    program.dialogs.inputs = {QStringLiteral("none")};
    program.menu("mnuSaveMapAs").trigger();
    EXPECT_EQ(program.dialogs.errors.size(), 2U) << "no resolution";
    EXPECT_EQ(QImage(png).size(), QSize(800, 600));

    program.menu("mnuCopyMap").trigger();
    const QMimeData* copied = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(qvariant_cast<QImage>(copied->imageData()).size(), QSize(1600, 1200));
    EXPECT_TRUE(copied->data(QStringLiteral("image/svg+xml")).contains(">UYU<"));
}
