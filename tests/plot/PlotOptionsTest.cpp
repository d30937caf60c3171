#include "plot/PlotOptions.h"

#include "tests/support/TestDrive.h"

namespace {

QStringList words(const QByteArray& line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

std::string usageErrorOf(const QByteArray& line)
{
    try {
        readPlotOptions(words(line));
    } catch (const UsageError& error) {
        return error.what();
    }
    return "";
}

} // namespace

TEST(PlotOptions, PlacesGraphsAndTheLargestNumbersAreRead)
{
    const QByteArray atlas = "atlas --installation i --map m --output o.pdf --height 2000 --location ";
    const char* const places[] = {"center", "right", "left", "top", "bottom"};
    for (qint16 place = HankoCenter; place <= HankoDown; ++place) {
        EXPECT_EQ(readPlotOptions(words(atlas + places[place])).location, place);
    }
    const QByteArray diffusion = "diffusion-map --installation i --map m --counts c.ttl --output o.png "
                                 "--dpi 2400 --word-form 10 --graph ";
    for (const char* name : {"bar", "layered-bar", "circle", "layered-circle"}) {
        const auto read = readPlotOptions(words(diffusion + name));
        EXPECT_EQ(read.graph == DiffusionGraph::Bar, QByteArray(name).endsWith("bar")) << name;
        EXPECT_EQ(read.layered, QByteArray(name).startsWith("layered")) << name;
        EXPECT_EQ(read.wordForm, 10);
    }
}

TEST(PlotOptions, AnImportIsRead)
{
    const auto options = readPlotOptions(
        words("import --installation i --map m --source s.csv --localities l.kml --base-map a --base-map b "
              "--projection epsg:3035 --answers \\n --use cognates --column item=a=b --column Left=c"));
    EXPECT_EQ(options.source.path, "s.csv");
    EXPECT_EQ(options.source.localities, "l.kml");
    EXPECT_EQ(options.newSurvey.baseMap, QStringList({"a", "b"}));
    EXPECT_EQ(options.newSurvey.projection, "EPSG:3035");
    EXPECT_EQ(options.source.answerSeparator, "\n");
    EXPECT_EQ(options.source.words, WordSource::Cognates);
    EXPECT_EQ(options.source.columns["a=b"], ColumnRole::Item);
    EXPECT_EQ(options.source.columns["c"], ColumnRole::Left);
}

TEST(PlotOptions, MapsOfTheSurveyAreRead)
{
    const auto survey = [](const QByteArray& line) {
        return readPlotOptions(words(line + " --installation i --map m")).survey;
    };
    const SurveyOptions groups =
        survey("cluster-map --output o.svg --method average --clusters 9 --noise 0.5 "
               "--seed 7 --hatched --group-symbols --dendrogram");
    const DistanceMapSettings wanted = {DistanceMapKind::Clusters, 0,    ClassRule::AroundMean,
                                        LinkageMethod::Average,    9,    {0.5, 100, 7},
                                        AreaLook::Hatched,         true, true};
    EXPECT_EQ(groups.map, wanted);
    const SurveyOptions plain = survey("cluster-map --output o.svg");
    EXPECT_EQ(plain.map, DistanceMapSettings());
    EXPECT_EQ(plain.answers, AnswerRule());
    EXPECT_EQ(survey("reference-map --output o.svg --locality 1 --classes equal-widths").map.rule,
              ClassRule::EqualWidths);

    const SurveyOptions lines = survey("isogloss-map --output o.svg --numbers --whole-word-forms");
    EXPECT_EQ(lines.answers, (AnswerRule{AnswersBy::Kinds, true})) << "the kinds that symbols tell apart";
    EXPECT_TRUE(lines.items.isoglosses.numbers && !lines.items.isoglosses.smooth);
    EXPECT_TRUE(survey("isogloss-map --output o.svg --smooth").items.isoglosses.smooth);
    EXPECT_TRUE(survey("area-map --output o.svg --data a.dbs --symbols a.han --with-symbols")
                    .items.areas.withSymbols);

    const SurveyOptions marks =
        survey("group-marks --output o.csv --distances d.csv --items a.dbs --marks items "
               "--measure levenshtein --vowels-apart");
    EXPECT_TRUE(marks.itemsOfGroups) << "and items are looked for whatever made the groups";
    EXPECT_EQ(marks.measure, (DistanceSettings{DistanceMeasure::Levenshtein, true}));
    EXPECT_FALSE(survey("group-marks --output o.csv --marks forms").itemsOfGroups);
}

TEST(PlotOptions, WhatIsNotUnderstoodIsSaid)
{
    // Endings: a file of another ending would be read, and one of the right ending written over.
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"", "", "a command is missing"},
        {"draw", "", "unknown command 'draw'"},
        {"blank-map", "", "blank-map needs --output"},
        {"blank-map", "--output o.png --data d", "blank-map takes no --data"},
        {"blank-map", "--output o.png extra", "unexpected 'extra'"},
        {"blank-map", "--output o.png --height 0", "--height is a number above 0, at most 2000"},
        {"blank-map", "--output o.png --height 2001", "--height is"},
        {"blank-map", "--output o.png --height tall", "--height is"},
        {"blank-map", "--output o.png --dpi 2401", "--dpi is a number above 0, at most 2400"},
        {"blank-map", "--output o.png --colour red", "colour"},
        {"blank-map", "--output o.gif", "--output must end in .svg, .pdf, .png"},
        {"symbols", "--output o.png", "--output must end in .pdf"},
        {"atlas", "--output o.pdf --location above", "--location is one of center, right, left, top, bottom"},
        {"atlas", "--output o.pdf --kind groups", "--kind is one of symbols, areas, isoglosses"},
        {"atlas", "--output o.pdf --hatched", "--hatched goes with --kind areas"},
        {"atlas", "--output o.pdf --kind isoglosses --with-symbols", "--with-symbols goes with --kind areas"},
        {"atlas", "--output o.pdf --kind areas --smooth", "--smooth goes with --kind isoglosses"},
        {"atlas", "--output o.pdf --kind areas --location top", "--location goes with --kind symbols or"},
        {"area-map", "--data a.dbs --symbols a.han --output o.svg --kind areas", "area-map takes no --kind"},
        {"linguistic-map", "--data a.dbs --symbols a.htL --output o.svg", "--symbols must end in .han"},
        {"import", "--source s --use words", "--use is one of forms, cognates, codes"},
        {"import", "--source s --column colour=a", "ROLE"},
        {"import", "--source s --column a", "--column is ROLE=NAME"},
        {"import", "--source s --projection mercator", "--projection is"},
        {"accumulate", "--counts all.bak --characters a.sum --data a.dbs", "--counts must end in .ttl"},
        {"accumulate", "--counts a.ttl --characters a.txt --data a.dbs", "--characters must end in .sum"},
        {"accumulate", "--counts a.ttl --characters a.sum --data a.dbs x.han", "--data must end in .dbs"},
        {"diffusion-map", "--counts c.ttl --graph pie --output o.svg", "--graph is one of bar, layered-bar"},
        {"symbol-diffusion-map", "--counts c.ttl --symbols s.htl --output o.png --word-form 11",
         "--word-form is a whole number from 1 to 10"},
        {"symbol-diffusion-map", "--counts c.ttl --symbols a.han --output o.svg",
         "--symbols must end in .htl"},
        {"contrast-map", "--counts c.ttl --contrast c.ttl --output o.svg", "--contrast must end in .rnk"},
        {"distances", "--output d.txt", "--output must end in .csv"},
        {"distances", "--output d.csv --measure edit", "--measure is one of relative-identity, weighted"},
        {"distances", "--output d.csv --vowels-apart", "--vowels-apart goes with --measure levenshtein"},
        {"distances", "--output d.csv --measure levenshtein --compare kinds", "compares word forms"},
        {"cluster-map", "--output o.svg --distances d.csv --items a.dbs", "--items goes with items, not"},
        {"cluster-map", "--output o.svg --distances d.csv --keep-going", "--keep-going goes with items, not"},
        {"cluster-map", "--output o.svg --items a.han", "--items must end in .dbs"},
        {"cluster-map", "--output o.svg --method nearest", "--method is one of single, complete"},
        {"cluster-map", "--output o.svg --clusters 0", "--clusters is a whole number from 1 to 1000"},
        {"cluster-map", "--output o.svg --clusters 2.5", "--clusters is a whole number"},
        {"cluster-map", "--output o.svg --noise 11", "--noise is a number above 0, at most 10"},
        {"group-marks", "--output o.csv --marks words", "--marks is one of forms, items"},
        {"reference-map", "--output o.svg", "reference-map needs --locality"},
        {"isogloss-map", "--output o.svg --distances d.csv", "isogloss-map takes no --distances"},
    };
    for (const auto& [command, options, text] : rows) {
        const QByteArray line = QByteArray(command) + " --installation i --map m " + options;
        EXPECT_TRUE(usageErrorOf(line).find(text) != std::string::npos) << line.constData() << '\n'
                                                                        << usageErrorOf(line);
    }
}
