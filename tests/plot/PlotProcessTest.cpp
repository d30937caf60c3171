// varnplot as a script calls it: exit codes, what stands on stderr, and what each option does.

#include "plot/PlotCommands.h"
#include "tests/support/PlainPdf.h"
#include "tests/support/TestDrive.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRandomGenerator>
#include <QThread>

namespace {

const QByteArray Table = "1,0,\"All\"\r\n\"am words\"\r\n12,4\r\n0,0\r\n0\r\n0\r\n0\r\n";

const QByteArray MapOfRain = "linguistic-map --data Ling/rain.dbs --symbols Ling/rain.han";

/// The first compressed part of a PDF: what is painted on its first page.
QByteArray firstStream(const QByteArray& pdf)
{
    const QByteArray begin = "stream\n";
    const QByteArray anyLength(4, '\1');
    return qUncompress(anyLength + pdf.mid(pdf.indexOf(begin) + begin.size()));
}

/// A survey with an item, its symbols, and the files of an analysis.
class PlotProcess : public testing::Test
{
protected:
    PlotProcess()
    {
        write("Ling/rain.dbs", "3,\"\",\"Rain\",\"\"\r\n1\r\n\"ame\"\r\n0\r\n2\r\n\"ami\"\r\n\"ame\"\r\n");
        write("Ling/short.dbs", "2,\"\",\"Rain\",\"\"\r\n1\r\n\"ame\"\r\n0\r\n");
        write("Ling/rain.han", "\"\"\r\n1\r\n\"ame\",\"the word\"\r\n50\r\n4\r\n12\r\n1\r\n1\r\n0\r\n");
        write("all.ttl", Table);
        write("all.sum", "1\r\n1,\"am\"\r\n");
        write("all.htL", "\"\",1\r\n49,0,0,0,1,0,1,\"often\"\r\n");
        write("all.rnk", "\"Contrast\",3,100\r\n1\r\n12,4\r\n\"am words\",1\r\n0\r\n9,1\r\n");
    }

    /// A name under the survey's folder.
    QString file(const QString& name) const
    {
        return survey.hostPath(QStringLiteral("Varn62E/Varn/VarnData/Test/") + name);
    }
    void write(const QByteArray& name, const QByteArray& text) const
    {
        survey.write(survey.drive().varnPath(file(QString::fromLatin1(name))), text);
    }
    QByteArray read(const char* name) const
    {
        return survey.read(survey.drive().varnPath(file(QLatin1String(name))));
    }

    /// Runs a command in the survey's folder, on its map, and expects that it ends with `exitCode`; words are
    /// separated by blanks. Returns what it says on stdout and stderr.
    std::pair<QString, QString> run(const QByteArray& line, int exitCode) const
    {
        QProcess process;
        process.setWorkingDirectory(file({}));
        process.start(VARNPLOT,
                      QStringList({"--map", "Test", "--installation", survey.hostPath("Varn62E/Varn")}) +
                          QString::fromLatin1(line).split(QLatin1Char(' '), Qt::SkipEmptyParts));
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(std::pair(process.exitStatus(), process.exitCode()),
                  std::pair(QProcess::NormalExit, exitCode))
            << line.constData();
        return {process.readAllStandardOutput(), process.readAllStandardError()};
    }
    void expectDone(const QByteArray& line) const
    {
        EXPECT_EQ(run(line, 0).second, QString()) << line.constData();
    }
    /// Expects that the command ends with `exitCode` and that all of `texts` stand on stderr.
    void expectTold(const QByteArray& line, int exitCode, const QStringList& texts) const
    {
        const QString told = run(line, exitCode).second;
        for (const QString& text : texts) {
            EXPECT_TRUE(told.contains(text)) << line.constData() << '\n' << qPrintable(told);
        }
    }

    TestSurvey survey;
};

} // namespace

TEST_F(PlotProcess, EveryCommandWritesItsFile)
{
    // A command, the file that it writes, and what stands in it.
    const std::tuple<QByteArray, const char*, const char*> rows[] = {
        {MapOfRain, "map.svg", ">the word<"},
        {MapOfRain + " --location top", "top.svg", ">Rain<"},
        {"blank-map --height 100", "blank.svg", "viewBox=\"0 0 7560 5670\""},
        {"blank-map --height 100 --locality-dots", "dots.svg", "viewBox=\"0 0 7560 5670\""},
        {"blank-map --dpi 48", "small.png", "PNG"},
        {"symbols", "symbols.pdf", "%PDF-"},
        {"atlas --location left --locality-dots --height 90", "atlas.PDF", "%PDF-"},
        {"statistics --counts all.ttl", "all.stt", "1,2\r\n1\r\n0,2,2,0\r\n"},
        {"diffusion-map --counts all.ttl --graph bar", "bar.svg", ">No. of Items =2<"},
        {"diffusion-map --counts all.ttl --graph layered-bar --word-form 1", "bars.svg", ">All<"},
        {"diffusion-map --counts all.ttl --graph circle", "circle.svg", ">75 %<"},
        {"diffusion-map --counts all.ttl --graph layered-circle", "circles.svg", ">All<"},
        {"symbol-diffusion-map --counts all.ttl --symbols all.htL", "often.svg", ">often<"},
        {"symbol-diffusion-map --counts all.ttl --symbols all.htL --word-form 1", "one.svg", ">often<"},
        {"contrast-map --counts all.ttl --contrast all.rnk --locality-dots", "contrast.svg", ">-100%<"}};
    expectDone(
        "accumulate --counts all.ttl --characters all.sum --data Ling/rain.dbs Ling/rain.dbs --count-again");
    for (const auto& [line, output, text] : rows) {
        expectDone(line + " --output " + output);
        EXPECT_TRUE(read(output).contains(text)) << line.constData();
    }
    EXPECT_EQ(read("all.ttl"), "1,2,\"All\"\r\n\"am words\"\r\n12,4\r\n0,0\r\n2\r\n0\r\n2\r\n");
    EXPECT_NE(read("map.svg"), read("top.svg")) << "the second word form stands elsewhere";
    EXPECT_NE(read("dots.svg"), read("blank.svg"));
    EXPECT_EQ(read("one.svg"), read("often.svg")) << "the first row of the legend";
    write("Ling/part.han", "\"\"\r\n1\r\n\"am\",\"\"\r\n50\r\n4\r\n12\r\n1\r\n1\r\n0\r\n");
    expectDone("linguistic-map --data Ling/rain.dbs --symbols Ling/part.han --output part.svg");
    expectDone("linguistic-map --data Ling/rain.dbs --symbols Ling/part.han --output whole.svg "
               "--whole-word-forms");
    EXPECT_GT(read("part.svg").size(), read("whole.svg").size()) << "no word form is just 'am'";
    EXPECT_EQ(QImage(file(QStringLiteral("small.png"))).size(), QSize(400, 300));
}

TEST_F(PlotProcess, ASurveyAsAWholeIsComparedAndDrawn)
{
    write("Ling/snow.dbs", "3,\"\",\"Snow\",\"\"\r\n1\r\n\"yuki\"\r\n1\r\n\"yuki\"\r\n1\r\n\"hyo\"\r\n");
    const QString told = run("distances --items Ling/rain.dbs Ling/snow.dbs --output d.csv", 0).first;
    EXPECT_TRUE(told.contains("3 localities, relative identity values over 2 items")) << qPrintable(told);
    EXPECT_EQ(read("d.csv"), "\"\",\"1\",\"2\",\"3\"\r\n\"1\",0,0,0.75\r\n\"2\",0,0,1\r\n\"3\",0.75,1,0\r\n")
        << "locality 2 has no word for rain; 3 has that of 1 and another one";
    const std::tuple<QByteArray, const char*, const char*> rows[] = {
        {"area-map --data Ling/rain.dbs --symbols Ling/rain.han", "areas.svg", ">the word (2)<"},
        {"isogloss-map --compare forms --items Ling/rain.dbs", "line.svg", ">Rain<"},
        {"isogloss-map --compare forms --items Ling/rain.dbs Ling/snow.dbs", "lines.svg", "of 2 items<"},
        {"isogloss-map --compare forms --numbers --items Ling/rain.dbs Ling/snow.dbs", "numbers.svg", ">1<"},
        {"reference-map --distances d.csv --locality 3", "far.svg", ">Distance to locality 3<"},
        {"reference-map --distances d.csv --locality 3 --hatched", "hatched.svg", ">0.750 - 0.792 (1)<"},
        {"beam-map --distances d.csv", "beams.svg", ">Neighbours<"},
        {"cluster-map --distances d.csv --clusters 2 --noise 0.2 --dendrogram", "groups.svg",
         ">group 1 (2)<"},
        {"cluster-map --items Ling/snow.dbs --clusters 2 --method single", "snow.svg", "by single linkage"},
        {"dendrogram --distances d.csv --clusters 2", "tree.svg", ">2 groups by Ward's method: d<"},
        {"mds-map --distances d.csv", "colours.svg", "red: dimension 1"},
        {"mds-plot --distances d.csv --clusters 1", "places.svg", "Multidimensional scaling: d"},
        {"distance-plot --distances d.csv", "ways.svg", "r = "}};
    for (const auto& [line, output, text] : rows) {
        expectDone(line + " --output " + output);
        EXPECT_TRUE(read(output).contains(text)) << line.constData() << '\n' << read(output).constData();
    }
    EXPECT_FALSE(read("lines.svg").contains(">1<"));
    expectDone("area-map --data Ling/rain.dbs --symbols Ling/rain.han --with-symbols --output marked.svg");
    EXPECT_GT(read("marked.svg").size(), read("areas.svg").size());
    expectDone("group-marks --items Ling/rain.dbs Ling/snow.dbs --clusters 2 --output marks.csv");
    EXPECT_TRUE(read("marks.csv").contains("2,\"snow\",\"hyo\",1,1,1\r\n")) << read("marks.csv").constData();
    // Localities 1 and 2 are alike in snow and unlike 3; the kinds of rain by other distances.
    expectDone("group-marks --items Ling/snow.dbs --clusters 2 --marks items --output marks.csv");
    EXPECT_EQ(read("marks.csv"),
              "\"group\",\"item\",\"within\",\"between\",\"score\"\r\n1,\"snow\",0,1,2.1213\r\n");
    expectDone("group-marks --distances d.csv --items Ling/rain.dbs --compare kinds --clusters 2 --output "
               "marks.csv");
    EXPECT_TRUE(read("marks.csv").contains("1,\"rain\",\"the word\",1,0,0.5\r\n"))
        << read("marks.csv").constData();

    expectTold("distances --output all.csv", 1, {"The item has 2 localities", file("Ling/short.dbs")});
    expectTold("distances --output all.csv --keep-going", 1,
               {"short.dbs is left out: ", file("Ling/short.dbs")});
    for (const QByteArray command : {"cluster-map --output left.svg", "group-marks --output left.csv"}) {
        expectTold(command + " --items Ling/rain.dbs --clusters 2", 0,
                   {"Left out, for want of a distance to others: 2"});
    }
    expectTold("cluster-map --distances d.csv --clusters 4 --output x.svg", 1,
               {"4 groups cannot be made of 3 localities."});
    expectTold("reference-map --distances d.csv --locality Nowhere --output x.svg", 1,
               {"has the number or the name Nowhere"});
    write("bad.csv", read("d.csv").replace("0.75,1,0", "0.25,1,0"));
    expectTold("beam-map --distances bad.csv --output x.svg", 1, {"'13': Type mismatch", file("bad.csv")});
    EXPECT_FALSE(QFile::exists(file("x.svg")));
    write("Map/Localities.csv",
          "id,name,longitude,latitude,projection\r\na,Amele,1,1,\r\nb,Bau,2,1,\r\nc,Sihan,3,2,\r\n");
    expectDone("reference-map --items Ling/snow.dbs --locality amele --output named.svg");
    EXPECT_TRUE(read("named.svg").contains(">Distance to locality 1 Amele<"));
    write("Map/Localities.csv", read("Map/Localities.csv").replace("Sihan", "Amele"));
    expectTold("reference-map --items Ling/snow.dbs --locality amele --output x.svg", 1,
               {"Several localities of the map have the name amele"});
}

TEST_F(PlotProcess, HelpAndWrongUsage)
{
    const auto [help, error] = run("--help", 0);
    EXPECT_TRUE(help.contains("usage:") && error.isEmpty());
    EXPECT_TRUE(help.contains("--location center|right|left|top|bottom") &&
                help.contains("0     all is done"));
    EXPECT_TRUE(run("--version", 0).first.startsWith("varnplot 6."));
    expectTold("", 2, {"a command is missing", "usage:"});
    expectTold("statistics --counts all.ttl --output all.ttl", 2, {"--output must end in .stt"});
    EXPECT_EQ(read("all.ttl"), Table);
}

TEST_F(PlotProcess, AMapIsTheSameInEveryFormat)
{
    for (const char* name : {"map.svg", "map.pdf", "map.png"}) {
        expectDone(MapOfRain + " --output " + name);
    }
    const QByteArray svg = read("map.svg");
    EXPECT_TRUE(svg.contains("<path") || svg.contains("<ellipse"));
    EXPECT_FALSE(svg.contains("<image"));
    EXPECT_TRUE(svg.contains("width=\"211.667mm\" height=\"158.75mm\""));

    const QByteArray pdf = read("map.pdf");
    EXPECT_TRUE(pdf.contains("/MediaBox [0 0 600.000000 450.000000]"));
    EXPECT_TRUE(firstStream(pdf).contains("\n0.050000000 0 0 -0.050000000 0 450 cm\n"))
        << "a twip is a twentieth of a point, and the drawing begins at the corner of the page";
    EXPECT_EQ(pdf.contains("/FontFile2"), anyFont()) << "the text's font is embedded";
    EXPECT_FALSE(pdf.contains("/Subtype /Image"));

    const QImage picture(file("map.png"));
    EXPECT_EQ(picture.size(), QSize(1600, 1200));
    EXPECT_EQ(picture.dotsPerMeterX(), 7559) << "192 dots per inch";
    EXPECT_EQ(picture.dotsPerMeterY(), 7559);
    // Locality 1 at 100, 200: a symbol filled light red there.
    const auto pixel = [](float unit) { return static_cast<int>((unit * 8.82F + 50) / 15 * 2); };
    EXPECT_EQ(picture.pixel(pixel(100), pixel(200)), qRgb(255, 0, 0));
    EXPECT_EQ(picture.pixel(pixel(300), pixel(400)), qRgb(255, 255, 255)) << "no answer there";
}

TEST_F(PlotProcess, AnAtlasHasAPageForEachItemWithSymbols)
{
    struct ToldPages : PlotListener
    {
        void page(int page, int pages, const QString& name) override
        {
            names << QStringLiteral("%1/%2 %3").arg(page).arg(pages).arg(name);
        }
        void report(const QString& text) override { names << text; }
        void warning(const QString& text) override { names << text; }
        QStringList names;
    };
    write("Ling/alone.dbs", "0,\"\",\"\",\"\"\r\n");
    write("Ling/Able.DBS", read("Ling/rain.dbs"));
    write("Ling/able.HAN", read("Ling/rain.han"));
    PlotOptions options;
    options.command = PlotOptions::Command::Atlas;
    options.installation = survey.hostPath("Varn62E/Varn");
    options.map = "Test";
    options.output = file("atlas.pdf");
    ToldPages told;
    EXPECT_TRUE(plot(options, told));
    EXPECT_EQ(told.names.last(), "2/2 Rain") << "captions";
    const QByteArray atlas = plain(read("atlas.pdf"));
    EXPECT_EQ(atlas.count("/Type /Page\n"), 2);
    EXPECT_EQ(atlas.count("/Title (Rain)"), 2) << "bookmarks";
    EXPECT_TRUE(atlas.contains("/Title (Test)") && atlas.contains("/MediaBox"));

    expectDone(MapOfRain + " --output map.pdf");
    expectDone("atlas --items Ling/rain.dbs --output one.pdf");
    EXPECT_EQ(painted(plain(read("one.pdf"))), painted(plain(read("map.pdf")))) << "base map and item";
    EXPECT_EQ(plain(read("one.pdf")).count("/FontFile2"), plain(read("map.pdf")).count("/FontFile2"));
}

TEST_F(PlotProcess, AnAtlasIsTheSameForAnyNumberOfJobs)
{
    const QString glyphs = survey.hostPath("Varn62E/Varn/VarnSymbol/Standard16");
    QImage glyph(12, 16, QImage::Format_Grayscale8);
    glyph.fill(Qt::black);
    ASSERT_TRUE(QDir().mkpath(glyphs) && glyph.save(glyphs + "/SymbolS15.bmp"));
    for (int item = 10; item < 40; ++item) { // phonetic letters, several parts, letters that others have not
        const QByteArray name = "Ling/i" + QByteArray::number(item);
        write(name + ".dbs",
              read("Ling/rain.dbs").replace("Rain", "Rain " + QByteArray(1, char('A' + item % 26))));
        write(name + ".han", read("Ling/rain.han").replace("the word", item % 3 == 0 ? "ffi" : "the \\?"));
    }
    for (const char* jobs : {"1", "3", "64"}) {
        expectDone(QByteArray("atlas --output ") + jobs + ".pdf --jobs " + jobs);
        EXPECT_EQ(read((QByteArray(jobs) + ".pdf").constData()), read("1.pdf")) << jobs;
    }
    EXPECT_EQ(plain(read("3.pdf")).count("/Type /Page\n"), 31);
    EXPECT_LE(plain(read("3.pdf")).count("/Subtype /Image"), 2) << "the letter once, or with its mask";
    EXPECT_TRUE(plain(read("3.pdf")).contains("/Subtype /Image"));

    write("Ling/i20.dbs", "broken");
    write("Ling/i30.han", "broken");
    expectTold("atlas --output 1.pdf --keep-going", 1, {"i20.dbs is left out: ", "i30.dbs is left out: "});
    EXPECT_EQ(plain(read("1.pdf")).count("/Type /Page\n"), 29);
    expectTold("atlas --output none.pdf --keep-going --items Ling/i20.dbs Ling/none.dbs", 1,
               {"No item can be drawn."});
    EXPECT_FALSE(QFile::exists(file("none.pdf")));
}

TEST_F(PlotProcess, AFailedPlotLeavesTheOldFile)
{
    write("map.pdf", "old");
    write("Ling/zz.dbs", "not a number");
    write("Ling/zz.han", read("Ling/rain.han"));
    expectTold("atlas --output map.pdf", 1, {"'13': Type mismatch", file("Ling/zz.dbs")});
    EXPECT_EQ(read("map.pdf"), "old");
    expectTold("blank-map --output new.png --map Nowhere", 1, {"'76': Path not found"});
    EXPECT_FALSE(QFile::exists(file("new.png")));
}

TEST_F(PlotProcess, AnAccumulationSaysWhatItDidNotCount)
{
    expectTold(
        "accumulate --counts all.ttl --characters all.sum --data Ling/short.dbs none.dbs Ling/rain.dbs "
        "Ling/rain.dbs",
        1,
        {"short.dbs is left out: The item has 2 localities, the map has 3.",
         "none.dbs is left out: Run-time error '53': File not found", file("none.dbs"),
         "rain.dbs is left out: the table holds it already.", "1 of 4 items counted and saved."});
    EXPECT_TRUE(read("all.ttl").startsWith("1,1,")) << "the other is counted";
    EXPECT_EQ(read("all.itm"), "1,1\r\n\"rain.dbs\"\r\n");

    // The table is saved to the file that it was read from, whatever the letter case of its ending.
    write("UPPER.TTL", Table);
    expectDone("accumulate --counts UPPER.TTL --characters all.sum --data Ling/rain.dbs");
    EXPECT_TRUE(read("UPPER.TTL").startsWith("1,1,"));
    EXPECT_FALSE(QFile::exists(file("UPPER.ttl")));
}

TEST_F(PlotProcess, ATableThatIsSavedByAKilledProcessIsOneThatWasSaved)
{
    constexpr int Kills = 200;
    const QByteArray item = " --data Ling/rain.dbs";
    QByteArray line = "accumulate --counts all.ttl --characters all.sum --count-again";
    QByteArrayList saved = {read("all.ttl")};
    for (int items = 1; items <= 4; ++items) {
        write("all.ttl", saved.first());
        QFile::remove(file("all.itm"));
        expectDone(line + item.repeated(items));
        saved << read("all.ttl");
    }
    QElapsedTimer whole;
    whole.start();
    expectDone(line + item.repeated(4));
    const auto longest = static_cast<quint32>(whole.elapsed());

    QRandomGenerator random(1);
    int changed = 0;
    for (int n = 0; n < Kills; ++n) {
        write("all.ttl", saved.first());
        QFile::remove(file("all.itm"));
        QProcess process;
        process.setWorkingDirectory(file({}));
        process.start(VARNPLOT,
                      QStringList({"--map", "Test", "--installation", survey.hostPath("Varn62E/Varn")}) +
                          QString::fromLatin1(line + item.repeated(4)).split(' '));
        process.waitForStarted();
        QThread::msleep(random.bounded(longest / 4, longest + 1));
        process.kill();
        process.waitForFinished();
        const QByteArray left = read("all.ttl");
        ASSERT_TRUE(saved.contains(left)) << n << '\n' << left.constData();
        changed += left != saved.first() ? 1 : 0;
    }
    EXPECT_GT(changed, 0) << "the processes lived long enough to save";
}

TEST_F(PlotProcess, ErrorsNameTheirFileOnThisMachine)
{
    const QByteArray map = MapOfRain + " --output o.svg";
    expectTold("linguistic-map --data Ling/short.dbs --symbols Ling/rain.han --output o.svg", 0,
               {"short.dbs: The item has 2 localities, the map has 3."});
    expectTold(map + " --height 8", 1, {"The legend needs a map at least 10.6 mm high."});
    expectTold(map + " --height 10.6", 0, {});
    write("Ling/rain.han", "\"\"\r\n1\r\n\"ame\",\"\"\r\n50\r\n4\r\n16\r\n1\r\n1\r\n0\r\n");
    const QStringList record = {file("Ling/rain.han"), "Record 1 (ame).", "16 is not a colour number"};
    expectTold(map, 1, record);
    expectTold("atlas --output o.pdf", 1, record);
    QFile::remove(file("Ling/rain.han"));
    expectTold("atlas --output o.pdf", 1, {file("Ling"), "No item there"});
    write("all.ttl", QByteArray(Table).replace("12,4", "12,77"));
    expectTold("diffusion-map --counts all.ttl --graph bar --output o.pdf", 1, {});
    write("all.ttl", QByteArray(Table).replace("12,4", "12,77").replace("1,0", "1,1"));
    expectTold("diffusion-map --counts all.ttl --graph bar --output o.pdf", 1,
               {file("all.ttl"), "Word form 1 (am words)."});
    write("all.ttl", QByteArray(Table).replace("1,0", "1,401"));
    expectTold("statistics --counts all.ttl --output all.stt", 1, {"at most 400 items, not of 401"});

    write("all.rnk", "\"\",3,100\r\n1\r\n12,4\r\n\"other\",2\r\n0\r\n9,1\r\n");
    expectTold("contrast-map --counts all.ttl --contrast all.rnk --output o.svg", 1,
               {"'9': Subscript out of range"});
    write("Map/Loc.map", "1\r\n3e38,1\r\n");
    expectTold("blank-map --locality-dots --output o.svg", 1, {"'6': Overflow", "too far out"});
    write("Map/kanji.map", "0\r\n100,900\r\n\"km\",1e9,200\r\n");
    expectTold("blank-map --output o.svg", 1,
               {file("Map/kanji.map"), "Line 3, field 2", "at most 1000 divisions"});
    expectTold("blank-map --output no/such.svg", 1, {});
    QFile::remove(file("Map/kanji.map"));
    expectTold("blank-map --output o.svg", 1, {file("Map/kanji.map")});
}
