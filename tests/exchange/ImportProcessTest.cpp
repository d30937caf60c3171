// varnplot import as a script calls it: from a table to the atlas, and what is told of what goes wrong.

#include "tests/support/TestDrive.h"

#include <QDir>
#include <QProcess>

#include <csignal>

namespace {

struct Finished
{
    int exitCode;
    QString out;
    QString err;
};

/// An installation with a map "Test", and a table with its coast.
struct ImportProcess : testing::Test
{
    ImportProcess()
    {
        write("wide.csv", "id,name,longitude,latitude,rain,to/go\n"
                          "a,Ann,5,52,ame;ame-huri,x\nb,Bo,6,52,ame,y\nc,Cy,5,53,,x\nd,Di,6,53,yuki,x\n");
        write("coast.geojson", R"({"type":"LineString","coordinates":[[4,51],[7,51],[7,54],[4,54]]})");
        write("broken.csv", "id,name,longitude,latitude,rain\na,Ann,5,52,x\nb,Bo,6,north,y\n");
    }

    void write(const char* name, const QByteArray& text) const
    {
        drive.write(QStringLiteral("C:\\") + QLatin1String(name), text);
    }

    /// Runs a command in the folder of the tables; words are separated by blanks.
    Finished run(const QString& line, const QString& program = QStringLiteral(VARNPLOT)) const
    {
        QProcess process;
        process.setWorkingDirectory(drive.root());
        process.start(program, line.split(QLatin1Char(' ')) +
                                   QStringList{QStringLiteral("--installation"),
                                               drive.hostPath(QStringLiteral("Varn62E/Varn"))});
        EXPECT_TRUE(process.waitForFinished());
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    QStringList maps() const
    {
        const QDir folder(drive.hostPath(QStringLiteral("Varn62E/Varn/VarnData")));
        return folder.entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    TestSurvey drive;
};

} // namespace

TEST_F(ImportProcess, ATableBecomesASurveyWhoseAtlasCanBeDrawn)
{
    const QString import =
        QStringLiteral("import --source wide.csv --base-map coast.geojson --answers ; --map New");
    const Finished done = run(import);
    ASSERT_EQ(done.exitCode, 0) << done.err.toStdString();
    EXPECT_EQ(done.err, QString());
    EXPECT_TRUE(done.out.contains(QStringLiteral("4 localities, 2 items, 8 word forms")))
        << done.out.toStdString();
    const QString map = drive.drive().varnPath(drive.hostPath(QStringLiteral("Varn62E/Varn/VarnData/New")));
    EXPECT_EQ(drive.read(map + QStringLiteral("\\Import.txt")).replace("\r\n", "\n"), done.out.toUtf8());
    EXPECT_TRUE(
        drive.read(map + QStringLiteral("\\Ling\\001-rain.han")).contains("\"ame-huri\",\"ame\u2010huri\""));
    EXPECT_TRUE(
        drive.read(map + QStringLiteral("\\Ling\\002-to_go.dbs")).startsWith("4,\"\",\"to/go\",\"\""));
    EXPECT_EQ(run(QStringLiteral("atlas --map New --whole-word-forms --output atlas.pdf")).err, QString());

    const Finished again = run(import.chopped(3) + QStringLiteral("NEW"));
    EXPECT_EQ(again.exitCode, 1);
    EXPECT_TRUE(again.err.contains(QStringLiteral("There is a map of this name already.")));
}

TEST_F(ImportProcess, AnErrorIsToldAndLeavesNothingBehind)
{
    const std::pair<const char*, const char*> rows[] = {{"broken.csv", "Line 3"},
                                                        {"none.csv", "File not found"}};
    for (const auto& [source, text] : rows) {
        const Finished failed = run(QStringLiteral("import --map New --source ") + QLatin1String(source));
        EXPECT_EQ(failed.exitCode, 1);
        EXPECT_TRUE(failed.err.contains(QLatin1String(text))) << failed.err.toStdString();
        EXPECT_TRUE(failed.err.contains(QLatin1String(source))) << failed.err.toStdString();
    }
    EXPECT_EQ(run(QStringLiteral("import --map New --source wide.csv --use words")).exitCode, 2);
    EXPECT_EQ(maps(), QStringList(QStringLiteral("Test")));
}

TEST_F(ImportProcess, OnlySurveysInAndOutNeedTheModuleWithGdal)
{
    ASSERT_TRUE(QDir(drive.root()).mkpath("usr/bin"));
    const QString program = drive.hostPath("usr/bin/varnplot");
    ASSERT_TRUE(QFile::copy(QStringLiteral(VARNPLOT), program));
    const QString import = "import --map New --source wide.csv --base-map coast.geojson";

    const Finished missing = run(import, program);
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_TRUE(missing.err.contains("Surveys cannot be imported or exported")) << missing.err.toStdString();
    const QString module = missing.err.section(": ", -1).section(" is missing.", 0, 0);
    EXPECT_TRUE(module.startsWith(drive.hostPath("usr/"))) << missing.err.toStdString();
    EXPECT_EQ(run("blank-map --map Test --output map.svg", program).exitCode, 0);

    ASSERT_TRUE(QDir().mkpath(QFileInfo(module).path()));
    ASSERT_TRUE(QFile(module).open(QIODevice::WriteOnly));
    const Finished broken = run(import, program);
    EXPECT_EQ(broken.exitCode, 1);
    EXPECT_TRUE(broken.err.contains("Surveys cannot be imported or exported")) << broken.err.toStdString();

    ASSERT_TRUE(QFile::remove(module) && QFile::copy(QStringLiteral(GEODATA_MODULE), module));
    EXPECT_EQ(run(import, program).err, QString()) << "the module is found where it is installed, too";
}

TEST_F(ImportProcess, AStoppedImportLeavesNothingBehind)
{
    QByteArray table = "id,name,longitude,latitude";
    for (int item = 1; item <= 2000; ++item) {
        table += ",item " + QByteArray::number(item);
    }
    for (int locality = 1; locality <= 4; ++locality) {
        const QByteArray number = QByteArray::number(locality);
        table += "\n" + number + ",at " + number + "," + number + "," + number +
                 QByteArray(",word").repeated(2000);
    }
    write("large.csv", table);
    const QStringList before = maps();
    QProcess process;
    process.start(QStringLiteral(VARNPLOT),
                  {QStringLiteral("import"), QStringLiteral("--source"),
                   drive.hostPath(QStringLiteral("large.csv")), QStringLiteral("--base-map"),
                   drive.hostPath(QStringLiteral("coast.geojson")), QStringLiteral("--map"),
                   QStringLiteral("New"), QStringLiteral("--installation"),
                   drive.hostPath(QStringLiteral("Varn62E/Varn"))});
    while (maps() == before && !process.waitForFinished(1)) {
    }
    process.terminate();
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 128 + SIGTERM) << process.readAllStandardError().toStdString();
    EXPECT_EQ(maps(), before);
}
