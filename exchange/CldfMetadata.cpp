#include "exchange/CldfMetadata.h"

#include "geodata/GeoData.h"
#include "platform/RunTimeError.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

const QString ConformsTo = QStringLiteral("dc:conformsTo");

/// The term in an address such as "http://cldf.clld.org/v1.0/terms.rdf#FormTable"; empty where it is of
/// another vocabulary.
QString termIn(const QJsonValue& address)
{
    const QString text = address.toString();
    return text.contains(QLatin1String("//cldf.clld.org/")) ? text.section(QLatin1Char('#'), 1) : QString();
}

/// A text or a list of texts.
QStringList texts(const QJsonValue& value)
{
    QStringList all;
    for (const auto& each : value.isArray() ? value.toArray() : QJsonArray{value}) {
        all << each.toString();
    }
    return all;
}

CldfColumn columnIn(const QJsonObject& column)
{
    const QString title = texts(column[QLatin1String("titles")]).value(0);
    return {column[QLatin1String("name")].toString(title), termIn(column[QLatin1String("propertyUrl")]),
            column[QLatin1String("separator")].toString(), texts(column[QLatin1String("null")])};
}

/// The file of a table, which may be kept zipped under its name with ".zip".
QString tablePath(const QString& folder, const QString& url)
{
    const QString path = folder + QLatin1Char('/') + url;
    const QString zip = path + QStringLiteral(".zip");
    return !geoData().isFile(path) && geoData().isFile(zip)
               ? QStringLiteral("/vsizip/") + zip + QLatin1Char('/') + QFileInfo(url).fileName()
               : path;
}

CldfTable tableIn(const QJsonObject& table, const QString& folder)
{
    CldfTable result{
        termIn(table[ConformsTo]), tablePath(folder, table[QLatin1String("url")].toString()), {}};
    const QJsonObject schema = table[QLatin1String("tableSchema")].toObject();
    for (const auto& column : schema[QLatin1String("columns")].toArray()) {
        result.columns.push_back(columnIn(column.toObject()));
    }
    return result;
}

bool isMetadataName(const QString& path)
{
    return path.endsWith(QLatin1String("metadata.json"), Qt::CaseInsensitive);
}

/// Raises type mismatch for metadata that are no sound JSON; another file may be anything.
QJsonObject jsonIn(const QString& path)
{
    const QByteArray bytes = geoData().readFile(path);
    QJsonParseError error;
    const QJsonDocument json = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError && isMetadataName(path)) {
        const auto line = static_cast<int>(bytes.left(error.offset).count('\n')) + 1;
        throw RunTimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("It is no sound JSON: %1.").arg(error.errorString()))
            .at({path, line});
    }
    return json.object();
}

/// What the file at `path` says; nothing where it is no metadata of CLDF.
std::optional<CldfMetadata> metadataIn(const QString& path)
{
    const QJsonObject json = jsonIn(path);
    CldfMetadata metadata{path, termIn(json[ConformsTo]), json[QLatin1String("dc:title")].toString(), {}};
    if (metadata.module.isEmpty()) {
        return std::nullopt;
    }
    for (const auto& table : json[QLatin1String("tables")].toArray()) {
        metadata.tables.push_back(tableIn(table.toObject(), QFileInfo(path).path()));
    }
    return metadata;
}

/// Files at `path` that can be metadata. Data sets are often handed on in a folder "cldf" of a larger one.
QStringList candidates(const QString& path)
{
    const QFileInfo file(path);
    QStringList paths;
    if (file.isDir()) {
        for (const QDir& folder : {QDir(path), QDir(path + QStringLiteral("/cldf"))}) {
            for (const QString& name : folder.entryList(QDir::Files, QDir::Name)) {
                paths << folder.filePath(name);
            }
        }
    } else if (path.endsWith(QLatin1String(".zip"), Qt::CaseInsensitive)) {
        paths = geoData().filesInZip(path);
    } else if (path.endsWith(QLatin1String(".json"), Qt::CaseInsensitive)) {
        return {path};
    }
    paths.removeIf([](const QString& each) { return !isMetadataName(each); });
    return paths;
}

bool holdsSurvey(const CldfMetadata& metadata)
{
    return metadata.module == QLatin1String("Wordlist") ||
           metadata.module == QLatin1String("StructureDataset");
}

} // namespace

const CldfColumn* CldfTable::find(const QString& columnTerm) const
{
    const auto found = std::ranges::find(columns, columnTerm, &CldfColumn::term);
    return found == columns.end() ? nullptr : &*found;
}

const CldfTable* CldfMetadata::find(const QString& term) const
{
    const auto found = std::ranges::find(tables, term, &CldfTable::term);
    return found == tables.end() ? nullptr : &*found;
}

const CldfTable& CldfMetadata::table(const QString& term, const QString& purpose) const
{
    if (const CldfTable* found = find(term)) {
        return *found;
    }
    throw RunTimeError(ErrorNumber::TypeMismatch,
                       QStringLiteral("The data set has no %1, which is needed for %2.").arg(term, purpose))
        .at({path});
}

std::optional<CldfMetadata> findCldfMetadata(const QString& path)
{
    std::optional<CldfMetadata> best;
    for (const QString& candidate : candidates(path)) {
        std::optional<CldfMetadata> metadata = metadataIn(candidate);
        if (metadata && (!best || (!holdsSurvey(*best) && holdsSurvey(*metadata)))) {
            best = std::move(metadata);
        }
    }
    return best;
}
