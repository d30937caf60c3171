// What each menu entry, button and shortcut of the forms does for a person, and what the forms show at once
// of what is typed and chosen on them.

#include "lingdata/forms/WordEntryDelegate.h"
#include "tests/shell/forms/EveryWayOut.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QTableView>

namespace {

/// For a form "step, step -> change; step -> change", as `Way` and `EveryWayOut::perform` say.
const char* const Rows = R"(
frmMain: cmdRegMap -> [frmChizu]; cmdInputData -> [frmDataInput]; cmdData -> [frmData]; cmdMap -> [frmMap]
frmMain: cmdAtlas -> [frmAtlas]
frmMain: cmdHanko -> [frmSetHanko]; cmdSumUp -> [frmCalc]; cmdSettingPrinter -> <fraSetMergin>
frmMain: (no file), mnuImportLocalities -> Import Localities; (no file), mnuImportLines -> Import Lines
frmMain: (no file), mnuImportPlaceNames -> Import Place Names; (no file), mnuImportPolygons -> Import Polygon
frmAtlas: mnuNewSurvey -> [frmNewSurvey]; mnuInputData -> [frmDataInput]; mnuToMain -> [frmMain]
frmAtlas: (atlas), mnuToolBar -> -<tools>
frmAtlas: mnuSumUp -> [frmCalc]; mnuOpenMap -> [OpenMapDialog]; (atlas), mnuExportAtlas -> [ItemsDialog]
frmAtlas: (no name), mnuExportMap -> Export Map; (atlas), mnuPrint -> [QPrintPreviewDialog]
frmAtlas: (atlas), mnuCopyMap -> clipboard: picture; mnuClose -> -[frmAtlas]; mnuAbout -> [AboutDialog]
frmAtlas: (atlas), (a new caption), mnuSave -> -<modified>; (atlas), (a new caption), mnuUndo -> -<modified>
frmAtlas: (atlas), (a new caption), mnuUndo, mnuRedo -> <modified>
frmAtlas: (atlas), mnuKindBarsofOneWordForm -> <mnuKindBarsofOneWordForm>
frmAtlas: (atlas), mnuKindBarsofAllWordForms -> <mnuKindBarsofAllWordForms>
frmAtlas: (atlas), mnuKindCirclesofOneWordForm -> <mnuKindCirclesofOneWordForm>
frmAtlas: (atlas), mnuKindCirclesofAllWordForms -> <mnuKindCirclesofAllWordForms>
frmAtlas: (atlas), mnuKindSymbolsofAllWordForms -> <mnuKindSymbolsofAllWordForms>
frmAtlas: (atlas), mnuKindContrastMap -> <mnuKindContrastMap>
frmAtlas: (atlas), mnuKindContrastMap, mnuKindLinguisticMap -> -<mnuKindContrastMap>
frmAtlas: (atlas), mnuKindAreasoftheItem -> <mnuKindAreasoftheItem>
frmAtlas: (atlas), mnuKindIsoglossesoftheItem -> <mnuKindIsoglossesoftheItem>
frmAtlas: (atlas), mnuKindIsoglossesofManyItems -> <mnuKindIsoglossesofManyItems>
frmAtlas: (atlas), mnuKindDistancestoaLocality -> <mnuKindDistancestoaLocality>
frmAtlas: (atlas), mnuKindBeamsbetweenNeighbours -> <mnuKindBeamsbetweenNeighbours>
frmAtlas: (atlas), mnuKindGroupsofLocalities -> <mnuKindGroupsofLocalities>
frmAtlas: (atlas), mnuKindTreeofLocalities -> <mnuKindTreeofLocalities>
frmAtlas: (atlas), mnuKindColoursbyScaling -> <mnuKindColoursbyScaling>
frmAtlas: (atlas), mnuKindPlotbyScaling -> <mnuKindPlotbyScaling>
frmAtlas: (atlas), mnuKindDistancesandKilometres -> <mnuKindDistancesandKilometres>
frmAtlas: (atlas), mnuKindGroupsofLocalities, cmdItems -> [ItemsDialog]
frmAtlas: (atlas), mnuKindGroupsofLocalities, (no file), cmdOpenDistances -> Open Distances
frmAtlas: (atlas), cmdSaveDistances -> There are no distances yet.
frmMain: mnuManual -> [HelpWindow]
frmAtlas: mnuManual -> [HelpWindow]
frmMap: mnuManual -> [HelpWindow]
frmChizu: mnuManual -> [HelpWindow]
frmData: mnuManual -> [HelpWindow]
frmDataInput: mnuManual -> [HelpWindow]
frmSetHanko: mnuManual -> [HelpWindow]
frmCalc: mnuManual -> [HelpWindow]
frmCalExec: mnuManual -> [HelpWindow]
frmRankData: mnuManual -> [HelpWindow]
frmTotalHanko: mnuManual -> [HelpWindow]
frmMain: mnuNewSurvey -> [frmNewSurvey]; (no name), mnuExportSurvey -> Export Survey
frmMain: (no), cmdMapName -> [frmChizu]; cmdSettingPrinter, cmdExitSetMergin -> -<fraSetMergin>
frmMain: cmdSettingPrinter, cmdPrinter -> Printer is not connected.
frmMain: cmdSettingPrinter, lblDisplayPaperSize -> Portrait(
frmMain: cmdSettingPrinter, cboOrientation=0 -> Portrait(
frmMain: (yes), cmdMapName -> *picPreview; (yes), cmdMapName, cmdRegMap -> *picPreview
frmMain: (no), cmdMapName -> Is this a right map name ? 
frmAtlas: (snow in the atlas), mnuNextItem ->  - Snow
frmAtlas: (snow in the atlas), mnuNextItem, mnuPreviousItem ->  - Rain
frmAtlas: (a record), mnuNewRecord -> <txtRecord>; (a record), mnuDeleteRecord -> <modified>
frmAtlas: (a record), mnuChangeSymbol -> [SymbolPopup]; (two records), mnuSameSymbol -> <modified>
frmAtlas: (a record), mnuRecordDown -> <modified>; (a record), mnuRecordDown, mnuRecordUp -> -<modified>
frmAtlas: (a record), (yes), mnuMakeSymbols -> <modified>; (a record), mnuSelectLocalities -> *
frmAtlas: (an unmarked word form), mnuNewRecordOfWord -> -No symbols yet
frmAtlas: (atlas), actDots -> *map; (atlas), actLines -> *map; (atlas), actPlaceNames -> *map
frmAtlas: (atlas), actLegend -> *map; (atlas), actFreePlace -> *map; (atlas), actZoomOut -> *map
frmAtlas: (atlas), actZoomIn -> *map; (atlas), actZoomIn, actFit -> *map; actKeepSize -> -<actKeepSize>
frmAtlas: (atlas), actNumbers -> *map; (atlas), actNumbers, actNoLabels -> *map; actNames -> <actNames>
frmAtlas: actWholeWordForms -> <actWholeWordForms>; actPlace1, actPlace0 -> <actPlace0>
frmAtlas: actPlace1 -> <actPlace1>; actPlace2 -> <actPlace2>; actPlace3 -> <actPlace3>
frmAtlas: actPlace4 -> <actPlace4>; (atlas), actFind -> focus: txtFind
frmAtlas: (atlas), actFind, txtFind=uyu, cmdNextHit -> lblHit=2 of 2; actFind, cmdCloseFind -> focus: map
frmAtlas: (atlas), actFind, txtFind=uyu, cmdPreviousHit -> lblHit=2 of 2
frmMap: mnuMapBlank, (yes), mnuChiten, mnuMapBlank -> *picMap
frmMap: (yes), mnuStyle, mnuMapLing -> map: rain.han; (161 symbols), mnuHankoNext, mnuHankoList -> -map: 161
frmMap: (161 symbols), mnuHankoPrevious, mnuHankoNext -> map: 161
frmMap: (161 symbols), mnuHankoNext, mnuHankoNext, mnuHankoPrevious -> -map: 161
frmMap: mnuWholeWordForms -> <mnuWholeWordForms>
frmMap: mnuHpos, mnuMapBlank -> -<fraStyle>; mnuHpos, mnuHanrei -> -<fraStyle>
frmMap: mnuHpos, (Escape on the map) -> -<fraStyle>
frmMap: mnuCopyMap -> clipboard: picture; mnuMapLing -> map: UYU; mnuMapBlank -> map: Town; mnuSymbols -> *
frmMap: mnuFilePrint -> Printer is not connected.  Please connect the printer in the Main Form.
frmMap: lblInsatsumode -> Printer is not connected. Please connect the printer in the Main Form.
frmMap: mnuHanrei -> map: UYU; mnuTotalBar -> *; mnuTotalSBar -> map: two; mnuTotalCircle -> *
frmMap: mnuTotalSCircle -> map: two; mnuTotalHanko -> *; mnuHpos -> <fraStyle>; mnuHankoList -> map: 152
frmMap: mnuHankoNext -> map: 160; mnuHankoPrevious -> map: 152; mnuToMain -> [frmMain]
frmMap: (no name), mnuSaveMapAs -> Save Map As; (no file), mnuInputWord -> Load Linguistic File
frmMap: (no file), mnuHankoInput -> Load Symbol File; (frmMap in front), mnuRank -> *
frmMap: (no), mnuChiten -> Will you plot dots for localities ?; (no), mnuStyle -> Will you print File Name?
frmMap: (no input), mnuMapSize -> Set of Map Vertical Size
frmChizu: cmdCurveLine -> *; cmdChiten -> *; cmdMoji -> *; cmdBlankMap -> *; cmdMap -> [frmMap]
frmChizu: cmdExit -> [frmMain]; Ctrl+Q -> [frmMain]; (no file), cmdRegMapName -> Map and item files
frmData: mnuSave -> rain.dbs - Kinds; mnuPrint -> Please connect the printer; mnuKind -> rain.dbs - Kinds
frmData: mnuToMain -> [frmMain]; (no file), mnuOpen -> Load Linguistic File
frmData: mnuKind, mnuData -> rain.dbs - Data; (many kinds), mnuNextPage -> Page 2 of 3
frmData: (many kinds), mnuNextPage, mnuPreviousPage -> Page 1 of 3; (no input), mnuPageNo -> Specify Page No.
frmDataInput: mnuSave -> Input File Name ; mnuToMain -> [frmMain]; mnuToAccumulate -> [frmCalc]
frmDataInput: cmdCheckCode -> All codes are right.; (no file), mnuOpen -> Data proccessed will be lost
frmDataInput: (no), mnuInitialize -> Initialize O.K.?; tblWords=sun, mnuUndo -> -tblWords=sun
frmDataInput: tblWords=sun, mnuUndo, mnuRedo -> tblWords=sun; tblWords=sun, mnuCut -> -tblWords=sun
frmDataInput: tblWords=sun, mnuCopy -> clipboard: sun; (hail on the clipboard), mnuPaste -> tblWords=hail
frmDataInput: (no input), mnuGoTo -> Go to Locality; (4 localities), mnuAddLocalities -> of 4 localities
frmDataInput: txtKind=hail, cmdSetKind -> lstKind=hail; tblWords=sun, cmdDataToKind -> lstKind=sun
frmDataInput: txtKind=hail, cmdSetKind, cmdKindToData -> tblWords=hail
frmDataInput: txtKind=hail, cmdSetKind, cmdDelKind -> -lstKind=hail; (a\Q typed in a cell) -> -lblFault=\n
frmDataInput: tblWords=a\Q, cmdCheckCode, cmdCloseCheck -> -<fraCheck>
frmDataInput: (a\Q typed in a cell), (Escape) -> lblFault=\n; (a\Q typed as a kind) -> -lblFault=\n
frmDataInput: txtKind=hail, (Enter in txtKind) -> lstKind=hail
frmDataInput: tblWords=a\Q, cmdCheckCode, (locality 3), (a click on a fault) -> lblCell=Locality 1, word 1
frmSetHanko: mnuHankoInit -> -txtHanrei=UYU; mnuLoadMap -> [frmMap]; mnuHankoReturn -> [frmMain]
frmSetHanko: cmdSymbol -> [SymbolPicker]; cmdBefore -> txtHanrei=AME; cmdBefore -> *picSample
frmSetHanko: cmdBefore -> *picHanrei; mnuHankoInit -> *picHanrei; txtHanrei=hail, cmdSave -> not saved
frmSetHanko: (no file), mnuInputWord -> Load Linguistic File; (no file), mnuOpenHanko -> Open Symbol File
frmSetHanko: (no input), mnuSaveHanko -> Input File Name of Symbol Data; cmdBefore, cmdNext -> txtHanrei=UYU
frmSetHanko: txtHanrei=hail, cmdSave, mnuUndo -> -not saved; txtWord=hail, cmdAutoHanrei -> txtHanrei=hail
frmSetHanko: txtHanrei=hail, cmdSave, mnuUndo, mnuRedo -> not saved; txtWord=, cmdWord -> txtWord=ame
frmSetHanko: txtHanrei=hail, cmdSave -> *picHanrei; (no input), cmdInserte -> Specify Number of Insert Data.
frmSetHanko: (1), cmdInserte -> *picHanrei; (1), cmdDelete -> *picHanrei; (many symbols), cmdUp, cmdDown -> *
frmSetHanko: (no input), cmdDelete -> Specify Number of Delete Data.; (many symbols), cmdUp -> *
frmSetHanko: txtWord=, lstKindWord=Enter -> txtWord=ame; txtHankoNumber=93 -> *picSample
frmSetHanko: cboColor=3 -> *picSample; txtHankoNumber=16, cboBack=12, (a click on chkPat) -> *picSample
frmCalc: mnuTotalForm -> [frmCalExec]; mnuMap -> [frmMap]; mnuFileReturn -> [frmMain]
frmCalc: mnuRankExe -> [frmRankData]; cmdNext -> txtTotalName=two; cmdWordDelete -> -LstWord=a,am
frmCalc: cmdWordReset -> -LstWord=a; cmdWordNext -> txtInputWord=am; cmdNext, cmdPrevious -> txtTotalName=one
frmCalc: (no file), mnuFileOpen -> Open Cumulative Data File; (no file), mnuGengoOpen -> Open Linguistic Data
frmCalc: txtTotalFileName=, mnuFileSave -> Input Name of Aalysis File.; lstDisplay=1 -> Kind of word 2 of 2
frmCalc: txtTotalFileName=, cmdTotalFileSave -> Input Name of Aalysis File.
frmCalc: (no file), mnuSetFileLoad -> Open Specify Char File; txtTotalItems=7, cmdSetInput -> over 7 items
frmCalc: (cancel), mnuInitialize -> All Data will be Lost; txtTotalName=uno, cmdSet -> lstTotal=1 uno
frmCalc: txtTotalNumber=0, cmdTotalNumber -> No. of Specify Data is inadequate.
frmCalc: txtInputWord=, cmdSetWord -> txtInputWord=ame; txtInputWord=ha, cmdWordSelect -> LstWord=a,am,ha
frmCalc: txtInputWord=ha, cmdWordRewrite -> LstWord=ha,am; cmdWordNext, cmdWordBefore -> -txtInputWord=am
frmCalc: txtSetFileName=, cmdWordSave -> Input Name of Specify Characters.
frmCalc: lstDisplay=Enter -> txtInputWord=ame; LstWord=1 -> txtInputWord=am
frmCalc: txtTotalName=uno -> Changes not registered; cboForeColor=3 -> Changes not registered
frmCalc: cboFillColor=3 -> Changes not registered
frmCalExec: mnuExecCalc -> Analyse of Linguistic Data File is completed.; mnuExecMap -> [frmMap]
frmCalExec: mnuExecSave -> Linguistic Data File is saved.; mnuReturn -> [frmCalc]; mnuRankReturn -> [frmMain]
frmCalExec: mnuDisplay -> Page 1 of; mnuStatsDisplayAll -> -Columns: count; mnuStatsSave -> file: all.stt
frmCalExec: mnuStatsSymbols -> [frmTotalHanko]; mnuRankData -> [frmRankData]
frmCalExec: (no folder), mnuExecAll -> Folder of the Items to Accumulate
frmCalExec: mnuDisplay, mnuItemNext -> Wordform 2 two; mnuDisplay, mnuItemPrevious -> Wordform 2 two
frmCalExec: (many localities), mnuDisplayNext -> Page 2 of 2; mnuDisplay, mnuStatsExec -> Columns: count
frmCalExec: (many localities), mnuDisplayNext, mnuDisplayPrevious -> Page 1 of 2
frmCalExec: mnuDisplay, mnuStatsDisplay -> Columns: count; (no file), mnuStatsOpen -> Open Statistics File
frmRankData: mnuRankSave -> Input File Name for Analysis Data.; mnuRankMap -> [frmMap]
frmRankData: mnuRankReturn -> [frmCalc]; mnuDisplayRank -> Page 1 of; cmdData1 -> lstData1=one,two
frmRankData: cmdData2 -> Item 2 already has this word form.; cmdDel1 -> -lstData1=one
frmRankData: cmdDel2 -> -lstData2=two; cmdCalc -> Contrast Analysis is finished.
frmRankData: (yes), (no file), mnuRankOpen -> Open Contrast File; txtRankFileName=west -> west.rnk
frmRankData: (many contrasts), mnuDisplayNext -> Page 2 of 2
frmRankData: (many contrasts), mnuDisplayNext, mnuDisplayPrevious -> Page 1 of 2
frmRankData: txtRankFileName=west, mnuRankSave, txtSetColor1=3 -> <modified>
frmRankData: txtRankFileName=west, mnuRankSave, txtFillColor1=3 -> <modified>
frmTotalHanko: mnuTotalHankoSave -> Input File Name of Symbol Data; mnuTotalHankoMap -> [frmMap]
frmTotalHanko: mnuTotalHankoReturn -> [frmCalExec]; cmdNext -> Word form 2 of 2; cmdNext -> *picSample
frmTotalHanko: cmdNext -> *picHanko; cmdSymbol -> [SymbolPicker]; cmdStatistics -> *
frmTotalHanko: (no file), mnuTotalHankoOpen -> Open Symbol File; cmdStatistics, cmdNext -> *picStatistics
frmTotalHanko: cmdNext, cmdBefore -> Word form 1 of 2; txtFileName=west -> west.htL
frmRankData: mnuRankSave -> focus: txtRankFileName
frmTotalHanko: mnuTotalHankoSave -> focus: txtFileName
frmCalc: cmdSetWord -> focus: txtInputWord; txtSetFileName=, cmdWordSave -> focus: txtSetFileName
frmCalc: txtTotalFileName=, mnuFileSave -> focus: txtTotalFileName
frmDataInput: mnuSave -> focus: txtFileName; cmdSetKind -> focus: txtKind
frmDataInput: tblWords=a\Q, cmdCheckCode -> focus: lstCheck; cmdSetKind, (1), mnuGoTo -> focus: tblWords
frmDataInput: cmdSetKind, (yes), mnuInitialize -> focus: tblWords)";

} // namespace

std::vector<EveryWayOut::Way> EveryWayOut::ways()
{
    std::vector<Way> ways;
    for (const QString& line : QString(Rows).split('\n', Qt::SkipEmptyParts)) {
        for (const QString& row : line.section(": ", 1).split("; ")) {
            ways.push_back({line.section(": ", 0, 0), row.section(" -> ", 0, 0).split(", "),
                            row.section(" -> ", 1).replace("\\n", "\n")});
        }
    }
    return ways;
}

std::map<QString, std::function<void()>> EveryWayOut::preparations()
{
    ScriptedDialogs& dialogs = program->dialogs;
    VarnModule& varn = program->varn;
    const auto cellEditor = [] {
        auto* delegate = control<frmDataInput, QAbstractItemView>("tblWords").itemDelegate();
        return dynamic_cast<WordEntryDelegate*>(delegate);
    };
    return {
        {"(no file)", [&] { dialogs.files = {std::nullopt}; }},
        {"(no folder)", [&] { dialogs.folders = {std::nullopt}; }},
        {"(no name)", [&] { dialogs.savedFiles = {std::nullopt}; }},
        {"(no input)", [&] { dialogs.inputs = {std::nullopt}; }},
        {"(1)", [&] { dialogs.inputs = {"1"}; }},
        {"(no)", [&] { dialogs.yesNo = {false}; }},
        {"(yes)", [&] { dialogs.yesNo = {true}; }},
        {"(cancel)", [&] { dialogs.okCancel = {false}; }},
        {"(atlas)", [] { press<frmMain>("cmdAtlas"); }},
        {"(a new caption)",
         [] {
             AtlasDocument& atlas = form<frmAtlas>().document();
             SymbolRecords records = atlas.page().symbols;
             records.HankoCaption(1) += "!";
             atlas.setSymbols(records, "New Caption");
         }},
        {"(frmMap in front)", [] { press<frmMain>("cmdMap"); }},
        {"(snow in the atlas)",
         [&] {
             survey.write(ling("snow.dbs"), "3,\"\",\"Snow\",\"\"\r\n0\r\n0\r\n0\r\n");
             press<frmMain>("cmdAtlas");
             showOnly(form<frmAtlas>());
         }},
        {"(a record)",
         [] {
             press<frmMain>("cmdAtlas");
             control<frmAtlas, QTableView>("tblRecords").selectRow(0);
         }},
        {"(two records)",
         [] {
             press<frmMain>("cmdAtlas");
             control<frmAtlas, QTableView>("tblRecords").selectAll();
         }},
        {"(an unmarked word form)",
         [] {
             press<frmMain>("cmdAtlas");
             form<frmAtlas>().document().setSymbols({}, "Delete Records");
             control<frmAtlas, QTableView>("tblUnmarked").selectRow(0);
         }},
        {"(hail on the clipboard)", [] { QGuiApplication::clipboard()->setText("hail"); }},
        {"(161 symbols)", [&] { varn.Nsquare = 3; }},
        {"(4 localities)",
         [&] {
             varn.NLocality = 4;
             form<frmDataInput>().refresh();
         }},
        {"(many kinds)",
         [&] {
             survey.write(ling("rain.srt"), "130\r\n" + QByteArray("\"k\",1\r\n").repeated(130));
             choose("rain.dbs");
             trigger<frmData>("mnuOpen");
             trigger<frmData>("mnuKind");
         }},
        {"(many symbols)",
         [&] {
             choose("many.han");
             trigger<frmSetHanko>("mnuOpenHanko");
         }},
        {"(many localities)",
         [&] {
             varn.NLocality = 200;
             trigger<frmCalExec>("mnuDisplay");
         }},
        {"(many contrasts)",
         [&] {
             varn.NLocality = 121;
             press<frmRankData>("cmdCalc");
             trigger<frmRankData>("mnuDisplayRank");
         }},
        {"(a click on chkPat)", [] { control<frmSetHanko, QCheckBox>("chkPat").click(); }},
        {"(a\\Q typed in a cell)", [=] { Q_EMIT cellEditor()->typed("a\\Q"); }},
        {"(Escape)",
         [=] { Q_EMIT cellEditor()->closeEditor(nullptr, QAbstractItemDelegate::RevertModelCache); }},
        {"(a\\Q typed as a kind)", [] { control<frmDataInput, QLineEdit>("txtKind").insert("a\\Q"); }},
        {"(Escape on the map)",
         [] {
             QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
             QApplication::sendEvent(&Program::map(), &escape);
         }},
        {"(Enter in txtKind)", [] { Q_EMIT control<frmDataInput, QLineEdit>("txtKind").returnPressed(); }},
        {"(locality 3)",
         [] {
             auto& words = control<frmDataInput, QAbstractItemView>("tblWords");
             words.setCurrentIndex(words.model()->index(2, 0));
         }},
        {"(a click on a fault)",
         [] {
             auto& faulty = control<frmDataInput, QListWidget>("lstCheck");
             Q_EMIT faulty.itemClicked(faulty.item(0));
         }},
    };
}

void EveryWayOut::perform(const QString& step)
{
    const auto prepared = preparations();
    const auto ways = waysOut(*rowForm);
    const QString name = step.section('=', 0, 0);
    const QString value = step.section('=', 1);
    if (prepared.contains(step)) {
        prepared.at(step)();
    } else if (ways.contains(step)) {
        use(*ways.at(step));
    } else if (name == "tblWords") {
        enterWord(0, 0, value);
    } else if (auto* box = rowForm->findChild<QLineEdit*>(name)) {
        box->setText(value);
    } else if (auto* choices = rowForm->findChild<QComboBox*>(name)) {
        choices->setCurrentIndex(value.toInt());
        Q_EMIT choices->activated(value.toInt());
    } else if (auto& list = child<QListWidget>(*rowForm, qPrintable(name)); value == "Enter") {
        Q_EMIT list.itemActivated(list.item(0));
    } else {
        list.setCurrentRow(value.toInt());
    }
}
