#include "plot/PlotOptions.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <array>

namespace {

struct CommandForm
{
    const char* name;
    PlotOptions::Command command;
    QStringList required;
    QStringList allowed;
};

const QStringList& drawingOptions()
{
    static const QStringList options = {QStringLiteral("location"), QStringLiteral("locality-dots"),
                                        QStringLiteral("height")};
    return options;
}

QStringList list(std::initializer_list<const char*> names)
{
    QStringList result;
    for (const char* name : names) {
        result << QLatin1String(name);
    }
    return result;
}

std::array<CommandForm, 4> commandForms()
{
    return {{
        {"linguistic-map", PlotOptions::Command::LinguisticMap,
         list({"installation", "map", "data", "symbols", "output"}), drawingOptions() + list({"dpi"})},
        {"blank-map", PlotOptions::Command::BlankMap, list({"installation", "map", "output"}),
         list({"locality-dots", "height", "dpi"})},
        {"symbols", PlotOptions::Command::Symbols, list({"installation", "map", "output"}), {}},
        {"atlas", PlotOptions::Command::Atlas, list({"installation", "map", "output"}), drawingOptions()},
    }};
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
         {"installation", "map", "data", "symbols", "output", "location", "height", "dpi"}) {
        parser.addOption({QLatin1String(name), {}, QStringLiteral("value")});
    }
    parser.addOption(QCommandLineOption(QStringLiteral("locality-dots")));
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

void checkOutput(const PlotOptions& options)
{
    const QString ending = QFileInfo(options.output).suffix().toLower();
    const bool manyPages =
        options.command == PlotOptions::Command::Symbols || options.command == PlotOptions::Command::Atlas;
    const QStringList endings = manyPages ? list({"pdf"}) : list({"svg", "pdf", "png"});
    if (!endings.contains(ending)) {
        throw UsageError(QStringLiteral("--output must end in .%1").arg(endings.join(QStringLiteral(", ."))));
    }
}

} // namespace

std::optional<PlotOptions> readPlotOptions(const QStringList& arguments)
{
    constexpr double LargestHeight = 2000;
    constexpr double LargestResolution = 2400;

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
    if (words.size() > 1) {
        throw UsageError(QStringLiteral("unexpected '%1'").arg(words[1]));
    }
    checkOptions(parser, form);

    PlotOptions options;
    options.command = form.command;
    options.installation = parser.value(QStringLiteral("installation"));
    options.map = parser.value(QStringLiteral("map"));
    options.data = parser.value(QStringLiteral("data"));
    options.symbols = parser.value(QStringLiteral("symbols"));
    options.output = parser.value(QStringLiteral("output"));
    options.localityDots = parser.isSet(QStringLiteral("locality-dots"));
    if (parser.isSet(QStringLiteral("location"))) {
        options.location = readLocation(parser.value(QStringLiteral("location")));
    }
    if (parser.isSet(QStringLiteral("height"))) {
        options.height = readPositive(parser, QStringLiteral("height"), LargestHeight);
    }
    if (parser.isSet(QStringLiteral("dpi"))) {
        options.dotsPerInch = readPositive(parser, QStringLiteral("dpi"), LargestResolution);
    }
    checkOutput(options);
    return options;
}

QString plotUsage()
{
    return QStringLiteral(R"(usage:
  varnplot linguistic-map --installation DIR --map NAME --data FILE.dbs --symbols FILE.han --output FILE
           [--location center|right|left|top|bottom] [--locality-dots] [--height MM] [--dpi N]
  varnplot blank-map --installation DIR --map NAME --output FILE [--locality-dots] [--height MM] [--dpi N]
  varnplot symbols   --installation DIR --map NAME --output FILE.pdf
  varnplot atlas     --installation DIR --map NAME --output FILE.pdf
           [--location center|right|left|top|bottom] [--locality-dots] [--height MM]

DIR is the folder with VarnData and VarnSymbol. FILE ends in .svg, .pdf or .png.
--height is the height of the map in millimetres, --dpi the resolution of a PNG (192).
)");
}
