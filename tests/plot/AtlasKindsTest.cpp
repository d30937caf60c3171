// Atlases of linguistic maps, of areas and of isoglosses.

#include "plot/PlotCommands.h"
#include "render/MadeSymbols.h"
#include "tests/support/PlainPdf.h"
#include "tests/support/TestDrive.h"

#include <QFile>

namespace {

struct QuietListener : PlotListener
{
    void page(int page, int pages, const QString& /*name*/) override
    {
        EXPECT_TRUE(page >= 1 && page <= pages) << page;
    }
    void report(const QString& /*text*/) override {}
    void warning(const QString& text) override { warnings << text; }
    QStringList warnings;
};

/// A survey of three localities with items that answer "ame" at two of them; some symbols mark parts of it.
class AtlasKinds : public testing::Test
{
protected:
    AtlasKinds()
    {
        writeItem("rain", symbols("ame"));
        writeItem("wind", symbols("am"));
    }

    static QByteArray symbols(const QByteArray& kind, const QByteArray& comment = "")
    {
        const QByteArray style = "\r\n50\r\n4\r\n12\r\n1\r\n1\r\n0\r\n";
        return '"' + comment + "\"\r\n2\r\n\"" + kind + "\",\"the word\"" + style + "\"uyu\",\"another\"" +
               style;
    }
    void writeItem(const QByteArray& name, const QByteArray& symbols) const
    {
        const QString path = varn().dataFolder() + '\\' + name;
        survey.write(path + ".dbs", "3,\"\",\"Rain\",\"\"\r\n1\r\n\"ame\"\r\n1\r\n\"uyu\"\r\n"
                                    "2\r\n\"uyu\"\r\n\"ame\"\r\n");
        survey.write(path + ".han", symbols);
    }
    const VarnModule& varn() const { return survey.varn; }
    QString item(const QByteArray& name) const
    {
        return survey.drive().hostPath(varn().dataFolder()) + '/' + name;
    }

    /// Runs a command on the survey's map; returns what it writes.
    QByteArray plotted(const QByteArray& line, bool isWhole = true)
    {
        const QString output = survey.hostPath("out.pdf");
        const QStringList words = QString::fromLatin1(line).split(' ', Qt::SkipEmptyParts) +
                                  QStringList({"--installation", survey.hostPath("Varn62E/Varn"), "--map",
                                               "Test", "--output", output});
        EXPECT_EQ(plot(readPlotOptions(words), listener), isWhole) << line.constData();
        QFile pdf(output);
        return pdf.open(QIODevice::ReadOnly) ? pdf.readAll() : QByteArray();
    }
    /// The same of an item: an atlas of it alone, or another command on it.
    QByteArray ofItem(const QByteArray& name, const QByteArray& line)
    {
        const QByteArray path = item(name).toLatin1();
        return plotted(QByteArray(line).replace("ITEM", path + ".dbs").replace("SYMBOLS", path + ".han"));
    }

    TestSurvey survey;
    QuietListener listener;
};

const QByteArray AreaMap = "area-map --data ITEM --symbols SYMBOLS ";

} // namespace

TEST_F(AtlasKinds, PagesAreTheMapsOfTheirKind)
{
    const std::pair<QByteArray, QByteArray> rows[] = {
        {"", "linguistic-map --data ITEM --symbols SYMBOLS"},
        {"--kind symbols --location top", "linguistic-map --data ITEM --symbols SYMBOLS --location top"},
        {"--kind areas --height 100", AreaMap + "--height 100"},
        {"--kind areas --hatched --with-symbols", AreaMap + "--hatched --with-symbols"},
        {"--kind isoglosses --locality-dots", "isogloss-map --items ITEM --locality-dots"},
        {"--kind isoglosses --smooth", "isogloss-map --items ITEM --smooth"}};
    QList<QList<PaintedShape>> pages;
    for (const auto& [kind, map] : rows) {
        pages << shapesOf(ofItem("rain", "atlas --items ITEM " + kind), 0);
        EXPECT_TRUE(pages.last() == shapesOf(ofItem("rain", map), 0)) << kind.constData();
        EXPECT_EQ(pages.count(pages.last()), 1) << kind.constData();
    }
    const auto base = shapesOf(plotted("blank-map"), 0);
    EXPECT_TRUE(pages[0].mid(0, base.size()) == base) << "nothing lies under the base map";
    EXPECT_TRUE(pages[2][0].painting.startsWith("f")) << "areas lie under it";
    EXPECT_TRUE(pages[5].contains(base[0]) && !(pages[5][0] == base[0])) << "and so do isoglosses";
}

TEST_F(AtlasKinds, AreasAreTheSameForAnyNumberOfJobs)
{
    for (char item = 'a'; item < 'a' + 12; ++item) { // several parts
        writeItem({1, item}, symbols("ame").replace("the word", "the letter " + QByteArray(1, item)));
    }
    for (const QByteArray kind : {"areas --hatched", "isoglosses"}) {
        const QByteArray one = plotted("atlas --jobs 1 --kind " + kind);
        EXPECT_EQ(plotted("atlas --jobs 5 --kind " + kind), one) << kind.constData();
        EXPECT_EQ(plain(one).count("/Type /Page\n"), 14);
        EXPECT_EQ(plain(one).count("/Base Do"), 1) << "the base map once";
        EXPECT_TRUE(shapesOf(one, 8) == shapesOf(ofItem("i", "atlas --items ITEM --kind " + kind), 0))
            << "the page of another part";
    }
    writeItem("c", "broken");
    EXPECT_EQ(plain(plotted("atlas --kind areas --keep-going", false)).count("/Type /Page\n"), 13);
    EXPECT_TRUE(listener.warnings.value(0).startsWith("c.dbs is left out"));
}

TEST_F(AtlasKinds, AreasAreOfWholeWordFormsWhereSymbolsWereMadeForThese)
{
    const QString comment = makeSymbols({{{QStringLiteral("am"), 1}}}, false, 0)[0].Explain;
    writeItem("made", symbols("am", comment.toLatin1().replace('"', "\"\"")));
    const auto page = [&](const char* name, const QByteArray& line) {
        return shapesOf(ofItem(name, line), 0);
    };
    const auto parts = page("wind", AreaMap);
    const auto none = page("wind", AreaMap + "--whole-word-forms");
    ASSERT_FALSE(parts == none) << "\"am\" is a part of \"ame\"";
    EXPECT_TRUE(page("made", AreaMap) == none);

    const QByteArray atlas = plotted("atlas --jobs 1 --kind areas --items " + item("made.dbs").toLatin1() +
                                     ' ' + item("wind.dbs").toLatin1());
    EXPECT_TRUE(shapesOf(atlas, 0) == none);
    EXPECT_TRUE(shapesOf(atlas, 1) == parts) << "those after it are as they are asked for";
    const QByteArray isoglosses = "atlas --items ITEM --kind isoglosses";
    EXPECT_TRUE(page("made", isoglosses) == page("wind", isoglosses + " --whole-word-forms"));
    EXPECT_LT(page("made", isoglosses).size(), page("wind", isoglosses).size());
    const QByteArray described = "linguistic-map --data ITEM --symbols SYMBOLS";
    EXPECT_TRUE(page("made", described) == page("wind", described)) << "as ever";
}
