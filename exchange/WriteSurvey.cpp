#include "exchange/WriteSurvey.h"

#include "lingdata/LinguisticFile.h"
#include "mapdata/MapFiles.h"
#include "platform/FileName.h"
#include "platform/Folder.h"
#include "symbols/SymbolFile.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace {

QString mapsFolder(const Folders& folders)
{
    return folders.VarnPath + QStringLiteral("\\VarnData");
}

/// A name that a system keeps for itself, hides, or would change, is none for a folder.
bool isFolderName(const QString& name)
{
    static const QRegularExpression Reserved(
        QStringLiteral("^(con|prn|aux|nul|com\\d|lpt\\d)(\\.|$)|^[. ]|[. ]$|[\\x7F-\\x9F]"),
        QRegularExpression::CaseInsensitiveOption);
    constexpr int MostBytes = 100;
    return !name.isEmpty() && isFileName(name) && !name.contains(Reserved) &&
           name.toUtf8().size() <= MostBytes;
}

/// Writes a map into a folder of its own.
class MapWriter
{
public:
    /// `hostFolder` is a path of this machine; errors name `path` in its place, where the map will be.
    MapWriter(QString hostFolder, QString path) : m_hostFolder(std::move(hostFolder)), m_path(std::move(path))
    {}

    void writeMap(const NewSurvey& survey) const
    {
        if (!QDir().mkpath(m_hostFolder + QStringLiteral("/Map")) ||
            !QDir().mkpath(m_hostFolder + QStringLiteral("/Ling"))) {
            throw RunTimeError(ErrorNumber::PermissionDenied, QStringLiteral("The folder cannot be made."))
                .at({m_path});
        }
        write(QStringLiteral("/Map/Loc.map"), survey.localities, writeLocalities);
        write(QStringLiteral("/Map/Line.map"), survey.lines, writeLines);
        write(QStringLiteral("/Map/kanji.map"), survey.placeNames, writePlaceNames);
        write(QStringLiteral("/Map/Localities.csv"), survey.names, writeLocalityNames);
        const QString report = survey.report.text() + QLatin1Char('\n');
        writeBytes(QStringLiteral("/Import.txt"),
                   QString(report).replace(QLatin1Char('\n'), QStringLiteral("\r\n")).toUtf8());
    }

    void writeFilesOf(const NewItem& item) const
    {
        const QString name = QStringLiteral("/Ling/") + item.fileName;
        write(name + QStringLiteral(".dbs"), itemAnswers(item.source), writeItem);
        write(name + QStringLiteral(".han"), item.symbols, writeSymbolSet);
    }

private:
    template <typename Value>
    void write(const QString& name, const Value& value,
               void (*writeValue)(SequentialWriter&, const Value&)) const
    {
        SequentialWriter file;
        writeValue(file, value);
        writeBytes(name, file.bytes());
    }

    void writeBytes(const QString& name, const QByteArray& bytes) const
    {
        writeNewHostFile(m_hostFolder + name,
                         m_path + QString(name).replace(QLatin1Char('/'), QLatin1Char('\\')), bytes);
    }

    QString m_hostFolder;
    QString m_path;
};

bool writeAll(const NewSurvey& survey, const MapWriter& writer, const ExchangeProgress& progress)
{
    writer.writeMap(survey);
    int done = 0;
    for (const NewItem& item : survey.items) {
        if (!progress(done++, static_cast<int>(survey.items.size()), item.source.name)) {
            return false;
        }
        writer.writeFilesOf(item);
    }
    return true;
}

} // namespace

void requireNewMap(const Folders& folders, const QString& mapName)
{
    if (!folderExists(folders.Drive, mapsFolder(folders))) {
        throw RunTimeError(ErrorNumber::PathNotFound).at({mapsFolder(folders)});
    }
    if (!isFolderName(mapName)) {
        throw RunTimeError(ErrorNumber::BadFileName,
                           QStringLiteral("No folder can be called so on every system. Choose another name."))
            .at({mapName});
    }
    const QString path = mapsFolder(folders) + QLatin1Char('\\') + mapName;
    const QFileInfo there(folders.Drive.hostPath(path));
    if (there.exists() || there.isSymLink()) {
        throw RunTimeError(ErrorNumber::BadFileName,
                           QStringLiteral("There is a map of this name already. Choose another name."))
            .at({path});
    }
}

bool writeSurvey(const NewSurvey& survey, const Folders& folders, const QString& mapName,
                 const ExchangeProgress& progress)
{
    requireNewMap(folders, mapName);
    const QString path = mapsFolder(folders) + QLatin1Char('\\') + mapName;
    const QString hostFolder = folders.Drive.hostPath(mapsFolder(folders)) + QLatin1Char('/');
    const RunTimeError denied =
        RunTimeError(ErrorNumber::PermissionDenied, QStringLiteral("The folder cannot be made.")).at({path});
    const QTemporaryDir hidden(hostFolder + QStringLiteral(".new-map-XXXXXX"));
    if (!hidden.isValid()) {
        throw denied;
    }
    const QString made = hidden.filePath(mapName);
    if (!writeAll(survey, {made, path}, progress)) {
        return false;
    }
    requireNewMap(folders, mapName);
    if (!QDir().rename(made, hostFolder + mapName)) {
        throw denied;
    }
    return true;
}
