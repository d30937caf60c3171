// An analysis of the sample survey with the real forms: name word forms, give their strings, accumulate
// items, compute the statistics, save and load again, and draw every kind of map of the counts.

#include "tests/support/TestProgram.h"

#include <QLineEdit>

namespace {

const QString Ling = "C:\\Varn62E\\Varn\\VarnData\\Sample\\Ling\\";

/// The program of a new user, on the sample survey.
class AnalysisDay : public testing::Test
{
protected:
    AnalysisDay()
    {
        program.dialogs.yesNo = {true};
        program.start(InstallationFolder);
    }

    template <typename Form>
    void openIn(const char* entry, const char* file)
    {
        program.dialogs.files = {drive.drive().hostPath(Ling + file)};
        trigger<Form>(entry);
    }
    static void type(const char* box, const char* text) { control<frmCalc, QLineEdit>(box).setText(text); }
    static void nameWordform(const char* name, std::initializer_list<const char*> strings)
    {
        type("txtTotalName", name);
        press<frmCalc>("cmdSet");
        for (const char* string : strings) {
            type("txtInputWord", string);
            press<frmCalc>("cmdWordSelect");
        }
        press<frmCalc>("cmdNext");
    }

    TestDrive drive;
    Program program{drive};
};

} // namespace

TEST_F(AnalysisDay, FromTheStringsToTheMaps)
{
    program.click("cmdSumUp");
    type("txtTotalNumber", "2");
    press<frmCalc>("cmdTotalNumber");
    nameWordform("raised", {"\\A5", "\\I6"});
    nameWordform("schwa", {"\\E2"});
    for (const char* box : {"txtTotalFileName", "txtExplain", "txtSetFileName"}) {
        type(box, "mine");
    }
    press<frmCalc>("cmdTotalFileSave");
    press<frmCalc>("cmdWordSave");
    EXPECT_EQ(drive.read(Ling + "mine.sum"), "2\r\n2,\"\\A5\",\"\\I6\"\r\n1,\"\\E2\"\r\n");

    trigger<frmCalc>("mnuTotalForm");
    for (const char* item : {"01_rain.dbs", "02_house.dbs", "03_butterfly.dbs"}) {
        openIn<frmCalc>("mnuGengoOpen", item);
        trigger<frmCalExec>("mnuExecCalc");
    }
    EXPECT_TRUE(drive.read(Ling + "mine.ttl").startsWith("2,3,\"mine\"\r\n"));
    trigger<frmCalExec>("mnuStatsExec");
    trigger<frmCalExec>("mnuStatsSave");
    EXPECT_TRUE(drive.read(Ling + "mine.stt").startsWith("2,3\r\n1\r\n"));

    program.dialogs.yesNo = {true, true, true}; // the strings of each table
    openIn<frmCalc>("mnuFileOpen", "sounds.ttl");
    EXPECT_EQ(program.varn.NumWordforms, 4);
    openIn<frmCalc>("mnuFileOpen", "mine.ttl");
    EXPECT_EQ(program.varn.SpecifyChars(1, 2), "\\I6");
    const std::pair<const char*, QStringList> graphs[] = {{"mnuTotalBar", {"raised"}},
                                                          {"mnuTotalCircle", {"schwa"}}, // the next word form
                                                          {"mnuTotalSBar", {"raised", "schwa", "mine"}},
                                                          {"mnuTotalSCircle", {"raised", "schwa", "mine"}}};
    for (const auto& [entry, texts] : graphs) {
        Program::menu(entry).trigger();
        for (const QString& text : texts) {
            EXPECT_TRUE(wasPrinted(Program::drawing(), text)) << entry << ' ' << qPrintable(text);
        }
    }

    openIn<frmCalc>("mnuFileOpen", "sounds.ttl");
    trigger<frmCalExec>("mnuStatsSymbols");
    openIn<frmTotalHanko>("mnuTotalHankoOpen", "sounds.htL");
    trigger<frmTotalHanko>("mnuTotalHankoMap");
    EXPECT_TRUE(wasPrinted(Program::drawing(), "glottal stop"));
    trigger<frmCalc>("mnuRankExe");
    openIn<frmRankData>("mnuRankOpen", "sounds.rnk");
    press<frmRankData>("cmdCalc");
    trigger<frmRankData>("mnuRankMap");
    EXPECT_TRUE(wasPrinted(Program::drawing(), "-100%"));
    EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
}
