// What leaves the atlas window, and the maps that it shows beside those of items.

#include "atlas/AtlasExport.h"

#include "analysis/ContrastMap.h"
#include "analysis/CumulativeFile.h"
#include "analysis/DiffusionGraphs.h"
#include "atlas/AtlasItem.h"
#include "atlas/AtlasMapKind.h"
#include "atlas/InstalledMaps.h"
#include "plot/DrawingOut.h"
#include "render/MadeSymbols.h"
#include "shell/MapParts.h"
#include "tests/support/PlainPdf.h"
#include "tests/support/TestDrive.h"

#include <QBuffer>
#include <QFile>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPicture>
#include <QRegularExpression>

namespace {

/// A survey with three items, the second of which is broken; the first has symbols.
class ExportedAtlas : public testing::Test
{
protected:
    ExportedAtlas()
    {
        survey.write(ling("a.dbs"), "3,\"\",\"Rain\",\"\"\r\n1\r\n\"ame\"\r\n0\r\n1\r\n\"uyu\"\r\n");
        survey.write(ling("a.han"), "\"\"\r\n1\r\n\"ame\",\"AME\"\r\n1\r\n0\r\n0\r\n1\r\n1\r\n1\r\n");
        survey.write(ling("b.dbs"), "3,\"\",\"Snow\",\"\"\r\nmany\r\n");
        survey.write(ling("c.dbs"), "3,\"\",\"Hail\",\"\"\r\n0\r\n0\r\n1\r\n\"hyo\"\r\n");
        fixLingFolder(varn);
    }

    static QString ling(const char* file)
    {
        return QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\") + QLatin1String(file);
    }
    AtlasExport save(const PageOfItem& pageOf, const ExportProgress& progress = goOn)
    {
        return exportAtlas(varn, atlasItemPaths(varn), {pageOf, settings, localityCells(varn, varn)},
                           firstArea(), file, progress);
    }
    AtlasPage read(const QString& path) const { return readAtlasPage(varn, path); }
    QByteArray written() const
    {
        QFile pdf(file);
        return pdf.open(QIODevice::ReadOnly) ? pdf.readAll() : QByteArray();
    }
    static bool goOn(int, int, const QString&) { return true; }

    TestSurvey survey;
    VarnModule& varn = survey.varn;
    QString file = survey.hostPath("atlas.pdf");
    ItemMapSettings settings;
    const PageOfItem fromFiles = [this](const QString& path) { return read(path); };
};

} // namespace

TEST_F(ExportedAtlas, HasAPageForEachItemThatCanBeRead)
{
    QStringList told;
    const AtlasExport done = save(fromFiles, [&](int number, int total, const QString& item) {
        told << QStringLiteral("%1/%2 %3").arg(number).arg(total).arg(item);
        return true;
    });
    EXPECT_TRUE(done.saved);
    EXPECT_EQ(done.pages, 2);
    EXPECT_EQ(told.mid(0, 3), QStringList({"0/3 a", "1/3 b", "2/3 c"}));
    EXPECT_EQ(told.last(), "2/2 Hail") << "painted";
    ASSERT_EQ(done.leftOut.size(), 1);
    EXPECT_TRUE(done.leftOut[0].startsWith("b: ")) << qPrintable(done.leftOut[0]);
    EXPECT_TRUE(written().startsWith("%PDF-"));
    survey.write(ling("c.han"), "many");
    EXPECT_EQ(save(fromFiles).leftOut.size(), 2) << "a map without its symbols would look like a whole one";
}

TEST_F(ExportedAtlas, StoppedOrFailedLeavesTheFileAsItWas)
{
    const auto stopAtLast = [](int number, int, const QString&) { return number < 2; };
    EXPECT_FALSE(save(fromFiles, stopAtLast).saved);
    EXPECT_FALSE(QFile::exists(file));
    survey.write("C:\\old.pdf", "old");
    file = survey.hostPath("old.pdf");
    EXPECT_FALSE(save(fromFiles, stopAtLast).saved);
    const PageOfItem noPage = [](const QString&) -> AtlasPage { throw RunTimeError(ErrorNumber::DiskFull); };
    EXPECT_EQ(errorOf([&] { save(noPage); }).number(), ErrorNumber::FileNotFound);
    EXPECT_EQ(written(), "old");
    file = survey.hostPath("nowhere/atlas.pdf");
    EXPECT_EQ(errorOf([&] { save(fromFiles); }).number(), ErrorNumber::PathNotFound);
}

TEST_F(ExportedAtlas, PagesAreAsTheyAreNowAndTheGeometryOfTheMapFormIsLeftAlone)
{
    varn.Scale = 7;
    const PageOfItem changed = [this](const QString& path) {
        AtlasPage page = read(path);
        page.item.Hanrei += " now";
        return page;
    };
    save(changed);
    const QByteArray pdf = plain(written());
    EXPECT_EQ(pdf.count("/Type /Page\n"), 2);
    EXPECT_TRUE(pdf.contains("/Title (Rain now)") && pdf.contains("/Title (Hail now)"));
    EXPECT_EQ(varn.Scale, 7);
}

TEST_F(ExportedAtlas, MadeSymbolsMarkWholeWordForms)
{
    survey.write(ling("a.dbs"), "3,\"\",\"Rain\",\"\"\r\n1\r\n\"ame\"\r\n1\r\n\"amer\"\r\n0\r\n");
    const auto made = makeSymbols({{{"ame", 1}}}, false, 0);
    ASSERT_EQ(made.size(), 1U);
    const PageOfItem madePages = [&](const QString& path) {
        AtlasPage page = read(path);
        page.symbols.Explain = made[0].Explain;
        return page;
    };
    save(fromFiles);
    const auto parts = painted(plain(written()));
    save(madePages);
    EXPECT_LT(painted(plain(written())), parts) << "\"ame\" is a part of \"amer\"";
}

TEST_F(ExportedAtlas, PagesShowTheKindOfMapThatIsAskedFor)
{
    survey.write(ling("c.dbs"), "3,\"\",\"Hail\",\"\"\r\n0\r\n0\r\n0\r\n");
    survey.write(ling("a.dbs"), "3,\"\",\"Rain\",\"\"\r\n1\r\n\"ame\"\r\n1\r\n\"uyu\"\r\n0\r\n");
    survey.write(ling("a.han"), QByteArray(survey.read(ling("a.han"))).replace("1\r\n\"ame", "2\r\n\"ame") +
                                    "\"uyu\",\"UYU\"\r\n2\r\n1\r\n1\r\n1\r\n1\r\n1\r\n");
    save(fromFiles);
    const auto symbols = shapesOf(written(), 0);
    settings = {ItemMapKind::Areas, {AreaLook::Colored, true}, {}};
    save(fromFiles);
    const auto areas = shapesOf(written(), 0);
    EXPECT_TRUE(areas[0].painting.startsWith("f") && symbols[0].painting.startsWith("S"))
        << "areas lie under the base map";
    EXPECT_TRUE(areas.contains(symbols[0])) << "which is there";
    EXPECT_TRUE(shapesOf(written(), 1)[0] == symbols[0]) << "nothing is answered there";
    settings.areas.withSymbols = false;
    save(fromFiles);
    EXPECT_LT(shapesOf(written(), 0).size(), areas.size());
    settings.kind = ItemMapKind::Isoglosses;
    save(fromFiles);
    const auto isoglosses = shapesOf(written(), 0);
    EXPECT_TRUE(isoglosses[0].painting.startsWith("S 0.698"))
        << "a red line, under the names of the base map";
    EXPECT_TRUE(isoglosses.contains(symbols[0]));
    EXPECT_EQ(countOf(symbols, "S 0.698") + countOf(areas, "S 0.698"), 0);
}

TEST_F(ExportedAtlas, MapsOfTheTableAreThoseOfTheMapForm)
{
    EXPECT_FALSE(howToHave(AtlasMapKind::Bars, varn).isEmpty()) << "there is no table";
    survey.write(ling("all.ttl"),
                 "2,5,\"the caption\"\r\n\"one\"\r\n12,9\r\n\"kept\",3\r\n\"two\"\r\n0,15\r\n2.5,0\r\n"
                 "1,2\r\n3,2\r\n5,4\r\n");
    LoadTotalFile(varn.Drive, ling("all.ttl"), varn.NLocality, varn);
    EXPECT_TRUE(canDraw(AtlasMapKind::LayeredCircles, varn));
    EXPECT_FALSE(canDraw(AtlasMapKind::Symbols, varn));
    EXPECT_FALSE(canDraw(AtlasMapKind::Contrast, varn));

    const auto texts = [&](AtlasMapKind kind, int wordForm) {
        survey.frmMap.Cls();
        drawTableMap(kind, wordForm, varn, survey.surfaces);
        return survey.frmMap.drawing();
    };
    const Drawing second = texts(AtlasMapKind::Bars, 2);
    EXPECT_EQ(varn.CurrentWordform, 1) << "the map form goes on with its own";
    EXPECT_TRUE(wasPrinted(second, "two"));
    EXPECT_FALSE(wasPrinted(second, "one"));
    EXPECT_TRUE(operationsOf<EllipseOperation>(second).empty());
    const Drawing all = texts(AtlasMapKind::LayeredCircles, 2);
    EXPECT_TRUE(wasPrinted(all, "one") && wasPrinted(all, "two"));
    EXPECT_FALSE(operationsOf<EllipseOperation>(all).empty());
    EXPECT_EQ(errorOf([&] { texts(AtlasMapKind::Bars, 3); }).number(), ErrorNumber::SubscriptOutOfRange);
}

TEST_F(ExportedAtlas, AMapIsPrintedAtItsSizeOrSmallerWhereThePaperIs)
{
    DrawSurface map;
    map.Line(0, 0, 1440, 0, qRgb(0, 0, 0));
    const auto pointsWide = [&](double inches) {
        QBuffer pdf;
        pdf.open(QIODevice::WriteOnly);
        QPdfWriter page(&pdf);
        page.setResolution(1440);
        page.setPageSize(QPageSize(QPageSize::A4));
        page.setPageMargins(QMarginsF(10, 10, 10, 10), QPageLayout::Millimeter);
        QPicture picture;
        QPainter painter(&picture);
        paintOnPage(map.drawing(), QSizeF(inches * 1440, 1440), painter, page);
        painter.end();
        return picture.boundingRect().width();
    };
    EXPECT_NEAR(pointsWide(4), 1440, 30);
    EXPECT_NEAR(pointsWide(20), 1440 * 190 / 25.4 / 20, 30) << "19 cm of 20 inches";
}

TEST_F(ExportedAtlas, AllMapsAreListedWithTheirCounts)
{
    const QString data = "C:\\Varn62E\\Varn\\VarnData";
    survey.write(data + "\\Alone\\Map\\Loc.map", "1\r\n5,5\r\n");
    survey.write(data + "\\Broken\\Map\\Loc.map", "many\r\n");
    survey.write(data + "\\Broken\\Ling\\a.dbs", "");
    survey.write(data + "\\Square.sbl", "0\r\n");
    QStringList lines;
    for (const InstalledMap& map : installedMaps(varn)) {
        lines << QStringLiteral("%1 %2 %3 %4")
                     .arg(map.name)
                     .arg(map.items)
                     .arg(map.localities)
                     .arg(map.trouble.isEmpty() ? "opens" : "broken");
    }
    EXPECT_EQ(lines, QStringList({"Alone 0 1 opens", "Broken 1 0 broken", "Test 3 3 opens"}));
    EXPECT_EQ(varn.VarnMapName, "\\Test") << "the open map stays";
}
