#include "exchange/SurveyExport.h"

#include "exchange/CldfWriter.h"
#include "exchange/Degrees.h"
#include "exchange/StoredSurvey.h"
#include "geodata/GeoData.h"
#include "platform/RunTimeError.h"
#include "platform/WholeFile.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>

#include <array>

namespace {

struct Ending
{
    const char* ending;
    LayerFormat format;
};

constexpr std::array Endings{Ending{"csv", LayerFormat::Csv}, Ending{"geojson", LayerFormat::GeoJson},
                             Ending{"gpkg", LayerFormat::GeoPackage}};

/// The format that a file's ending stands for; nothing for a folder.
std::optional<LayerFormat> formatOf(const QString& path)
{
    for (const Ending& each : Endings) {
        if (QFileInfo(path).suffix().compare(QLatin1String(each.ending), Qt::CaseInsensitive) == 0) {
            return each.format;
        }
    }
    return std::nullopt;
}

/// `name`, or with a number behind it where another column has that name but for the case of letters.
QString uniqueName(const QString& name, QSet<QString>& taken)
{
    QString unique = name;
    for (int number = 2; taken.contains(unique.toCaseFolded()); ++number) {
        unique = QStringLiteral("%1 (%2)").arg(name).arg(number);
    }
    taken.insert(unique.toCaseFolded());
    return unique;
}

QStringList placeHeadings(bool plane)
{
    return plane ? QStringList{QStringLiteral("x"), QStringLiteral("y")}
                 : QStringList{QStringLiteral("longitude"), QStringLiteral("latitude")};
}

const QString Separator = QStringLiteral("; ");

/// Answers that a reader of the table takes for several.
void tellPartedAnswers(SourceSurvey& survey)
{
    qsizetype count = 0;
    for (const SourceItem& item : survey.items) {
        for (const QStringList& answers : item.answers) {
            count += answers.filter(Separator.trimmed()).size();
        }
    }
    if (count > 0) {
        survey.report.tell(
            QStringLiteral("Answers that hold \";\", which parts answers in this file (a folder with "
                           "CLDF keeps them whole): %1")
                .arg(count));
    }
}

/// A row a locality and a column an item. Only a table says in columns where the localities lie.
TextLayer wideLayer(const SourceSurvey& survey, LayerFormat format)
{
    TextLayer layer{{QStringLiteral("id"), QStringLiteral("name")}, {}, {}};
    layer.system = survey.plane ? TextLayer::System::Plane : TextLayer::System::Degrees;
    const bool isTable = format == LayerFormat::Csv;
    if (isTable) {
        layer.headings << placeHeadings(survey.plane);
    }
    QSet<QString> taken(layer.headings.begin(), layer.headings.end());
    for (const SourceItem& item : survey.items) {
        layer.headings << uniqueName(item.name, taken);
    }
    for (std::size_t i = 0; i < survey.localities.size(); ++i) {
        const auto& [id, name, position] = survey.localities[i];
        QStringList row{id, name};
        if (isTable) {
            row << coordinateText(position.x()) << coordinateText(position.y());
        } else {
            layer.places.push_back(position);
        }
        for (const SourceItem& item : survey.items) {
            row << item.answers[i].join(Separator);
        }
        layer.rows.push_back(row);
    }
    return layer;
}

/// Makes a folder with the files beside where it is to stand, and puts it there in one step.
void writeFolder(const QString& path, const std::vector<NamedBytes>& files)
{
    const QString target = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (QFileInfo::exists(target)) {
        throw RunTimeError(ErrorNumber::PermissionDenied,
                           QStringLiteral("It is there already. Choose a new name for the folder."))
            .at({path});
    }
    if (!QFileInfo::exists(QFileInfo(target).path())) {
        throw RunTimeError(ErrorNumber::PathNotFound).at({path});
    }
    const QTemporaryDir beside(target + QStringLiteral(".XXXXXX"));
    const QDir folder(beside.filePath(QStringLiteral("survey")));
    if (!beside.isValid() || !folder.mkpath(QStringLiteral("."))) {
        throw RunTimeError(ErrorNumber::PermissionDenied, beside.errorString()).at({path});
    }
    for (const NamedBytes& file : files) {
        replaceHostFile(folder.filePath(file.name), path, file.bytes);
    }
    if (!QDir().rename(folder.path(), target)) {
        throw RunTimeError(ErrorNumber::PermissionDenied,
                           QStringLiteral("The folder cannot be put in its place."))
            .at({path});
    }
}

} // namespace

bool isExportName(const QString& path)
{
    return formatOf(path) || QFileInfo(QDir::cleanPath(path)).suffix().isEmpty();
}

std::optional<ImportReport> exportSurvey(const Folders& folders, const QString& output,
                                         const ExchangeProgress& progress)
{
    if (!isExportName(output)) {
        throw RunTimeError(
            ErrorNumber::BadFileName,
            QStringLiteral("A survey goes to a file that ends in .csv, .geojson or .gpkg, or to a folder."))
            .at({output});
    }
    std::optional<SourceSurvey> survey = readStoredSurvey(folders, progress);
    if (!survey) {
        return std::nullopt;
    }
    if (const std::optional<LayerFormat> format = formatOf(output)) {
        tellPartedAnswers(*survey);
        const QString name = QFileInfo(output).completeBaseName();
        replaceHostFile(output, output, geoData().writtenLayer(wideLayer(*survey, *format), name, *format));
    } else {
        writeFolder(output, writtenCldf(*survey));
    }
    return survey->report;
}
