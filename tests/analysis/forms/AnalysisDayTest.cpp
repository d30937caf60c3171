// An analysis of the sample survey with the real forms: name word forms, give their strings, accumulate
// items, compute the statistics, save and load again, and draw every kind of map of the counts.

#include "tests/support/TestProgram.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>

namespace {

const QString Ling = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Sample\\Ling\\");

/// The program of a new user, on the sample survey.
class AnalysisDay : public testing::Test
{
protected:
    AnalysisDay() { start(program); }

    static void start(Program& started)
    {
        started.dialogs.yesNo = {true};
        started.start(InstallationFolder);
    }

    template <typename Form>
    void openIn(const char* entry, const char* file)
    {
        program.dialogs.files = {drive.drive().hostPath(Ling + QLatin1String(file))};
        trigger<Form>(entry);
    }

    static void nameWordform(const QString& name, const QStringList& strings)
    {
        control<frmCalc, QLineEdit>("txtTotalName").setText(name);
        press<frmCalc>("cmdSet");
        for (const QString& string : strings) {
            control<frmCalc, QLineEdit>("txtInputWord").setText(string);
            press<frmCalc>("cmdWordSelect");
        }
        press<frmCalc>("cmdNext");
    }

    void accumulate(const char* item)
    {
        openIn<frmCalc>("mnuGengoOpen", item);
        trigger<frmCalExec>("mnuExecCalc");
    }

    const Drawing& graph(const char* entry) const
    {
        program.menu(entry).trigger();
        return program.drawing();
    }

    TestDrive drive;
    Program program{drive};
};

} // namespace

TEST_F(AnalysisDay, FromTheStringsToTheMaps)
{
    program.click("cmdSumUp");
    control<frmCalc, QLineEdit>("txtTotalNumber").setText(QStringLiteral("2"));
    press<frmCalc>("cmdTotalNumber");
    nameWordform(QStringLiteral("raised"), {QStringLiteral("\\A5"), QStringLiteral("\\I6")});
    nameWordform(QStringLiteral("schwa"), {QStringLiteral("\\E2")});
    control<frmCalc, QLineEdit>("txtTotalFileName").setText(QStringLiteral("mine"));
    control<frmCalc, QLineEdit>("txtExplain").setText(QStringLiteral("My counts"));
    control<frmCalc, QLineEdit>("txtSetFileName").setText(QStringLiteral("mine"));
    press<frmCalc>("cmdTotalFileSave");
    press<frmCalc>("cmdWordSave");
    EXPECT_STREQ(drive.read(Ling + QStringLiteral("mine.sum")).constData(),
                 "2\r\n2,\"\\A5\",\"\\I6\"\r\n1,\"\\E2\"\r\n");

    trigger<frmCalc>("mnuTotalForm");
    for (const char* item : {"01_rain.dbs", "02_house.dbs", "03_butterfly.dbs"}) {
        accumulate(item);
    }
    EXPECT_EQ(program.varn.NumItemsAccumulated, 3);
    EXPECT_TRUE(drive.read(Ling + QStringLiteral("mine.ttl")).startsWith("2,3,\"My counts\"\r\n"));
    trigger<frmCalExec>("mnuStatsExec");
    trigger<frmCalExec>("mnuStatsSave");
    EXPECT_TRUE(drive.read(Ling + QStringLiteral("mine.stt")).startsWith("2,3\r\n1\r\n"));

    const auto counts = program.varn.Counts;
    program.dialogs.yesNo = {true, true, true}; // the strings of each table
    openIn<frmCalc>("mnuFileOpen", "sounds.ttl");
    EXPECT_EQ(program.varn.NumWordforms, 4);
    openIn<frmCalc>("mnuFileOpen", "mine.ttl");
    EXPECT_EQ(program.varn.SpecifyChars(1, 2), QStringLiteral("\\I6"));
    for (int j = 1; j <= program.varn.NLocality; ++j) {
        EXPECT_EQ(program.varn.Counts(1, j), counts(1, j)) << j;
    }

    EXPECT_TRUE(wasPrinted(graph("mnuTotalBar"), QStringLiteral("raised")));
    EXPECT_TRUE(wasPrinted(graph("mnuTotalCircle"), QStringLiteral("schwa"))) << "the next word form";
    for (const char* layered : {"mnuTotalSBar", "mnuTotalSCircle"}) {
        const Drawing& map = graph(layered);
        EXPECT_TRUE(wasPrinted(map, QStringLiteral("raised")) && wasPrinted(map, QStringLiteral("schwa")));
        EXPECT_TRUE(wasPrinted(map, QStringLiteral("My counts")));
    }

    openIn<frmCalc>("mnuFileOpen", "sounds.ttl");
    trigger<frmCalExec>("mnuStatsSymbols");
    openIn<frmTotalHanko>("mnuTotalHankoOpen", "sounds.htL");
    trigger<frmTotalHanko>("mnuTotalHankoMap");
    EXPECT_TRUE(wasPrinted(program.drawing(), QStringLiteral("glottal stop")));

    trigger<frmCalc>("mnuRankExe");
    openIn<frmRankData>("mnuRankOpen", "sounds.rnk");
    press<frmRankData>("cmdCalc");
    trigger<frmRankData>("mnuRankMap");
    EXPECT_TRUE(wasPrinted(program.drawing(), QStringLiteral("-100%")));
    EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
}
