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
#include "tests/support/FailingStep.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/TestDrive.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <functional>
#include <optional>

namespace {

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
    constexpr qsizetype Buffer = qsizetype{16} * 1024;
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
            expectOldFile(survey, path, limit, [&, &path = path, &save = save] { save(path); });
        }
        EXPECT_FALSE(errorWithin(size, [&, &path = path, &save = save] { save(path); })) << qPrintable(path);
    }
}

TEST(FullDisk, TheLastStepsOfASaveFailWithAWordAndKeepTheOldFile)
{
    using enum ErrorNumber;
    const TestDrive drive;
    const QString path = "C:\\item.dbs";
    drive.write(path, "old");
    const std::tuple<SaveStep, int, ErrorNumber> rows[] = {
        {SaveStep::Rename, ENOSPC, DiskFull},      {SaveStep::Rename, EDQUOT, DiskFull},
        {SaveStep::Rename, EACCES, DeviceIOError}, {SaveStep::Sync, EIO, DeviceIOError},
        {SaveStep::Sync, ENOSPC, DiskFull},        {SaveStep::Sync, EDQUOT, DiskFull}};
    for (const auto& [step, failure, expected] : rows) {
        SCOPED_TRACE(std::to_string(static_cast<int>(step)) + ' ' + std::to_string(failure));
        const RunTimeError error = errorOf([&, step = step, failure = failure] {
            const FailingStep failing(step, failure);
            replaceFile(drive.drive(), path, "new");
        });
        EXPECT_EQ(error.number(), expected);
        EXPECT_EQ(error.place().path, path);
        EXPECT_FALSE(error.detail().isEmpty());
        EXPECT_EQ(drive.read(path), "old");
        EXPECT_EQ(QDir(drive.root()).entryList(QDir::Files).size(), 1);
    }
    const FailingStep unknown(SaveStep::Sync, EINVAL);
    replaceFile(drive.drive(), path, "new");
    EXPECT_EQ(drive.read(path), "new") << "a file system that cannot be waited for";
}
