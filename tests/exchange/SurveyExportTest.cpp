#include "exchange/SurveyExport.h"

#include "exchange/ReadSource.h"
#include "tests/exchange/SurveyText.h"
#include "tests/support/FailingStep.h"
#include "tests/support/TestDrive.h"

#include <QDir>
#include <QProcess>

#include <cerrno>
#include <utility>

namespace {

const QString TestMap = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\");
const QString AsNamed = QStringLiteral("a Aa 145.123 -5.187\nb Bö, \"old\" 145.2 -5.2\nc c 145.25 -5.3\n"
                                       "Rain: ame+uyu||uyu\nsnow: |mĩ, #|yuki");

bool goOn(int, int, const QString&)
{
    return true;
}

class Export : public testing::Test
{
protected:
    Export()
    {
        survey.write(TestMap + QStringLiteral("Ling\\1.dbs"),
                     "3,\"\",\"Rain\",\"\"\r\n2\r\n\"ame\"\r\n\"uyu\"\r\n0\r\n1\r\n\"uyu\"\r\n");
        survey.write(TestMap + QStringLiteral("Ling\\snow.dbs"),
                     "3,\"\",\"\",\"\"\r\n0\r\n1\r\n\"mĩ, #\"\r\n1\r\n\"yuki\"\r\n");
    }
    void nameLocalities()
    {
        survey.write(TestMap + QStringLiteral("Map\\Localities.csv"),
                     "\"id\",\"name\",\"longitude\",\"latitude\",\"projection\"\r\n\"a\",\"Aa\",145."
                     "12345678901234,-5.187,\"x\"\r\n"
                     "\"b\",\"Bö, \"\"old\"\"\",145.2,-5.2,\"x\"\r\n\"c\",\"c\",145.25,-5.3,\"x\"\r\n");
    }
    QString out(const char* name) const { return survey.hostPath(QLatin1String(name)); }
    ImportReport write(const QString& path) const { return exportSurvey(survey.varn, path, goOn).value(); }
    /// What stands on the drive.
    QString left() const
    {
        QStringList names =
            QDir(survey.root()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        names.sort();
        return names.join(QLatin1Char(' '));
    }
    static SourceSurvey read(const QString& path)
    {
        SourceChoices choices;
        choices.path = path;
        return readSource(choices);
    }

    TestSurvey survey;
};

} // namespace

TEST_F(Export, ReadsBackAsTheSameSurvey)
{
    nameLocalities();
    for (const char* name : {"a.csv", "a.geojson", "A.GPKG", "cldf"}) {
        EXPECT_EQ(write(out(name)).text(), QStringLiteral("3 localities and 2 items"));
        const SourceSurvey back = read(out(name));
        EXPECT_EQ(textOf(back), AsNamed) << name;
        EXPECT_EQ(back.localities[0].position.x(), 145.12345678901234) << name;
        EXPECT_TRUE(back.report.isComplete()) << name;
    }
    EXPECT_EQ(read(out("cldf")).title, QStringLiteral("Title"));
    write(out("a.csv")); // a file is replaced
    EXPECT_EQ(left(), QStringLiteral("A.GPKG Varn62E a.csv a.geojson cldf"));
}

TEST_F(Export, AMapWithoutNamesIsAPlane)
{
    for (const char* name : {"a.csv", "a.geojson", "a.gpkg"}) {
        write(out(name));
        const SourceSurvey back = read(out(name));
        EXPECT_TRUE(back.plane) << name;
        EXPECT_EQ(textOf(back), QStringLiteral("1 1 100 -200\n2 2 300 -400\n3 3 500.5 -600.5\n"
                                               "Rain: ame+uyu||uyu\nsnow: |mĩ, #|yuki"))
            << name;
    }
}

TEST_F(Export, ColumnsAndIdsAreUnique)
{
    nameLocalities();
    for (const char* name : {"2", "3"}) {
        survey.write(TestMap + QStringLiteral("Ling\\%1.dbs").arg(QLatin1String(name)),
                     QByteArray("3,\"\",\"rAIN\",\"\"\r\n1\r\n\"") + name + "\"\r\n0\r\n0\r\n");
    }
    survey.write(TestMap + QStringLiteral("Ling\\4.dbs"),
                 "3,\"\",\"long\",\"\"\r\n0\r\n1\r\n\"nagai\"\r\n0\r\n");
    for (const char* name : {"a.csv", "a.gpkg"}) {
        write(out(name));
        EXPECT_TRUE(textOf(read(out(name)))
                        .contains(QStringLiteral("\nrAIN (2): 2||\nrAIN (3): 3||\nlong: |nagai|\n")))
            << name;
    }
    survey.write(TestMap + QStringLiteral("Map\\Localities.csv"),
                 "id,name,longitude,latitude,projection\r\na b,A,1,1,x\r\na b,B,2,2,x\r\nc,C,3,3,x\r\n");
    write(out("cldf"));
    EXPECT_TRUE(textOf(read(out("cldf"))).startsWith(QStringLiteral("1 A 1 1\n2 B 2 2\n3 C 3 3\n")));
}

TEST_F(Export, IsThereAsAWholeOrNotAtAll)
{
    survey.write(TestMap + QStringLiteral("Ling\\bad.dbs"), "3,\"\",\"\",\"\"\r\n9\r\n");
    survey.write(TestMap + QStringLiteral("Ling\\two.dbs"), "2,\"\",\"\",\"\"\r\n0\r\n0\r\n");
    survey.write(TestMap + QStringLiteral("Ling\\parted.dbs"),
                 "3,\"\",\"\",\"\"\r\n1\r\n\"a;b\"\r\n0\r\n1\r\n\"\"\r\n");
    const ImportReport report = write(out("a.csv"));
    EXPECT_TRUE(report.text().contains(QStringLiteral("empty word forms: 1 (parted at locality 3)")));
    EXPECT_TRUE(report.text().contains(QStringLiteral("CLDF keeps them whole): 1")));
    EXPECT_TRUE(
        report.text().contains(QStringLiteral("cannot be read: 1 (bad.dbs: Input past end of file)")));
    EXPECT_TRUE(report.text().contains(QStringLiteral("another number of localities: 1 (two.dbs)")));

    survey.write(QStringLiteral("C:\\there\\note.txt"), "mine");
    for (const char* name : {"there", "a.shp", "none/a.gpkg", "none/cldf"}) {
        errorOf([&] { write(out(name)); });
    }
    EXPECT_FALSE(exportSurvey(survey.varn, out("new"), [](int, int, const QString&) { return false; }));
    EXPECT_EQ(left(), QStringLiteral("Varn62E a.csv there"));
    EXPECT_EQ(QDir(out("there")).entryList(QDir::Files), QStringList(QStringLiteral("note.txt")));
}

TEST_F(Export, OnADiskThatFailsSaysSoAndLeavesNothing)
{
    const QString before = left();
    for (const char* name : {"a.csv", "a.geojson", "a.gpkg", "cldf"}) {
        for (const auto& [step, failure] : {std::pair(SaveStep::Sync, EIO), {SaveStep::Rename, ENOSPC}}) {
            const RunTimeError error = errorOf([&, name = name, step = step, failure = failure] {
                const FailingStep failing(step, failure);
                write(out(name));
            });
            EXPECT_EQ(error.place().path, out(name));
            EXPECT_EQ(left(), before) << name << ' ' << failure;
        }
    }
}

TEST_F(Export, IsACommandOfVarnplot)
{
    const auto run = [this](const char* output) {
        QProcess varnplot;
        varnplot.start(QStringLiteral(VARNPLOT),
                       {QStringLiteral("export"), QStringLiteral("--installation"),
                        survey.hostPath(QStringLiteral("Varn62E/Varn")), QStringLiteral("--map"),
                        QStringLiteral("Test"), QStringLiteral("--output"), out(output)});
        EXPECT_TRUE(varnplot.waitForFinished());
        return varnplot.exitCode();
    };
    EXPECT_EQ(run("a.gpkg"), 0);
    EXPECT_EQ(read(out("a.gpkg")).items.size(), 2U);
    EXPECT_EQ(run("a.shp"), 2);
    survey.write(TestMap + QStringLiteral("Ling\\bad.dbs"), "3");
    EXPECT_EQ(run("cldf"), 1);
    EXPECT_EQ(left(), QStringLiteral("Varn62E a.gpkg cldf"));
}
