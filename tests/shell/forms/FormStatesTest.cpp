// What each form tells and greys out, and how its drawings lie on it: with nothing loaded, and with
// everything.

#include "analysis/forms/StatisticsPages.h"
#include "platform/forms/SurfaceView.h"
#include "render/forms/WordDelegate.h"
#include "tests/shell/forms/EveryWayOut.h"
#include "tests/support/Pixels.h"

#include <QComboBox>
#include <QLabel>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>

namespace {

struct State
{
    const char* form;
    /// As it is read: with a star where something is not saved.
    const char* title;
    const char* status;
    const char* greyed;
    /// What stands in its boxes and lists.
    const char* held = "";
};

QString titleOf(const VarnForm& form)
{
    return form.windowTitle().replace(QStringLiteral("[*]"),
                                      form.isWindowModified() ? QStringLiteral("*") : QString());
}

/// The labels of the status bar.
QList<QLabel*> statusLabels(const VarnForm& form)
{
    return form.findChild<QStatusBar*>() != nullptr ? form.statusBar()->findChildren<QLabel*>()
                                                    : QList<QLabel*>();
}

QString statusOf(const VarnForm& form)
{
    QStringList texts;
    for (const QLabel* label : statusLabels(form)) {
        texts << label->text();
    }
    if (const auto* bar = form.findChild<QStatusBar*>()) {
        texts << bar->currentMessage();
    }
    texts.removeAll(QString());
    return texts.join(QStringLiteral(" / "));
}

QString greyedOf(const VarnForm& form)
{
    QStringList names;
    for (const auto& [name, way] : waysOut(form)) {
        if (!way->property("enabled").toBool()) {
            names << name;
        }
    }
    return names.join(QLatin1Char(' '));
}

/// The boxes, counters and lists that can be seen and hold something, with what they hold.
QString heldBy(const VarnForm& form)
{
    const QStringList counters = {"lblRec", "lblTotal", "lblStrings", "lblWordNumber", "lblCell"};
    QStringList held;
    for (const QString& line : shownOn(form)) {
        const QString name = line.section(QLatin1Char('='), 0, 0);
        const bool isBox = name.startsWith(QLatin1String("txt")) || name.startsWith(QLatin1String("cbo")) ||
                           counters.contains(name);
        if ((isBox || name.startsWith(QLatin1String("lst"), Qt::CaseInsensitive)) &&
            name.size() + 1 < line.size()) {
            held << line;
        }
    }
    return held.join(QLatin1Char(' '));
}

/// The white paper on a view, and what is drawn within its frame.
std::pair<QRect, QRect> paperAndInk(SurfaceView& view)
{
    const QImage picture = view.grab().toImage();
    const auto isWhite = [](const QColor& color) { return color == Qt::white; };
    const QRect paper = extent(picture, picture.rect(), isWhite);
    return {paper, extent(picture, paper.adjusted(2, 2, -2, -2), std::not_fn(isWhite))};
}

} // namespace

class FormStates : public EveryWayOut
{
protected:
    static void expectStates(const std::vector<State>& states)
    {
        for (const State& state : states) {
            const VarnForm& form = formNamed(QLatin1String(state.form));
            showOnly(QLatin1String(state.form));
            EXPECT_EQ(titleOf(form).toStdString(), state.title);
            EXPECT_EQ(statusOf(form).toStdString(), state.status) << state.form;
            EXPECT_EQ(greyedOf(form).toStdString(), state.greyed) << state.form;
            EXPECT_EQ(heldBy(form).toStdString(), state.held) << state.form;
        }
    }

    /// Everything is displayed.
    void display()
    {
        open();
        trigger<frmCalExec>("mnuDisplay");
        trigger<frmRankData>("mnuDisplayRank");
        press<frmTotalHanko>("cmdStatistics");
        Program::menu("mnuMapLing").trigger();
    }

    static SurfaceView& view(const char* form, const char* name)
    {
        showOnly(QLatin1String(form));
        return child<SurfaceView>(formNamed(QLatin1String(form)), name);
    }
};

TEST_F(FormStates, WithNothingLoaded)
{
    program = std::make_unique<Program>(survey);
    start(*program);
    for (const char* button : {"cmdMap", "cmdRegMap", "cmdInputData", "cmdData", "cmdHanko", "cmdSumUp"}) {
        program->click(button);
    }
    trigger<frmCalc>("mnuTotalForm");
    trigger<frmCalExec>("mnuStatsSymbols");
    trigger<frmCalc>("mnuRankExe");
    EXPECT_EQ(view("frmData", "picPage").size(), QSize(1030, 720));
    const std::pair<const char*, const char*> empty[] = {
        {"frmMain", "picPreview"},     {"frmChizu", "picMap"},
        {"frmData", "picPage"},        {"frmSetHanko", "picHanrei"},
        {"frmCalExec", "picPage"},     {"frmRankData", "picRank"},
        {"frmTotalHanko", "picHanko"}, {"frmTotalHanko", "picStatistics"}};
    for (const auto& [form, name] : empty) {
        EXPECT_FALSE(paperAndInk(view(form, name)).second.isEmpty()) << form << " tells what will be shown";
    }
    expectStates({
        {"frmMain", "VARN - Test", "", "", "txtVarnPath=C:\\Varn62E\\Varn txtVarnMapName=Test"},
        {"frmMap", "VARN Map - Test", "No linguistic file loaded    |    No symbol file loaded",
         "mnuMapLing mnuRank mnuTotalBar mnuTotalCircle mnuTotalHanko mnuTotalSBar mnuTotalSCircle"},
        {"frmChizu", "Set Map Data and Draw Blank Map - Test", "", "",
         "txtMapName=Test txtPathName=C:\\Varn62E\\Varn"},
        {"frmDataInput", "VARN Input Linguistic Data - Test", "0 of 3 localities answered, 0 word forms",
         "mnuAddLocalities mnuRedo mnuUndo", "lblCell=Locality 1, word 1"},
        {"frmData", "VARN Display Data - Test", "",
         "mnuData mnuKind mnuNextPage mnuPageNo mnuPreviousPage mnuPrint mnuSave"},
        {"frmSetHanko", "Set Symbols for Kinds - Test",
         "No linguistic file loaded    |    Symbols: new set (0 records)",
         "cmdBefore mnuHankoInit mnuLoadMap mnuRedo mnuSaveHanko mnuUndo",
         "lblRec=1/New cboColor=Black cboBack=Black cboSize=Normal cboWidth=Normal"},
        {"frmCalc", "Accumulate Data - Test",
         "Open a cumulative file, or type the number of word forms and press O.K.",
         "cmdNext cmdPrevious cmdSet cmdSetWord cmdWordBefore cmdWordDelete cmdWordNext cmdWordReset "
         "cmdWordRewrite cmdWordSave cmdWordSelect",
         "txtTotalItems=0 lblTotal=No wordforms cboForeColor=Black cboFillColor=Black lblWordNumber=No kinds "
         "of words lblStrings=Strings of wordform 1: 0"},
        {"frmCalExec", "Execution of Cumulative Analysis - Test",
         "No cumulative data: open it in Accumulate Data    |    No linguistic file loaded",
         "mnuDisplay mnuDisplayNext mnuDisplayPrevious mnuItemNext mnuItemPrevious mnuStatsDisplay "
         "mnuStatsDisplayAll mnuStatsExec mnuStatsSave"},
        {"frmRankData", "Analysis for Contrast Map - Test",
         "No cumulative data: open it in the form Accumulate Data",
         "cmdCalc cmdData1 cmdData2 cmdDel1 cmdDel2 mnuDisplayNext mnuDisplayPrevious mnuDisplayRank "
         "mnuRankMap mnuRankOpen",
         "txtStep=6 txtSize=150"},
        {"frmTotalHanko", "Set Symbols for Diffusion Map - Test",
         "No cumulative data: open it in the form Accumulate Data",
         "cmdBefore cmdNext cmdStatistics cmdSymbol mnuTotalHankoMap mnuTotalHankoOpen mnuTotalHankoSave",
         "cboColor=Black cboBack=Black cboSize=Small cboWidth=Thin"},
    });
}

TEST_F(FormStates, WithEverythingDisplayed)
{
    display();
    expectStates({
        {"frmMap", "VARN Map - Test - rain.dbs - rain.han",
         "Item: Rain (3 localities)    |    Symbols: rain.han (2 captions)", ""},
        {"frmData", "VARN Display Data - Test - rain.dbs - Data", "Page 1 of 1    |    Word forms: 3",
         "mnuNextPage mnuPreviousPage"},
        {"frmSetHanko", "Set Symbols for Kinds - Test - rain.dbs - rain.han",
         "Item: Rain (2 kinds)    |    Symbols: rain.han (2 records)", "mnuRedo mnuUndo",
         "lstKindWord=1 ame,2 uyu lblRec=2/2 txtWord=uyu txtHanrei=UYU txtHankoNumber=49 cboColor=Red "
         "cboBack=Black "
         "cboSize=Normal cboWidth=Normal"},
        {"frmCalc", "Accumulate Data - Test - all.ttl",
         "Counts of 2 word forms over 5 items    |    Strings: all.sum", "cmdPrevious cmdWordBefore",
         "txtTotalNumber=2 txtTotalItems=5 txtExplain=the caption txtTotalFileName=all lstTotal=1 one,2 two "
         "lblTotal=Wordform 1 of 2 txtTotalName=one cboForeColor=L.Red cboFillColor=L.Blue "
         "txtWordFileName=rain.dbs lblWordNumber=Kind of word 1 of 2 lstDisplay=1 "
         "ame,2 uyu txtInputWord=a lblStrings=Strings of wordform 1: 2 LstWord=a,am txtSetFileName=all"},
        {"frmCalExec", "Execution of Cumulative Analysis - Test - all.ttl",
         "Wordform 1 one    |    Page 1 of 1    |    Counts of 2 word forms over 5 items    |    "
         "Item: rain.dbs",
         ""},
        {"frmRankData", "Analysis for Contrast Map - Test*",
         "Cumulative data: 2 word forms, 5 items    |    Analysed    |    Page 1 of 1",
         "mnuDisplayNext mnuDisplayPrevious",
         "lstWordList=one,two lstData1=one lstData2=two txtStep=6 txtSize=150 txtSetColor1=L.Red "
         "txtFillColor1=L.Red txtSetColor2=L.Blue txtFillColor2=L.Blue"},
        {"frmTotalHanko", "Set Symbols for Diffusion Map - Test",
         "Word form 1 of 2    |    5 items, 3 localities", "cmdBefore",
         "lstWordform=one,two txtHanrei=one txtHankoNumber=1 cboColor=L.Red cboBack=L.Blue cboSize=Normal "
         "cboWidth=Thin txtMinimum=1"},
    });
    const char* const title = "Execution of Cumulative Analysis - Test - all.ttl";
    const char* const noPages = "mnuDisplayNext mnuDisplayPrevious";
    trigger<frmCalExec>("mnuStatsDisplayAll");
    expectStates({{"frmCalExec", title, "Statistics of 5 items", noPages}});
    trigger<frmCalExec>("mnuStatsExec");
    expectStates({{"frmCalExec", title,
                   "Wordform 1 one    |    Columns: count, localities with at least that, with exactly that"
                   "    |    Statistics of 5 items",
                   noPages}});
    program->varn.Counts(1, 1) += 1;
    trigger<frmCalExec>("mnuStatsDisplayAll");
    expectStates({{"frmCalExec", title, "Statistics of 5 items    |    The counts are others now",
                   "mnuDisplayNext mnuDisplayPrevious mnuStatsSave"}});
}

TEST_F(FormStates, ControlsOfOneKindAreMadeAlike)
{
    display();
    int lists = 0;
    int colors = 0;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const auto* form = qobject_cast<VarnForm*>(window);
        if (form == nullptr) {
            continue;
        }
        for (const QLabel* label : statusLabels(*form)) {
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << "a file name is no markup";
            EXPECT_EQ(label->contentsMargins(), QMargins(8, 0, 8, 0));
        }
        if (const auto* scroll = qobject_cast<QScrollArea*>(form->centralWidget());
            scroll != nullptr && scroll->objectName().isEmpty()) { // a small screen
            EXPECT_FALSE(scroll->accessibleName().isEmpty());
            EXPECT_EQ(scroll->frameShape(), QFrame::NoFrame);
            EXPECT_TRUE(scroll->widgetResizable());
        }
        for (const QLineEdit* box : form->findChildren<QLineEdit*>()) {
            const QPalette& palette = box->palette();
            EXPECT_EQ(palette.color(QPalette::Base) == palette.color(QPalette::Window), box->isReadOnly())
                << qPrintable(box->objectName());
        }
        for (const QListWidget* list : form->findChildren<QListWidget*>()) {
            const bool hasWords = list->objectName() != QLatin1String("lstCheck") && list->window() == form;
            EXPECT_EQ(qobject_cast<WordDelegate*>(list->itemDelegate()) != nullptr, hasWords)
                << qPrintable(list->objectName());
            lists += hasWords ? 1 : 0;
        }
        for (const QComboBox* box : form->findChildren<QComboBox*>(QRegularExpression("Color|cboBack"))) {
            EXPECT_EQ(box->count(), 16) << qPrintable(box->objectName());
            ++colors;
        }
        for (const auto& [name, texts] :
             {std::pair("cboSize", "Small,Normal,Large"), {"cboWidth", "Thin,Normal,Thick"}}) {
            if (const auto* box = form->findChild<QComboBox*>(QLatin1String(name))) {
                EXPECT_EQ(box->itemText(0) + ',' + box->itemText(1) + ',' + box->itemText(2),
                          QLatin1String(texts));
            }
        }
    }
    EXPECT_EQ(lists, 9);
    EXPECT_EQ(colors, 10);
}

TEST_F(FormStates, DrawingsLieOnTheirPaper)
{
    display();
    EXPECT_EQ(view("frmMap", "picMap").size(), QSize(800, 600));
    EXPECT_EQ(view("frmCalExec", "picPage").minimumSize(), QSize(573, 293));
    const QRect result = paperAndInk(view("frmRankData", "picRank")).first;
    EXPECT_NEAR(1.0 * result.height() / result.width(), 442.0 / 420, 0.01);
    for (const char* form : {"frmSetHanko", "frmTotalHanko"}) {
        SurfaceView& sample = view(form, "picSample");
        const QRect symbol = paperAndInk(sample).second;
        EXPECT_GT(symbol.width(), 12) << form;
        EXPECT_LE((symbol.center() - sample.rect().center()).manhattanLength(), 2) << form;
    }
    const std::tuple<const char*, const char*, int> margins[] = {{"frmData", "picPage", 20},
                                                                 {"frmTotalHanko", "picStatistics", 8}};
    for (const auto& [form, name, margin] : margins) {
        const QRect ink = paperAndInk(view(form, name)).second;
        EXPECT_NEAR(ink.left(), margin, 2) << form;
        EXPECT_NEAR(ink.top(), margin, 5) << form;
    }
    const std::tuple<const char*, const char*, int> growing[] = {{"frmSetHanko", "picHanrei", 466},
                                                                 {"frmTotalHanko", "picHanko", 436},
                                                                 {"frmTotalHanko", "picStatistics", 136}};
    for (const auto& [form, name, least] : growing) {
        SurfaceView& growingView = view(form, name);
        EXPECT_EQ(growingView.minimumHeight(), least) << name;
        growingView.resize(growingView.width() + 50, growingView.height() + 30);
        EXPECT_EQ(paperAndInk(growingView).first, growingView.rect()) << name << ": paper to its edges";
    }
    const std::pair<const char*, QSizeF> results[] = {
        {"mnuStatsExec", StatisticsPages::tableArea(5)},
        {"mnuStatsDisplayAll", StatisticsPages::overviewArea()}};
    for (const auto& [entry, area] : results) {
        trigger<frmCalExec>(entry);
        EXPECT_EQ(view("frmCalExec", "picPage").minimumSize(),
                  ((area + QSizeF(600, 600)) / TwipsPerPixel).toSize())
            << entry;
    }
}

TEST_F(FormStates, AFormThatNobodyTouchesIsNotPaintedAgain)
{
    struct Paints : QObject
    {
        bool eventFilter(QObject*, QEvent* event) override
        {
            number += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int number = 0;
    };
    display();
    const std::pair<const char*, const char*> views[] = {{"frmMap", "picMap"},
                                                         {"frmTotalHanko", "picHanko"},
                                                         {"frmSetHanko", "picHanrei"},
                                                         {"frmCalExec", "picPage"},
                                                         {"frmRankData", "picRank"}};
    for (const auto& [form, name] : views) {
        SurfaceView& shown = view(form, name);
        Paints paints;
        QApplication::processEvents();
        shown.installEventFilter(&paints);
        for (int times = 0; times < 5; ++times) {
            QApplication::processEvents();
        }
        EXPECT_EQ(paints.number, 0) << form;
    }
}

TEST_F(FormStates, ANewPageIsShownFromItsTop)
{
    display();
    const std::pair<const char*, const char*> forms[] = {{"frmData", "mnuKind"},
                                                         {"frmCalExec", "mnuDisplay"}};
    for (const auto& [name, entry] : forms) {
        showOnly(QLatin1String(name));
        VarnForm& form = formNamed(QLatin1String(name));
        form.resize(400, 200);
        QApplication::processEvents();
        QScrollBar& bar = *child<QScrollArea>(form, "scrPage").verticalScrollBar();
        bar.setValue(50);
        ASSERT_EQ(bar.value(), 50) << name;
        child<QAction>(form, entry).trigger();
        EXPECT_EQ(bar.value(), 0) << name;
    }
}

TEST_F(FormStates, WhatIsChosenAndTypedStaysWhenAFormComesBackToTheFront)
{
    display();
    int rows = 0;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const auto* form = qobject_cast<VarnForm*>(window);
        if (form == nullptr) {
            continue;
        }
        showOnly(QLatin1String(form->metaObject()->className()));
        const auto chosen = [form] {
            QStringList found = {heldBy(*form)};
            for (const QListWidget* list : form->findChildren<QListWidget*>()) {
                found << list->objectName() + QString::number(list->currentRow());
            }
            return found;
        };
        for (QListWidget* list : form->findChildren<QListWidget*>()) {
            list->setCurrentRow(list->count() - 1);
            rows += list->count();
        }
        QApplication::processEvents();
        for (const char* box : {"txtInputWord", "txtWord", "txtKind", "txtTotalName", "txtRankTitle"}) {
            if (auto* typed = form->findChild<QLineEdit*>(QLatin1String(box))) {
                typed->setText(QStringLiteral("typed"));
            }
        }
        const QStringList before = chosen();
        QEvent activated(QEvent::WindowActivate);
        QApplication::sendEvent(window, &activated);
        QApplication::processEvents();
        EXPECT_EQ(chosen(), before) << form->metaObject()->className();
    }
    EXPECT_GT(rows, 10);
}

TEST_F(FormStates, TheMapFormBeginsInTheCornerOfTheScreenAndItsPlaceCounts)
{
    program = std::make_unique<Program>(survey);
    const QPoint corner = Program::map().screen()->availableGeometry().topLeft();
    EXPECT_EQ(corner, QPoint(100, 50));
    EXPECT_EQ(Program::map().pos(), corner);
    const std::tuple<QPoint, float, float> places[] = {
        {{0, 0}, 0, 0}, {{-30, -30}, 0, 0}, {{30, 20}, 450, 300}, {{150, 0}, 2250, 0}};
    for (const auto& [place, left, top] : places) {
        Program::map().move(corner + place);
        const FormArea area = Program::map().surfaces().area;
        EXPECT_EQ(area.Left, left);
        EXPECT_EQ(area.Top, top);
    }
}
