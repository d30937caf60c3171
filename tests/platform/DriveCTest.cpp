#include "platform/DriveC.h"

#include "tests/support/TestDrive.h"

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
    // A folder beside it is not on the drive; files anywhere have a path on drive Z:.
    const QString beside = QStringLiteral("Z:") + QString(folder).replace('/', '\\');
    for (const auto& [path, hostPath] :
         {std::pair(QStringLiteral("C:\\Varn62E\\a.map"), folder + QStringLiteral("/Varn62E/a.map")),
          std::pair(beside + QStringLiteral("2\\a.map"), folder + QStringLiteral("2/a.map"))}) {
        EXPECT_EQ(drive.hostPath(path), hostPath);
        EXPECT_EQ(drive.varnPath(hostPath), path);
    }
}
#endif
