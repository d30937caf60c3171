#include "exchange/CldfWriter.h"

#include "exchange/Degrees.h"
#include "geodata/GeoData.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

/// A column: its name, what it means in CLDF (nothing where empty), its type, and the table that it points
/// into.
struct Column
{
    const char* name;
    const char* term;
    const char* type = "string";
    const char* target = nullptr;
};

struct Table
{
    const char* file;
    const char* term;
    std::vector<Column> columns;
    std::vector<QStringList> rows;
};

QString termAddress(const char* term)
{
    return QStringLiteral("http://cldf.clld.org/v1.0/terms.rdf#") + QLatin1String(term);
}

/// What the localities are called in the tables.
QStringList localityIds(const SourceSurvey& survey)
{
    static const QRegularExpression valid(QStringLiteral("^[A-Za-z0-9_-]+$"));
    QStringList ids;
    QStringList numbers;
    for (const SourceLocality& locality : survey.localities) {
        ids << locality.id;
        numbers << QString::number(numbers.size() + 1);
    }
    const bool allValid =
        std::ranges::all_of(ids, [](const QString& id) { return valid.match(id).hasMatch(); });
    return allValid && QSet<QString>(ids.begin(), ids.end()).size() == ids.size() ? ids : numbers;
}

Table languages(const SourceSurvey& survey, const QStringList& ids)
{
    Table table{"languages.csv", "LanguageTable", {{"ID", "id"}, {"Name", "name"}}, {}};
    if (survey.plane) {
        table.columns.insert(table.columns.end(), {{"X", "", "decimal"}, {"Y", "", "decimal"}});
    } else {
        table.columns.insert(table.columns.end(),
                             {{"Longitude", "longitude", "decimal"}, {"Latitude", "latitude", "decimal"}});
    }
    for (std::size_t i = 0; i < survey.localities.size(); ++i) {
        const SourceLocality& locality = survey.localities[i];
        table.rows.push_back({ids[static_cast<int>(i)], locality.name, coordinateText(locality.position.x()),
                              coordinateText(locality.position.y())});
    }
    return table;
}

Table parameters(const SourceSurvey& survey)
{
    Table table{"parameters.csv", "ParameterTable", {{"ID", "id"}, {"Name", "name"}}, {}};
    for (const SourceItem& item : survey.items) {
        table.rows.push_back({QString::number(table.rows.size() + 1), item.name});
    }
    return table;
}

Table forms(const SourceSurvey& survey, const QStringList& ids)
{
    Table table{"forms.csv",
                "FormTable",
                {{"ID", "id"},
                 {"Language_ID", "languageReference", "string", "languages.csv"},
                 {"Parameter_ID", "parameterReference", "string", "parameters.csv"},
                 {"Form", "form"}},
                {}};
    for (std::size_t item = 0; item < survey.items.size(); ++item) {
        for (int locality = 0; locality < ids.size(); ++locality) {
            for (const QString& word : survey.items[item].answers[static_cast<std::size_t>(locality)]) {
                table.rows.push_back(
                    {QString::number(table.rows.size() + 1), ids[locality], QString::number(item + 1), word});
            }
        }
    }
    return table;
}

QJsonObject columnJson(const Column& column)
{
    QJsonObject json{{QStringLiteral("name"), QLatin1String(column.name)},
                     {QStringLiteral("datatype"), QLatin1String(column.type)},
                     {QStringLiteral("required"), *column.term != '\0'}};
    if (*column.term != '\0') {
        json[QStringLiteral("propertyUrl")] = termAddress(column.term);
    }
    return json;
}

QJsonObject foreignKeyJson(const Column& column)
{
    return {{QStringLiteral("columnReference"), QJsonArray{QLatin1String(column.name)}},
            {QStringLiteral("reference"),
             QJsonObject{{QStringLiteral("resource"), QLatin1String(column.target)},
                         {QStringLiteral("columnReference"), QJsonArray{QStringLiteral("ID")}}}}};
}

QJsonObject tableJson(const Table& table)
{
    QJsonArray columns;
    QJsonArray foreignKeys;
    for (const Column& column : table.columns) {
        columns << columnJson(column);
        if (column.target) {
            foreignKeys << foreignKeyJson(column);
        }
    }
    const QJsonObject schema{{QStringLiteral("columns"), columns},
                             {QStringLiteral("primaryKey"), QJsonArray{QStringLiteral("ID")}},
                             {QStringLiteral("foreignKeys"), foreignKeys}};
    return {{QStringLiteral("url"), QLatin1String(table.file)},
            {QStringLiteral("dc:conformsTo"), termAddress(table.term)},
            {QStringLiteral("dc:extent"), static_cast<qint64>(table.rows.size())},
            {QStringLiteral("tableSchema"), schema}};
}

QByteArray metadata(const QString& title, const std::vector<Table>& tables)
{
    QJsonArray tablesJson;
    for (const Table& table : tables) {
        tablesJson << tableJson(table);
    }
    const QJsonObject json{
        {QStringLiteral("@context"),
         QJsonArray{QStringLiteral("http://www.w3.org/ns/csvw"),
                    QJsonObject{{QStringLiteral("@language"), QStringLiteral("en")}}}},
        {QStringLiteral("dc:conformsTo"), termAddress("Wordlist")},
        {QStringLiteral("dc:title"), title},
        // No line is a comment, though it may begin with "#".
        {QStringLiteral("dialect"), QJsonObject{{QStringLiteral("commentPrefix"), QJsonValue::Null}}},
        {QStringLiteral("tables"), tablesJson}};
    return QJsonDocument(json).toJson();
}

QByteArray tableBytes(const Table& table)
{
    TextLayer layer{{}, table.rows, {}};
    for (const Column& column : table.columns) {
        layer.headings << QLatin1String(column.name);
    }
    return geoData().writtenLayer(layer, QLatin1String(table.term), LayerFormat::Csv);
}

} // namespace

std::vector<NamedBytes> writtenCldf(const SourceSurvey& survey)
{
    const QStringList ids = localityIds(survey);
    const std::vector<Table> tables{forms(survey, ids), languages(survey, ids), parameters(survey)};
    std::vector<NamedBytes> files{{QStringLiteral("cldf-metadata.json"), metadata(survey.title, tables)}};
    for (const Table& table : tables) {
        files.push_back({QLatin1String(table.file), tableBytes(table)});
    }
    return files;
}
