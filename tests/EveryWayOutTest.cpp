// Every menu entry, button and shortcut of every form does what a person sees: each has a row here.

#include "tests/RecordingPrinter.h"
#include "tests/TestProgram.h"
#include "tests/WaysOut.h"

#include <QClipboard>
#include <QDirIterator>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMetaMethod>
#include <QTimer>
#include <QToolButton>

#include <functional>

namespace {

/// A started program with an item, its symbols, a table with its strings, statistics and a contrast, each
/// form opened once, none of them shown.
class EveryWayOut : public Forms
{
protected:
    struct Way
    {
        const char* form;
        const char* name;
        /// What a person sees of it: a text that appears; after a minus one that disappears; "*" where the
        /// form looks different.
        const char* change;
        /// What is done before, answers included.
        std::function<void(EveryWayOut&)> before = [](EveryWayOut&) {};
    };

    EveryWayOut()
    {
        survey.write(ling("all.ttl"),
                     "2,5,\"the caption\"\r\n\"one\"\r\n12,9\r\n\"kept\",3\r\n\"two\"\r\n0,15\r\n2.5,0\r\n"
                     "1,2\r\n3,2\r\n5,4\r\n");
        survey.write(ling("all.sum"), "2\r\n2,\"a\",\"am\"\r\n1,\"u\"\r\n");
        survey.write(ling("many.han"),
                     "\"\"\r\n30\r\n" +
                         QByteArray("\"k\",\"K\"\r\n1\r\n0\r\n0\r\n1\r\n1\r\n1\r\n").repeated(30));
    }

    void open()
    {
        program.reset();
        QFile::remove(survey.drive().hostPath(ling("rain.srt")));
        program = std::make_unique<Program>(survey);
        start(*program);
        program->load("mnuInputWord", "rain.dbs");
        program->load("mnuHankoInput", "rain.han");
        for (const char* button : {"cmdMap", "cmdInputData", "cmdData", "cmdHanko", "cmdSumUp"}) {
            program->click(button);
        }
        control<frmMain, QPushButton>("cmdRegMap").click();
        choose("all.ttl");
        trigger<frmCalc>("mnuFileOpen");
        choose("all.sum");
        trigger<frmCalc>("mnuSetFileLoad");
        trigger<frmCalc>("mnuTotalForm");
        trigger<frmCalExec>("mnuStatsExec");
        trigger<frmCalExec>("mnuStatsSymbols");
        trigger<frmCalc>("mnuRankExe");
        press<frmRankData>("cmdData1");
        control<frmRankData, QListWidget>("lstWordList").setCurrentRow(1);
        press<frmRankData>("cmdData2");
        press<frmRankData>("cmdCalc");
        QApplication::processEvents();
        EXPECT_EQ(program->dialogs.errors, std::vector<Shown>());
        QGuiApplication::clipboard()->setText({});
    }

    static QString ling(const char* file)
    {
        return VarnPath + QStringLiteral("\\VarnData\\Test\\Ling\\") + QLatin1String(file);
    }
    void choose(const char* file) { program->dialogs.files = {survey.drive().hostPath(ling(file))}; }
    template <typename Form>
    static void type(const char* box, const char* text)
    {
        control<Form, QLineEdit>(box).setText(QLatin1String(text));
    }

    static void showOnly(const QString& form)
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible()) {
                window->hide();
            }
        }
        formNamed(form).show();
        QApplication::processEvents();
    }

    /// What a person sees: forms in front, questions, what stands on `form`, the map, the files.
    QStringList seen(const VarnForm& form) const
    {
        QStringList lines = visibleWindows() + shownOn(form);
        for (const Shown& shown : program->dialogs.shown) {
            lines << shown.title << shown.text;
        }
        for (const QString& text : Program::drawing().texts) {
            lines << QStringLiteral("map: ") + text;
        }
        if (!QGuiApplication::clipboard()->image().isNull()) {
            lines << QStringLiteral("clipboard: picture");
        }
        for (QDirIterator files(survey.root(), QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
            lines << QStringLiteral("file: ") + QFileInfo(files.next()).fileName();
        }
        return lines;
    }

    void expectChange(const Way& way)
    {
        SCOPED_TRACE(std::string(way.form) + " " + way.name);
        open();
        VarnForm& form = formNamed(QLatin1String(way.form));
        showOnly(QLatin1String(way.form));
        way.before(*this);
        QApplication::processEvents();
        program->dialogs.shown.clear();
        const auto ways = waysOut(form);
        const auto found = ways.find(QLatin1String(way.name));
        ASSERT_NE(found, ways.end()) << "there is no such thing";

        const QString before = seen(form).join(QLatin1Char('\n'));
        const bool looks = way.change[0] == '*';
        const QImage picture = looks ? form.grab().toImage() : QImage();
        use(*found->second);
        QApplication::processEvents();
        const QString after = seen(form).join(QLatin1Char('\n'));
        const bool appears = way.change[0] != '-';
        const QString text = QString::fromUtf8(way.change + (appears ? 0 : 1));
        if (looks) {
            EXPECT_NE(form.grab().toImage(), picture) << "nothing looks different";
        } else {
            EXPECT_EQ(before.contains(text), !appears) << qPrintable(before);
            EXPECT_EQ(after.contains(text), appears) << qPrintable(after);
        }
        EXPECT_EQ(program->dialogs.errors, std::vector<Shown>());
    }

    std::unique_ptr<Program> program;
    static std::vector<Way> ways();
};

std::vector<EveryWayOut::Way> EveryWayOut::ways()
{
    using Test = EveryWayOut;
    const auto noFile = [](Test& test) { test.program->dialogs.files = {std::nullopt}; };
    const auto noInput = [](Test& test) { test.program->dialogs.inputs = {std::nullopt}; };
    const auto no = [](Test& test) { test.program->dialogs.yesNo = {false}; };
    const auto yes = [](Test& test) { test.program->dialogs.yesNo = {true}; };
    const auto click = [](const char* form, const char* name) {
        return [=](Test&) { use(*waysOut(formNamed(QLatin1String(form))).at(QLatin1String(name))); };
    };
    const auto typed = [](const char* form, const char* box, const char* text) {
        return [=](Test&) {
            child<QLineEdit>(formNamed(QLatin1String(form)), box).setText(QLatin1String(text));
        };
    };
    const auto kinds = [](int page) {
        return [=](Test& test) {
            test.survey.write(ling("rain.srt"), "130\r\n" + QByteArray("\"k\",1\r\n").repeated(130));
            test.choose("rain.dbs");
            trigger<frmData>("mnuOpen");
            trigger<frmData>("mnuKind");
            test.program->dialogs.inputs = {QString::number(page)};
            trigger<frmData>("mnuPageNo");
        };
    };
    const auto manySymbols = [](Test& test) {
        test.choose("many.han");
        trigger<frmSetHanko>("mnuOpenHanko");
    };
    const auto manyLocalities = [](bool turned) {
        return [=](Test& test) {
            test.program->varn.NLocality = 200;
            trigger<frmCalExec>("mnuDisplay");
            if (turned) {
                trigger<frmCalExec>("mnuDisplayNext");
            }
        };
    };
    const auto manyContrasts = [](bool turned) {
        return [=](Test& test) {
            test.program->varn.NLocality = 121;
            press<frmRankData>("cmdCalc");
            trigger<frmRankData>("mnuDisplayRank");
            if (turned) {
                trigger<frmRankData>("mnuDisplayNext");
            }
        };
    };
    const auto enterKind = [](Test&) {
        type<frmDataInput>("txtKind", "hail");
        press<frmDataInput>("cmdSetKind");
    };
    const auto enterWord = [](const char* word) {
        return [=](Test&) {
            auto& words = *control<frmDataInput, QAbstractItemView>("tblWords").model();
            words.setData(words.index(0, 0), QLatin1String(word));
        };
    };
    const auto both = [](auto first, auto second) {
        return [=](Test& test) {
            first(test);
            second(test);
        };
    };
    return {
        {"frmMain", "mnuImportLocalities", "Import Localities", noFile},
        {"frmMain", "mnuImportLines", "Import Lines", noFile},
        {"frmMain", "mnuImportPlaceNames", "Import Place Names", noFile},
        {"frmMain", "mnuImportPolygons", "Import Polygon", noFile},
        {"frmMain", "cmdRegMap", "[frmChizu]"},
        {"frmMain", "cmdMapName", "[frmChizu]", no},
        {"frmMain", "cmdInputData", "[frmDataInput]"},
        {"frmMain", "cmdData", "[frmData]"},
        {"frmMain", "cmdHanko", "[frmSetHanko]"},
        {"frmMain", "cmdMap", "[frmMap]"},
        {"frmMain", "cmdSumUp", "[frmCalc]"},
        {"frmMain", "cmdSettingPrinter", "<fraSetMergin>"},
        {"frmMain", "cmdExitSetMergin", "-<fraSetMergin>", click("frmMain", "cmdSettingPrinter")},
        {"frmMain", "cmdPrinter", "Printer is not connected.", click("frmMain", "cmdSettingPrinter")},
        {"frmMain", "lblDisplayPaperSize", "Portrait(", click("frmMain", "cmdSettingPrinter")},

        {"frmMap", "mnuSaveMapAs", "Save Map As",
         [](Test& test) { test.program->dialogs.savedFiles = {std::nullopt}; }},
        {"frmMap", "mnuCopyMap", "clipboard: picture"},
        {"frmMap", "mnuFilePrint", "Please connect the printer"},
        {"frmMap", "lblInsatsumode", "Please connect the printer"},
        {"frmMap", "mnuInputWord", "Load Linguistic File", noFile},
        {"frmMap", "mnuHankoInput", "Load Symbol File", noFile},
        {"frmMap", "mnuMapLing", "map: UYU"},
        {"frmMap", "mnuMapBlank", "map: Town"},
        {"frmMap", "mnuHanrei", "map: UYU"},
        {"frmMap", "mnuSymbols", "*"},
        {"frmMap", "mnuTotalBar", "*"},
        {"frmMap", "mnuTotalSBar", "map: two"},
        {"frmMap", "mnuTotalCircle", "*"},
        {"frmMap", "mnuTotalSCircle", "map: two"},
        {"frmMap", "mnuTotalHanko", "*"},
        {"frmMap", "mnuRank", "*", click("frmMain", "cmdMap")},
        {"frmMap", "mnuHpos", "<fraStyle>"},
        {"frmMap", "mnuChiten", "Will you plot dots for localities ?", no},
        {"frmMap", "mnuStyle", "Will you print File Name?", no},
        {"frmMap", "mnuMapSize", "Set of Map Vertical Size", noInput},
        {"frmMap", "mnuHankoList", "map: 152"},
        {"frmMap", "mnuHankoNext", "map: 160"},
        {"frmMap", "mnuHankoPrevious", "map: 152"},
        {"frmMap", "mnuToMain", "[frmMain]"},

        {"frmChizu", "cmdRegMapName", "Map and item files", noFile},
        {"frmChizu", "cmdCurveLine", "*"},
        {"frmChizu", "cmdChiten", "*"},
        {"frmChizu", "cmdMoji", "*"},
        {"frmChizu", "cmdBlankMap", "*"},
        {"frmChizu", "cmdMap", "[frmMap]"},
        {"frmChizu", "cmdExit", "[frmMain]"},
        {"frmChizu", "Ctrl+Q", "[frmMain]"},

        {"frmData", "mnuOpen", "Load Linguistic File", noFile},
        {"frmData", "mnuSave", "rain.dbs - Kinds"},
        {"frmData", "mnuPrint", "Please connect the printer"},
        {"frmData", "mnuData", "rain.dbs - Data", click("frmData", "mnuKind")},
        {"frmData", "mnuKind", "rain.dbs - Kinds"},
        {"frmData", "mnuNextPage", "Page 2 of 3", kinds(1)},
        {"frmData", "mnuPreviousPage", "Page 1 of 3", kinds(2)},
        {"frmData", "mnuPageNo", "Specify Page No.", noInput},
        {"frmData", "mnuToMain", "[frmMain]"},

        {"frmDataInput", "mnuOpen", "Data proccessed will be lost", noFile},
        {"frmDataInput", "mnuSave", "Input File Name "},
        {"frmDataInput", "mnuInitialize", "Initialize O.K.?", no},
        {"frmDataInput", "mnuToMain", "[frmMain]"},
        {"frmDataInput", "mnuToAccumulate", "[frmCalc]"},
        {"frmDataInput", "cmdSetKind", "lstKind=hail", typed("frmDataInput", "txtKind", "hail")},
        {"frmDataInput", "cmdKindToData", "tblWords=hail", enterKind},
        {"frmDataInput", "Return", "tblWords=hail", enterKind},
        {"frmDataInput", "Enter", "tblWords=hail", enterKind},
        {"frmDataInput", "cmdDataToKind", "lstKind=sun", enterWord("sun")},
        {"frmDataInput", "cmdDelKind", "-lstKind=hail", enterKind},
        {"frmDataInput", "Del", "-lstKind=hail", enterKind},
        {"frmDataInput", "cmdCheckCode", "All codes are right."},
        {"frmDataInput", "cmdCloseCheck", "-<fraCheck>",
         both(enterWord("a\\Q"), click("frmDataInput", "cmdCheckCode"))},

        {"frmSetHanko", "mnuInputWord", "Load Linguistic File", noFile},
        {"frmSetHanko", "mnuOpenHanko", "Open Symbol File", noFile},
        {"frmSetHanko", "mnuSaveHanko", "Input File Name of Symbol Data", noInput},
        {"frmSetHanko", "mnuHankoInit", "-txtHanrei=UYU"},
        {"frmSetHanko", "mnuLoadMap", "[frmMap]"},
        {"frmSetHanko", "mnuHankoReturn", "[frmMain]"},
        {"frmSetHanko", "cmdWord", "txtWord=ame", typed("frmSetHanko", "txtWord", "")},
        {"frmSetHanko", "cmdAutoHanrei", "txtHanrei=hail", typed("frmSetHanko", "txtWord", "hail")},
        {"frmSetHanko", "cmdSymbol", "[SymbolPicker]"},
        {"frmSetHanko", "cmdSave", "not saved", typed("frmSetHanko", "txtHanrei", "hail")},
        {"frmSetHanko", "cmdNext", "txtHanrei=UYU", click("frmSetHanko", "cmdBefore")},
        {"frmSetHanko", "cmdBefore", "txtHanrei=AME"},
        {"frmSetHanko", "cmdInserte", "Specify Number of Insert Data.", noInput},
        {"frmSetHanko", "cmdDelete", "Specify Number of Delete Data.", noInput},
        {"frmSetHanko", "cmdUp", "*", manySymbols},
        {"frmSetHanko", "cmdDown", "*", both(manySymbols, click("frmSetHanko", "cmdUp"))},

        {"frmCalc", "mnuFileOpen", "Open Cumulative Data File", noFile},
        {"frmCalc", "mnuFileSave", "Input Name of Aalysis File.", typed("frmCalc", "txtTotalFileName", "")},
        {"frmCalc", "cmdTotalFileSave", "Input Name of Aalysis File.",
         typed("frmCalc", "txtTotalFileName", "")},
        {"frmCalc", "mnuTotalForm", "[frmCalExec]"},
        {"frmCalc", "mnuMap", "[frmMap]"},
        {"frmCalc", "mnuFileReturn", "[frmMain]"},
        {"frmCalc", "mnuRankExe", "[frmRankData]"},
        {"frmCalc", "mnuGengoOpen", "Open Linguistic Data", noFile},
        {"frmCalc", "mnuSetFileLoad", "Open Specify Char File", noFile},
        {"frmCalc", "mnuInitialize", "All Data will be Lost",
         [](Test& test) { test.program->dialogs.okCancel = {false}; }},
        {"frmCalc", "cmdTotalNumber", "No. of Specify Data is inadequate.",
         typed("frmCalc", "txtTotalNumber", "0")},
        {"frmCalc", "cmdSetInput", "over 7 items", typed("frmCalc", "txtTotalItems", "7")},
        {"frmCalc", "cmdNext", "txtTotalName=two"},
        {"frmCalc", "cmdPrevious", "txtTotalName=one", click("frmCalc", "cmdNext")},
        {"frmCalc", "cmdSet", "lstTotal=1 uno", typed("frmCalc", "txtTotalName", "uno")},
        {"frmCalc", "cmdSetWord", "txtInputWord=ame", typed("frmCalc", "txtInputWord", "")},
        {"frmCalc", "cmdWordSelect", "LstWord=a,am,ha", typed("frmCalc", "txtInputWord", "ha")},
        {"frmCalc", "cmdWordRewrite", "LstWord=ha,am", typed("frmCalc", "txtInputWord", "ha")},
        {"frmCalc", "cmdWordReset", "-LstWord=a"},
        {"frmCalc", "cmdWordNext", "txtInputWord=am"},
        {"frmCalc", "cmdWordBefore", "-txtInputWord=am", click("frmCalc", "cmdWordNext")},
        {"frmCalc", "cmdWordSave", "Input Name of Specify Characters.",
         typed("frmCalc", "txtSetFileName", "")},

        {"frmCalExec", "mnuExecCalc", "Analyse of Linguistic Data File is completed."},
        {"frmCalExec", "mnuExecAll", "Folder of the Items to Accumulate",
         [](Test& test) { test.program->dialogs.folders = {std::nullopt}; }},
        {"frmCalExec", "mnuExecSave", "Linguistic Data File is saved."},
        {"frmCalExec", "mnuExecMap", "[frmMap]"},
        {"frmCalExec", "mnuReturn", "[frmCalc]"},
        {"frmCalExec", "mnuRankReturn", "[frmMain]"},
        {"frmCalExec", "mnuItemNext", "Wordform 2 two", click("frmCalExec", "mnuDisplay")},
        {"frmCalExec", "mnuItemPrevious", "Wordform 2 two", click("frmCalExec", "mnuDisplay")},
        {"frmCalExec", "mnuDisplay", "Page 1 of"},
        {"frmCalExec", "mnuDisplayNext", "Page 2 of 2", manyLocalities(false)},
        {"frmCalExec", "mnuDisplayPrevious", "Page 1 of 2", manyLocalities(true)},
        {"frmCalExec", "mnuStatsExec", "Columns: count", click("frmCalExec", "mnuDisplay")},
        {"frmCalExec", "mnuStatsDisplay", "Columns: count", click("frmCalExec", "mnuDisplay")},
        {"frmCalExec", "mnuStatsDisplayAll", "-Columns: count"},
        {"frmCalExec", "mnuStatsSave", "file: all.stt"},
        {"frmCalExec", "mnuStatsOpen", "Open Statistics File", noFile},
        {"frmCalExec", "mnuStatsSymbols", "[frmTotalHanko]"},
        {"frmCalExec", "mnuRankData", "[frmRankData]"},

        {"frmRankData", "mnuRankOpen", "Open Contrast File", both(yes, noFile)},
        {"frmRankData", "mnuRankSave", "Input File Name for Analysis Data."},
        {"frmRankData", "mnuRankMap", "[frmMap]"},
        {"frmRankData", "mnuRankReturn", "[frmCalc]"},
        {"frmRankData", "mnuDisplayRank", "Page 1 of"},
        {"frmRankData", "mnuDisplayNext", "Page 2 of 2", manyContrasts(false)},
        {"frmRankData", "mnuDisplayPrevious", "Page 1 of 2", manyContrasts(true)},
        {"frmRankData", "cmdData1", "lstData1=one,two"},
        {"frmRankData", "cmdData2", "Item 2 already has this word form."},
        {"frmRankData", "cmdDel1", "-lstData1=one"},
        {"frmRankData", "cmdDel2", "-lstData2=two"},
        {"frmRankData", "cmdCalc", "Contrast Analysis is finished."},

        {"frmTotalHanko", "mnuTotalHankoOpen", "Open Symbol File", noFile},
        {"frmTotalHanko", "mnuTotalHankoSave", "Input File Name of Symbol Data"},
        {"frmTotalHanko", "mnuTotalHankoMap", "[frmMap]"},
        {"frmTotalHanko", "mnuTotalHankoReturn", "[frmCalExec]"},
        {"frmTotalHanko", "cmdNext", "Word form 2 of 2"},
        {"frmTotalHanko", "cmdBefore", "Word form 1 of 2", click("frmTotalHanko", "cmdNext")},
        {"frmTotalHanko", "cmdSymbol", "[SymbolPicker]"},
        {"frmTotalHanko", "cmdStatistics", "*"},
    };
}

class WaysOutOf : public EveryWayOut, public testing::WithParamInterface<const char*>
{
};

} // namespace

TEST_P(WaysOutOf, DoWhatTheySay)
{
    for (const Way& way : ways()) {
        if (std::string(way.form) == GetParam()) {
            expectChange(way);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, WaysOutOf,
                         testing::Values("frmMain", "frmMap", "frmChizu", "frmData", "frmDataInput",
                                         "frmSetHanko", "frmCalc", "frmCalExec", "frmRankData",
                                         "frmTotalHanko"),
                         [](const auto& form) { return std::string(form.param); });

TEST_F(EveryWayOut, HasARow)
{
    open();
    std::set<QString> rows = {QStringLiteral("frmMain cmdExit")};
    for (const Way& way : ways()) {
        rows.insert(QStringLiteral("%1 %2").arg(QLatin1String(way.form), QLatin1String(way.name)));
    }
    int forms = 0;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (const auto* form = qobject_cast<VarnForm*>(window)) {
            ++forms;
            for (const auto& [name, way] : waysOut(*form)) {
                const QString row =
                    QStringLiteral("%1 %2").arg(QLatin1String(form->metaObject()->className()), name);
                EXPECT_TRUE(rows.contains(row)) << qPrintable(row) << " has no row";
            }
        }
    }
    EXPECT_EQ(forms, 10);
}

TEST_F(EveryWayOut, EachLeavingSignalBringsAFormToTheFront)
{
    const std::map<QString, QString> fronts = {
        {"frmMap toMain", "frmMain"},
        {"frmChizu toMain", "frmMain"},
        {"frmChizu toDrawMap", "frmMap"},
        {"frmDataInput toMain", "frmMain"},
        {"frmDataInput toAccumulateData", "frmCalc"},
        {"frmData toMain", "frmMain"},
        {"frmSetHanko toMain", "frmMain"},
        {"frmSetHanko toDrawMap", "frmMap"},
        {"frmCalc toMain", "frmMain"},
        {"frmCalc toExecute", "frmCalExec"},
        {"frmCalc toDrawMap", "frmMap"},
        {"frmCalc toContrast", "frmRankData"},
        {"frmCalExec toMain", "frmMain"},
        {"frmCalExec toAccumulateData", "frmCalc"},
        {"frmCalExec toDrawMap", "frmMap"},
        {"frmCalExec toSymbols", "frmTotalHanko"},
        {"frmCalExec toContrast", "frmRankData"},
        {"frmRankData toAnalysis", "frmCalc"},
        {"frmRankData toDrawMap", "frmMap"},
        {"frmTotalHanko toAnalysis", "frmCalExec"},
        {"frmTotalHanko toDrawMap", "frmMap"},
    };
    open();
    std::size_t fired = 0;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const QMetaObject& form = *window->metaObject();
        for (int m = form.methodOffset(); m < form.methodCount(); ++m) {
            const QMetaMethod signal = form.method(m);
            if (signal.methodType() != QMetaMethod::Signal || !signal.name().startsWith("to")) {
                continue;
            }
            const QString name =
                QLatin1String(form.className()) + QLatin1Char(' ') + QString::fromLatin1(signal.name());
            ASSERT_TRUE(fronts.contains(name)) << qPrintable(name);
            showOnly(QLatin1String(form.className()));
            signal.invoke(window);
            QApplication::processEvents();
            EXPECT_TRUE(formNamed(fronts.at(name)).isVisible()) << qPrintable(name);
            ++fired;
        }
    }
    EXPECT_EQ(fired, fronts.size());
}

TEST_F(EveryWayOut, ExitEndsTheProgram)
{
    open();
    QTimer::singleShot(0, [this] { program->click("cmdExit"); });
    QTimer tooLong;
    QObject::connect(&tooLong, &QTimer::timeout, [] { QCoreApplication::exit(1); });
    tooLong.start(5000);
    EXPECT_EQ(QApplication::exec(), 0);
}

TEST_F(EveryWayOut, AFormWithUnsavedWorkStaysOpenOnNo)
{
    const std::pair<const char*, std::function<void()>> works[] = {
        {"frmDataInput",
         [] {
             type<frmDataInput>("txtKind", "hail");
             press<frmDataInput>("cmdSetKind");
         }},
        {"frmSetHanko", [] { type<frmSetHanko>("txtHanrei", "hail"); }},
        {"frmCalc", [] { type<frmCalc>("txtTotalName", "uno"); }},
        {"frmRankData", [] { type<frmRankData>("txtRankTitle", "west"); }},
        {"frmTotalHanko", [] { type<frmTotalHanko>("txtHanrei", "hail"); }},
    };
    for (const auto& [name, work] : works) {
        SCOPED_TRACE(name);
        open();
        VarnForm& form = formNamed(QLatin1String(name));
        showOnly(QLatin1String(name));
        work();
        for (QWidget* closed : {static_cast<QWidget*>(&form), static_cast<QWidget*>(&program->main)}) {
            program->dialogs.yesNo = {false};
            EXPECT_FALSE(closed->close());
            EXPECT_TRUE(form.isVisible());
        }
        program->dialogs.yesNo = {true};
        EXPECT_TRUE(program->main.close());
        EXPECT_EQ(visibleWindows(), QStringList()) << "closing the main form closes the others";
    }
}

TEST_F(EveryWayOut, EscapeClosesThePositionPanelOnly)
{
    open();
    showOnly(QStringLiteral("frmMap"));
    trigger<frmMap>("mnuHpos");
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&Program::map(), &escape);
    EXPECT_FALSE(shownOn(Program::map()).contains(QStringLiteral("<fraStyle>")));
    EXPECT_TRUE(Program::map().isVisible());
}
