// A user's day with the real forms: choose a map, enter an item, look at it, give it symbols, draw, print and
// save the map; then start anew and load it all back.

#include "tests/support/RecordingPrinter.h"
#include "tests/support/TestProgram.h"

#include <QDir>
#include <QFile>

namespace {

const QString Data = VarnPath + "\\VarnData\\";
const QString Ling = Data + "Other\\Ling\\";

void startWithGlyphs(Program& program)
{
    program.dialogs.yesNo = {true};
    program.start(InstallationFolder);
}

void addSymbol(int kind, const QString& caption, const QString& number)
{
    control<frmSetHanko, QListWidget>("lstKindWord").setCurrentRow(kind);
    press<frmSetHanko>("cmdWord");
    type<frmSetHanko>("txtHanrei", caption);
    type<frmSetHanko>("txtHankoNumber", number);
    press<frmSetHanko>("cmdSave");
    press<frmSetHanko>("cmdNext");
}

} // namespace

TEST_F(Forms, FromTheSurveyToThePrintedMapAndBack)
{
    survey.write(Data + "Other\\Map\\Line.map", "1\r\n0,2,0,0,0,0\r\n0,0\r\n800,1000\r\n");
    survey.write(Data + "Other\\Map\\Loc.map", "4\r\n100,100\r\n200,300\r\n300,500\r\n400,700\r\n");
    survey.write(Data + "Other\\Map\\kanji.map",
                 "1\r\n20,20\r\n\"Other island\"\r\n100,900\r\n\"5 km\",1,100\r\n");
    survey.write(Ling + "readme.txt", "");
    RecordingPrinter::Documents documents;
    Drawing drawn;
    {
        Program program(survey);
        startWithGlyphs(program);
        program.click("cmdRegMap");
        program.dialogs.files = {survey.drive().hostPath(Ling + "readme.txt")};
        program.dialogs.yesNo = {true};
        press<frmChizu>("cmdRegMapName");
        EXPECT_EQ(program.varn.NLocality, 4);
        EXPECT_EQ(program.main.windowTitle(), "VARN - Other");

        program.click("cmdInputData");
        enterWord(0, 0, "ka\\N1a");
        enterWord(0, 1, "say \"mi\", no");
        enterWord(2, 0, "mi");
        enterWord(3, 0, "ka\\N1a");
        control<frmDataInput, QLineEdit>("txtHanrei").insert("Hand"); // as if typed
        type<frmDataInput>("txtFileName", "hand");
        trigger<frmDataInput>("mnuSave");
        EXPECT_EQ(survey.read(Ling + "hand.dbs"),
                  "4,\"\",\"Hand\",\"\"\r\n2\r\n\"ka\\N1a\"\r\n\"say \"\"mi\"\", no\"\r\n0\r\n1\r\n\"mi\"\r\n"
                  "1\r\n\"ka\\N1a\"\r\n");

        program.click("cmdData");
        program.dialogs.files = {survey.drive().hostPath(Ling + "hand.dbs")};
        trigger<frmData>("mnuOpen");
        trigger<frmData>("mnuKind");
        EXPECT_EQ(survey.read(Ling + "hand.srt"),
                  "3\r\n\"ka\\N1a\",2\r\n\"mi\",1\r\n\"say \"\"mi\"\", no\",1\r\n");

        program.click("cmdHanko");
        addSymbol(0, "hand with ng", "50");
        addSymbol(1, "mi", "1");
        program.dialogs.inputs = {"hand"};
        trigger<frmSetHanko>("mnuSaveHanko");
        trigger<frmSetHanko>("mnuLoadMap");

        program.dialogs.printer = std::make_unique<RecordingPrinter>(documents);
        program.click("cmdPrinter");
        program.menu("mnuMapLing").trigger();
        drawn = program.drawing();
        EXPECT_TRUE(wasPrinted(drawn, "hand with ng"));
        EXPECT_EQ(operationsOf<EllipseOperation>(drawn).size(), 2 + 1U)
            << "at two localities and in the legend";
        program.dialogs.savedFiles = {survey.hostPath("hand.svg")};
        program.menu("mnuSaveMapAs").trigger();
        program.dialogs.yesNo = {true};
        program.menu("mnuFilePrint").trigger();
        program.menu("mnuMapLing").trigger();
        EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
    }
    ASSERT_EQ(documents.size(), 1U);
    EXPECT_EQ(documents[0].at(0).texts, drawn.texts) << "what is printed is what was shown";
    EXPECT_TRUE(survey.read("C:\\hand.svg").contains(">hand with ng<"));

    survey.write(MapNameFile, "\"\\Other\",\"Arial\",12,#TRUE#,#FALSE#,0\r\n");
    Program program(survey);
    startWithGlyphs(program);
    program.load("mnuHankoInput", "hand.han");
    program.load("mnuInputWord", "hand.dbs");
    program.menu("mnuMapLing").trigger();
    EXPECT_EQ(program.drawing().texts, drawn.texts);
    EXPECT_EQ(program.drawing().points, drawn.points);
    EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
}

TEST_F(Forms, ANewMapIsMadeInsideTheProgram)
{
    const QString map = Data + "New\\Map\\";
    QFile::remove(survey.drive().hostPath(DriveFile));
    {
        Program program(survey);
        program.dialogs.inputs = {"New"};
        program.dialogs.yesNo = {false, true};
        program.start(nothing.path());
        EXPECT_EQ(program.dialogs.shown.back().text, "There is no map New. Make a new one?");
        QDir(survey.drive().hostPath(Data + "New")).removeRecursively();

        const std::tuple<const char*, QString, QByteArray> imports[] = {
            {"mnuImportLocalities", map + "Loc.map", "x,y\n10,20\n30,40\n"},
            {"mnuImportLines", map + "Line.map", "1\r\n0,2,0,0,0,0\r\n0,0\r\n80,100\r\n"},
            {"mnuImportPlaceNames", {}, "1\r\n2,3\r\n\"New town\"\r\n5,90\r\n\"km\",2,10\r\n"}};
        for (const auto& [entry, file, contents] : imports) {
            survey.write("C:\\import\\source.txt", contents);
            program.dialogs.files = {survey.drive().hostPath("C:\\import\\source.txt")};
            if (!file.isEmpty()) {
                program.dialogs.savedFiles = {survey.drive().hostPath(file)};
            }
            trigger<frmMain>(entry);
        }
        EXPECT_EQ(program.varn.NLocality, 2);
        program.menu("mnuMapBlank").trigger();
        EXPECT_TRUE(wasPrinted(program.drawing(), "New town"));

        program.click("cmdInputData");
        enterWord(1, 0, "mi");
        type<frmDataInput>("txtFileName", "hand");
        trigger<frmDataInput>("mnuSave");
        EXPECT_EQ(survey.read(Data + "New\\Ling\\hand.dbs"), "2,\"\",\"\",\"\"\r\n0\r\n1\r\n\"mi\"\r\n");
        EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
    }
    Program program(survey);
    start(program);
    EXPECT_EQ(program.dialogs.errors, std::vector<Shown>()) << "the map is whole at the next start";
    EXPECT_EQ(program.varn.KanjiText(1), "New town");
}
