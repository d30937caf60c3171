#include "plot/PlotOptions.h"

#include "analysis/CumulativeTable.h"
#include "plot/ImportOptions.h"
#include "plot/PlotForms.h"
#include "plot/PlotReading.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace {

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
    for (const OptionForm& form : optionForms()) {
        parser.addOption({QLatin1String(form.name), {}, QLatin1String(form.value)});
    }
    parser.addOption(QCommandLineOption(QStringList{QStringLiteral("h"), QStringLiteral("help")}));
    parser.addOption(QCommandLineOption(QStringLiteral("version")));
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

void readGraph(const QCommandLineParser& parser, PlotOptions& options)
{
    const qsizetype graph = readChoice(parser, QStringLiteral("graph"));
    options.graph = graph < 2 ? DiffusionGraph::Bar : DiffusionGraph::Circle;
    options.layered = graph % 2 == 1;
}

} // namespace

PlotOptions readPlotOptions(const QStringList& arguments)
{
    constexpr double LargestHeight = 2000;
    constexpr double LargestResolution = 2400;
    constexpr int MostJobs = 256;
    constexpr int MostWordForms = decltype(CumulativeTable::WordformName)::last();

    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(QStringList(QStringLiteral("varnplot")) + arguments)) {
        throw UsageError(parser.errorText());
    }
    PlotOptions options;
    if (parser.isSet(QStringLiteral("help")) || parser.isSet(QStringLiteral("version"))) {
        options.command =
            parser.isSet(QStringLiteral("help")) ? PlotOptions::Command::Help : PlotOptions::Command::Version;
        return options;
    }
    const QStringList words = parser.positionalArguments();
    const CommandForm form = commandForm(words.value(0));
    const bool takesItems =
        form.command == PlotOptions::Command::Accumulate || parser.isSet(QStringLiteral("items"));
    if (words.size() > 1 && !takesItems) {
        throw UsageError(QStringLiteral("unexpected '%1'").arg(words[1]));
    }
    checkOptions(parser, form);

    options.command = form.command;
    options.installation = parser.value(QStringLiteral("installation"));
    options.map = parser.value(QStringLiteral("map"));
    (parser.isSet(QStringLiteral("items")) ? options.items : options.data) = words.mid(1);
    options.data = parser.values(QStringLiteral("data")) + options.data;
    options.items = parser.values(QStringLiteral("items")) + options.items;
    options.symbols = parser.value(QStringLiteral("symbols"));
    options.output = parser.value(QStringLiteral("output"));
    options.counts = parser.value(QStringLiteral("counts"));
    options.characters = parser.value(QStringLiteral("characters"));
    options.contrast = parser.value(QStringLiteral("contrast"));
    options.localityDots = parser.isSet(QStringLiteral("locality-dots"));
    options.wholeWordForms = parser.isSet(QStringLiteral("whole-word-forms"));
    options.keepGoing = parser.isSet(QStringLiteral("keep-going"));
    options.countAgain = parser.isSet(QStringLiteral("count-again"));
    if (parser.isSet(QStringLiteral("location"))) {
        options.location = static_cast<qint16>(readChoice(parser, QStringLiteral("location")));
    }
    if (parser.isSet(QStringLiteral("height"))) {
        options.height = readPositive(parser, QStringLiteral("height"), LargestHeight);
    }
    if (parser.isSet(QStringLiteral("dpi"))) {
        options.dotsPerInch = readPositive(parser, QStringLiteral("dpi"), LargestResolution);
    }
    if (parser.isSet(QStringLiteral("jobs"))) {
        options.jobs = readCount(parser, QStringLiteral("jobs"), MostJobs);
    }
    if (parser.isSet(QStringLiteral("graph"))) {
        readGraph(parser, options);
    }
    if (parser.isSet(QStringLiteral("word-form"))) {
        options.wordForm = readCount(parser, QStringLiteral("word-form"), MostWordForms);
    }
    if (options.command == PlotOptions::Command::Import) {
        readImportOptions(parser, options);
    }
    readSurveyOptions(parser, options);
    for (const FileEndings& rule : fileEndings()) {
        if (rule.command == options.command) {
            const QString name = QLatin1String(rule.option);
            checkEndings(rule, name == QLatin1String("data")    ? options.data
                               : name == QLatin1String("items") ? options.items
                                                                : parser.values(name));
        }
    }
    return options;
}
