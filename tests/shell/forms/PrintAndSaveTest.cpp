#include "tests/support/RecordingPrinter.h"
#include "tests/support/TestProgram.h"

#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
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
    QString paper() const { return control<QPushButton>("lblDisplayPaperSize").text(); }

    void choosePrinter(const PageLayout& chosen = {})
    {
        program.dialogs.printer = std::make_unique<RecordingPrinter>(documents, chosen);
        program.click("cmdPrinter");
    }
    /// Draws a map or a list and returns the name of the document that is printed of it, if any.
    QString printed(const char* entry)
    {
        const std::size_t before = documents.size();
        program.menu(entry).trigger();
        return documents.size() > before ? documents.back().name : QString();
    }

    RecordingPrinter::Documents documents;
};

} // namespace

TEST_F(LoadedProgram, TheSwitchSendsEveryDrawingToThePrinter)
{
    program.menu("mnuMapBlank").trigger();
    const Drawing blankMap = program.drawing();
    PageLayout chosen;
    chosen.PaperOrientation = PageOrientation::Portrait;
    chosen.LeftMargin = 10;
    choosePrinter(chosen);
    EXPECT_EQ(control<QLineEdit>("txtLeftMergin").text(), "10");
    EXPECT_EQ(paper(), "A4 Portrait(297 X 210) mm");
    EXPECT_EQ(control<QComboBox>("cboOrientation").currentText(), "Portrait");
    program.dialogs.yesNo = {true};
    program.menu("mnuFilePrint").trigger();
    EXPECT_EQ(printSwitch().text(), "Print A4 Portrait");
    program.click("lblDisplayPaperSize");
    EXPECT_EQ(printSwitch().text(), "Print A4 Landscape");

    EXPECT_EQ(printed("mnuMapBlank"), "Test - Blank Map");
    EXPECT_EQ(documents.back().orientation, PageOrientation::Landscape);
    EXPECT_EQ(documents.back().at(0).texts, blankMap.texts);
    EXPECT_EQ(printed("mnuMapLing"), "Test - rain");
    EXPECT_EQ(program.map().statusBar()->currentMessage(), "Printed: Test - rain");
    EXPECT_TRUE(wasPrinted(documents.back().at(0), "UYU"));
    survey.write("C:\\names.map", "1\r\n5,5\r\n\"Cape\"\r\n5,9\r\n\"1 km\",1,10\r\n");
    program.dialogs.files = {survey.hostPath("names.map")};
    trigger<frmMain>("mnuImportPlaceNames");
    EXPECT_TRUE(wasPrinted(program.drawing(), "Cape")) << "the form is drawn on again";
    program.varn.VarnMapName.clear();
    EXPECT_EQ(printed("mnuHankoList"), "Symbols") << "no name, no dash";
    program.dialogs.inputs = {"250"};
    program.menu("mnuMapSize").trigger();
    program.dialogs.yesNo = {false, true};
    EXPECT_EQ(printed("mnuMapBlank"), QString());
    EXPECT_EQ(program.dialogs.shown.back().text,
              "The drawing is larger than the paper within its margins and will be cut. Print it ?");
    EXPECT_EQ(printed("mnuMapBlank"), "Blank Map");

    printSwitch().click();
    EXPECT_EQ(printed("mnuMapLing"), QString());
    EXPECT_TRUE(wasPrinted(program.drawing(), "UYU"));
    printSwitch().click();
    program.click("cmdSettingPrinter");
    program.click("cmdPrinter"); // the dialog is cancelled
    EXPECT_TRUE(control<QGroupBox>("fraSetMergin").isHidden());
    EXPECT_EQ(printSwitch().text(), "Don't print");
    EXPECT_EQ(printed("mnuMapLing"), QString());
    EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
}

TEST_F(LoadedProgram, TheTabKeyGoesFromTheMapToThePrintSwitch)
{
    EXPECT_EQ(printSwitch().accessibleDescription(), "Turn printing on or off");
    EXPECT_EQ(printSwitch().toolTip(), printSwitch().accessibleDescription());
    EXPECT_TRUE(printSwitch().isFlat());
    EXPECT_TRUE(std::ranges::any_of(program.map().statusBar()->findChildren<QLabel*>(),
                                    [](QLabel* label) { return label->accessibleName() == "Loaded files"; }));
    QStringList visited;
    const QWidget* const map = &child<QWidget>(program.map(), "scrMap");
    const QWidget* widget = map;
    do {
        if ((widget->focusPolicy() & Qt::TabFocus) != 0) {
            visited << widget->objectName();
        }
        widget = widget->nextInFocusChain();
    } while (widget != map);
    EXPECT_EQ(visited.join(' '), "scrMap optHankoCenter optHankoRight optHankoLeft optHankoUp optHankoDown "
                                 "lblInsatsumode");
}

TEST_F(LoadedProgram, PaperAndMarginsFollowTheirBoxes)
{
    auto& sizes = control<QComboBox>("cboPaperSize");
    sizes.setCurrentText("A3");
    Q_EMIT sizes.activated(sizes.currentIndex());
    EXPECT_EQ(sizes.currentText(), "A4");
    EXPECT_EQ(paper(), "A4 Landscape(210 X 297) mm");
    program.click("lblDisplayPaperSize");
    EXPECT_EQ(paper(), "A4 Portrait(297 X 210) mm");
    EXPECT_EQ(control<QComboBox>("cboOrientation").currentText(), "Portrait");
    EXPECT_EQ(control<QLabel>("lblPaperSpace").text(), "Height:297(mm) Width:210(mm)");
    program.click("cmdSettingPrinter");
    EXPECT_EQ(program.main.focusWidget(), &sizes);
    EXPECT_EQ(sizes.itemText(0) + sizes.itemText(1) + sizes.itemText(2) + sizes.itemText(3), "B5A4B4A3");

    const std::tuple<const char*, qint16 PageLayout::*, const char*, int> rows[] = {
        {"txtTopMergin", &PageLayout::TopMargin, "31", 31},
        {"txtBottomMergin", &PageLayout::BottomMargin, "32", 32},
        {"txtRightMergin", &PageLayout::RightMargin, "33", 33},
        {"txtLeftMergin", &PageLayout::LeftMargin, "13.5", 14},
        {"txtLeftMergin", &PageLayout::LeftMargin, "wide", 0},
        {"txtLeftMergin", &PageLayout::LeftMargin, "-3", -3},
        {"txtLeftMergin", &PageLayout::LeftMargin, "99999", -3}};
    for (const auto& [box, margin, text, value] : rows) {
        type<frmMain>(box, text);
        EXPECT_EQ(program.varn.*margin, value) << box << ' ' << text;
    }
    ASSERT_EQ(program.dialogs.errors.size(), 1U);
    EXPECT_TRUE(program.dialogs.errors[0].title.contains("'6'"));
}

TEST_F(LoadedProgram, WhatIsShownIsSavedAndCopied)
{
    program.menu("mnuMapLing").trigger();
    const QString png = survey.hostPath("map.png");
    program.dialogs.savedFiles = {survey.hostPath("map.svg"), png, std::nullopt,
                                  survey.hostPath("no/map.pdf"), png};
    program.dialogs.inputs = {"96", "none"};
    const std::pair<const char*, std::size_t> saves[] = {
        {"SVG", 0U}, {"PNG", 0U}, {"cancelled", 0U}, {"no folder", 1U}, {"no resolution", 2U}};
    for (const auto& [what, errors] : saves) {
        program.menu("mnuSaveMapAs").trigger();
        EXPECT_EQ(program.dialogs.errors.size(), errors) << what;
    }
    EXPECT_TRUE(survey.read("C:\\map.svg").contains(">UYU<"));
    EXPECT_EQ(QImage(png).size(), QSize(800, 600));
    EXPECT_TRUE(program.dialogs.errors[0].title.contains("'76'"));

    program.menu("mnuCopyMap").trigger();
    const QMimeData* copied = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(qvariant_cast<QImage>(copied->imageData()).size(), QSize(1600, 1200));
    EXPECT_TRUE(copied->data("image/svg+xml").contains(">UYU<"));
}
