#include "exchange/TableSource.h"

#include "exchange/AnswerText.h"
#include "exchange/LocalityIndex.h"
#include "exchange/TablePlaces.h"

#include <QFileInfo>
#include <QHash>

#include <optional>
#include <utility>

namespace {

/// The survey in a table while its rows are read.
class TableSurvey
{
public:
    TableSurvey(const SourceTable& table, const TableColumns& columns, const SourceChoices& choices);

    SourceSurvey take();

private:
    QStringList keys() const;
    void placeByFile(const QString& path, const SourceChoices& choices);
    void requireHeadings(const QStringList& corrected) const;
    void addItems();
    void addWideRow(const TableRow& row);
    void addLongRow(const TableRow& row);
    /// The locality of a row, which is a new one where it is named for the first time; nothing where it has
    /// no place.
    std::optional<std::size_t> localityOf(const TableRow& row);
    std::optional<SourceLocality> placed(const TableRow& row);
    std::size_t itemOf(const QString& name);
    void addAnswers(std::size_t item, std::size_t locality, const QString& cell);

    const SourceTable& m_table;
    const TableColumns& m_columns;
    QString m_separator;
    std::optional<PlacedLocalities> m_file;
    std::optional<LocalityIndex> m_index;
    SourceSurvey m_survey;
    QHash<QString, std::optional<std::size_t>> m_localityOfKey;
    QHash<QString, std::size_t> m_itemOfName;
};

TableSurvey::TableSurvey(const SourceTable& table, const TableColumns& columns, const SourceChoices& choices)
    : m_table(table), m_columns(columns),
      m_separator(choices.answerSeparator.isEmpty() ? guessedSeparator(table, columns)
                                                    : choices.answerSeparator)
{
    m_survey.title = QFileInfo(table.path).completeBaseName();
    m_survey.plane = !columns.hasDegrees() && columns.hasPlane();
    if (!choices.localities.isEmpty()) {
        placeByFile(choices.localities, choices);
    } else if (!columns.hasPlaces()) {
        const std::optional<QString> beside = findLocalitiesBeside(table.path, keys());
        if (!beside) {
            throw RunTimeError(
                ErrorNumber::TypeMismatch,
                QStringLiteral("The table does not say where its localities lie: no columns hold "
                               "longitude and latitude, and no file beside it does. Name the file with "
                               "the localities. There are the columns: %1.")
                    .arg(table.headings.join(QStringLiteral(", "))))
                .at({table.path, table.headingRow});
        }
        placeByFile(*beside, choices);
    }
    requireHeadings(choices.columns.keys());
}

/// What the table calls its localities, each once.
QStringList TableSurvey::keys() const
{
    QStringList keys;
    for (const TableRow& row : m_table.rows) {
        keys << row.cells[*m_columns.key()];
    }
    keys.removeAll(QString());
    keys.removeDuplicates();
    return keys;
}

void TableSurvey::placeByFile(const QString& path, const SourceChoices& choices)
{
    m_file = readPlacedLocalities(path, choices.columns, m_survey.report);
    m_index.emplace(m_file->localities);
    m_survey.plane = m_file->plane;
    m_survey.baseMapLayers = m_file->baseMapLayers;
    m_survey.report.tell(QStringLiteral("Localities: ") + path);
}

/// Each file has its own headings; a correction of one that is in none is a mistake.
void TableSurvey::requireHeadings(const QStringList& corrected) const
{
    const QStringList headings = m_table.headings + (m_file ? m_file->headings : QStringList());
    for (const QString& heading : corrected) {
        if (!headings.contains(heading)) {
            throw RunTimeError(ErrorNumber::TypeMismatch,
                               QStringLiteral("No column is called \"%1\"; there are: %2.")
                                   .arg(heading, headings.join(QStringLiteral(", "))))
                .at({m_table.path, m_table.headingRow});
        }
    }
}

std::optional<SourceLocality> TableSurvey::placed(const TableRow& row)
{
    const QString& key = row.cells[*m_columns.key()];
    const std::optional<int> name = m_columns.find(ColumnRole::Name);
    if (!m_file) {
        const std::optional<QPointF> place = placeIn(m_table, m_columns, row);
        if (!place) {
            m_survey.report.leaveOut(QStringLiteral("localities without coordinates"), key);
        }
        return place ? std::optional(SourceLocality{key, name ? row.cells[*name] : key, *place})
                     : std::nullopt;
    }
    std::optional<int> found = m_index->find(key);
    if (!found && name) {
        found = m_index->find(row.cells[*name]);
    }
    if (!found) {
        const QString nearest = m_index->nearest(key);
        m_survey.report.leaveOut(QStringLiteral("localities that the file of localities does not name"),
                                 nearest.isEmpty() ? key
                                                   : QStringLiteral("%1, nearest is %2").arg(key, nearest));
        return std::nullopt;
    }
    return m_file->localities[static_cast<std::size_t>(*found)];
}

std::optional<std::size_t> TableSurvey::localityOf(const TableRow& row)
{
    const QString& key = row.cells[*m_columns.key()];
    if (const auto known = m_localityOfKey.constFind(key); known != m_localityOfKey.constEnd()) {
        return *known;
    }
    std::optional<std::size_t> number;
    if (std::optional<SourceLocality> locality = placed(row)) {
        number = m_survey.localities.size();
        m_survey.localities.push_back(std::move(*locality));
    }
    m_localityOfKey.insert(key, number);
    return number;
}

std::size_t TableSurvey::itemOf(const QString& name)
{
    const auto known = m_itemOfName.constFind(name);
    if (known != m_itemOfName.constEnd()) {
        return *known;
    }
    m_survey.items.push_back({name, {}});
    m_itemOfName.insert(name, m_survey.items.size() - 1);
    return m_survey.items.size() - 1;
}

void TableSurvey::addAnswers(std::size_t item, std::size_t locality, const QString& cell)
{
    std::vector<QStringList>& answers = m_survey.items[item].answers;
    if (answers.size() <= locality) {
        answers.resize(locality + 1);
    }
    for (const QString& answer : answersIn(cell, m_separator)) {
        if (!answers[locality].contains(answer)) {
            answers[locality] << answer;
        }
    }
}

/// Makes the items of a wide table, one a column, in their order.
void TableSurvey::addItems()
{
    QHash<QString, int> count;
    for (const int column : m_columns.items()) {
        const QString& heading = m_table.headings[column];
        const int number = ++count[heading];
        m_survey.items.push_back(
            {number == 1 ? heading : QStringLiteral("%1 (%2)").arg(heading).arg(number), {}});
    }
}

void TableSurvey::addWideRow(const TableRow& row)
{
    const QString& key = row.cells[*m_columns.key()];
    const bool isKnown = m_localityOfKey.contains(key);
    if (const std::optional<std::size_t> locality = localityOf(row)) {
        if (isKnown) {
            m_survey.report.tell(QStringLiteral("Row %1: %2 stands there again; its answers are added.")
                                     .arg(row.number)
                                     .arg(key));
        }
        std::size_t item = 0;
        for (const int column : m_columns.items()) {
            addAnswers(item++, *locality, row.cells[column]);
        }
    }
}

void TableSurvey::addLongRow(const TableRow& row)
{
    const QString& name = row.cells[*m_columns.find(ColumnRole::Item)];
    const std::optional<std::size_t> locality = localityOf(row);
    if (name.isEmpty()) {
        m_survey.report.leaveOut(QStringLiteral("answers to no item"),
                                 QStringLiteral("row %1").arg(row.number));
    } else if (locality) {
        addAnswers(itemOf(name), *locality, row.cells[*m_columns.find(ColumnRole::Answer)]);
    }
}

SourceSurvey TableSurvey::take()
{
    if (!m_columns.isLong()) {
        addItems();
    }
    for (const TableRow& row : m_table.rows) {
        try {
            if (row.cells[*m_columns.key()].isEmpty()) {
                m_survey.report.leaveOut(QStringLiteral("rows that name no locality"),
                                         QStringLiteral("row %1").arg(row.number));
            } else if (m_columns.isLong()) {
                addLongRow(row);
            } else {
                addWideRow(row);
            }
        } catch (const RunTimeError& error) {
            throw error.hasPlace() ? error : error.at({m_table.path, row.number});
        }
    }
    for (SourceItem& item : m_survey.items) {
        item.answers.resize(m_survey.localities.size());
    }
    return std::move(m_survey);
}

void requireContents(const SourceSurvey& survey, const SourceTable& table)
{
    if (survey.localities.empty() || survey.items.empty()) {
        const QString what =
            survey.localities.empty()
                ? QStringLiteral("No locality of the table has a place. ")
                : QStringLiteral("It has no column of answers. If it only tells where localities "
                                 "lie, name it as the localities of a table with the answers. ");
        throw RunTimeError(ErrorNumber::TypeMismatch, what + survey.report.text())
            .at({table.path, table.headingRow});
    }
}

void tellLeftColumns(const SourceTable& table, const TableColumns& columns, ImportReport& report)
{
    QStringList left;
    for (int column = 0; column < columns.count(); ++column) {
        if (columns.role(column) == ColumnRole::Left && !table.headings[column].isEmpty()) {
            left << table.headings[column];
        }
    }
    if (!left.isEmpty()) {
        report.tell(QStringLiteral("Columns that were taken for no items: ") +
                    left.join(QStringLiteral(", ")));
    }
}

} // namespace

QString guessedSeparator(const SourceTable& table, const TableColumns& columns)
{
    const std::vector<int> answers =
        columns.isLong() ? std::vector{*columns.find(ColumnRole::Answer)} : columns.items();
    QStringList cells;
    for (const TableRow& row : table.rows) {
        for (const int column : answers) {
            cells << row.cells[column];
        }
    }
    return guessSeparator(cells);
}

SourceSurvey readTableSource(const SourceChoices& choices)
{
    return surveyInTable(readTable(choices.path), choices);
}

SourceSurvey surveyInTable(const SourceTable& table, const SourceChoices& choices)
{
    const TableColumns columns = guessColumns(table, choices.columns);
    SourceSurvey survey = TableSurvey(table, columns, choices).take();
    tellLeftColumns(table, columns, survey.report);
    requireContents(survey, table);
    return survey;
}
