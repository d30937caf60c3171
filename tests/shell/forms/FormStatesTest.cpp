// What each form tells and greys out, and how its drawings lie on it: with nothing loaded, and with
// everything.

#include "analysis/forms/StatisticsPages.h"
#include "platform/forms/SurfaceView.h"
#include "render/forms/WordDelegate.h"
#include "tests/shell/forms/EveryWayOut.h"
#include "tests/support/Pixels.h"

#include <QLabel>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>

namespace {

/// The labels of the status bar.
QList<QLabel*> statusLabels(const VarnForm& form)
{
    const auto* bar = form.findChild<QStatusBar*>();
    return bar != nullptr ? bar->findChildren<QLabel*>() : QList<QLabel*>();
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
    return texts.join(" / ");
}

QString greyedOf(const VarnForm& form)
{
    QStringList names;
    for (const auto& [name, way] : waysOut(form)) {
        if (!way->property("enabled").toBool()) {
            names << name;
        }
    }
    for (const auto* widget : form.findChildren<QWidget*>(QRegularExpression("^(txt|cbo|lst|chk)"))) {
        names << (widget->isVisible() && !widget->isEnabled() ? QStringList(widget->objectName())
                                                              : QStringList());
    }
    return names.join(' ');
}

/// The boxes, counters and lists that can be seen and hold something, with what they hold.
QString heldBy(const VarnForm& form)
{
    static const QRegularExpression holders(
        "^((txt|cbo)\\w+|lst\\w+|lbl(Rec|Total|Strings|WordNumber|Cell))=.",
        QRegularExpression::CaseInsensitiveOption);
    return shownOn(form).filter(holders).join(' ');
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
    /// Compares the forms with `states`: after a "#" the class of a form, its title, its status, what is
    /// greyed and what its boxes and lists hold, however broken into lines.
    static void expectStates(const QString& states)
    {
        for (const QString& expected : states.split('#').mid(1)) {
            VarnForm& form = formNamed(expected.section(':', 0, 0));
            showOnly(form);
            const QString title = form.windowTitle().replace("[*]", form.isWindowModified() ? "*" : "");
            const QStringList state = {form.metaObject()->className() + (": " + title),
                                       "Status: " + statusOf(form), "Greyed: " + greyedOf(form),
                                       "Held: " + heldBy(form)};
            EXPECT_EQ(state.join(' ').simplified(), expected.simplified());
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
        showOnly(formNamed(form));
        return child<SurfaceView>(formNamed(form), name);
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
    expectStates(R"(
#frmMain: VARN - Test Status: Greyed: Held: txtVarnPath=C:\Varn62E\Varn txtVarnMapName=Test
#frmMap: VARN Map - Test Status: No linguistic file loaded | No symbol file loaded Greyed: mnuMapLing mnuRank
mnuTotalBar mnuTotalCircle mnuTotalHanko mnuTotalSBar mnuTotalSCircle Held:
#frmChizu: Set Map Data and Draw Blank Map - Test Status: Greyed: Held: txtMapName=Test
txtPathName=C:\Varn62E\Varn
#frmDataInput: VARN Input Linguistic Data - Test Status: 0 of 3 localities answered, 0 word forms Greyed:
mnuAddLocalities mnuRedo mnuUndo Held: lblCell=Locality 1, word 1
#frmData: VARN Display Data - Test Status: Greyed: mnuData mnuKind mnuNextPage mnuPageNo mnuPreviousPage
mnuPrint mnuSave Held:
#frmSetHanko: Set Symbols for Kinds - Test Status: No linguistic file loaded | Symbols: new set (0 records)
Greyed: cmdBefore mnuHankoInit mnuLoadMap mnuRedo mnuSaveHanko mnuUndo Held: lblRec=1/New cboColor=Black
cboBack=Black cboSize=Normal cboWidth=Normal
#frmCalc: Accumulate Data - Test Status: Open a cumulative file, or type the number of word forms and press
O.K. Greyed: cmdNext cmdPrevious cmdSet cmdSetWord cmdWordBefore cmdWordDelete cmdWordNext cmdWordReset
cmdWordRewrite cmdWordSave cmdWordSelect lstTotal txtTotalName cboForeColor cboFillColor txtInputWord
Held: txtTotalItems=0 lblTotal=No wordforms cboForeColor=Black
cboFillColor=Black lblWordNumber=No kinds of words lblStrings=Strings of wordform 1: 0
#frmCalExec: Execution of Cumulative Analysis - Test Status: No cumulative data: open it in Accumulate Data |
No linguistic file loaded Greyed: mnuDisplay mnuDisplayNext mnuDisplayPrevious mnuItemNext mnuItemPrevious
mnuStatsDisplay mnuStatsDisplayAll mnuStatsExec mnuStatsSave Held:
#frmRankData: Analysis for Contrast Map - Test Status: No cumulative data: open it in the form Accumulate Data
Greyed: cmdCalc cmdData1 cmdData2 cmdDel1 cmdDel2 mnuDisplayNext mnuDisplayPrevious mnuDisplayRank mnuRankMap
mnuRankOpen Held: txtStep=6 txtSize=150
#frmTotalHanko: Set Symbols for Diffusion Map - Test Status: No cumulative data: open it in the form
Accumulate Data Greyed: cmdBefore cmdNext cmdStatistics cmdSymbol mnuTotalHankoMap mnuTotalHankoOpen
mnuTotalHankoSave txtExplain txtHanrei txtHankoNumber cboColor cboBack chkPat cboSize cboWidth txtMinimum
Held: cboColor=Black cboBack=Black cboSize=Small cboWidth=Thin)");
}

TEST_F(FormStates, WithEverythingDisplayed)
{
    display();
    expectStates(R"(
#frmMap: VARN Map - Test - rain.dbs - rain.han Status: Item: Rain (3 localities) | Symbols: rain.han (2
captions) Greyed: Held:
#frmData: VARN Display Data - Test - rain.dbs - Data Status: Page 1 of 1 | Word forms: 3 Greyed: mnuNextPage
mnuPreviousPage Held:
#frmSetHanko: Set Symbols for Kinds - Test - rain.dbs - rain.han Status: Item: Rain (2 kinds) | Symbols:
rain.han (2 records) Greyed: mnuRedo mnuUndo Held: lstKindWord=1 ame,2 uyu lblRec=2/2 txtWord=uyu
txtHanrei=UYU txtHankoNumber=49 cboColor=Red cboBack=Black cboSize=Normal cboWidth=Normal
#frmCalc: Accumulate Data - Test - all.ttl Status: Counts of 2 word forms over 5 items | Strings: all.sum
Greyed: cmdPrevious cmdWordBefore Held: txtTotalNumber=2 txtTotalItems=5 txtExplain=the caption
txtTotalFileName=all lstTotal=1 one,2 two lblTotal=Wordform 1 of 2 txtTotalName=one cboForeColor=L.Red
cboFillColor=L.Blue txtWordFileName=rain.dbs lblWordNumber=Kind of word 1 of 2 lstDisplay=1 ame,2 uyu
txtInputWord=a lblStrings=Strings of wordform 1: 2 LstWord=a,am txtSetFileName=all
#frmCalExec: Execution of Cumulative Analysis - Test - all.ttl Status: Wordform 1 one | Page 1 of 1 | Counts
of 2 word forms over 5 items | Item: rain.dbs Greyed: Held:
#frmRankData: Analysis for Contrast Map - Test* Status: Cumulative data: 2 word forms, 5 items | Analysed |
Page 1 of 1 Greyed: mnuDisplayNext mnuDisplayPrevious Held: lstWordList=one,two lstData1=one lstData2=two
txtStep=6 txtSize=150 txtSetColor1=L.Red txtFillColor1=L.Red txtSetColor2=L.Blue txtFillColor2=L.Blue
#frmTotalHanko: Set Symbols for Diffusion Map - Test Status: Word form 1 of 2 | 5 items, 3 localities Greyed:
cmdBefore Held: lstWordform=one,two txtHanrei=one txtHankoNumber=1 cboColor=L.Red cboBack=L.Blue
cboSize=Normal cboWidth=Thin txtMinimum=1)");
    trigger<frmCalExec>("mnuStatsDisplayAll");
    expectStates(R"(
#frmCalExec: Execution of Cumulative Analysis - Test - all.ttl Status: Statistics of 5 items Greyed:
mnuDisplayNext mnuDisplayPrevious Held:)");
    trigger<frmCalExec>("mnuStatsExec");
    expectStates(R"(
#frmCalExec: Execution of Cumulative Analysis - Test - all.ttl Status: Wordform 1 one | Columns: count,
localities with at least that, with exactly that | Statistics of 5 items Greyed: mnuDisplayNext
mnuDisplayPrevious Held:)");
    program->varn.Counts(1, 1) += 1;
    trigger<frmCalExec>("mnuStatsDisplayAll");
    expectStates(R"(
#frmCalExec: Execution of Cumulative Analysis - Test - all.ttl Status: Statistics of 5 items | The counts are
others now Greyed: mnuDisplayNext mnuDisplayPrevious mnuStatsSave Held:)");
}

TEST_F(FormStates, TheMapFormInFrontShowsWhatOtherFormsChanged)
{
    open();
    VarnModule& varn = program->varn;
    varn.NLocality = 4;
    varn.LoadState = 0;
    expectStates(R"(
#frmMap: VARN Map - Test - rain.dbs - rain.han Status: The item has 3 localities, the map has 4. | Item: Rain
(3 localities) | Symbols: rain.han (2 captions) Greyed: mnuMapLing Held:)");
    for (int mode = 5; mode >= 0; --mode) {
        varn.AnalysisMode = mode;
        Program::map().enableMapLing();
        EXPECT_EQ(Program::menu("mnuMapLing").isEnabled(), mode == 2 || mode == 4) << mode;
    }
    varn.ItemFileName.clear();
    varn.LoadState = 2;
    varn.ContrastAnalysed = false;
    varn.NDiffusion = 0;
    expectStates(R"(
#frmMap: VARN Map - Test - rain.han Status: No linguistic file loaded | Symbols: rain.han (2 captions)
Greyed: mnuRank mnuTotalHanko Held:)");
}

TEST_F(FormStates, ControlsOfOneKindAreMadeAlike)
{
    display();
    int lists = 0;
    for (const VarnForm* form : allForms()) {
        for (const QLabel* label : statusLabels(*form)) {
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << "a file name is no markup";
            EXPECT_EQ(label->contentsMargins(), QMargins(8, 0, 8, 0)) << "texts stand clear of each other";
        }
        if (const auto* scroll = qobject_cast<QScrollArea*>(form->centralWidget());
            scroll != nullptr && scroll->objectName().isEmpty()) { // a small screen
            EXPECT_FALSE(scroll->accessibleName().isEmpty());
            EXPECT_TRUE(scroll->widgetResizable());
        }
        for (const QLineEdit* box : form->findChildren<QLineEdit*>()) {
            const QPalette& palette = box->palette();
            EXPECT_EQ(palette.color(QPalette::Base) == palette.color(QPalette::Window), box->isReadOnly())
                << qPrintable(box->objectName());
        }
        for (const QListWidget* list : form->findChildren<QListWidget*>()) {
            const bool hasWords = list->objectName() != "lstCheck" && list->window() == form;
            EXPECT_EQ(qobject_cast<WordDelegate*>(list->itemDelegate()) != nullptr, hasWords)
                << qPrintable(list->objectName());
            lists += hasWords ? 1 : 0;
        }
    }
    EXPECT_EQ(lists, 9);
}

TEST_F(FormStates, DrawingsLieOnTheirPaper)
{
    display();
    EXPECT_EQ(view("frmMap", "picMap").size(), QSize(800, 600));
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
        const QPoint corner = paperAndInk(view(form, name)).second.topLeft();
        EXPECT_NEAR(corner.x(), margin, 2) << form;
        EXPECT_NEAR(corner.y(), margin, 5) << form;
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
    EXPECT_EQ(view("frmSetHanko", "picHanrei").minimumWidth(), 4290 / 15);
    SurfaceView& results = view("frmCalExec", "picPage");
    EXPECT_EQ(results.minimumSize(), QSize(573, 293));
    for (const auto& [entry, area] : {std::pair("mnuStatsExec", StatisticsPages::tableArea(5)),
                                      {"mnuStatsDisplayAll", StatisticsPages::overviewArea()}}) {
        trigger<frmCalExec>(entry);
        EXPECT_EQ(results.minimumSize(), ((area + QSizeF(600, 600)) / TwipsPerPixel).toSize()) << entry;
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
    for (VarnForm* form : allForms()) {
        showOnly(*form);
        Paints paints;
        for (SurfaceView* shown : form->findChildren<SurfaceView*>()) {
            shown->installEventFilter(&paints);
        }
        for (int times = 0; times < 5; ++times) {
            QApplication::processEvents();
        }
        EXPECT_EQ(paints.number, 0) << form->metaObject()->className();
    }
}

TEST_F(FormStates, ANewPageIsShownFromItsTop)
{
    display();
    for (const auto& [name, entry] : {std::pair("frmData", "mnuKind"), {"frmCalExec", "mnuDisplay"}}) {
        VarnForm& form = formNamed(name);
        showOnly(form);
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
    for (VarnForm* form : allForms()) {
        showOnly(*form);
        const QList<QListWidget*> lists = form->findChildren<QListWidget*>();
        const auto chosen = [&] {
            QStringList found = {heldBy(*form)};
            for (const QListWidget* list : lists) {
                found << list->objectName() + QString::number(list->currentRow());
            }
            return found;
        };
        for (QListWidget* list : lists) {
            list->setCurrentRow(list->count() - 1);
        }
        QApplication::processEvents();
        for (const char* box : {"txtInputWord", "txtWord", "txtKind", "txtTotalName", "txtRankTitle"}) {
            if (auto* typed = form->findChild<QLineEdit*>(box)) {
                typed->setText("typed");
            }
        }
        const QStringList before = chosen();
        showOnly(*form);
        EXPECT_EQ(chosen(), before) << form->metaObject()->className();
    }
}

TEST_F(FormStates, AFormThatWasMadeAnIconComesBack)
{
    open();
    for (VarnForm* form : allForms()) {
        form->showMinimized();
        form->bringToFront();
        EXPECT_TRUE(form->isVisible() && !form->isMinimized()) << form->metaObject()->className();
    }
}

TEST_F(FormStates, TheMapFormBeginsInTheCornerOfTheScreenAndItsPlaceCounts)
{
    program = std::make_unique<Program>(survey);
    start(*program);
    const QPoint corner = Program::map().screen()->availableGeometry().topLeft();
    EXPECT_EQ(corner, QPoint(100, 50));
    EXPECT_EQ(Program::map().pos(), corner);
    const std::tuple<QPoint, float, float> places[] = {{{-30, -30}, 0, 0}, {{30, 20}, 450, 300}};
    for (const auto& [place, left, top] : places) {
        Program::map().move(corner + place);
        const FormArea area = Program::map().surfaces().area;
        EXPECT_EQ(area.Left, left);
        EXPECT_EQ(area.Top, top);
    }
}
