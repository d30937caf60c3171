#include "platform/WholeFile.h"

#include "platform/Folder.h"
#include "tests/support/TestDrive.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

TEST(WholeFile, NamesMatchWithoutRegardToCase)
{
    const TestDrive drive;
    drive.write(QStringLiteral("C:\\Varn62E\\Varn\\Loc.map"), "upper");
    EXPECT_EQ(readTextFile(drive.drive(), QStringLiteral("c:\\VARN62e\\varn\\LOC.MAP")),
              QStringLiteral("upper"));
    replaceFile(drive.drive(), QStringLiteral("C:\\varn62e\\varn\\loc.map"), "lower");
    EXPECT_EQ(drive.read(QStringLiteral("C:\\Varn62E\\Varn\\Loc.map")), "lower") << "the same file";
}

TEST(WholeFile, FilesAnywhereHaveAPathOnDriveZ)
{
    const TestDrive drive;
    EXPECT_EQ(drive.drive().varnPath(drive.hostPath(QStringLiteral("a/b.dbs"))),
              QStringLiteral("C:\\a\\b.dbs"));
    const QString elsewhere = drive.drive().varnPath(QStringLiteral("/etc/passwd"));
    EXPECT_EQ(elsewhere, QStringLiteral("Z:\\etc\\passwd"));
    EXPECT_EQ(drive.drive().hostPath(elsewhere), QStringLiteral("/etc/passwd"));
}

TEST(Folder, TheNearestOneIsThatOrTheFirstAboveIt)
{
    const TestDrive drive;
    const QString folder = QStringLiteral("C:\\a\\b");
    EXPECT_EQ(nearestFolder(drive.drive(), folder), drive.root());
    makeFolder(drive.drive(), folder);
    drive.write(folder + QStringLiteral("\\file"), "");
    for (const char* below : {"", "\\c", "\\file", "\\c\\d"}) {
        EXPECT_EQ(nearestFolder(drive.drive(), folder + QLatin1String(below)),
                  drive.hostPath(QStringLiteral("a/b")))
            << below;
    }
}

TEST(WholeFile, UnreadableFilesAreErrorsThatNameThem)
{
    const TestDrive drive;
    QDir(drive.root()).mkpath(QStringLiteral("folder.map"));
    QFile large(drive.hostPath(QStringLiteral("large.map")));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(65LL * 1024 * 1024));
    struct Row
    {
        const char* path;
        ErrorNumber expected;
    };
    const Row rows[] = {
        {"C:\\missing.map", ErrorNumber::FileNotFound},    {"C:\\no\\such.map", ErrorNumber::PathNotFound},
        {"C:\\folder.map", ErrorNumber::PermissionDenied}, {"C:\\large.map", ErrorNumber::OutOfMemory},
        {"Q:\\other.map", ErrorNumber::BadFileName},       {"", ErrorNumber::BadFileName},
    };
    for (const Row& row : rows) {
        const QString path = QString::fromLatin1(row.path);
        const RunTimeError error = errorOf([&] { readTextFile(drive.drive(), path); });
        EXPECT_EQ(error.number(), row.expected) << row.path;
        EXPECT_EQ(error.place().path, path);
    }
}

TEST(WholeFile, OnlyFilesAreReadAndReplaced)
{
    const TestDrive drive;
    ASSERT_EQ(mkfifo(qPrintable(drive.hostPath(QStringLiteral("pipe"))), S_IRUSR | S_IWUSR), 0);
    QDir(drive.root()).mkpath(QStringLiteral("folder"));
    for (const char* name : {"C:\\pipe", "C:\\folder", "Z:\\dev\\zero"}) {
        const QString path = QLatin1String(name);
        const RunTimeError reading = errorOf([&] { readBytes(drive.drive(), path); });
        const RunTimeError writing = errorOf([&] { replaceFile(drive.drive(), path, "x"); });
        EXPECT_EQ(reading.number(), ErrorNumber::PermissionDenied) << name;
        EXPECT_EQ(writing.number(), ErrorNumber::PermissionDenied) << name;
        EXPECT_EQ(reading.place().path, path);
        EXPECT_EQ(writing.place().path, path);
        EXPECT_FALSE(fileExists(drive.drive(), path)) << name;
    }
    EXPECT_EQ(errorOf([&] { readBytes(drive.drive(), QStringLiteral("Z:\\proc\\self\\mem")); }).number(),
              ErrorNumber::DeviceIOError)
        << "it can be opened, but nothing is at its start";
    EXPECT_EQ(errorOf([&] { replaceFile(drive.drive(), QStringLiteral("C:\\no\\such.dbs"), "x"); }).number(),
              ErrorNumber::PathNotFound);
}
