#include "plot/DrawingFile.h"
#include "plot/PlotCommands.h"
#include "plot/PlotOptions.h"
#include "tests/support/TestDrive.h"

#include <QDir>
#include <QFile>
#include <QImage>

namespace {

const QString Item = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\rain.dbs");
const QString Symbols = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\rain.han");

/// Keeps what is told.
struct KeptTales : PlotListener
{
    void page(int page, int pages, const QString& name) override
    {
        pagesTold << QStringLiteral("%1/%2 %3").arg(page).arg(pages).arg(name);
    }
    void report(const QString& text) override { warnings << text; }
    void warning(const QString& text) override { warnings << text; }

    QStringList pagesTold;
    QStringList warnings;
};

/// Plots and expects that nothing had to be said.
void plotQuietly(const PlotOptions& options)
{
    KeptTales tales;
    EXPECT_TRUE(plot(options, tales));
    EXPECT_EQ(tales.warnings, QStringList());
}

/// A survey with one item, and the options that draw it.
struct PlotSurvey : TestSurvey
{
    PlotSurvey()
    {
        write(Item, "3,\"\",\"Rain\",\"\"\r\n1\r\n\"ame\"\r\n0\r\n2\r\n\"ami\"\r\n\"ame\"\r\n");
        write(Symbols, "\"\"\r\n1\r\n\"ame\",\"the word ame\"\r\n50\r\n4\r\n12\r\n1\r\n1\r\n0\r\n");
    }

    PlotOptions options(PlotOptions::Command command, const QString& output) const
    {
        PlotOptions result;
        result.command = command;
        result.installation = hostPath(QStringLiteral("Varn62E/Varn"));
        result.map = QStringLiteral("Test");
        result.data = QStringList(drive().hostPath(Item));
        result.symbols = drive().hostPath(Symbols);
        result.output = hostPath(output);
        return result;
    }

    QByteArray plotted(PlotOptions::Command command, const QString& output) const
    {
        plotQuietly(options(command, output));
        return read(QStringLiteral("C:\\") + output);
    }
};

std::string usageErrorOf(const QStringList& arguments)
{
    try {
        readPlotOptions(arguments);
    } catch (const UsageError& error) {
        return error.what();
    }
    return "";
}

QStringList words(const char* line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// The first compressed part of a PDF: what is painted on its first page.
QByteArray firstStream(const QByteArray& pdf)
{
    const QByteArray begin = "stream\n";
    const QByteArray anyLength(4, '\1');
    return qUncompress(anyLength + pdf.mid(pdf.indexOf(begin) + begin.size()));
}

} // namespace

TEST(PlotOptions, TheCommandLineIsRead)
{
    const auto options = readPlotOptions(
        words("linguistic-map --installation i --map m --data d.dbs --symbols s.han --output o.SVG "
              "--location top --locality-dots --height 120.5 --dpi 300"));
    ASSERT_TRUE(options);
    EXPECT_EQ(options->command, PlotOptions::Command::LinguisticMap);
    EXPECT_EQ(options->symbols, QStringLiteral("s.han"));
    EXPECT_EQ(options->location, HankoUp);
    EXPECT_TRUE(options->localityDots);
    EXPECT_EQ(options->height, 120.5);
    EXPECT_EQ(options->dotsPerInch, 300);
    EXPECT_FALSE(readPlotOptions(words("--help")));

    const QByteArray atlas = "atlas --installation i --map m --output o.pdf --height 2000 --location ";
    const std::pair<const char*, qint16> places[] = {{"center", HankoCenter},
                                                     {"right", HankoRight},
                                                     {"left", HankoLeft},
                                                     {"top", HankoUp},
                                                     {"bottom", HankoDown}};
    for (const auto& [name, place] : places) {
        EXPECT_EQ(readPlotOptions(words((atlas + name).constData()))->location, place) << name;
    }
    const QByteArray diffusion = "diffusion-map --installation i --map m --counts c.ttl --output o.png "
                                 "--dpi 2400 --word-form 10 --graph ";
    for (const char* name : {"bar", "layered-bar", "circle", "layered-circle"}) {
        const auto read = readPlotOptions(words((diffusion + name).constData()));
        EXPECT_EQ(read->graph == DiffusionGraph::Bar, QByteArray(name).endsWith("bar")) << name;
        EXPECT_EQ(read->layered, QByteArray(name).startsWith("layered")) << name;
        EXPECT_EQ(read->wordForm, 10);
    }
}

TEST(PlotOptions, AnImportIsRead)
{
    const auto options = readPlotOptions(
        words("import --installation i --map m --source s.csv --localities l.kml --base-map a --base-map b "
              "--projection epsg:3035 --answers \\n --use cognates --column item=a=b --column Left=c"));
    ASSERT_TRUE(options);
    EXPECT_EQ(options->source.path, QStringLiteral("s.csv"));
    EXPECT_EQ(options->source.localities, QStringLiteral("l.kml"));
    EXPECT_EQ(options->newSurvey.baseMap, QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    EXPECT_EQ(options->newSurvey.projection, QStringLiteral("EPSG:3035"));
    EXPECT_EQ(options->source.answerSeparator, QStringLiteral("\n"));
    EXPECT_EQ(options->source.words, WordSource::Cognates);
    EXPECT_EQ(options->source.columns[QStringLiteral("a=b")], ColumnRole::Item);
    EXPECT_EQ(options->source.columns[QStringLiteral("c")], ColumnRole::Left);
}

TEST(PlotOptions, WhatIsNotUnderstoodIsSaid)
{
    const char* rows[] = {
        "",
        "draw --map m",
        "blank-map --installation i --map m",
        "import --installation i --map m --source s --use words",
        "import --installation i --map m --source s --column colour=a",
        "import --installation i --map m --source s --column a",
        "import --installation i --map m --source s --projection mercator",
        "blank-map --installation i --map m --output o.gif",
        "blank-map --installation i --map m --output o.png --data d",
        "blank-map --installation i --map m --output o.png extra",
        "blank-map --installation i --map m --output o.png --height 0",
        "blank-map --installation i --map m --output o.png --height 2001",
        "blank-map --installation i --map m --output o.png --height tall",
        "blank-map --installation i --map m --output o.png --dpi 2401",
        "symbol-diffusion-map --installation i --map m --counts c.ttl --symbols s.htl --output o.png "
        "--word-form 11",
        "blank-map --installation i --map m --output o.png --colour red",
        "symbols --installation i --map m --output o.png",
        "atlas --installation i --map m --output o.pdf --location above",
    };
    for (const char* row : rows) {
        EXPECT_NE(usageErrorOf(words(row)), "") << row;
    }
}

TEST(Plot, TextStaysTextAndShapesStayVectors)
{
    const PlotSurvey survey;
    const QByteArray svg = survey.plotted(PlotOptions::Command::LinguisticMap, QStringLiteral("map.svg"));
    EXPECT_TRUE(svg.contains(">the word ame<"));
    EXPECT_TRUE(svg.contains(">Rain<"));
    EXPECT_TRUE(svg.contains("<path") || svg.contains("<ellipse"));
    EXPECT_FALSE(svg.contains("<image"));
    EXPECT_TRUE(svg.contains("width=\"211.667mm\" height=\"158.75mm\""));

    const QByteArray pdf = survey.plotted(PlotOptions::Command::LinguisticMap, QStringLiteral("map.pdf"));
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_TRUE(pdf.contains("/MediaBox [0 0 600.000000 450.000000]"));
    EXPECT_TRUE(firstStream(pdf).contains("\n0.050000000 0 0 -0.050000000 0 450 cm\n"))
        << "a twip is a twentieth of a point, and the drawing begins at the corner of the page";
    EXPECT_EQ(pdf.contains("/FontFile2"), anyFont()) << "the text's font is embedded";
    EXPECT_FALSE(pdf.contains("/Subtype /Image"));
}

TEST(Plot, APictureCoversTheDrawingArea)
{
    const PlotSurvey survey;
    PlotOptions options = survey.options(PlotOptions::Command::LinguisticMap, QStringLiteral("map.png"));
    plotQuietly(options);
    const QImage first(options.output);
    EXPECT_EQ(first.size(), QSize(1600, 1200));
    // Locality 1 at 100, 200: a symbol filled light red there.
    const auto pixel = [](float unit) { return static_cast<int>((unit * 8.82F + 50) / 15 * 2); };
    EXPECT_EQ(first.pixel(pixel(100), pixel(200)), qRgb(255, 0, 0));
    EXPECT_EQ(first.pixel(pixel(300), pixel(400)), qRgb(255, 255, 255)) << "no answer there";

    EXPECT_EQ(first.dotsPerMeterX(), 7559) << "192 dots per inch";
    EXPECT_EQ(first.dotsPerMeterY(), 7559);

    options.height = 100;
    options.dotsPerInch = 96;
    plotQuietly(options);
    EXPECT_EQ(QImage(options.output).size(), QSize(504, 378));
    EXPECT_EQ(QImage(options.output).dotsPerMeterY(), 3780);
}

TEST(Plot, AnAtlasHasAPageForEachItemWithSymbols)
{
    PlotSurvey survey;
    const QString ling = survey.varn.dataFolder() + QLatin1Char('\\');
    survey.write(ling + QStringLiteral("alone.dbs"), "0,\"\",\"\",\"\"\r\n");
    survey.write(ling + QStringLiteral("Able.DBS"), survey.read(Item));
    survey.write(ling + QStringLiteral("able.HAN"), survey.read(Symbols));
    KeptTales tales;
    EXPECT_TRUE(plot(survey.options(PlotOptions::Command::Atlas, QStringLiteral("atlas.pdf")), tales));
    EXPECT_EQ(tales.pagesTold, QStringList({QStringLiteral("1/2 Able"), QStringLiteral("2/2 rain")}));
    const QByteArray atlas = survey.read(QStringLiteral("C:\\atlas.pdf"));
    EXPECT_EQ(atlas.count("/Type /Page\n"), 2);
    EXPECT_GT(firstStream(atlas).size(), 1000) << "the first map is on the first page";
}

TEST(Plot, AFailedPlotLeavesTheOldFile)
{
    PlotSurvey survey;
    survey.write(QStringLiteral("C:\\map.pdf"), "old");
    survey.write(survey.varn.dataFolder() + QStringLiteral("\\zz.dbs"), "not a number");
    survey.write(survey.varn.dataFolder() + QStringLiteral("\\zz.han"), survey.read(Symbols));
    const RunTimeError error =
        errorOf([&] { plotQuietly(survey.options(PlotOptions::Command::Atlas, QStringLiteral("map.pdf"))); });
    EXPECT_EQ(error.number(), ErrorNumber::TypeMismatch);
    EXPECT_TRUE(error.place().path.endsWith(QStringLiteral("zz.dbs")));
    EXPECT_EQ(survey.read(QStringLiteral("C:\\map.pdf")), "old");

    PlotOptions noMap = survey.options(PlotOptions::Command::BlankMap, QStringLiteral("new.png"));
    noMap.map = QStringLiteral("Nowhere");
    EXPECT_EQ(errorOf([&] { plotQuietly(noMap); }).number(), ErrorNumber::PathNotFound);
    EXPECT_FALSE(QFile::exists(noMap.output));
}
