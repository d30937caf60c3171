#include "mapdata/MapImport.h"

#include "mapdata/MapFiles.h"
#include "mapdata/MapSearch.h"
#include "platform/Folder.h"
#include "shell/ImportCommands.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"

#include <QDir>

namespace {

const QString Source = "C:\\import\\source.txt";
const QString Data = "C:\\Varn62E\\Varn\\VarnData\\";
const QString MapFolder = "C:\\Varn62E\\Varn\\VarnData\\Test\\Map\\";

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

/// The import of a file that tells no names of localities.
void SaveBareLocalities(VarnModule& varn, Dialogs& dialogs)
{
    SaveLocateData(varn, dialogs, [](const QString&, const LocalityNames&) { return std::nullopt; });
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
    const DriveC drive;
    const auto expectSame = [&](const char* installed, const QByteArray& text, auto read, auto write) {
        EXPECT_EQ(rewritten(read, write, text), text);
        const QString folder = drive.varnPath(INSTALLATION_FOLDER "/VarnData\\");
        const QByteArray sample = readBytes(drive, folder + installed);
        EXPECT_EQ(rewritten(read, write, sample), sample) << installed;
    };
    expectSame("Sample\\Map\\Loc.map", "2\r\n100,200\r\n-0.1,1e+20\r\n", readLocalities, writeLocalities);
    expectSame("Sample\\Map\\Line.map", Lines, readLines, writeLines);
    expectSame("Sample\\Map\\kanji.map", Names, readPlaceNames, writePlaceNames);
    expectSame("Square.sbl", Polygons, readAbsolutePolygons, writeAbsolutePolygons);
}

TEST(MapImport, LocalitiesComeFromFilesAndTables)
{
    const TestDrive drive;
    const QByteArray rows[] = {
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
        SequentialWriter written;
        writeLocalities(written, importLocalities(drive.drive(), Source));
        EXPECT_EQ(written.bytes(), "2\r\n1.5,2\r\n3,-4\r\n") << text.constData();
    }
}

TEST(MapImport, BadTablesAreRefusedWithTheirLine)
{
    const std::tuple<QByteArray, ErrorNumber, const char*> rows[] = {
        {"x,y\n1,2\n3,four\n", ErrorNumber::TypeMismatch, "Line 3, field 2\n"},
        {"1,y\n", ErrorNumber::TypeMismatch, "Line 1, field 2\n"},
        {"x,y\nx,y\n1,2\n", ErrorNumber::TypeMismatch, "Line 2, field 1\n"},
        {"1 2\n3\n", ErrorNumber::TypeMismatch, "Line 2, field 2\n"},
        {"x;y\n1,5;2,5\n", ErrorNumber::TypeMismatch, "Line 2, field 1\n"},
        {"1,nan\n", ErrorNumber::TypeMismatch, "Line 1, field 2\n"},
        {"1,2\n1,1e39\n", ErrorNumber::Overflow, "Line 2, field 2"},
        {"x,y\n" + QByteArray("1,2\n").repeated(1001), ErrorNumber::SubscriptOutOfRange, "Line 1002"},
        {"", ErrorNumber::InputPastEndOfFile, "Line 1\n"},
        {"x,y\n", ErrorNumber::InputPastEndOfFile, "Line 2\n"},
        {"2\n1,2\n3,x\n", ErrorNumber::TypeMismatch, "Line 3, field 2"},
    };
    const TestDrive drive;
    for (const auto& [text, number, place] : rows) {
        SCOPED_TRACE(text.left(30).constData());
        drive.write(Source, text);
        const RunTimeError error = errorOf([&] { importLocalities(drive.drive(), Source); });
        EXPECT_EQ(error.number(), number);
        EXPECT_TRUE((error.where() + '\n').startsWith("File: " + Source + '\n' + place))
            << qPrintable(error.where());
    }
}

TEST(MapSearch, TheMapOfAFileIsFoundInItsPath)
{
    const std::pair<const char*, std::optional<MapPlace>> rows[] = {
        {"C:\\V\\VarnData\\Test\\Ling\\a.dbs", MapPlace{"C:\\V", "\\Test"}},
        {"C:\\V\\varndata\\Test\\VarnData\\Other\\Loc.map", MapPlace{"C:\\V", "\\Test"}},
        {"C:\\V\\VarnDataOld\\A\\VarnData\\B\\README.txt", MapPlace{"C:\\V\\VarnDataOld\\A", "\\B"}},
        {"C:\\V\\VarnData\\Square.sbl", std::nullopt},
        {"C:\\V\\VarnData\\\\Loc.map", std::nullopt},
        {"C:\\V\\VarnData", std::nullopt},
        {"C:\\elsewhere\\Loc.map", std::nullopt},
    };
    for (const auto& [path, expected] : rows) {
        EXPECT_EQ(mapPlaceOf(path), expected) << path;
    }
}

TEST(MapSearch, AMapIsChosenAsAWholeOrNotAtAll)
{
    TestSurvey survey;
    VarnModule& varn = survey.varn;
    const TestDrive other;
    const MapPlace isle{varn.Drive.varnPath(other.root()), "\\Isle"};
    const auto write = [&](const char* name, const QByteArray& text) {
        survey.write(isle.VarnPath + "\\VarnData\\" + name, text);
    };
    write("Isle\\Map\\Line.map", Lines);
    write("Isle\\Map\\Loc.map", "1\r\n7,8\r\n");
    write("Isle\\Map\\kanji.map", "1\r\n20,");
    EXPECT_EQ(errorOf([&] { chooseMap(isle, varn, varn); }).number(), ErrorNumber::InputPastEndOfFile);
    EXPECT_EQ(varn.VarnMapName, "\\Test");
    EXPECT_EQ(varn.NLine, 1);
    EXPECT_EQ(varn.NLocality, 3);

    write("Isle\\Map\\kanji.map", Names);
    chooseMap(isle, varn, varn);
    EXPECT_EQ(varn.dataFolder(), isle.VarnPath + "\\VarnData\\Isle\\Ling");
    EXPECT_EQ(varn.NLine, 2);
    EXPECT_EQ(varn.LocXY(1, 1), 8);
    EXPECT_EQ(varn.NKanji, 1);
    EXPECT_EQ(varn.Nsquare, 2) << "a folder without polygon designs leaves those that are loaded";
    write("Square.sbl", "1\r\n1\r\n1,2,0\r\n3,4\r\n");
    chooseMap(isle, varn, varn);
    EXPECT_EQ(varn.Nsquare, 1);

    for (const char* name : {"", " ", "a\\b", "a:", "?"}) {
        varn.VarnMapName = QString("\\") + name;
        EXPECT_EQ(errorOf([&] { makeMap(varn); }).number(), ErrorNumber::BadFileName) << name;
    }
}

TEST_F(ImportCommands, FilesAreSavedAndLoadedIfTheyAreOfTheCurrentMap)
{
    const QByteArray polygon = "1\r\n1\r\n1,2,0\r\n3,5\r\n";
    using Import = void (*)(VarnModule&, Dialogs&);
    using Counts = std::array<int, 3>;
    const std::tuple<Import, QByteArray, QByteArray, QString, Counts> rows[] = {
        {SaveBareLocalities, "x y\n1 2\n", "1\r\n1,2\r\n", MapFolder + "loc.map", {1, 0, 0}},
        {SaveLineData, Lines, Lines, MapFolder + "Line.map", {1, 2, 0}},
        {SaveSquareData, polygon, polygon, Data + "Square.sbl", {1, 2, 1}}};
    Counts before = {2, 0, 0};
    varn.NLocality = 2; // not what the files of the current map hold
    varn.NLine = varn.Nsquare = 0;
    for (const auto& [import, source, written, file, loaded] : rows) {
        for (const QString& target : {QString("C:\\import\\saved.map"), file}) {
            answer(source, target);
            import(varn, dialogs);
            EXPECT_EQ(survey.read(target), written) << qPrintable(file);
            const Counts now = {varn.NLocality, varn.NLine, varn.Nsquare};
            EXPECT_EQ(now, target == file ? loaded : before) << qPrintable(target);
        }
        before = loaded;
    }
}

TEST_F(ImportCommands, NamesOfLocalitiesAreWrittenBesideThem)
{
    NamedLocalities named{{}, {"", true, {{"a", "Ann", 3, 4}}}};
    named.localities.NLocality = 1;
    named.localities.LocXY(1, 0) = 3;
    answer("names and degrees", MapFolder + "Loc.map");
    SaveLocateData(varn, dialogs, [&](const QString& path, const LocalityNames&) {
        return path == varn.Drive.hostPath(Source) ? std::optional(named) : std::nullopt;
    });
    EXPECT_EQ(localityName(varn, 1), "Ann");
    EXPECT_EQ(varn.LocXY(1, 0), 3);
}

TEST_F(ImportCommands, BadFilesAndCancelledDialogsChangeNothing)
{
    const QString target = MapFolder + "Loc.map";
    const QByteArray before = survey.read(target);
    answer("1,x\n", target);
    EXPECT_EQ(errorOf([&] { SaveBareLocalities(varn, dialogs); }).place().path, Source);
    EXPECT_EQ(dialogs.savedFiles.size(), 1U) << "a file that cannot be read is not saved";
    answer("1,2\n", std::nullopt);
    SaveBareLocalities(varn, dialogs);
    dialogs.files = {std::nullopt, std::nullopt};
    SaveBareLocalities(varn, dialogs);
    SaveKanjiData(varn, dialogs, survey.surfaces);
    EXPECT_EQ(survey.read(target), before);
    EXPECT_EQ(varn.NLocality, 3);
    EXPECT_TRUE(survey.frmMap.drawing().operations.empty());
}

TEST_F(ImportCommands, PlaceNamesBecomeTheSpecialOnesAndAreDrawn)
{
    choose(Names);
    SaveKanjiData(varn, dialogs, survey.surfaces);
    EXPECT_TRUE(wasPrinted(survey.frmMap.drawing(), "A \"B\""));
    EXPECT_FALSE(wasPrinted(survey.frmMap.drawing(), "Town"));
    EXPECT_EQ(dialogs.shown.size(), 1U) << "no name is asked for";

    choose("1\r\n20,");
    EXPECT_EQ(errorOf([&] { SaveKanjiData(varn, dialogs, survey.surfaces); }).number(),
              ErrorNumber::InputPastEndOfFile);
    EXPECT_EQ(survey.read("C:\\Varn62E\\Varn\\varnsymbols\\TarkaKanji.map"), Names);
    EXPECT_EQ(varn.KanjiText(1), "A \"B\"");
}
