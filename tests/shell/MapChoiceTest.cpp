#include "shell/MapChoice.h"

#include "shell/MapChange.h"
#include "tests/support/TestDrive.h"

TEST(MapChoice, SixFieldsAreWrittenAndReadBack)
{
    const TestDrive drive;
    Folders folders;
    folders.Drive = drive.drive();
    folders.MapNameFile = "C:\\MapName.dat";
    const QByteArray written = "\"\\My map\",\"Times\",12,#FALSE#,#TRUE#,-0.5\r\n";
    drive.write(folders.MapNameFile, written);
    const MapChoice choice = loadMapChoice(folders);
    EXPECT_EQ(mapChoiceQuestion(choice),
              "C:\\Varn62E\\\r\nMap Name My map\r\nFont Times\r\nFont Style 'Slant'\r\nSize of Fonts 12 OK?");
    EXPECT_EQ(choice.SpecialFontShift, -0.5F);
    drive.write(folders.MapNameFile, R"("\My map","Times",twelve)");
    EXPECT_EQ(errorOf([&] { loadMapChoice(folders); }).number(), ErrorNumber::TypeMismatch);
    saveMapChoice(folders, choice);
    EXPECT_EQ(drive.read(folders.MapNameFile), written);
}

TEST(MapChange, AnotherMapDropsWhatBelongsToTheOldOne)
{
    const std::pair<int, int> states[] = {{0, 0}, {1, 0}, {2, 3}, {3, 3}, {4, 3}};
    for (const auto& [before, after] : states) {
        TestSurvey survey;
        VarnModule& varn = survey.varn;
        survey.write(varn.VarnPath + "\\VarnData\\Isle\\Map\\Loc.map", "1\r\n7,8\r\n");
        varn.LoadState = before;
        varn.ItemFileName = "rain.dbs";
        varn.NKind = varn.NumWordforms = varn.NHanrei = 2;
        varn.Counts(1, 1) = 5;
        varn.NumSpecifyChars(1) = 1;
        varn.StatsWordforms = 2;
        varn.ContrastAnalysed = true;

        changeMap({varn.VarnPath.toUpper(), varn.VarnMapName.toLower()}, varn);
        EXPECT_EQ(varn.NKind + varn.Counts(1, 1) + varn.StatsWordforms, 2 + 5 + 2)
            << "nothing by the same map";
        EXPECT_EQ(errorOf([&] {
                      changeMap({varn.VarnPath, "\\Gone"}, varn);
                  }).number(),
                  ErrorNumber::PathNotFound);
        EXPECT_EQ(varn.LoadState, before);
        EXPECT_EQ(varn.ItemFileName, "rain.dbs") << "nor does a map that cannot be read";

        changeMap({varn.VarnPath, "\\Isle"}, varn);
        EXPECT_EQ(varn.LoadState, after) << "from " << before;
        EXPECT_EQ(varn.ItemFileName, QString());
        EXPECT_EQ(varn.NKind + varn.NumWordforms + varn.Counts(1, 1) + varn.NumSpecifyChars(1), 0);
        EXPECT_EQ(varn.StatsWordforms + varn.NLine, 0);
        EXPECT_FALSE(varn.ContrastAnalysed);
        EXPECT_EQ(varn.NHanrei, 2) << "symbols belong to no map";
    }
}
