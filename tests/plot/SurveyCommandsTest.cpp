#include "plot/PlotCommands.h"
#include "plot/PlotOptions.h"
#include "tests/support/TestDrive.h"

#include <QDir>

namespace {

struct Stopped
{
};

/// Ends the command at the first step of that name.
class StoppingListener : public PlotListener
{
public:
    explicit StoppingListener(QString step) : m_step(std::move(step)) {}

    void page(int /*page*/, int /*pages*/, const QString& name) override
    {
        if (name == m_step) {
            throw Stopped();
        }
    }
    void report(const QString& text) override { told << text; }
    void warning(const QString& text) override { told << text; }

    QStringList told;

private:
    QString m_step;
};

} // namespace

TEST(SurveyCommands, StoppedLeaveTheOldFileAndTellNothing)
{
    const TestSurvey survey;
    const QDir folder(survey.hostPath(QStringLiteral("Varn62E/Varn/VarnData/Test")));
    const auto path = [&](const char* name) { return folder.filePath(QLatin1String(name)); };
    for (const char* item : {"Ling/rain.dbs", "Ling/snow.dbs"}) {
        survey.write(survey.drive().varnPath(path(item)),
                     "3,\"\",\"Rain\",\"\"\n1\n\"ame\"\n1\n\"ame\"\n1\n\"yuki\"\n");
    }
    const struct
    {
        const char* command;
        const char* step;
    } rows[] = {{"distances --output old.csv", "distances"},
                {"distances --output old.csv", "alpha"},
                {"cluster-map --output old.svg --clusters 2 --noise 0.5", "clusters"},
                {"group-marks --output old.csv --clusters 2 --marks items", "items"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.command);
        const QStringList words = QString::fromLatin1(row.command).split(u' ');
        PlotOptions options =
            readPlotOptions(words + QStringList({"--map", "Test", "--installation",
                                                 survey.hostPath(QStringLiteral("Varn62E/Varn"))}));
        options.output = folder.filePath(options.output);
        const QString output = survey.drive().varnPath(options.output);
        survey.write(output, "old");
        StoppingListener listener(QLatin1String(row.step));
        EXPECT_THROW(plot(options, listener), Stopped);
        EXPECT_EQ(survey.read(output), "old");
        EXPECT_EQ(listener.told, QStringList());
    }
}
