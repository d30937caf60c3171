// Wherever the disk is full, a save ends with an error and the old file stands whole.

#include "analysis/ContrastData.h"
#include "analysis/CumulativeFile.h"
#include "analysis/Statistics.h"
#include "dialectometry/DistanceFile.h"
#include "lingdata/EnteredItem.h"
#include "lingdata/ItemLoader.h"
#include "mapdata/RegisteredMap.h"
#include "plot/DrawingFile.h"
#include "render/BlankMap.h"
#include "shell/MapChoice.h"
#include "shell/MapParts.h"
#include "symbols/SymbolFile.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/TestDrive.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <functional>
#include <optional>

namespace {

bool renamesFail = false;

/// The error of `save` while no file can grow beyond `limit` bytes.
std::optional<RunTimeError> errorWithin(long long limit, const std::function<void()>& save)
{
    const FileSizeLimit disk(limit);
    try {
        save();
    } catch (const RunTimeError& error) {
        return error;
    }
    return std::nullopt;
}

/// Saves to `path` while the disk has room for `limit` bytes and expects that the old file is kept.
void expectOldFile(const TestDrive& drive, const QString& path, long long limit,
                   const std::function<void()>& save)
{
    drive.write(path, "old");
    const QFileInfo file(drive.drive().hostPath(path));
    const QStringList before = file.dir().entryList(QDir::Files);
    const std::optional<RunTimeError> error = errorWithin(limit, save);
    ASSERT_TRUE(error) << qPrintable(path) << " within " << limit;
    EXPECT_EQ(error->number(), ErrorNumber::DeviceIOError) << qPrintable(path);
    EXPECT_FALSE(error->place().path.isEmpty()) << qPrintable(path);
    EXPECT_EQ(drive.read(path), "old") << qPrintable(path) << " within " << limit;
    EXPECT_EQ(file.dir().entryList(QDir::Files), before) << "nothing is left beside it";
}

} // namespace

/// Takes the place of the system's function in this program, so that a disk can be full only when a file is
/// put in its place.
extern "C" int rename(const char* from, const char* to)
{
    if (renamesFail) {
        errno = ENOSPC;
        return -1;
    }
    return renameat(AT_FDCWD, from, AT_FDCWD, to);
}

TEST(FullDisk, EveryWriterKeepsTheOldFile)
{
    TestSurvey survey;
    VarnModule& varn = survey.varn;
    fixPaths(varn);
    setNumWordforms(varn, 1);
    varn.TotalFileName = "all";
    DrawBlankMap(blankMapParts(varn), survey.surfaces);
    ItemEditor editor;
    const QString folder = varn.dataFolder() + '\\';
    const auto picture = [&](const QString& path) {
        saveDrawing(survey.frmMap.drawing(), {3000, 3000}, survey.drive().hostPath(path), 96);
    };
    constexpr qsizetype Buffer = 16 * 1024;
    const auto bytes = [&](qsizetype size) {
        return [&varn, size](const QString& path) { replaceFile(varn.Drive, path, QByteArray(size, 'x')); };
    };
    const std::pair<QString, std::function<void(const QString& path)>> rows[] = {
        {folder + "a.dbs", [&](const QString& path) { saveItem(varn, path, editor); }},
        {folder + "a.srt", [&](const QString& path) { FileWordData(varn, path, varn); }},
        {folder + "a.han", [&](const QString& path) { SaveHankoData(varn.Drive, path, varn); }},
        {folder + "all.ttl",
         [&](const QString&) {
             varn.TotalFilePath.clear(); // the old file is none that was read
             SaveTotalFile(varn.Drive, totalFilePath(varn.dataFolder(), varn), varn.NLocality, varn);
         }},
        {folder + "a.sum", [&](const QString& path) { SaveSetData(varn.Drive, path, varn); }},
        {folder + "a.stt", [&](const QString& path) { SaveStats(varn.Drive, path, varn, varn); }},
        {folder + "a.rnk", [&](const QString& path) { SaveRankFile(varn.Drive, path, varn); }},
        {folder + "distances.csv",
         [&](const QString& path) {
             writeSequentialFile(varn.Drive, path,
                                 [&](auto& file) { writeDistances(file, varn, DistanceMatrix(30)); });
         }},
        {varn.MapNameFile, [&](const QString&) { saveMapChoice(varn, currentMapChoice(varn)); }},
        {varn.DriveFileName, [&](const QString&) { saveDriveFile(varn); }},
        {registeredMapFile(), [&](const QString&) { saveRegisteredMap(varn, varn); }},
        {folder + "small", bytes(3072)},
        {folder + "nearly a buffer", bytes(Buffer - 1)},
        {folder + "a buffer", bytes(Buffer)},
        {folder + "more than a buffer", bytes(Buffer + 1)},
        {folder + "large", bytes(100000)},
        {folder + "map.svg", picture},
        {folder + "map.pdf", picture},
        {folder + "map.png", picture},
    };
    for (const auto& [path, save] : rows) {
        save(path);
        const qsizetype size = survey.read(path).size();
        ASSERT_GT(size, 0) << qPrintable(path);
        for (const qsizetype limit : {size - 1, size - std::min(size, Buffer) + 1, size / 2, qsizetype(0)}) {
            expectOldFile(survey, path, limit, [&] { save(path); });
        }
        EXPECT_FALSE(errorWithin(size, [&] { save(path); })) << qPrintable(path);
    }
}

TEST(FullDisk, ADiskThatIsFullWhenTheFileIsPutInItsPlaceIsFull)
{
    const TestDrive drive;
    const QString path = "C:\\item.dbs";
    drive.write(path, "old");
    renamesFail = true;
    const RunTimeError error = errorOf([&] { replaceFile(drive.drive(), path, "new"); });
    renamesFail = false;
    EXPECT_EQ(error.number(), ErrorNumber::DiskFull);
    EXPECT_EQ(drive.read(path), "old");
    EXPECT_EQ(QDir(drive.root()).entryList(QDir::Files).size(), 1);
}
