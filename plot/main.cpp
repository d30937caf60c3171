#include "platform/DriveC.h"
#include "platform/RunTimeError.h"
#include "plot/PlotCommands.h"
#include "plot/PlotOptions.h"

#include <QGuiApplication>
#include <QLoggingCategory>

#include <cstdio>
#include <unistd.h>

namespace {

enum ExitCode { Done = 0, Failed = 1, WrongUsage = 2 };

void showProgress(int page, int pages, const QString& name)
{
    if (isatty(STDERR_FILENO) != 0) {
        std::fprintf(stderr, "\r\033[K%d/%d %s%s", page, pages, qPrintable(name), page == pages ? "\n" : "");
    }
}

/// The same error, its file named as on this machine.
RunTimeError onThisMachine(const RunTimeError& error)
{
    FilePlace place = error.place();
    if (place.path.contains(QLatin1Char('\\'))) {
        place.path = DriveC().hostPath(place.path);
    }
    return error.at(place);
}

int run(const QStringList& arguments)
{
    try {
        const auto options = readPlotOptions(arguments);
        if (!options) {
            std::fputs(qPrintable(plotUsage()), stdout);
            return Done;
        }
        plot(*options, showProgress);
        return Done;
    } catch (const UsageError& error) {
        std::fprintf(stderr, "varnplot: %s\n%s", error.what(), qPrintable(plotUsage()));
        return WrongUsage;
    } catch (const RunTimeError& error) {
        std::fprintf(stderr, "%s\n", onThisMachine(error).what());
        return Failed;
    }
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // texts need fonts, but no screen
    // The toolkit's remarks on its surroundings would stand among the errors of the maps.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    const QGuiApplication application(argc, argv);
    return run(QGuiApplication::arguments().mid(1));
}
