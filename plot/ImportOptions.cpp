#include "plot/ImportOptions.h"

#include <QCommandLineParser>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <utility>

namespace {

/// A word of the command line and what it stands for.
template <typename Value>
using Word = std::pair<const char*, Value>;

constexpr std::array<Word<WordSource>, 3> Uses = {
    {{"forms", WordSource::Forms}, {"cognates", WordSource::Cognates}, {"codes", WordSource::Codes}}};

constexpr std::array<Word<ColumnRole>, 9> Roles = {{{"id", ColumnRole::Id},
                                                    {"name", ColumnRole::Name},
                                                    {"longitude", ColumnRole::Longitude},
                                                    {"latitude", ColumnRole::Latitude},
                                                    {"x", ColumnRole::X},
                                                    {"y", ColumnRole::Y},
                                                    {"item", ColumnRole::Item},
                                                    {"answer", ColumnRole::Answer},
                                                    {"left", ColumnRole::Left}}};

/// What `text` stands for. Raises `UsageError`, which begins with `rule` and lists the words, for any other.
template <typename Words>
auto readWord(const Words& words, const QString& text, const char* rule)
{
    QStringList known;
    for (const auto& [name, value] : words) {
        if (text.compare(QLatin1String(name), Qt::CaseInsensitive) == 0) {
            return value;
        }
        known << QLatin1String(name);
    }
    throw UsageError(QLatin1String(rule) + QStringLiteral(" one of ") + known.join(QStringLiteral(", ")));
}

QString readProjection(const QString& name)
{
    static const QRegularExpression Known(QStringLiteral("^(laea|tmerc|EPSG:\\d+)$"),
                                          QRegularExpression::CaseInsensitiveOption);
    if (!name.contains(Known)) {
        throw UsageError(QStringLiteral("--projection is laea, tmerc or EPSG:N, such as EPSG:3035"));
    }
    return name.startsWith(QLatin1String("EPSG"), Qt::CaseInsensitive) ? name.toUpper() : name.toLower();
}

/// Reads ROLE=NAME.
void readColumn(const QString& text, QMap<QString, ColumnRole>& columns)
{
    const qsizetype sign = std::max<qsizetype>(text.indexOf(QLatin1Char('=')), 0);
    columns[text.mid(sign + 1)] = readWord(Roles, text.left(sign), "--column is ROLE=NAME, the role");
}

} // namespace

void readImportOptions(const QCommandLineParser& parser, PlotOptions& options)
{
    const auto value = [&parser](const char* name) { return parser.value(QLatin1String(name)); };
    options.source.path = value("source");
    options.source.localities = value("localities");
    options.source.answerSeparator = value("answers").replace(QLatin1String("\\n"), QLatin1String("\n"));
    options.newSurvey.baseMap = parser.values(QStringLiteral("base-map"));
    if (parser.isSet(QStringLiteral("use"))) {
        options.source.words = readWord(Uses, value("use"), "--use is");
    }
    if (parser.isSet(QStringLiteral("projection"))) {
        options.newSurvey.projection = readProjection(value("projection"));
    }
    for (const QString& column : parser.values(QStringLiteral("column"))) {
        readColumn(column, options.source.columns);
    }
}
