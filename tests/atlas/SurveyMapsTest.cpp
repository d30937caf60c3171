// Maps of the survey as a whole in the atlas: what is compared, and that it is what the window shows.

#include "atlas/AtlasOtherMap.h"
#include "atlas/AtlasSurveyMaps.h"
#include "atlas/GroupMarksTable.h"
#include "render/MapSize.h"
#include "shell/MapParts.h"
#include "tests/atlas/AtlasSurvey.h"
#include "tests/support/Transcript.h"

#include <QEventLoop>
#include <QTimer>

namespace {

class SurveyOfTwoItems : public AtlasSurvey
{
protected:
    SurveyOfTwoItems()
    {
        DistanceMapSettings settings;
        settings.groups = 2;
        maps.setSettings(settings);
    }

    /// Waits until nothing is worked on.
    void wait()
    {
        QEventLoop loop;
        QTimer::singleShot(30000, &loop, [&loop] { loop.exit(1); });
        QObject::connect(&maps, &AtlasSurveyMaps::progressed, &loop, [&] {
            if (!maps.isBusy()) {
                loop.exit(0);
            }
        });
        EXPECT_TRUE(!maps.isBusy() || loop.exec() == 0) << "it takes too long";
    }
    QString drawn(AtlasMapKind kind)
    {
        MapGeometry geometry;
        SymbolSet symbols = document.page().symbols;
        const LinguisticMapParts parts{
            {varn, varn, symbols.SymbolFileName, geometry}, textParts(varn), document.page().item, symbols};
        return QString::fromStdString(
            transcript(drawOtherMap(parts, {}, otherMap(kind, 1, varn, maps)).drawing));
    }
    double distance(int a, int b) const { return maps.survey()->distances(a, b); }

    AtlasSurveyMaps maps{varn, document};
};

} // namespace

TEST_F(SurveyOfTwoItems, IsComparedAgainWhenAnAnswerChanges)
{
    // rain: ame/uyu, -, uyu; snow: yuki, yuki, -
    maps.setKind(AtlasMapKind::Clusters);
    wait();
    ASSERT_TRUE(maps.survey()) << qPrintable(maps.trouble());
    EXPECT_EQ(maps.survey()->name, "relative identity values over 2 items");
    EXPECT_EQ(distance(0, 1), 0);
    EXPECT_EQ(distance(0, 2), 0.5);
    EXPECT_FALSE(maps.survey()->distances.has(1, 2)) << "no item in common";
    EXPECT_TRUE(maps.notes().join(' ').contains("left out, for want of a distance")) << "of 2 or of 3";

    document.turnTo(ling("rain.dbs"));
    word(2, {"ame"});
    wait();
    EXPECT_EQ(distance(1, 2), 1) << "the answer is not saved, but shown";
    document.steps().undo();
    wait();
    EXPECT_FALSE(maps.survey()->distances.has(1, 2));

    survey.write(ling("snow.dbs"), QByteArray(SnowItem).replace("\r\n0\r\n", "\r\n1\r\n\"hyo\"\r\n"));
    maps.followFiles();
    wait();
    EXPECT_EQ(distance(1, 2), 1);
    const auto before = maps.survey();
    maps.followFiles();
    EXPECT_FALSE(maps.isBusy()) << "nothing changed";
    maps.setKind(AtlasMapKind::Dendrogram);
    wait();
    EXPECT_EQ(maps.survey(), before) << "nothing is compared again for another map of the same";
}

TEST_F(SurveyOfTwoItems, IsDrawnAsAskedFor)
{
    survey.write(ling("snow.dbs"), QByteArray(SnowItem).replace("\r\n0\r\n", "\r\n1\r\n\"hyo\"\r\n"));
    const std::pair<AtlasMapKind, const char*> rows[] = {
        {AtlasMapKind::Bundles, "Isoglosses of 2 items"},
        {AtlasMapKind::Reference, "Distance to locality 2"},
        {AtlasMapKind::Beams, "relative identity values over 2 items"},
        {AtlasMapKind::Clusters, "2 groups by Ward's method"},
        {AtlasMapKind::Dendrogram, "2 groups by Ward's method"},
        {AtlasMapKind::Scaling, "red: dimension 1"},
        {AtlasMapKind::ScalingPlot, "Multidimensional scaling"},
        {AtlasMapKind::LengthPlot, "r = "}};
    maps.setReference(2);
    for (const auto& [kind, text] : rows) {
        maps.setKind(kind);
        wait();
        EXPECT_EQ(maps.trouble(), "");
        const QString drawing = drawn(kind);
        EXPECT_TRUE(drawing.contains(text)) << qPrintable(drawing);
    }
    document.turnTo(ling("rain.dbs"));
    EXPECT_TRUE(drawn(AtlasMapKind::Areas).contains("AME"));
    EXPECT_TRUE(drawn(AtlasMapKind::Isoglosses).contains("Rain"));
}

TEST_F(SurveyOfTwoItems, IsComparedOnceForAllMapsThatAreAskedForMeanwhile)
{
    int begun = 0;
    QObject::connect(&maps, &AtlasSurveyMaps::progressed, &maps,
                     [&](int, int of) { begun += of == 0 && maps.isBusy() ? 1 : 0; });
    maps.setKind(AtlasMapKind::Clusters);
    maps.setKind(AtlasMapKind::Reference);
    maps.setReference(3);
    maps.setKind(AtlasMapKind::Beams);
    EXPECT_EQ(begun, 1);
    wait();
    EXPECT_EQ(maps.shownKind(), AtlasMapKind::Beams);
    EXPECT_EQ(maps.trouble(), "");

    SurveySource source = maps.source();
    source.measure.measure = DistanceMeasure::WeightedIdentity;
    maps.setSource(source);
    source.measure.measure = DistanceMeasure::Levenshtein;
    maps.setSource(source);
    wait();
    EXPECT_EQ(maps.name(), "Levenshtein distances over 2 items") << "what is not wanted any more is left";
}

TEST_F(SurveyOfTwoItems, TakesAnotherLookWithoutWork)
{
    maps.setKind(AtlasMapKind::Clusters);
    wait();
    DistanceMapSettings settings = maps.settings();
    settings.withDendrogram = true;
    settings.look = AreaLook::Hatched;
    maps.setSettings(settings);
    EXPECT_FALSE(maps.isBusy());
    const double map = firstArea().Width;
    EXPECT_GT(maps.size(firstArea()).width(), map) << "the tree stands beside it";
    settings.noise.noise = 0.5;
    maps.setSettings(settings);
    settings.symbols = true;
    maps.setSettings(settings);
    EXPECT_TRUE(maps.isBusy()) << "another look does not end the work";
    wait();
    EXPECT_FALSE(maps.findings().shares.empty());
    maps.setKind(AtlasMapKind::Bundles);
    wait();
    EXPECT_EQ(maps.size(firstArea()).width(), map) << "no tree stands beside isoglosses";
}

TEST_F(SurveyOfTwoItems, ComparesKindsByIdentityAlone)
{
    SurveySource source = maps.source();
    source.measure.measure = DistanceMeasure::Levenshtein;
    maps.setSource(source);
    EXPECT_EQ(maps.source().measure.measure, DistanceMeasure::Levenshtein);
    source.answers.by = AnswersBy::Kinds;
    maps.setSource(source);
    EXPECT_EQ(maps.source().measure.measure, DistanceMeasure::RelativeIdentity) << "kinds have no sounds";
}

TEST_F(SurveyOfTwoItems, TellsWhatMarksItsGroups)
{
    survey.write(ling("rain.dbs"),
                 "3,\"\",\"Rain\",\"\"\r\n1\r\n\"ame\"\r\n1\r\n\"ame\"\r\n1\r\n\"uyu\"\r\n");
    maps.setKind(AtlasMapKind::Clusters);
    wait();
    EXPECT_TRUE(maps.itemMarks().empty()) << "not asked for";
    maps.setWithItemMarks(true);
    wait();
    ASSERT_EQ(maps.itemMarks().size(), 2U);
    GroupMarksTable table;
    const auto row = [&table](int i) {
        QStringList texts;
        for (int column = 0; column < GroupMarksTable::Columns; ++column) {
            texts << table.index(i, column).data().toString();
        }
        return texts;
    };
    table.setForms(*maps.survey(), maps.findings().groups, 1);
    EXPECT_EQ(row(0), QStringList({"Rain", "ame", "1.00", "1.00"}));
    EXPECT_EQ(table.headerData(1, Qt::Horizontal), "Form");
    table.setItems(*maps.survey(), maps.itemMarks()[0]);
    EXPECT_EQ(row(0), QStringList({"Rain", "0.00", "1.00", "2.12"})) << "the root of 2/9 deviates";
    EXPECT_EQ(table.rowCount(), 1) << "snow has no distance that varies";
    EXPECT_EQ(table.headerData(1, Qt::Horizontal), "Within");
    table.clear();
    EXPECT_EQ(table.rowCount(), 0);
}

TEST_F(SurveyOfTwoItems, SaysWhyThereIsNoMap)
{
    maps.setKind(AtlasMapKind::Clusters);
    maps.stop();
    wait();
    EXPECT_FALSE(maps.survey());
    EXPECT_TRUE(maps.trouble().startsWith("Stopped")) << qPrintable(maps.trouble());
    maps.goOn();
    wait();
    EXPECT_EQ(maps.trouble(), "");
    const auto compared = maps.survey();
    EXPECT_TRUE(compared);
    DistanceMapSettings settings = maps.settings();
    settings.groups = 3;
    maps.setSettings(settings);
    wait();
    EXPECT_TRUE(maps.trouble().contains("3 groups cannot be made of 2 localities."))
        << qPrintable(maps.trouble());
    EXPECT_FALSE(maps.survey());
    settings.groups = 2;
    maps.setSettings(settings);
    wait();
    EXPECT_EQ(maps.trouble(), "");
    EXPECT_EQ(maps.survey(), compared) << "nothing is compared again for other groups";

    SurveySource source = maps.source();
    source.distancesFile = ling("d.csv");
    survey.write(ling("d.csv"), "\"\",\"1\",\"2\"\r\n\"1\",0,1\r\n\"2\",1,0\r\n");
    maps.setSource(source);
    wait();
    EXPECT_TRUE(maps.trouble().contains("d.csv")) << qPrintable(maps.trouble());
    survey.write(ling("d.csv"), "\"\",\"1\",\"2\",\"3\"\r\n\"1\",0,1,2\r\n\"2\",1,0,3\r\n\"3\",2,3,0\r\n");
    maps.followFiles();
    wait();
    EXPECT_EQ(maps.trouble(), "");
    EXPECT_EQ(distance(1, 2), 3);
    EXPECT_EQ(maps.survey()->name, "d");

    const auto before = maps.survey();
    document.setLegendPlace({300, 200});
    wait();
    EXPECT_EQ(maps.survey(), before) << "the legend is elsewhere on the same map";
    varn.LocXY(2, 0) += 50;
    maps.followFiles();
    EXPECT_TRUE(maps.isBusy()) << "a locality was imported anew";
    wait();
    EXPECT_EQ(maps.cellMap().map.LocXY(2, 0), varn.LocXY(2, 0));
    source = maps.source();
    EXPECT_EQ(source.distancesFile, "") << "of the map as it was";

    source.distancesFile.clear();
    source.items = {ling("none.dbs"), ling("rain.dbs")};
    maps.setSource(source);
    wait();
    EXPECT_TRUE(maps.notes().contains("none: File not found")) << qPrintable(maps.notes().join('\n'));
    source.items = {ling("none.dbs")};
    maps.setSource(source);
    wait();
    EXPECT_TRUE(maps.trouble().contains("no item to compare")) << qPrintable(maps.trouble());
}
