// What each menu entry, button and shortcut of the forms does for a person.

#include "tests/shell/forms/EveryWayOut.h"

#include <QAbstractItemView>

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
        {"frmMap", "mnuWholeWordForms", "<mnuWholeWordForms>"},
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
        {"frmDataInput", "mnuUndo", "-tblWords=sun", enterWord("sun")},
        {"frmDataInput", "mnuRedo", "tblWords=sun", both(enterWord("sun"), click("frmDataInput", "mnuUndo"))},
        {"frmDataInput", "mnuCut", "-tblWords=sun", enterWord("sun")},
        {"frmDataInput", "mnuCopy", "clipboard: sun", enterWord("sun")},
        {"frmDataInput", "mnuPaste", "tblWords=hail",
         [](Test&) { QGuiApplication::clipboard()->setText(QStringLiteral("hail")); }},
        {"frmDataInput", "mnuGoTo", "Go to Locality", noInput},
        {"frmDataInput", "mnuAddLocalities", "of 4 localities",
         [](Test& test) {
             test.program->varn.NLocality = 4;
             form<frmDataInput>().refresh();
         }},
        {"frmDataInput", "mnuToMain", "[frmMain]"},
        {"frmDataInput", "mnuToAccumulate", "[frmCalc]"},
        {"frmDataInput", "cmdSetKind", "lstKind=hail", typed("frmDataInput", "txtKind", "hail")},
        {"frmDataInput", "cmdKindToData", "tblWords=hail", enterKind},
        {"frmDataInput", "cmdDataToKind", "lstKind=sun", enterWord("sun")},
        {"frmDataInput", "cmdDelKind", "-lstKind=hail", enterKind},
        {"frmDataInput", "cmdCheckCode", "All codes are right."},
        {"frmDataInput", "cmdCloseCheck", "-<fraCheck>",
         both(enterWord("a\\Q"), click("frmDataInput", "cmdCheckCode"))},

        {"frmSetHanko", "mnuInputWord", "Load Linguistic File", noFile},
        {"frmSetHanko", "mnuOpenHanko", "Open Symbol File", noFile},
        {"frmSetHanko", "mnuSaveHanko", "Input File Name of Symbol Data", noInput},
        {"frmSetHanko", "mnuUndo", "-not saved",
         both(typed("frmSetHanko", "txtHanrei", "hail"), click("frmSetHanko", "cmdSave"))},
        {"frmSetHanko", "mnuRedo", "not saved",
         both(both(typed("frmSetHanko", "txtHanrei", "hail"), click("frmSetHanko", "cmdSave")),
              click("frmSetHanko", "mnuUndo"))},
        {"frmSetHanko", "mnuHankoInit", "-txtHanrei=UYU"},
        {"frmSetHanko", "mnuLoadMap", "[frmMap]"},
        {"frmSetHanko", "mnuHankoReturn", "[frmMain]"},
        {"frmSetHanko", "cmdWord", "txtWord=ame", typed("frmSetHanko", "txtWord", "")},
        {"frmSetHanko", "cmdAutoHanrei", "txtHanrei=hail", typed("frmSetHanko", "txtWord", "hail")},
        {"frmSetHanko", "cmdSymbol", "[SymbolPicker]"},
        {"frmSetHanko", "cmdSave", "not saved", typed("frmSetHanko", "txtHanrei", "hail")},
        {"frmSetHanko", "cmdNext", "txtHanrei=UYU", click("frmSetHanko", "cmdBefore")},
        {"frmSetHanko", "cmdBefore", "txtHanrei=AME"},
        {"frmSetHanko", "cmdBefore", "*picSample"},
        {"frmSetHanko", "cmdBefore", "*picHanrei"},
        {"frmSetHanko", "cmdSave", "*picHanrei", typed("frmSetHanko", "txtHanrei", "hail")},
        {"frmSetHanko", "mnuHankoInit", "*picHanrei"},
        {"frmSetHanko", "cmdInserte", "Specify Number of Insert Data.", noInput},
        {"frmSetHanko", "cmdInserte", "*picHanrei", [](Test& test) { test.program->dialogs.inputs = {"1"}; }},
        {"frmSetHanko", "cmdDelete", "*picHanrei", [](Test& test) { test.program->dialogs.inputs = {"1"}; }},
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
        {"frmCalc", "cmdWordDelete", "-LstWord=a,am"},
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
        {"frmTotalHanko", "cmdNext", "*picSample"},
        {"frmTotalHanko", "cmdNext", "*picHanko"},
        {"frmTotalHanko", "cmdNext", "*picStatistics", click("frmTotalHanko", "cmdStatistics")},
        {"frmTotalHanko", "cmdBefore", "Word form 1 of 2", click("frmTotalHanko", "cmdNext")},
        {"frmTotalHanko", "cmdSymbol", "[SymbolPicker]"},
        {"frmTotalHanko", "cmdStatistics", "*"},
    };
}
