// What a user is told while a new survey is described, and what becomes of what is said.

#include "exchange/SurveyDraft.h"

#include "exchange/NamedLocalities.h"
#include "tests/support/TestDrive.h"

#include <QDir>

namespace {

bool goOn(int, int, const QString&)
{
    return true;
}

class Drafts : public testing::Test
{
protected:
    Drafts()
    {
        // Coordinates under headings that tell nothing, and an item that is called as names are.
        put("isle.csv", "Ort,a,b,rain,Name\nAnn,5,52,ame;uyu,x\nBo,6,52,ame,y\nCy,5,53,,x\n");
        put("coast.geojson", R"({"type":"LineString","coordinates":[[4,51],[7,51],[7,54],[4,54]]})");
    }

    QString put(const char* name, const QByteArray& text) const
    {
        survey.write(QStringLiteral("C:\\") + QLatin1String(name), text);
        return survey.hostPath(QLatin1String(name));
    }
    void open(const QString& path)
    {
        draft.source().setPath(path);
        draft.source().read();
    }
    void correct(int column, ColumnRole role)
    {
        draft.source().setRole(column, role);
        draft.source().read();
    }
    void describeIsle()
    {
        open(survey.hostPath("isle.csv"));
        correct(1, ColumnRole::Longitude);
        correct(2, ColumnRole::Latitude);
        draft.takeSource();
        draft.setBaseMap({survey.hostPath("coast.geojson")});
    }

    TestSurvey survey;
    SurveyDraft draft{survey.varn};
};

} // namespace

TEST_F(Drafts, ColumnsAreCorrectedOneByOneUntilTheSourceIsASurvey)
{
    SourceDraft& source = draft.source();
    open(survey.hostPath("none.csv"));
    EXPECT_FALSE(source.isOpen());
    EXPECT_EQ(source.fault(), "File not found.\n" + survey.hostPath("none.csv"));
    open(survey.hostPath("isle.csv"));
    EXPECT_TRUE(source.isOpen()) << "its columns can be corrected";
    EXPECT_TRUE(source.fault().contains("does not say where its localities lie"))
        << qPrintable(source.fault());
    correct(1, ColumnRole::Latitude);
    correct(1, ColumnRole::Longitude);
    EXPECT_FALSE(source.survey());
    correct(2, ColumnRole::Longitude);
    EXPECT_NE(source.role(1), ColumnRole::Longitude) << "only one column can be the longitude";
    correct(2, ColumnRole::Latitude);
    correct(1, ColumnRole::Longitude);
    EXPECT_EQ(source.fault(), "");
    EXPECT_EQ(source.description().section('\n', 0, 1),
              "A table: 3 rows and 5 columns, wide: a row a locality, a column an item\n"
              "3 localities, 2 items");
    EXPECT_EQ(source.guessedSeparator(), ";");
    correct(4, ColumnRole::Left);
    EXPECT_EQ(source.survey()->items.size(), 1U);
    correct(4, ColumnRole::Answer);
    EXPECT_EQ(source.fault().section('\n', 0, 0),
              "The column \"Name\" holds answers, but none names the items; say which one does.");
}

TEST_F(Drafts, AFileThatWasMendedIsReadAnew)
{
    const QByteArray rows = "name,longitude,latitude,rain\nAnn,5,52,ame\nBo,6,";
    open(put("isle.csv", rows + "north,yuki\n"));
    EXPECT_TRUE(draft.source().fault().endsWith(", row 3, column 3")) << qPrintable(draft.source().fault());
    put("isle.csv", rows + "52,yuki\n");
    draft.source().read();
    EXPECT_EQ(draft.source().fault(), "");
    EXPECT_EQ(draft.source().table()->rows[1].cells[2], "52");
}

TEST_F(Drafts, TheSurveyIsMadeOfWhatWasSaidAndWrittenOnce)
{
    describeIsle();
    EXPECT_EQ(draft.mapName() + '/' + draft.title(), "isle/isle");
    EXPECT_EQ(std::pair(draft.items()[0].kinds, draft.items()[0].localities), std::pair(2, 2));
    draft.setProjection("EPSG:1");
    EXPECT_FALSE(draft.make(goOn));
    EXPECT_NE(draft.fault(), "");
    draft.setProjection("tmerc");
    draft.setTitle("The isle");
    EXPECT_TRUE(draft.make(goOn));
    EXPECT_EQ(draft.made()->placeNames.KanjiText(1), "The isle");
    EXPECT_TRUE(draft.made()->names.projection.contains("tmerc"));

    draft.setMapName("TEST");
    EXPECT_NE(draft.mapNameFault(), "");
    draft.setMapName("isle");
    const QDir maps(survey.hostPath("Varn62E/Varn/VarnData"));
    EXPECT_FALSE(draft.create([](int, int, const QString&) { return false; }));
    EXPECT_EQ(draft.fault(), "");
    EXPECT_EQ(maps.entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot), QStringList("Test"));
    EXPECT_TRUE(draft.create(goOn));
    EXPECT_TRUE(maps.exists("isle/Ling/" + draft.firstItem() + ".han"));

    SurveyDraft next(survey.varn);
    next.source().setPath(survey.hostPath("isle.csv"));
    next.source().read();
    next.source().setRole(1, ColumnRole::Longitude);
    next.source().setRole(2, ColumnRole::Latitude);
    next.source().read();
    next.takeSource();
    EXPECT_EQ(next.mapName(), "isle 2") << "the name is taken";
    next.choose(0, false);
    next.takeSource();
    EXPECT_EQ(next.chosenItems(), 1) << "whoever goes back and on finds his choice";
}

TEST_F(Drafts, LocalitiesWithNamesAndDegreesAreLaidOnTheMapThatIsThere)
{
    const QString table = put("places.csv", "Name,Longitude,Latitude\nAnn,5,52\nBo,6,52\n");
    const auto fresh = readNamedLocalities(table, {});
    EXPECT_EQ(fresh->names.localityNames[1].name, "Bo");
    describeIsle();
    draft.make(goOn);
    const auto laid = readNamedLocalities(table, draft.made()->names);
    EXPECT_EQ(laid->localities.LocXY(2, 0), draft.made()->localities.LocXY(2, 0));
    EXPECT_NE(laid->localities.LocXY(2, 0), fresh->localities.LocXY(2, 0));
    for (const char* bare : {"x,y\n1,2\n", "longitude,latitude\n5,52\n", "1 2\n3 4\n", "2\n1,2\n3,4\n"}) {
        EXPECT_FALSE(readNamedLocalities(put("bare.txt", bare), {})) << bare;
    }
}
