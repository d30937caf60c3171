#include "shell/MapChoice.h"

#include "tests/TestDrive.h"

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
