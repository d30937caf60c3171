#include "shell/MapChoice.h"

#include "shell/MapChange.h"
#include "tests/support/TestDrive.h"

TEST(MapChoice, SixFieldsAreWrittenAndReadBack)
{
    const TestDrive drive;
    Folders folders;
    folders.Drive = drive.drive();
    folders.MapNameFile = QStringLiteral("C:\\MapName.dat");
    MapChoice choice;
    choice.VarnMapName = QStringLiteral("\\My map");
    choice.MapFontName = QStringLiteral("Times");
    choice.MapFontSize = 12;
    choice.MapFontItalic = true;
    choice.SpecialFontShift = -0.5F;
    saveMapChoice(folders, choice);
    EXPECT_EQ(drive.read(folders.MapNameFile), "\"\\My map\",\"Times\",12,#FALSE#,#TRUE#,-0.5\r\n");

    const MapChoice read = loadMapChoice(folders);
    EXPECT_EQ(read.VarnMapName, choice.VarnMapName);
    EXPECT_EQ(read.MapFontName, choice.MapFontName);
    EXPECT_EQ(read.MapFontSize, 12);
    EXPECT_TRUE(read.MapFontItalic && !read.MapFontBold);
    EXPECT_EQ(read.SpecialFontShift, -0.5F);
    drive.write(folders.MapNameFile, R"("\My map","Times",twelve)");
    EXPECT_EQ(errorOf([&] { loadMapChoice(folders); }).number(), ErrorNumber::TypeMismatch);
}

TEST(MapChoice, QuestionTellsTheFontStyle)
{
    struct Row
    {
        bool bold;
        bool italic;
        const char* style;
    };
    const std::vector<Row> rows = {{false, false, "Standard"},
                                   {true, false, "Bold"},
                                   {false, true, "Slant"},
                                   {true, true, "Bold Slant"}};
    for (const Row& row : rows) {
        MapChoice choice;
        choice.VarnMapName = QStringLiteral("\\Sample");
        choice.MapFontBold = row.bold;
        choice.MapFontItalic = row.italic;
        EXPECT_EQ(mapChoiceQuestion(choice),
                  QStringLiteral("C:\\Varn62E\\\r\nMap Name Sample\r\nFont Arial\r\nFont Style '%1'\r\n"
                                 "Size of Fonts 10 OK?")
                      .arg(QLatin1String(row.style)));
    }
}

TEST(MapChange, AnotherMapDropsWhatBelongsToTheOldOne)
{
    const std::pair<int, int> states[] = {{0, 0}, {1, 0}, {2, 3}, {3, 3}, {4, 3}};
    for (const auto& [before, after] : states) {
        TestSurvey survey;
        VarnModule& varn = survey.varn;
        const MapPlace place{varn.VarnPath, QStringLiteral("\\Isle")};
        survey.write(varn.VarnPath + QStringLiteral("\\VarnData\\Isle\\Map\\Loc.map"), "1\r\n7,8\r\n");
        varn.LoadState = before;
        varn.ItemFileName = QStringLiteral("rain.dbs");
        varn.NKind = 2;
        varn.NumWordforms = 2;
        varn.Counts(1, 1) = 5;
        varn.NumSpecifyChars(1) = 1;
        varn.StatsWordforms = 2;
        varn.ContrastAnalysed = true;
        varn.NHanrei = 2;

        changeMap({varn.VarnPath.toUpper(), varn.VarnMapName.toLower()}, varn);
        EXPECT_EQ(varn.LoadState, before) << "the same map drops nothing";
        EXPECT_EQ(varn.NKind + varn.Counts(1, 1) + varn.StatsWordforms, 2 + 5 + 2);
        EXPECT_EQ(errorOf([&] {
                      changeMap({varn.VarnPath, QStringLiteral("\\Gone")}, varn);
                  }).number(),
                  ErrorNumber::PathNotFound);
        EXPECT_EQ(varn.ItemFileName, QStringLiteral("rain.dbs")) << "nor does a map that cannot be read";

        changeMap(place, varn);
        EXPECT_EQ(varn.LoadState, after) << "from " << before;
        EXPECT_EQ(varn.ItemFileName, QString());
        EXPECT_EQ(varn.NKind + varn.NumWordforms + varn.Counts(1, 1) + varn.NumSpecifyChars(1), 0);
        EXPECT_EQ(varn.StatsWordforms, 0);
        EXPECT_FALSE(varn.ContrastAnalysed);
        EXPECT_EQ(varn.NHanrei, 2) << "symbols belong to no map";
        EXPECT_EQ(varn.NLine, 0);
    }
}
