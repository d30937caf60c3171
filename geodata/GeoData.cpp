#include "geodata/GeoData.h"

#include "platform/RunTimeError.h"

#include <QCoreApplication>
#include <QDir>
#include <QPluginLoader>

namespace {

RunTimeError missing(const QString& why)
{
    return RunTimeError(ErrorNumber::FileNotFound,
                        QStringLiteral("Surveys cannot be imported or exported: %1").arg(why));
}

/// The module beside the programs, as they are built, or among the libraries, as they are installed.
QString modulePath()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    const QString name = QStringLiteral(VARN_GEODATA_MODULE);
    const QString installed = programs.filePath(QStringLiteral(VARN_MODULE_FOLDER "/") + name);
    for (const QString& path : {programs.filePath(name), QDir::cleanPath(installed)}) {
        if (QFileInfo::exists(path)) {
            return path;
        }
    }
    throw missing(QStringLiteral("%1 is missing.").arg(QDir::cleanPath(installed)));
}

const GeoData& load()
{
    QPluginLoader loader(modulePath());
    if (const auto* loaded = qobject_cast<GeoData*>(loader.instance())) {
        return *loaded;
    }
    throw missing(loader.errorString());
}

} // namespace

const GeoData& geoData()
{
    static const GeoData& loaded = load();
    return loaded;
}
