#include "mapdata/Folders.h"

QString installationRoot()
{
    return QStringLiteral("C:\\Varn62E\\");
}

void fixPaths(Folders& folders)
{
    folders.VarnPath = installationRoot() + QStringLiteral("Varn");
    folders.DriveFileName = folders.VarnPath + QStringLiteral("\\VarnDriveName.map");
    // There is no backslash between the two: the file lies beside the installation folder.
    folders.MapNameFile = folders.VarnPath + QStringLiteral("MapName.dat");
}

void fixLingFolder(Folders& folders)
{
    folders.LingFolder = QStringLiteral("\\VarnData") + folders.VarnMapName + QStringLiteral("\\Ling");
}
