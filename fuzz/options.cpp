// The command line of varnplot: any words are understood, or told not to be.

#include "fuzz/FuzzInput.h"
#include "plot/PlotOptions.h"

#include <QStringList>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString words = QString::fromUtf8(inputOf(data, size));
    expectAnswer([&] {
        try {
            readPlotOptions(words.split(QLatin1Char('\n')));
        } catch (const UsageError&) {
        }
    });
    return 0;
}
