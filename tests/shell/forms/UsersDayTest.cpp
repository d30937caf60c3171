// A user's day with the real forms: choose a map, enter an item, look at it, give it symbols, draw, print and
// save the map; then start anew and load it all back.

#include "tests/support/RecordingPrinter.h"
#include "tests/support/TestProgram.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QStatusBar>

namespace {

const QString Ling = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Other\\Ling\\");

/// A program on a survey with two maps, "Test" being the current one.
class UsersDay : public Forms
{
protected:
    UsersDay()
    {
        const QString map = VarnPath + QStringLiteral("\\VarnData\\Other\\Map\\");
        survey.write(map + QStringLiteral("Line.map"), "1\r\n0,2,0,0,0,0\r\n0,0\r\n800,1000\r\n");
        survey.write(map + QStringLiteral("Loc.map"), "4\r\n100,100\r\n200,300\r\n300,500\r\n400,700\r\n");
        survey.write(map + QStringLiteral("kanji.map"),
                     "1\r\n20,20\r\n\"Other island\"\r\n100,900\r\n\"5 km\",1,100\r\n");
        survey.write(Ling + QStringLiteral("readme.txt"), "");
    }

    static void startWithGlyphs(Program& program)
    {
        program.dialogs.yesNo = {true};
        program.start(InstallationFolder);
    }

    void chooseMap(Program& program) const
    {
        program.click("cmdRegMap");
        program.dialogs.files = {
            survey.hostPath(QStringLiteral("Varn62E/Varn/VarnData/Other/Ling/readme.txt"))};
        program.dialogs.yesNo = {true};
        press<frmChizu>("cmdRegMapName");
    }

    static void enterItem(Program& program)
    {
        program.click("cmdInputData");
        auto& words = *control<frmDataInput, QAbstractItemView>("tblWords").model();
        const std::tuple<int, int, QString> cells[] = {{0, 0, QStringLiteral("ka\\N1a")},
                                                       {0, 1, QStringLiteral("say \"mi\", no")},
                                                       {2, 0, QStringLiteral("mi")},
                                                       {3, 0, QStringLiteral("ka\\N1a")}};
        for (const auto& [row, column, word] : cells) {
            EXPECT_TRUE(words.setData(words.index(row, column), word));
        }
        control<frmDataInput, QLineEdit>("txtHanrei").insert(QStringLiteral("Hand")); // as if typed
        control<frmDataInput, QLineEdit>("txtFileName").setText(QStringLiteral("hand"));
        trigger<frmDataInput>("mnuSave");
    }

    void lookAtIt(Program& program) const
    {
        program.click("cmdData");
        program.dialogs.files = {survey.drive().hostPath(Ling + QStringLiteral("hand.dbs"))};
        trigger<frmData>("mnuOpen");
        trigger<frmData>("mnuKind");
    }

    static void addSymbol(int kind, const QString& caption, const QString& number)
    {
        control<frmSetHanko, QListWidget>("lstKindWord").setCurrentRow(kind);
        press<frmSetHanko>("cmdWord");
        control<frmSetHanko, QLineEdit>("txtHanrei").setText(caption);
        control<frmSetHanko, QLineEdit>("txtHankoNumber").setText(number);
        press<frmSetHanko>("cmdSave");
        press<frmSetHanko>("cmdNext");
    }

    static void makeSymbols(Program& program)
    {
        program.click("cmdHanko");
        addSymbol(0, QStringLiteral("hand with ng"), QStringLiteral("50"));
        addSymbol(1, QStringLiteral("mi"), QStringLiteral("1"));
        program.dialogs.inputs = {QStringLiteral("hand")};
        trigger<frmSetHanko>("mnuSaveHanko");
        trigger<frmSetHanko>("mnuLoadMap");
    }
};

} // namespace

TEST_F(UsersDay, FromTheSurveyToThePrintedMapAndBack)
{
    RecordingPrinter::Documents documents;
    const QString svg = survey.hostPath(QStringLiteral("hand.svg"));
    Drawing drawn;
    {
        Program program(survey);
        startWithGlyphs(program);
        chooseMap(program);
        EXPECT_EQ(program.varn.VarnMapName, QStringLiteral("\\Other"));
        EXPECT_EQ(program.varn.NLocality, 4);
        EXPECT_EQ(program.main.windowTitle(), QStringLiteral("VARN - Other"));

        enterItem(program);
        EXPECT_EQ(
            survey.read(Ling + QStringLiteral("hand.dbs")),
            "4,\"\",\"Hand\",\"\"\r\n2\r\n\"ka\\N1a\"\r\n\"say \"\"mi\"\", no\"\r\n0\r\n1\r\n\"mi\"\r\n1\r\n"
            "\"ka\\N1a\"\r\n");
        lookAtIt(program);
        EXPECT_EQ(survey.read(Ling + QStringLiteral("hand.srt")),
                  "3\r\n\"ka\\N1a\",2\r\n\"mi\",1\r\n\"say \"\"mi\"\", no\",1\r\n");
        makeSymbols(program);
        EXPECT_EQ(program.varn.NHanrei, 2);

        program.dialogs.printer = std::make_unique<RecordingPrinter>(documents);
        program.click("cmdPrinter");
        program.menu("mnuMapLing").trigger();
        drawn = program.drawing();
        EXPECT_TRUE(wasPrinted(drawn, QStringLiteral("hand with ng")));
        EXPECT_EQ(operationsOf<EllipseOperation>(drawn).size(), 2 + 1U)
            << "at two localities and in the legend";
        program.dialogs.savedFiles = {svg};
        program.menu("mnuSaveMapAs").trigger();
        program.dialogs.yesNo = {true};
        program.menu("mnuFilePrint").trigger();
        program.menu("mnuMapLing").trigger();
        EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
    }
    ASSERT_EQ(documents.size(), 1U);
    EXPECT_EQ(documents[0].at(0).texts, drawn.texts) << "what is printed is what was shown";
    EXPECT_TRUE(survey.read(QStringLiteral("C:\\hand.svg")).contains(">hand with ng<"));

    survey.write(MapNameFile, "\"\\Other\",\"Arial\",12,#TRUE#,#FALSE#,0\r\n");
    Program program(survey);
    startWithGlyphs(program);
    program.click("cmdMap");
    program.load("mnuHankoInput", "hand.han");
    program.load("mnuInputWord", "hand.dbs");
    program.menu("mnuMapLing").trigger();
    EXPECT_EQ(program.drawing().texts, drawn.texts);
    EXPECT_EQ(program.drawing().points, drawn.points);
    EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
}

TEST_F(Forms, ANewMapIsMadeInsideTheProgram)
{
    const QString map = VarnPath + QStringLiteral("\\VarnData\\New\\Map\\");
    const QString source = QStringLiteral("C:\\import\\source.txt");
    QFile::remove(survey.drive().hostPath(DriveFile));
    {
        Program program(survey);
        program.dialogs.inputs = {QStringLiteral("New")};
        program.dialogs.yesNo = {false, true};
        program.start(nothing.path());
        EXPECT_EQ(program.dialogs.shown.back().text, QStringLiteral("There is no map New. Make a new one?"));
        QDir(survey.hostPath(QStringLiteral("Varn62E/Varn/VarnData/New"))).removeRecursively();

        const std::tuple<const char*, const char*, QByteArray> imports[] = {
            {"mnuImportLocalities", "Loc.map", "x,y\n10,20\n30,40\n"},
            {"mnuImportLines", "Line.map", "1\r\n0,2,0,0,0,0\r\n0,0\r\n80,100\r\n"},
            {"mnuImportPlaceNames", nullptr, "1\r\n2,3\r\n\"New town\"\r\n5,90\r\n\"km\",2,10\r\n"}};
        for (const auto& [entry, name, contents] : imports) {
            survey.write(source, contents);
            program.dialogs.files = {survey.drive().hostPath(source)};
            if (name != nullptr) {
                program.dialogs.savedFiles = {survey.drive().hostPath(map + QLatin1String(name))};
            }
            trigger<frmMain>(entry);
        }
        EXPECT_EQ(program.varn.NLocality, 2);
        program.menu("mnuMapBlank").trigger();
        EXPECT_TRUE(wasPrinted(program.drawing(), QStringLiteral("New town")));

        program.click("cmdInputData");
        auto& words = *control<frmDataInput, QAbstractItemView>("tblWords").model();
        EXPECT_TRUE(words.setData(words.index(1, 0), QStringLiteral("mi")));
        control<frmDataInput, QLineEdit>("txtFileName").setText(QStringLiteral("hand"));
        trigger<frmDataInput>("mnuSave");
        EXPECT_EQ(survey.read(VarnPath + QStringLiteral("\\VarnData\\New\\Ling\\hand.dbs")),
                  "2,\"\",\"\",\"\"\r\n0\r\n1\r\n\"mi\"\r\n");
        EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
    }
    Program program(survey);
    start(program);
    EXPECT_EQ(program.dialogs.errors, std::vector<Shown>()) << "the map is whole at the next start";
    EXPECT_EQ(program.varn.KanjiText(1), QStringLiteral("New town"));
}
