#include "plot/PlotOptions.h"

#include "analysis/CumulativeTable.h"
#include "plot/ImportOptions.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <vector>

namespace {

struct CommandForm
{
    const char* name;
    PlotOptions::Command command;
    QStringList required;
    QStringList allowed;
};

QStringList list(std::initializer_list<const char*> names)
{
    QStringList result;
    for (const char* name : names) {
        result << QLatin1String(name);
    }
    return result;
}

std::vector<CommandForm> commandForms()
{
    using Command = PlotOptions::Command;
    const QStringList map = list({"installation", "map", "output"});
    const QStringList size = list({"locality-dots", "height"});
    const QStringList picture = size + list({"dpi"});
    return {
        {"linguistic-map", Command::LinguisticMap, map + list({"data", "symbols"}),
         picture + list({"location", "whole-word-forms"})},
        {"blank-map", Command::BlankMap, map, picture},
        {"symbols", Command::Symbols, map, {}},
        {"atlas", Command::Atlas, map, size + list({"location", "whole-word-forms"})},
        {"accumulate", Command::Accumulate, list({"installation", "map", "counts", "characters", "data"}),
         list({"count-again"})},
        {"statistics", Command::Statistics, map + list({"counts"}), {}},
        {"diffusion-map", Command::DiffusionMap, map + list({"counts", "graph"}),
         picture + list({"word-form"})},
        {"symbol-diffusion-map", Command::SymbolDiffusionMap, map + list({"counts", "symbols"}),
         picture + list({"word-form"})},
        {"contrast-map", Command::ContrastMap, map + list({"counts", "contrast"}), picture},
        {"export", Command::Export, map, {}},
        {"import", Command::Import, list({"installation", "map", "source"}),
         list({"localities", "base-map", "projection", "answers", "use", "column"})},
    };
}

CommandForm commandForm(const QString& name)
{
    for (const CommandForm& form : commandForms()) {
        if (name == QLatin1String(form.name)) {
            return form;
        }
    }
    throw UsageError(name.isEmpty() ? QStringLiteral("a command is missing")
                                    : QStringLiteral("unknown command '%1'").arg(name));
}

void addOptions(QCommandLineParser& parser)
{
    for (const char* name :
         {"installation", "map",      "data",       "symbols",  "output", "location",  "height",
          "dpi",          "counts",   "characters", "contrast", "graph",  "word-form", "source",
          "localities",   "base-map", "projection", "answers",  "use",    "column"}) {
        parser.addOption({QLatin1String(name), {}, QStringLiteral("value")});
    }
    for (const char* name : {"locality-dots", "whole-word-forms", "count-again"}) {
        parser.addOption(QCommandLineOption(QLatin1String(name)));
    }
    parser.addOption(QCommandLineOption(QStringList{QStringLiteral("h"), QStringLiteral("help")}));
}

void checkOptions(const QCommandLineParser& parser, const CommandForm& form)
{
    for (const QString& name : form.required) {
        if (parser.value(name).isEmpty()) {
            throw UsageError(QStringLiteral("%1 needs --%2").arg(QLatin1String(form.name), name));
        }
    }
    for (const QString& name : parser.optionNames()) {
        if (!form.required.contains(name) && !form.allowed.contains(name)) {
            throw UsageError(QStringLiteral("%1 takes no --%2").arg(QLatin1String(form.name), name));
        }
    }
}

qint16 readLocation(const QString& name)
{
    const QStringList places = list({"center", "right", "left", "top", "bottom"});
    const qsizetype place = places.indexOf(name);
    if (place < 0) {
        throw UsageError(QStringLiteral("--location is one of %1").arg(places.join(QStringLiteral(", "))));
    }
    return static_cast<qint16>(place);
}

double readPositive(const QCommandLineParser& parser, const QString& name, double largest)
{
    bool isNumber = false;
    const double value = parser.value(name).toDouble(&isNumber);
    if (!isNumber || !(value > 0) || value > largest) {
        throw UsageError(QStringLiteral("--%1 is a number above 0, at most %2").arg(name).arg(largest));
    }
    return value;
}

/// The endings that the file of an option may have in a command; an empty one stands for a folder.
struct FileEndings
{
    PlotOptions::Command command;
    const char* option;
    QStringList endings;
};

std::vector<FileEndings> fileEndings()
{
    using Command = PlotOptions::Command;
    const QStringList picture = list({"svg", "pdf", "png"});
    return {
        {Command::LinguisticMap, "data", list({"dbs"})},
        {Command::LinguisticMap, "symbols", list({"han"})},
        {Command::LinguisticMap, "output", picture},
        {Command::BlankMap, "output", picture},
        {Command::Symbols, "output", list({"pdf"})},
        {Command::Atlas, "output", list({"pdf"})},
        {Command::Accumulate, "counts", list({"ttl"})},
        {Command::Accumulate, "characters", list({"sum"})},
        {Command::Accumulate, "data", list({"dbs"})},
        {Command::Statistics, "counts", list({"ttl"})},
        {Command::Statistics, "output", list({"stt"})},
        {Command::DiffusionMap, "counts", list({"ttl"})},
        {Command::DiffusionMap, "output", picture},
        {Command::SymbolDiffusionMap, "counts", list({"ttl"})},
        {Command::SymbolDiffusionMap, "symbols", list({"htl"})},
        {Command::SymbolDiffusionMap, "output", picture},
        {Command::ContrastMap, "counts", list({"ttl"})},
        {Command::ContrastMap, "contrast", list({"rnk"})},
        {Command::ContrastMap, "output", picture},
        {Command::Export, "output", list({"csv", "geojson", "gpkg", ""})},
    };
}

void checkEndings(const FileEndings& rule, const QStringList& files)
{
    QStringList named = rule.endings;
    const bool orFolder = named.removeAll(QString()) > 0;
    for (const QString& file : files) {
        if (!rule.endings.contains(QFileInfo(file).suffix().toLower())) {
            throw UsageError(
                QStringLiteral("--%1 must end in .%2%3")
                    .arg(QLatin1String(rule.option), named.join(QStringLiteral(", .")),
                         orFolder ? QStringLiteral(", or have no ending for a folder") : QString()));
        }
    }
}

void readGraph(const QString& name, PlotOptions& options)
{
    const QStringList graphs = list({"bar", "layered-bar", "circle", "layered-circle"});
    const qsizetype graph = graphs.indexOf(name);
    if (graph < 0) {
        throw UsageError(QStringLiteral("--graph is one of %1").arg(graphs.join(QStringLiteral(", "))));
    }
    options.graph = graph < 2 ? DiffusionGraph::Bar : DiffusionGraph::Circle;
    options.layered = graph % 2 == 1;
}

} // namespace

std::optional<PlotOptions> readPlotOptions(const QStringList& arguments)
{
    constexpr double LargestHeight = 2000;
    constexpr double LargestResolution = 2400;
    constexpr double MostWordForms = decltype(CumulativeTable::WordformName)::last();

    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(QStringList(QStringLiteral("varnplot")) + arguments)) {
        throw UsageError(parser.errorText());
    }
    if (parser.isSet(QStringLiteral("help"))) {
        return std::nullopt;
    }
    const QStringList words = parser.positionalArguments();
    const CommandForm form = commandForm(words.value(0));
    if (words.size() > 1 && form.command != PlotOptions::Command::Accumulate) {
        throw UsageError(QStringLiteral("unexpected '%1'").arg(words[1]));
    }
    checkOptions(parser, form);

    PlotOptions options;
    options.command = form.command;
    options.installation = parser.value(QStringLiteral("installation"));
    options.map = parser.value(QStringLiteral("map"));
    options.data = parser.values(QStringLiteral("data")) + words.mid(1);
    options.symbols = parser.value(QStringLiteral("symbols"));
    options.output = parser.value(QStringLiteral("output"));
    options.counts = parser.value(QStringLiteral("counts"));
    options.characters = parser.value(QStringLiteral("characters"));
    options.contrast = parser.value(QStringLiteral("contrast"));
    options.localityDots = parser.isSet(QStringLiteral("locality-dots"));
    options.wholeWordForms = parser.isSet(QStringLiteral("whole-word-forms"));
    options.countAgain = parser.isSet(QStringLiteral("count-again"));
    if (parser.isSet(QStringLiteral("location"))) {
        options.location = readLocation(parser.value(QStringLiteral("location")));
    }
    if (parser.isSet(QStringLiteral("height"))) {
        options.height = readPositive(parser, QStringLiteral("height"), LargestHeight);
    }
    if (parser.isSet(QStringLiteral("dpi"))) {
        options.dotsPerInch = readPositive(parser, QStringLiteral("dpi"), LargestResolution);
    }
    if (parser.isSet(QStringLiteral("graph"))) {
        readGraph(parser.value(QStringLiteral("graph")), options);
    }
    if (parser.isSet(QStringLiteral("word-form"))) {
        options.wordForm = static_cast<int>(readPositive(parser, QStringLiteral("word-form"), MostWordForms));
    }
    if (options.command == PlotOptions::Command::Import) {
        readImportOptions(parser, options);
    }
    for (const FileEndings& rule : fileEndings()) {
        if (rule.command == options.command) {
            const QString name = QLatin1String(rule.option);
            checkEndings(rule, name == QLatin1String("data") ? options.data : parser.values(name));
        }
    }
    return options;
}

QString plotUsage()
{
    return QStringLiteral(R"(usage:
  varnplot linguistic-map --installation DIR --map NAME --data FILE.dbs --symbols FILE.han --output FILE
           [--location center|right|left|top|bottom] [--whole-word-forms] [--locality-dots]
           [--height MM] [--dpi N]
  varnplot blank-map --installation DIR --map NAME --output FILE [--locality-dots] [--height MM] [--dpi N]
  varnplot symbols   --installation DIR --map NAME --output FILE.pdf
  varnplot atlas     --installation DIR --map NAME --output FILE.pdf
           [--location center|right|left|top|bottom] [--whole-word-forms] [--locality-dots]
           [--height MM]
  varnplot accumulate --installation DIR --map NAME --counts FILE.ttl --characters FILE.sum --data FILE.dbs ...
           [--count-again]
  varnplot statistics --installation DIR --map NAME --counts FILE.ttl --output FILE.stt
  varnplot diffusion-map --installation DIR --map NAME --counts FILE.ttl
           --graph bar|layered-bar|circle|layered-circle --output FILE
           [--word-form K] [--locality-dots] [--height MM] [--dpi N]
  varnplot symbol-diffusion-map --installation DIR --map NAME --counts FILE.ttl --symbols FILE.htL --output FILE
           [--word-form K] [--locality-dots] [--height MM] [--dpi N]
  varnplot contrast-map --installation DIR --map NAME --counts FILE.ttl --contrast FILE.rnk --output FILE
           [--locality-dots] [--height MM] [--dpi N]
  varnplot export --installation DIR --map NAME --output FILE.csv|FILE.geojson|FILE.gpkg|FOLDER
  varnplot import    --installation DIR --map NAME --source PATH [--localities FILE] [--base-map FILE ...]
           [--projection laea|tmerc|EPSG:N] [--answers SEPARATOR] [--use forms|cognates|codes]
           [--column ROLE=NAME ...]

DIR is the folder with VarnData and VarnSymbol. FILE ends in .svg, .pdf or .png.
accumulate adds the items to the table in FILE.ttl and saves it after each. Items are left out and named that
cannot be read, whose number of localities is not the map's, or that the table holds already; --count-again counts
the last once more. A map of an item with another number of localities is drawn with a warning.
export writes the localities with a column an item, or a new folder with a CLDF Wordlist. Items are left out and
named that cannot be read or whose number of localities is not the map's.
With --whole-word-forms a symbol marks only the word forms that equal its kind, not those that contain it.
import makes the new map NAME of a whole survey: a table (CSV, TSV, XLSX, ODS), a CLDF data set, or a layer of
points. What is not said is found out; ROLE is id, name, longitude, latitude, x, y, item, answer or left (out).
Several answers in a cell are parted by SEPARATOR. --base-map and --column can stand several times. A report tells
what came in and what was left out.
--height is the height of the drawing area in millimetres, --dpi the resolution of a PNG (192).

Exit code: 0 all is done, 1 an error or items left out, 2 the command line is not understood.
)");
}
