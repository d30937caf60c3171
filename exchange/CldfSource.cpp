#include "exchange/CldfSource.h"

#include "exchange/CldfRows.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

/// What an answer of the data set says, and whose it is.
struct CldfAnswer
{
    QString language;
    QString parameter;
    QStringList words;
};

bool isWord(const QString& text)
{
    return !text.trimmed().isEmpty();
}

bool hasWord(const CldfAnswer& answer)
{
    return std::ranges::any_of(answer.words, isWord);
}

/// Adds the words that a locality has not said yet.
void addWords(QStringList& answers, const QStringList& words)
{
    for (const QString& word : words) {
        if (isWord(word) && !answers.contains(word)) {
            answers << word;
        }
    }
}

/// The survey in a CLDF data set while it is read.
class CldfSurvey
{
public:
    CldfSurvey(const CldfMetadata& metadata, WordSource words);

    SourceSurvey take() { return std::move(m_survey); }

private:
    void readLocalities();
    void readItems();
    void readForms();
    void readCognates();
    void readValues();
    void add(const CldfAnswer& answer);
    std::optional<std::size_t> itemOf(const QString& parameter);
    std::size_t addItem(const QString& id, const QString& name);

    static constexpr int Unplaced = -1;

    const CldfMetadata& m_metadata;
    SourceSurvey m_survey;
    QHash<QString, int> m_localityOfLanguage;
    QHash<QString, std::size_t> m_itemOfParameter;
    bool m_hasParameterTable = false;
};

CldfSurvey::CldfSurvey(const CldfMetadata& metadata, WordSource words) : m_metadata(metadata)
{
    m_survey.title = metadata.title;
    m_survey.report.tell(QStringLiteral("CLDF %1: %2").arg(metadata.module, metadata.path));
    readLocalities();
    readItems();
    if (words == WordSource::Cognates) {
        readCognates();
    } else if (words == WordSource::Codes || metadata.module == QLatin1String("StructureDataset")) {
        readValues();
    } else {
        readForms();
    }
}

/// The degrees in a cell; nothing where it is empty.
std::optional<double> degreesIn(const CldfRows& languages, const TableRow& row, const char* term,
                                double largest)
{
    const QString cell = languages.cell(row, term).trimmed();
    if (cell.isEmpty()) {
        return std::nullopt;
    }
    bool isNumber = false;
    const double value = cell.toDouble(&isNumber);
    if (!isNumber || !(std::abs(value) <= largest)) {
        throw languages.errorAt(
            row, term,
            QStringLiteral("\"%1\" is no %2: a number from -%3 to %3 with a decimal point is needed.")
                .arg(cell, QLatin1String(term))
                .arg(largest));
    }
    return value;
}

void CldfSurvey::readLocalities()
{
    const CldfRows languages(m_metadata.table(QStringLiteral("LanguageTable"), QStringLiteral("localities")),
                             {"id", "latitude", "longitude"}, {"name"});
    for (const TableRow& row : languages.rows()) {
        const QString id = languages.cell(row, "id");
        const QString ownName = languages.cell(row, "name");
        const QString name = ownName.isEmpty() ? id : ownName;
        const std::optional<double> longitude = degreesIn(languages, row, "longitude", 180);
        const std::optional<double> latitude = degreesIn(languages, row, "latitude", 90);
        const bool isPlaced = longitude && latitude;
        if (m_localityOfLanguage.contains(id)) {
            throw languages.errorAt(row, "id", QStringLiteral("\"%1\" stands there twice.").arg(id));
        }
        m_localityOfLanguage.insert(id, isPlaced ? static_cast<int>(m_survey.localities.size()) : Unplaced);
        if (isPlaced) {
            m_survey.localities.push_back({id, name, {*longitude, *latitude}});
        } else {
            m_survey.report.leaveOut(QStringLiteral("localities without coordinates"), name);
        }
    }
}

std::size_t CldfSurvey::addItem(const QString& id, const QString& name)
{
    m_survey.items.push_back(
        {name.isEmpty() ? id : name, std::vector<QStringList>(m_survey.localities.size())});
    m_itemOfParameter.insert(id, m_survey.items.size() - 1);
    return m_survey.items.size() - 1;
}

/// A data set need not have a table of its parameters.
void CldfSurvey::readItems()
{
    const CldfTable* table = m_metadata.find(QStringLiteral("ParameterTable"));
    m_hasParameterTable = table != nullptr;
    if (!m_hasParameterTable) {
        return;
    }
    const CldfRows parameters(*table, {"id"}, {"name"});
    for (const TableRow& row : parameters.rows()) {
        const QString id = parameters.cell(row, "id");
        if (m_itemOfParameter.contains(id)) {
            throw parameters.errorAt(row, "id", QStringLiteral("\"%1\" stands there twice.").arg(id));
        }
        addItem(id, parameters.cell(row, "name"));
    }
}

void CldfSurvey::readForms()
{
    const CldfRows forms(m_metadata.table(QStringLiteral("FormTable"), QStringLiteral("word forms")),
                         {"languageReference", "parameterReference", "form"});
    for (const TableRow& row : forms.rows()) {
        add({forms.cell(row, "languageReference"),
             forms.cell(row, "parameterReference"),
             {forms.cell(row, "form")}});
    }
}

/// The cognate sets of each form by the form's id, where they stand in a table of their own.
QHash<QString, QStringList> cognateSets(const CldfTable& table)
{
    const CldfRows cognates(table, {"formReference", "cognatesetReference"});
    QHash<QString, QStringList> sets;
    for (const TableRow& row : cognates.rows()) {
        sets[cognates.cell(row, "formReference")] << cognates.values(row, "cognatesetReference");
    }
    return sets;
}

void CldfSurvey::readCognates()
{
    const CldfTable& table = m_metadata.table(QStringLiteral("FormTable"), QStringLiteral("word forms"));
    const CldfRows forms(table, {"id", "languageReference", "parameterReference"}, {"cognatesetReference"});
    const bool inForms = table.find(QStringLiteral("cognatesetReference")) != nullptr;
    const QHash<QString, QStringList> sets =
        inForms
            ? QHash<QString, QStringList>()
            : cognateSets(m_metadata.table(QStringLiteral("CognateTable"), QStringLiteral("cognate sets")));
    for (const TableRow& row : forms.rows()) {
        add({forms.cell(row, "languageReference"), forms.cell(row, "parameterReference"),
             inForms ? forms.values(row, "cognatesetReference") : sets.value(forms.cell(row, "id"))});
    }
    m_survey.categorical = true;
}

QHash<QString, QString> codeNames(const CldfTable* table)
{
    QHash<QString, QString> names;
    if (table) {
        const CldfRows codes(*table, {"id"}, {"name"});
        for (const TableRow& row : codes.rows()) {
            names.insert(codes.cell(row, "id"), codes.cell(row, "name"));
        }
    }
    return names;
}

void CldfSurvey::readValues()
{
    const CldfRows values(m_metadata.table(QStringLiteral("ValueTable"), QStringLiteral("codes")),
                          {"languageReference", "parameterReference", "value"}, {"codeReference"});
    const QHash<QString, QString> names = codeNames(m_metadata.find(QStringLiteral("CodeTable")));
    for (const TableRow& row : values.rows()) {
        QStringList words;
        for (const QString& code : values.values(row, "codeReference")) {
            words << names.value(code);
        }
        words.removeAll(QString());
        add({values.cell(row, "languageReference"), values.cell(row, "parameterReference"),
             words.isEmpty() ? QStringList(values.cell(row, "value")) : words});
    }
    m_survey.categorical = true;
}

std::optional<std::size_t> CldfSurvey::itemOf(const QString& parameter)
{
    const auto known = m_itemOfParameter.constFind(parameter);
    if (known != m_itemOfParameter.constEnd()) {
        return *known;
    }
    const bool isUnknown = m_hasParameterTable || parameter.isEmpty();
    return isUnknown ? std::nullopt : std::optional(addItem(parameter, parameter));
}

void CldfSurvey::add(const CldfAnswer& answer)
{
    const auto locality = m_localityOfLanguage.constFind(answer.language);
    const std::optional<std::size_t> item = itemOf(answer.parameter);
    const auto leaveOut = [&](const char* reason) {
        const QString name = item ? m_survey.items[*item].name : answer.parameter;
        m_survey.report.leaveOut(QLatin1String(reason),
                                 QStringLiteral("%1 in %2").arg(name, answer.language));
    };
    if (locality == m_localityOfLanguage.constEnd()) {
        leaveOut("answers of unknown localities");
    } else if (*locality == Unplaced) {
        leaveOut("answers of localities without coordinates");
    } else if (!item) {
        leaveOut("answers to unknown items");
    } else if (!hasWord(answer)) {
        leaveOut("answers without a word form");
    } else {
        addWords(m_survey.items[*item].answers[static_cast<std::size_t>(*locality)], answer.words);
    }
}

} // namespace

bool isCldf(const QString& path)
{
    return findCldfMetadata(path).has_value();
}

SourceSurvey readCldf(const SourceChoices& choices)
{
    const std::optional<CldfMetadata> metadata = findCldfMetadata(choices.path);
    if (!metadata) {
        throw RunTimeError(ErrorNumber::TypeMismatch, QStringLiteral("There is no CLDF metadata."))
            .at({choices.path});
    }
    SourceSurvey survey = CldfSurvey(*metadata, choices.words).take();
    if (survey.localities.empty() || survey.items.empty()) {
        throw RunTimeError(ErrorNumber::TypeMismatch,
                           QStringLiteral("No locality has coordinates, or there is no item. ") +
                               survey.report.text())
            .at({metadata->path});
    }
    return survey;
}
