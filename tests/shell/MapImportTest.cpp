#include "mapdata/MapImport.h"

#include "mapdata/MapFiles.h"
#include "mapdata/MapSearch.h"
#include "platform/Folder.h"
#include "shell/ImportCommands.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"

#include <QDir>

namespace {

const QString Source = QStringLiteral("C:\\import\\source.txt");
const QString Data = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\");
const QString MapFolder = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Map\\");

const QByteArray Lines = "2\r\n3,2,1,0,0.5,-2\r\n0,0\r\n100.25,1000\r\n0,0,0,5,0,0\r\n";
const QByteArray Names = "1\r\n20,30.5\r\n\"A \"\"B\"\"\"\r\n1,2.5\r\n\"20 km\",4.5,200\r\n";
// In singles, 0.1 - 1000 + 1000 is not 0.1.
const QByteArray Polygons = "2\r\n2\r\n1000,16.3,7\r\n0.1,6.7\r\n26,26\r\n0\r\n1,2,0.5\r\n";

template <typename Read, typename Write>
QByteArray rewritten(Read read, Write write, const QByteArray& text)
{
    SequentialReader reader(QString::fromUtf8(text));
    SequentialWriter writer;
    write(writer, read(reader));
    return writer.bytes();
}

/// The import commands on a survey's map, with a script for the dialogs.
class ImportCommands : public testing::Test
{
protected:
    void choose(const QByteArray& source)
    {
        survey.write(Source, source);
        dialogs.files = {varn.Drive.hostPath(Source)};
    }
    void answer(const QByteArray& source, const std::optional<QString>& target)
    {
        choose(source);
        dialogs.savedFiles = {target ? std::optional(varn.Drive.hostPath(*target)) : std::nullopt};
    }

    TestSurvey survey;
    VarnModule& varn = survey.varn;
    ScriptedDialogs dialogs;
};

} // namespace

TEST(MapFileWriters, FilesAreWrittenAsTheyAreRead)
{
    const QByteArray localities = "3\r\n100,200\r\n-0.1,1e+20\r\n500.5,600.5\r\n";
    EXPECT_EQ(rewritten(readLocalities, writeLocalities, localities), localities);
    EXPECT_EQ(rewritten(readLocalities, writeLocalities, "0\r\n"), "0\r\n");
    EXPECT_EQ(rewritten(readLines, writeLines, Lines), Lines);
    EXPECT_EQ(rewritten(readPlaceNames, writePlaceNames, Names), Names);
    EXPECT_EQ(rewritten(readAbsolutePolygons, writeAbsolutePolygons, Polygons), Polygons);
    EXPECT_EQ(rewritten(readLocalities, writeLocalities, "2 1,2\n3\n4"), "2\r\n1,2\r\n3,4\r\n");
}

TEST(MapFileWriters, TheInstallationsFilesComeBackTheSame)
{
    const DriveC drive;
    const QString folder = drive.varnPath(QStringLiteral(INSTALLATION_FOLDER "/VarnData"));
    const auto expectSame = [&](const char* name, auto read, auto write) {
        const QByteArray bytes = readBytes(drive, folder + QLatin1String(name));
        EXPECT_EQ(rewritten(read, write, bytes), bytes) << name;
    };
    expectSame("\\Sample\\Map\\Loc.map", readLocalities, writeLocalities);
    expectSame("\\Sample\\Map\\Line.map", readLines, writeLines);
    expectSame("\\Sample\\Map\\kanji.map", readPlaceNames, writePlaceNames);
    expectSame("\\Square.sbl", readAbsolutePolygons, writeAbsolutePolygons);
}

TEST(MapImport, LocalitiesComeFromFilesAndTables)
{
    const TestDrive drive;
    const QByteArray rows[] = {
        "2\r\n1.5,2\r\n3,-4\r\n",
        "2,\r\n1.5,2\r\n3,-4\r\n", // as a spreadsheet writes it
        "\n2\n1.5 2\n3 -4\n",
        "1.5,2\n3,-4",
        "\xEF\xBB\xBFx,y,name\r\n1.5,2,A\r\n3,-4,\"B, C\"\r\n",
        "\"x\";\"y\"\r\n\r\n\"1.5\";\"2\"\r\n 3 ; -4 ;;\r\n",
        "x\ty\n1.5\t2\tA b\n3\t-4e0\tC\n",
        "  longitude   latitude\n  1.5     2\n 3 -4 village\n",
        "1.5, 2\r3, -4\r",
        "places\n1.5,2\n3,-4\n",
    };
    for (const QByteArray& text : rows) {
        drive.write(Source, text);
        const Localities map = importLocalities(drive.drive(), Source);
        ASSERT_EQ(map.NLocality, 2) << text.constData();
        EXPECT_EQ(map.LocXY(1, 0), 1.5F) << text.constData();
        EXPECT_EQ(map.LocXY(1, 1), 2) << text.constData();
        EXPECT_EQ(map.LocXY(2, 0), 3) << text.constData();
        EXPECT_EQ(map.LocXY(2, 1), -4) << text.constData();
    }
}

TEST(MapImport, BadTablesAreRefusedWithTheirLine)
{
    struct Row
    {
        QByteArray text;
        ErrorNumber number;
        int line;
        int field = 0;
    };
    const Row rows[] = {
        {"x,y\n1,2\n3,four\n", ErrorNumber::TypeMismatch, 3, 2},
        {"1,y\n", ErrorNumber::TypeMismatch, 1, 2},
        {"x,y\nx,y\n1,2\n", ErrorNumber::TypeMismatch, 2, 1},
        {"1 2\n3\n", ErrorNumber::TypeMismatch, 2, 2},
        {"x;y\n1,5;2,5\n", ErrorNumber::TypeMismatch, 2, 1},
        {"1,nan\n", ErrorNumber::TypeMismatch, 1, 2},
        {"1,2\n1,1e39\n", ErrorNumber::Overflow, 2, 2},
        {"x,y\n" + QByteArray("1,2\n").repeated(1001), ErrorNumber::SubscriptOutOfRange, 1002},
        {"", ErrorNumber::InputPastEndOfFile, 1},
        {"x,y\n", ErrorNumber::InputPastEndOfFile, 2},
        {"3\n1,2\n3,4\n", ErrorNumber::InputPastEndOfFile, 4, 1},
        {"2\n1,2\n3,x\n", ErrorNumber::TypeMismatch, 3, 2},
    };
    const TestDrive drive;
    for (const Row& row : rows) {
        drive.write(Source, row.text);
        const RunTimeError error = errorOf([&] { importLocalities(drive.drive(), Source); });
        EXPECT_EQ(error.number(), row.number) << row.text.left(30).constData();
        EXPECT_EQ(error.place().line, row.line) << row.text.left(30).constData();
        EXPECT_EQ(error.place().field, row.field) << row.text.left(30).constData();
        EXPECT_FALSE(error.where().contains(QStringLiteral("field 0")));
        EXPECT_EQ(error.place().path, Source);
    }
}

TEST(MapSearch, TheMapOfAFileIsFoundInItsPath)
{
    const QString place = QStringLiteral("C:\\V");
    const QString map = QStringLiteral("\\Test");
    const std::pair<const char*, std::optional<MapPlace>> rows[] = {
        {"C:\\V\\VarnData\\Test\\Map\\Loc.map", MapPlace{place, map}},
        {"C:\\V\\VarnData\\Test\\Ling\\a.dbs", MapPlace{place, map}},
        {"C:\\V\\varndata\\Test\\README.txt", MapPlace{place, map}},
        {"C:\\V\\VarnData\\Test\\VarnData\\Other\\Loc.map", MapPlace{place, map}},
        {"C:\\V\\VarnDataOld\\A\\VarnData\\B\\Loc.map",
         MapPlace{QStringLiteral("C:\\V\\VarnDataOld\\A"), QStringLiteral("\\B")}},
        {"C:\\V\\VarnData\\Square.sbl", std::nullopt},
        {"C:\\V\\VarnData", std::nullopt},
        {"C:\\elsewhere\\Loc.map", std::nullopt},
    };
    for (const auto& [path, expected] : rows) {
        EXPECT_EQ(mapPlaceOf(QLatin1String(path)), expected) << path;
    }
}

TEST(MapSearch, AMapIsChosenAsAWholeOrNotAtAll)
{
    TestSurvey survey;
    VarnModule& varn = survey.varn;
    const MapPlace place{QStringLiteral("Z:\\other"), QStringLiteral("\\Isle")};
    const TestDrive other;
    const MapPlace isle{varn.Drive.varnPath(other.root()), place.VarnMapName};
    const auto write = [&](const char* name, const QByteArray& text) {
        survey.write(isle.VarnPath + QStringLiteral("\\VarnData\\") + QLatin1String(name), text);
    };
    write("Isle\\Map\\Line.map", Lines);
    write("Isle\\Map\\Loc.map", "1\r\n7,8\r\n");
    write("Isle\\Map\\kanji.map", "1\r\n20,");
    EXPECT_EQ(errorOf([&] { chooseMap(isle, varn, varn); }).number(), ErrorNumber::InputPastEndOfFile);
    EXPECT_EQ(varn.VarnMapName, QStringLiteral("\\Test"));
    EXPECT_EQ(varn.NLine, 1);
    EXPECT_EQ(varn.NLocality, 3);

    write("Isle\\Map\\kanji.map", Names);
    chooseMap(isle, varn, varn);
    EXPECT_EQ(varn.dataFolder(), isle.VarnPath + QStringLiteral("\\VarnData\\Isle\\Ling"));
    EXPECT_EQ(varn.NLine, 2);
    EXPECT_EQ(varn.LocXY(1, 1), 8);
    EXPECT_EQ(varn.NKanji, 1);
    EXPECT_EQ(varn.Nsquare, 2) << "a folder without polygon designs leaves those that are loaded";
    write("Square.sbl", "1\r\n1\r\n1,2,0\r\n3,4\r\n");
    chooseMap(isle, varn, varn);
    EXPECT_EQ(varn.Nsquare, 1);
}

TEST(MapSearch, AMapIsMadeOfItsFoldersUnderItsName)
{
    TestSurvey survey;
    VarnModule& varn = survey.varn;
    for (const char* name : {"", " ", "a\\b", "a:", "?"}) {
        varn.VarnMapName = QLatin1Char('\\') + QLatin1String(name);
        EXPECT_EQ(errorOf([&] { makeMap(varn); }).number(), ErrorNumber::BadFileName) << name;
    }
    varn.VarnMapName = QStringLiteral("\\I");
    varn.LingFolder = QStringLiteral("\\VarnData\\I\\Ling");
    makeMap(varn);
    EXPECT_TRUE(folderExists(varn.Drive, Data + QStringLiteral("I\\Map")));
    EXPECT_TRUE(folderExists(varn.Drive, Data + QStringLiteral("I\\Ling")));
}

TEST_F(ImportCommands, FilesAreSavedWhereTheUserSays)
{
    const QString target = QStringLiteral("C:\\import\\saved.map");
    answer("x y\n1 2\n", target);
    SaveLocateData(varn, dialogs);
    EXPECT_EQ(survey.read(target), "1\r\n1,2\r\n");
    answer(Lines, target);
    SaveLineData(varn, dialogs);
    EXPECT_EQ(survey.read(target), Lines);
    answer(Polygons, target);
    SaveSquareData(varn, dialogs);
    EXPECT_EQ(survey.read(target), Polygons);
    EXPECT_EQ(varn.NLocality, 3) << "the current map is another file";
    EXPECT_EQ(varn.NLine, 1);
    EXPECT_EQ(varn.Nsquare, 2);
}

TEST_F(ImportCommands, WhatReplacesAFileOfTheCurrentMapIsLoaded)
{
    answer("1,2\n", MapFolder + QStringLiteral("loc.map"));
    SaveLocateData(varn, dialogs);
    EXPECT_EQ(varn.NLocality, 1);
    answer(Lines, MapFolder + QStringLiteral("Line.map"));
    SaveLineData(varn, dialogs);
    EXPECT_EQ(varn.NLine, 2);
    answer("1\r\n1\r\n1,2,0\r\n3,5\r\n", Data + QStringLiteral("Square.sbl"));
    SaveSquareData(varn, dialogs);
    EXPECT_EQ(varn.Nsquare, 1);
    EXPECT_EQ(varn.SquareXY(1, 1, 1), 3);
}

TEST_F(ImportCommands, BadFilesAndCancelledDialogsChangeNothing)
{
    const QString target = MapFolder + QStringLiteral("Loc.map");
    const QByteArray before = survey.read(target);
    answer("1,x\n", target);
    EXPECT_EQ(errorOf([&] { SaveLocateData(varn, dialogs); }).place().path, Source);
    EXPECT_EQ(dialogs.savedFiles.size(), 1U) << "a file that cannot be read is not saved";
    answer("1,2\n", std::nullopt);
    SaveLocateData(varn, dialogs);
    dialogs.files = {std::nullopt, std::nullopt};
    SaveLocateData(varn, dialogs);
    SaveKanjiData(varn, dialogs, survey.surfaces);
    EXPECT_EQ(survey.read(target), before);
    EXPECT_EQ(varn.NLocality, 3);
    EXPECT_TRUE(survey.frmMap.drawing().operations.empty());
}

TEST_F(ImportCommands, PlaceNamesBecomeTheSpecialOnesAndAreDrawn)
{
    const QString special = QStringLiteral("C:\\Varn62E\\Varn\\varnsymbols\\TarkaKanji.map");
    choose(Names);
    SaveKanjiData(varn, dialogs, survey.surfaces);
    EXPECT_EQ(survey.read(special), Names);
    EXPECT_TRUE(wasPrinted(survey.frmMap.drawing(), QStringLiteral("A \"B\"")));
    EXPECT_FALSE(wasPrinted(survey.frmMap.drawing(), QStringLiteral("Town")));
    EXPECT_EQ(dialogs.shown.size(), 1U) << "no name is asked for";

    choose("1\r\n20,");
    EXPECT_EQ(errorOf([&] { SaveKanjiData(varn, dialogs, survey.surfaces); }).number(),
              ErrorNumber::InputPastEndOfFile);
    EXPECT_EQ(survey.read(special), Names);
    EXPECT_EQ(varn.KanjiText(1), QStringLiteral("A \"B\""));
}
