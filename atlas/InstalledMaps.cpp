#include "atlas/InstalledMaps.h"

#include "atlas/AtlasItem.h"
#include "mapdata/MapSearch.h"

#include <QDir>

namespace {

InstalledMap describe(const Folders& installation, const QString& name)
{
    InstalledMap map;
    map.name = name;
    Folders folders = installation;
    folders.VarnMapName = QLatin1Char('\\') + name;
    fixLingFolder(folders);
    map.items = static_cast<int>(atlasItemPaths(folders).size());
    try {
        BaseMap loaded;
        chooseMap({folders.VarnPath, folders.VarnMapName}, folders, loaded);
        map.localities = loaded.NLocality;
    } catch (const RunTimeError& error) {
        map.trouble = error.message();
    }
    return map;
}

} // namespace

std::vector<InstalledMap> installedMaps(const Folders& folders)
{
    const QDir data(folders.Drive.hostPath(folders.VarnPath + QStringLiteral("\\VarnData")));
    std::vector<InstalledMap> maps;
    for (const QString& name : data.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        maps.push_back(describe(folders, name));
    }
    return maps;
}
