#include "platform/WholeFile.h"

#include "platform/Folder.h"
#include "tests/support/TestDrive.h"

#include <QDir>
#include <QFile>

#include <optional>
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

TEST(WholeFile, WhatCannotBeReadOrReplacedIsAnErrorThatNamesIt)
{
    using enum ErrorNumber;
    const TestDrive drive;
    ASSERT_EQ(mkfifo(qPrintable(drive.hostPath(QStringLiteral("pipe"))), S_IRUSR | S_IWUSR), 0);
    QDir(drive.root()).mkpath(QStringLiteral("folder"));
    QFile large(drive.hostPath(QStringLiteral("large.map")));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(65LL * 1024 * 1024));
    struct Row
    {
        const char* path;
        ErrorNumber reading;
        std::optional<ErrorNumber> writing;
    };
    // Nothing is written beside the drive: a fault would replace a device of the machine.
    const Row rows[] = {
        {"C:\\large.map", OutOfMemory, {}},
        {"Z:\\proc\\self\\mem", DeviceIOError, {}}, // it can be opened, but nothing is at its start
        {"C:\\no\\such.map", PathNotFound, PathNotFound},
        {"C:\\folder", PermissionDenied, PermissionDenied},
        {"C:\\pipe", PermissionDenied, PermissionDenied},
        {"Z:\\dev\\null", PermissionDenied, {}},
        {"Q:\\other.map", BadFileName, BadFileName},
        {"", BadFileName, BadFileName}};
    for (const Row& row : rows) {
        const QString path = QLatin1String(row.path);
        const auto expectError = [&](ErrorNumber expected, const auto& action) {
            const RunTimeError error = errorOf(action);
            EXPECT_EQ(error.number(), expected) << row.path;
            EXPECT_EQ(error.place().path, path);
        };
        expectError(row.reading, [&] { readTextFile(drive.drive(), path); });
        if (row.writing) {
            expectError(*row.writing, [&] { replaceFile(drive.drive(), path, "x"); });
        }
        EXPECT_TRUE(row.writing != PermissionDenied || !fileExists(drive.drive(), path)) << row.path;
    }
}
