// The map form and what the forms do together.

#include "tests/shell/forms/WaysOut.h"
#include "tests/support/TestProgram.h"

#include <QFrame>
#include <QRadioButton>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollArea>

TEST_F(StartedForms, AnItemOpenedInTheDataDisplayCanBeDrawn)
{
    program.load("mnuHankoInput", "rain.han");
    EXPECT_FALSE(program.menu("mnuMapLing").isEnabled());
    program.dialogs.files = {program.varn.Drive.hostPath(program.varn.dataFolder() + "\\rain.dbs")};
    trigger<frmData>("mnuOpen");
    EXPECT_TRUE(program.menu("mnuMapLing").isEnabled());
}

TEST_F(StartedForms, AFailedOrCancelledLoadChangesNothing)
{
    program.load("mnuInputWord", "rain.dbs");
    program.load("mnuHankoInput", "rain.han");
    program.load("mnuInputWord", "gone.dbs");
    ASSERT_EQ(program.dialogs.errors.size(), 1U);
    const QString path = VarnPath + "\\VarnData\\Test\\Ling\\gone.dbs";
    const QString& error = program.dialogs.errors[0].text;
    EXPECT_TRUE(error.contains(path)) << qPrintable(error);
    EXPECT_TRUE(error.endsWith("\nOn this machine: " + DriveC().hostPath(path))) << qPrintable(error);
    program.dialogs.files = {std::nullopt};
    program.menu("mnuInputWord").trigger();
    program.menu("mnuMapLing").trigger();
    EXPECT_TRUE(wasPrinted(program.drawing(), "Rain"));
}

TEST_F(StartedForms, ThePositionPanelStandsInTheCornerOfTheMap)
{
    program.map().show();
    auto& panel = child<QFrame>(program.map(), "fraStyle");
    program.menu("mnuHpos").trigger();
    const QRect map = child<QWidget>(program.map(), "picMap").visibleRegion().boundingRect();
    EXPECT_EQ(panel.geometry().top(), map.top() + 12);
    EXPECT_NEAR(panel.geometry().right(), map.right() - 12, 1);
    EXPECT_EQ(program.map().focusWidget(), &child<QWidget>(panel, "optHankoCenter"));
    int place = 0;
    for (const char* option :
         {"optHankoCenter", "optHankoRight", "optHankoLeft", "optHankoUp", "optHankoDown"}) {
        child<QRadioButton>(panel, option).click();
        EXPECT_EQ(program.varn.HankoPosition, place++);
    }
}

TEST_F(StartedForms, TheDrawingAreaHasTheHeightAskedForOrThatOfTheWindow)
{
    program.map().show();
    const DrawSurface& surface = program.map().surface();
    const std::pair<std::optional<QString>, float> rows[] = {
        {"100", 5670}, {std::nullopt, 5670}, {"0.1", 5.67F}, {"0.05", 9000}};
    for (const auto& [answer, height] : rows) {
        program.dialogs.inputs = {answer};
        program.menu("mnuMapSize").trigger();
        QApplication::processEvents();
        EXPECT_NEAR(surface.Height, height, height * 1e-5F);
        EXPECT_NEAR(surface.Width, height * 4 / 3, height * 1e-5F);
    }
    program.map().resize(640, 480);
    QApplication::processEvents();
    const QSize shown = program.map().findChild<QScrollArea*>()->viewport()->size();
    EXPECT_EQ(QSizeF(surface.Width, surface.Height), QSizeF(640, shown.height()) * TwipsPerPixel);
}

TEST_F(StartedForms, AChangeOfMapIsSeenInAllForms)
{
    const QString isle = VarnPath + "\\VarnData\\Isle\\Map\\";
    survey.write(isle + "Loc.map", "1\r\n7,8\r\n");
    survey.write(isle + "Line.map", "0\r\n");
    survey.write(isle + "kanji.map", "0\r\n1,2\r\n\"km\",1,100\r\n");
    program.load("mnuInputWord", "rain.dbs");
    program.load("mnuHankoInput", "rain.han");
    program.menu("mnuMapLing").trigger();
    for (const char* button : {"cmdData", "cmdHanko", "cmdSumUp", "cmdInputData"}) {
        program.click(button);
    }
    type<frmCalc>("txtTotalNumber", "2");
    press<frmCalc>("cmdTotalNumber");
    type<frmCalc>("txtExplain", "unsaved");
    enterWord(1, 0, "mi");

    for (const bool lose : {false, true}) {
        program.dialogs.files = {survey.drive().hostPath(isle + "Loc.map")};
        program.dialogs.yesNo = lose ? std::deque{true, true} : std::deque{false};
        press<frmChizu>("cmdRegMapName");
        EXPECT_EQ(program.varn.VarnMapName, lose ? "\\Isle" : "\\Test");
        EXPECT_EQ((control<frmDataInput, QAbstractItemView>("tblWords").model()->rowCount()), lose ? 1 : 3);
        EXPECT_EQ(program.varn.NumWordforms, lose ? 0 : 2);
        EXPECT_EQ(program.drawing().operations.empty(), lose);
    }
    EXPECT_EQ(program.dialogs.shown[program.dialogs.shown.size() - 2].text,
              "Unsaved work belongs to map Test and will be lost: item without a name, cumulative data "
              "without a name. Choose the other map?");
    EXPECT_FALSE(program.menu("mnuMapLing").isEnabled());
    for (const char* title : {"VARN - Isle", "VARN Map - Isle - rain.han",
                              "VARN Input Linguistic Data - Isle[*]", "VARN Display Data - Isle",
                              "Set Symbols for Kinds - Isle - rain.han[*]", "Accumulate Data - Isle[*]"}) {
        const auto hasTitle = [&](const VarnForm* form) { return form->windowTitle() == title; };
        EXPECT_TRUE(std::ranges::any_of(allForms(), hasTitle)) << title;
    }
    EXPECT_EQ((control<frmSetHanko, QListWidget>("lstKindWord").count()), 0);
    EXPECT_EQ((control<frmCalc, QLineEdit>("txtExplain").text()), "");
    EXPECT_EQ((control<frmCalc, QListWidget>("lstTotal").count()), 0);
}

TEST_F(Forms, FormsFitTheScreenAndTheirButtonsHoldTheirTextsInALargeFont)
{
    const auto back = qScopeGuard([before = QApplication::font()] { QApplication::setFont(before); });
    QFont large = QApplication::font();
    large.setPointSize(24);
    QApplication::setFont(large);
    Program program(survey);
    start(program);
    int buttons = 0;
    for (VarnForm* form : allForms()) {
        form->show();
        QApplication::processEvents();
        const QSize screen = form->screen()->availableSize();
        EXPECT_EQ(form->size().boundedTo(screen), form->size()) << qPrintable(form->windowTitle());
        for (const QPushButton* button : form->findChildren<QPushButton*>()) {
            const QSize text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
            const bool holds = button->width() > text.width() && button->height() > text.height();
            EXPECT_TRUE(!button->isVisible() || holds) << qPrintable(button->text());
            ++buttons;
        }
    }
    EXPECT_GT(buttons, 50);
}

TEST_F(StartedForms, AFlatButtonShowsThatItHasTheFocus)
{
    const std::pair<QMainWindow*, const char*> buttons[] = {{&program.main, "lblDisplayPaperSize"},
                                                            {&program.map(), "lblInsatsumode"}};
    program.click("cmdSettingPrinter");
    for (const auto& [window, name] : buttons) {
        auto& button = child<QPushButton>(*window, name);
        window->show();
        window->activateWindow();
        QApplication::processEvents();
        button.clearFocus();
        const QImage without = button.grab().toImage();
        button.setFocus();
        ASSERT_TRUE(button.hasFocus()) << name;
        EXPECT_NE(button.grab().toImage(), without) << name;
    }
}
