#include "plot/HostError.h"
#include "plot/PlotCommands.h"
#include "plot/PlotHelp.h"
#include "plot/PlotOptions.h"

#include <QGuiApplication>
#include <QHashFunctions>
#include <QLoggingCategory>

#include <csignal>
#include <cstdio>
#include <new>
#include <stdexcept>
#include <unistd.h>

namespace {

enum ExitCode { Done = 0, Failed = 1, WrongUsage = 2, StoppedBySignal = 128 };

/// The signal that asks the program to end; 0 for none.
volatile std::sig_atomic_t endingSignal = 0;

void noteSignal(int signal)
{
    endingSignal = signal;
    std::signal(signal, SIG_DFL); // asked again, it ends at once
}

/// Ends the command between two pages, so that nothing half made is left.
struct Stopped
{
};

/// Tells on stderr what goes on, and on stdout what came of it. Raises `Stopped` once a signal came.
class StderrListener : public PlotListener
{
public:
    void page(int page, int pages, const QString& name) override
    {
        if (endingSignal != 0) {
            throw Stopped();
        }
        if (isatty(STDERR_FILENO) != 0) {
            std::fprintf(stderr, "\r\033[K%d/%d %s%s", page, pages, qPrintable(name),
                         page == pages ? "\n" : "");
        }
    }

    void report(const QString& text) override { std::fprintf(stdout, "%s\n", qPrintable(text)); }

    void warning(const QString& text) override
    {
        std::fprintf(stderr, "%svarnplot: %s\n", isatty(STDERR_FILENO) != 0 ? "\r\033[K" : "",
                     qPrintable(text));
    }
};

int failed(const RunTimeError& error)
{
    std::fprintf(stderr, "%s\n", onThisMachine(error).what());
    return Failed;
}

int run(const QStringList& arguments)
{
    try {
        const PlotOptions options = readPlotOptions(arguments);
        if (options.command == PlotOptions::Command::Help) {
            std::fputs(qPrintable(plotUsage()), stdout);
            return Done;
        }
        if (options.command == PlotOptions::Command::Version) {
            std::puts(qPrintable(plotVersion()));
            return Done;
        }
        StderrListener listener;
        return plot(options, listener) ? Done : Failed;
    } catch (const UsageError& error) {
        std::fprintf(stderr, "varnplot: %s\n%s", error.what(), qPrintable(plotUsage()));
        return WrongUsage;
    } catch (const Stopped&) {
        std::fputs("\nvarnplot: stopped; nothing was written.\n", stderr);
        return StoppedBySignal + endingSignal;
    } catch (const RunTimeError& error) {
        return failed(error);
    } catch (const std::bad_alloc&) {
        return failed(RunTimeError(ErrorNumber::OutOfMemory));
    } catch (const std::length_error&) {
        return failed(RunTimeError(ErrorNumber::OutOfMemory));
    }
}

} // namespace

int main(int argc, char* argv[])
{
    QHashSeed::setDeterministicGlobalSeed(); // the same map is the same file
    qputenv("QT_QPA_PLATFORM", "offscreen"); // texts need fonts, but no screen
    // The toolkit's remarks on its surroundings would stand among the errors of the maps.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    const QGuiApplication application(argc, argv);
    std::signal(SIGINT, noteSignal);
    std::signal(SIGTERM, noteSignal);
    return run(QGuiApplication::arguments().mid(1));
}
