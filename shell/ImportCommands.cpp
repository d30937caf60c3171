#include "shell/ImportCommands.h"

#include "mapdata/MapFiles.h"
#include "mapdata/MapImport.h"
#include "mapdata/MapSearch.h"
#include "platform/FileName.h"
#include "platform/Folder.h"
#include "platform/SequentialFile.h"
#include "render/BlankMap.h"
#include "shell/MapParts.h"

#include <utility>

namespace {

/// A file of the base map that can be imported.
struct ImportedFile
{
    /// What it holds, as the dialogs call it.
    QString what;
    /// Filters of the files that it can be imported from, and of the file that is written.
    QString sources;
    QString targets;
    /// Path of this file in the current map.
    QString current;
};

QString currentMapFile(const VarnModule& varn, const char* name)
{
    return mapFolder(varn.VarnPath, varn.VarnMapName) + QLatin1Char('\\') + QLatin1String(name);
}

std::optional<QString> askForSource(const VarnModule& varn, Dialogs& dialogs, const ImportedFile& file)
{
    return askToOpen(dialogs, varn.Drive, mapFolder(varn.VarnPath, varn.VarnMapName),
                     QStringLiteral("Import ") + file.what,
                     file.sources + QStringLiteral("|All files (*.*)|*.*"));
}

/// Makes the folders of the current map, if there is one, so that files can be saved there.
void makeCurrentMap(const VarnModule& varn)
{
    if (varn.hasMap()) {
        makeMap(varn);
    }
}

/// Imports what `read`, a function of a path, reads, and saves it with `write`. Returns the path that was
/// written; nothing where a dialog was cancelled.
template <typename Read, typename Write>
std::optional<QString> importFile(const VarnModule& varn, Dialogs& dialogs, const ImportedFile& file,
                                  Read read, Write write)
{
    const std::optional<QString> source = askForSource(varn, dialogs, file);
    if (!source) {
        return std::nullopt;
    }
    const auto map = read(*source);
    makeCurrentMap(varn);
    std::optional<QString> target =
        askWhereToSave(dialogs, varn.Drive, file.current, QStringLiteral("Save ") + file.what, file.targets);
    if (target) {
        writeSequentialFile(varn.Drive, *target, [&](SequentialWriter& writer) { write(writer, map); });
    }
    return target;
}

/// Whether the file of the current map was written.
bool isCurrent(const VarnModule& varn, const std::optional<QString>& written, const ImportedFile& file)
{
    return written && varn.Drive.hostPath(*written) == varn.Drive.hostPath(file.current);
}

/// Writes the names of localities beside their file; those of a table of x and y have none.
void writeNamesBeside(const DriveC& drive, const QString& localitiesFile, const LocalityNames& names)
{
    if (!names.localityNames.empty()) {
        writeSequentialFile(drive, folderOf(localitiesFile) + QStringLiteral("\\Localities.csv"),
                            [&names](SequentialWriter& writer) { writeLocalityNames(writer, names); });
    }
}

/// Gives the current map, if there is one, the place names where it has none of its own.
void keepAsOwnNames(const VarnModule& varn, const QString& path, const PlaceNames& names)
{
    if (!varn.hasMap() || fileExists(varn.Drive, path)) {
        return;
    }
    makeMap(varn);
    writeSequentialFile(varn.Drive, path,
                        [&names](SequentialWriter& writer) { writePlaceNames(writer, names); });
}

} // namespace

void SaveLocateData(VarnModule& varn, Dialogs& dialogs, const ReadNamedLocalities& readNamed)
{
    const ImportedFile file{
        QStringLiteral("Localities"),
        QStringLiteral("Localities, tables and layers (*.map;*.csv;*.tsv;*.txt;*.xlsx;*.ods;*.kml;*.geojson)"
                       "|*.map;*.csv;*.tsv;*.txt;*.xlsx;*.ods;*.kml;*.geojson;*.gpkg"),
        MapPartFiles.filter(), currentMapFile(varn, "Loc.map")};
    LocalityNames names;
    const auto read = [&](const QString& path) {
        const auto named = readNamed(varn.Drive.hostPath(path), varn);
        names = named ? named->names : LocalityNames();
        return named ? named->localities : importLocalities(varn.Drive, path);
    };
    const std::optional<QString> written = importFile(varn, dialogs, file, read, writeLocalities);
    if (written) {
        writeNamesBeside(varn.Drive, *written, names);
    }
    if (isCurrent(varn, written, file)) {
        LoadLocateData(varn.Drive, varn.VarnPath, varn.VarnMapName, varn);
        loadLocalityNames(varn, varn);
    }
}

void SaveLineData(VarnModule& varn, Dialogs& dialogs)
{
    const ImportedFile file{QStringLiteral("Lines"), MapPartFiles.filter(), MapPartFiles.filter(),
                            currentMapFile(varn, "Line.map")};
    const auto read = [&](const QString& path) { return readSequentialFile(varn.Drive, path, readLines); };
    if (isCurrent(varn, importFile(varn, dialogs, file, read, writeLines), file)) {
        LoadLineData(varn.Drive, varn.VarnPath, varn.VarnMapName, varn);
    }
}

void SaveSquareData(VarnModule& varn, Dialogs& dialogs)
{
    const ImportedFile file{QStringLiteral("Polygon Designs"), PolygonFiles.filter(), PolygonFiles.filter(),
                            polygonFile(varn.VarnPath)};
    const auto read = [&](const QString& path) {
        return readSequentialFile(varn.Drive, path, readAbsolutePolygons);
    };
    if (isCurrent(varn, importFile(varn, dialogs, file, read, writeAbsolutePolygons), file)) {
        LoadSquareData(varn.Drive, varn.VarnPath, varn);
    }
}

void SaveKanjiData(VarnModule& varn, Dialogs& dialogs, MapSurfaces surfaces)
{
    const ImportedFile file{QStringLiteral("Place Names"), MapPartFiles.filter(), MapPartFiles.filter(),
                            currentMapFile(varn, "kanji.map")};
    const std::optional<QString> source = askForSource(varn, dialogs, file);
    if (!source) {
        return;
    }
    PlaceNames names = readSequentialFile(varn.Drive, *source, readPlaceNames);
    const QString folder = varn.VarnPath + QStringLiteral("\\varnsymbols");
    makeFolder(varn.Drive, folder);
    writeSequentialFile(varn.Drive, folder + QStringLiteral("\\TarkaKanji.map"),
                        [&names](SequentialWriter& writer) { writePlaceNames(writer, names); });
    keepAsOwnNames(varn, file.current, names);
    static_cast<PlaceNames&>(varn) = std::move(names);
    if (varn.NLine > 0) {
        DrawBlankMap(blankMapParts(varn), surfaces);
    }
}
