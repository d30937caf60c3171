// varnplot as a script calls it: exit codes, what stands on stderr, and what each option does.

#include "tests/support/TestDrive.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>

namespace {

const QString Ling = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\");

const QByteArray Table = "1,0,\"All\"\r\n\"am words\"\r\n12,4\r\n0,0\r\n0\r\n0\r\n0\r\n";

struct Finished
{
    int exitCode;
    QString out;
    QString err;
};

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
    void write(const char* name, const QByteArray& text) const
    {
        survey.write(survey.drive().varnPath(file(QLatin1String(name))), text);
    }
    QByteArray read(const char* name) const
    {
        return survey.read(survey.drive().varnPath(file(QLatin1String(name))));
    }

    /// Runs a command in the survey's folder, on its map; words are separated by blanks.
    Finished run(const QString& line) const
    {
        QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (!words.isEmpty()) {
            words << QStringLiteral("--installation") << survey.hostPath(QStringLiteral("Varn62E/Varn"))
                  << QStringLiteral("--map") << QStringLiteral("Test");
        }
        QProcess process;
        process.setWorkingDirectory(file({}));
        process.start(QStringLiteral(VARNPLOT), words);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << qPrintable(line);
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }
    void expectDone(const char* line) const
    {
        const Finished done = run(QLatin1String(line));
        EXPECT_EQ(done.exitCode, 0) << line;
        EXPECT_EQ(done.err, QString()) << line;
    }
    /// Expects that the command fails and that all of `texts` stand on stderr.
    void expectFailure(const char* line, int exitCode, const QStringList& texts) const
    {
        const Finished failed = run(QLatin1String(line));
        EXPECT_EQ(failed.exitCode, exitCode) << line;
        for (const QString& text : texts) {
            EXPECT_TRUE(failed.err.contains(text)) << line << '\n' << qPrintable(failed.err);
        }
    }

    TestSurvey survey;
};

} // namespace

TEST_F(PlotProcess, EveryCommandWritesItsFile)
{
    struct Row
    {
        const char* line;
        const char* output;
        const char* text;
    };
    const Row rows[] = {
        {"linguistic-map --data Ling/rain.dbs --symbols Ling/rain.han", "map.svg", ">the word<"},
        {"linguistic-map --data Ling/rain.dbs --symbols Ling/rain.han --location top", "top.svg", ">Rain<"},
        {"blank-map --height 100", "blank.svg", "viewBox=\"0 0 7560 5670\""},
        {"symbols", "symbols.pdf", "%PDF-"},
        {"atlas --location left --locality-dots --height 90", "atlas.PDF", "/Type /Page\n"},
        {"accumulate --characters all.sum --data Ling/rain.dbs Ling/rain.dbs --counts all.ttl --count-again",
         nullptr, ""},
        {"statistics --counts all.ttl", "all.stt", "1,2\r\n1\r\n0,2,2,0\r\n"},
        {"diffusion-map --counts all.ttl --graph bar", "bar.svg", ">No. of Items =2<"},
        {"diffusion-map --counts all.ttl --graph layered-bar --word-form 1", "bars.svg", ">All<"},
        {"diffusion-map --counts all.ttl --graph circle", "circle.svg", ">75 %<"},
        {"diffusion-map --counts all.ttl --graph layered-circle", "circles.svg", ">All<"},
        {"symbol-diffusion-map --counts all.ttl --symbols all.htL", "often.svg", ">often<"},
        {"symbol-diffusion-map --counts all.ttl --symbols all.htL --word-form 1", "one.svg", ">often<"},
        {"contrast-map --counts all.ttl --contrast all.rnk --locality-dots", "contrast.svg", ">-100%<"},
    };
    for (const Row& row : rows) {
        const QByteArray output =
            row.output == nullptr ? QByteArray() : QByteArray(" --output ") + row.output;
        expectDone((row.line + output).constData());
        if (row.output != nullptr) {
            EXPECT_TRUE(read(row.output).contains(row.text)) << row.line;
        }
    }
    EXPECT_EQ(read("all.ttl"), "1,2,\"All\"\r\n\"am words\"\r\n12,4\r\n0,0\r\n2\r\n0\r\n2\r\n");
    EXPECT_NE(read("map.svg"), read("top.svg")) << "the second word form stands elsewhere";
    expectDone("blank-map --locality-dots --output dots.svg --height 100");
    EXPECT_NE(read("dots.svg"), read("blank.svg"));
    write("Ling/part.han", "\"\"\r\n1\r\n\"am\",\"\"\r\n50\r\n4\r\n12\r\n1\r\n1\r\n0\r\n");
    expectDone("linguistic-map --data Ling/rain.dbs --symbols Ling/part.han --output part.svg");
    expectDone("linguistic-map --data Ling/rain.dbs --symbols Ling/part.han --output whole.svg "
               "--whole-word-forms");
    EXPECT_GT(read("part.svg").size(), read("whole.svg").size()) << "no word form is just 'am'";
    expectDone("blank-map --dpi 48 --output small.png");
    EXPECT_EQ(QImage(file(QStringLiteral("small.png"))).size(), QSize(400, 300));
}

TEST_F(PlotProcess, HelpAndWrongUsage)
{
    const Finished help = run(QStringLiteral("--help"));
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_TRUE(help.out.contains(QStringLiteral("usage:")) && help.err.isEmpty());
    expectFailure("", 2, {QStringLiteral("a command is missing"), QStringLiteral("usage:")});
    // A file of another ending would be read, and one of the right ending written over.
    const std::pair<const char*, const char*> rows[] = {
        {"accumulate --counts all.bak --characters all.sum --data Ling/rain.dbs",
         "--counts must end in .ttl"},
        {"accumulate --counts all --characters all.sum --data Ling/rain.dbs", "--counts must end in .ttl"},
        {"accumulate --counts all.ttl --characters all.txt --data Ling/rain.dbs",
         "--characters must end in .sum"},
        {"accumulate --counts all.ttl --characters all.sum --data Ling/rain.dbs x.han",
         "--data must end in .dbs"},
        {"linguistic-map --data a.dbs --symbols all.htL --output o.svg", "--symbols must end in .han"},
        {"symbol-diffusion-map --counts all.ttl --symbols a.han --output o.svg",
         "--symbols must end in .htl"},
        {"contrast-map --counts all.ttl --contrast all.ttl --output o.svg", "--contrast must end in .rnk"},
        {"statistics --counts all.ttl --output all.ttl", "--output must end in .stt"},
        {"blank-map --output o.gif", "--output must end in .svg, .pdf, .png"},
    };
    for (const auto& [line, text] : rows) {
        expectFailure(line, 2, {QLatin1String(text)});
    }
    EXPECT_EQ(read("all.ttl"), Table);
}

TEST_F(PlotProcess, AnAccumulationSaysWhatItDidNotCount)
{
    expectFailure(
        "accumulate --counts all.ttl --characters all.sum --data Ling/short.dbs none.dbs Ling/rain.dbs "
        "Ling/rain.dbs",
        1,
        {QStringLiteral("short.dbs is left out: The item has 2 localities, the map has 3."),
         QStringLiteral("none.dbs is left out: Run-time error '53': File not found"),
         file(QStringLiteral("none.dbs")),
         QStringLiteral("rain.dbs is left out: the table holds it already."),
         QStringLiteral("1 of 4 items counted and saved.")});
    EXPECT_TRUE(read("all.ttl").startsWith("1,1,")) << "the other is counted";
    EXPECT_EQ(read("all.itm"), "1,1\r\n\"rain.dbs\"\r\n");

    // The table is saved to the file that it was read from, whatever the letter case of its ending.
    write("UPPER.TTL", Table);
    expectDone("accumulate --counts UPPER.TTL --characters all.sum --data Ling/rain.dbs");
    EXPECT_TRUE(read("UPPER.TTL").startsWith("1,1,"));
    EXPECT_FALSE(QFile::exists(file(QStringLiteral("UPPER.ttl"))));
}

TEST_F(PlotProcess, ErrorsNameTheirFileOnThisMachine)
{
    const char* const map = "linguistic-map --data Ling/rain.dbs --symbols Ling/rain.han --output o.svg";
    expectFailure("linguistic-map --data Ling/short.dbs --symbols Ling/rain.han --output o.svg", 0,
                  {QStringLiteral("short.dbs: The item has 2 localities, the map has 3.")});
    expectFailure((QByteArray(map) + " --height 8").constData(), 1,
                  {QStringLiteral("The legend needs a map at least 10.6 mm high.")});
    expectFailure((QByteArray(map) + " --height 10.6").constData(), 0, {});
    write("Ling/rain.han", "\"\"\r\n1\r\n\"ame\",\"\"\r\n50\r\n4\r\n16\r\n1\r\n1\r\n0\r\n");
    const QStringList record = {file(QStringLiteral("Ling/rain.han")), QStringLiteral("Record 1 (ame)."),
                                QStringLiteral("16 is not a colour number")};
    expectFailure(map, 1, record);
    expectFailure("atlas --output o.pdf", 1, record);
    QFile::remove(file(QStringLiteral("Ling/rain.han")));
    expectFailure("atlas --output o.pdf", 1, {file(QStringLiteral("Ling")), QStringLiteral("No item there")});
    write("all.ttl", QByteArray(Table).replace("12,4", "12,77"));
    expectFailure("diffusion-map --counts all.ttl --graph bar --output o.pdf", 1, {});
    write("all.ttl", QByteArray(Table).replace("12,4", "12,77").replace("1,0", "1,1"));
    expectFailure("diffusion-map --counts all.ttl --graph bar --output o.pdf", 1,
                  {file(QStringLiteral("all.ttl")), QStringLiteral("Word form 1 (am words).")});
    write("all.ttl", QByteArray(Table).replace("1,0", "1,401"));
    expectFailure("statistics --counts all.ttl --output all.stt", 1,
                  {QStringLiteral("at most 400 items, not of 401")});

    write("all.rnk", "\"\",3,100\r\n1\r\n12,4\r\n\"other\",2\r\n0\r\n9,1\r\n");
    expectFailure("contrast-map --counts all.ttl --contrast all.rnk --output o.svg", 1,
                  {QStringLiteral("'9': Subscript out of range")});
    write("Map/Loc.map", "1\r\n3e38,1\r\n");
    expectFailure("blank-map --locality-dots --output o.svg", 1,
                  {QStringLiteral("'6': Overflow"), QStringLiteral("too far out")});
    write("Map/kanji.map", "0\r\n100,900\r\n\"km\",1e9,200\r\n");
    expectFailure("blank-map --output o.svg", 1,
                  {file(QStringLiteral("Map/kanji.map")), QStringLiteral("Line 3, field 2"),
                   QStringLiteral("at most 1000 divisions")});
    expectFailure("blank-map --output no/such.svg", 1, {});
    QFile::remove(file(QStringLiteral("Map/kanji.map")));
    expectFailure("blank-map --output o.svg", 1, {file(QStringLiteral("Map/kanji.map"))});
}
