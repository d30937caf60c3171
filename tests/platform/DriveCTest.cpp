#include "platform/DriveC.h"

#include "tests/support/TestDrive.h"

#include <QDir>
#include <QScopeGuard>

#ifndef Q_OS_WIN
TEST(DriveC, ItIsAFolderOfTheUsersData)
{
    const QTemporaryDir home;
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    const auto restore =
        qScopeGuard([&] { before.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", before); });
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
    const DriveC drive;
    const QString folder = home.filePath(QStringLiteral("varn/drive_c"));
    EXPECT_EQ(drive.hostPath(QStringLiteral("C:\\Varn62E\\a.map")),
              folder + QStringLiteral("/Varn62E/a.map"));
    EXPECT_EQ(drive.varnPath(folder + QStringLiteral("/Varn62E/a.map")),
              QStringLiteral("C:\\Varn62E\\a.map"));
    EXPECT_EQ(drive.varnPath(folder + QStringLiteral("2/a.map")),
              QStringLiteral("Z:") + QDir::toNativeSeparators(folder).replace('/', '\\') +
                  QStringLiteral("2\\a.map"))
        << "a folder beside it is not on the drive";
    EXPECT_EQ(errorOf([&] { drive.hostPath(QStringLiteral("D:\\a.map")); }).number(),
              ErrorNumber::BadFileName);
}
#endif
