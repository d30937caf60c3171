// Every reader of files: what it reads of any text is written, and reads back as the same.

#include "analysis/ContrastData.h"
#include "analysis/CountedItemsFile.h"
#include "analysis/CumulativeFile.h"
#include "analysis/DiffusionSymbols.h"
#include "fuzz/FuzzInput.h"
#include "lingdata/InputKindsFile.h"
#include "lingdata/KindList.h"
#include "lingdata/LinguisticFile.h"
#include "mapdata/MapFiles.h"
#include "shell/MapChoice.h"
#include "symbols/SymbolFile.h"

#include <array>

namespace {

/// Reads a value of `text`, writes it, and reads and writes that again.
template <typename Read, typename Write>
void roundTrip(const QString& text, Read read, Write write)
{
    const auto writtenFrom = [&](const QString& from) {
        SequentialReader reader(from);
        const auto value = read(reader);
        SequentialWriter writer;
        write(writer, value);
        return writer.bytes();
    };
    const QByteArray written = writtenFrom(text);
    require(writtenFrom(QString::fromUtf8(written)) == written);
}

WordKinds kindsIn(SequentialReader& file)
{
    WordKinds kinds;
    readKinds(file, kinds);
    return kinds;
}

CumulativeData charactersIn(SequentialReader& file)
{
    CumulativeData data;
    readSpecifyChars(file, data);
    return data;
}

constexpr int Places = 3;

using Trip = void (*)(const QString&);

constexpr std::array<Trip, 13> Trips = {
    [](const QString& text) { roundTrip(text, readLocalities, writeLocalities); },
    [](const QString& text) { roundTrip(text, readLines, writeLines); },
    [](const QString& text) { roundTrip(text, readPlaceNames, writePlaceNames); },
    [](const QString& text) { roundTrip(text, readAbsolutePolygons, writeAbsolutePolygons); },
    [](const QString& text) { roundTrip(text, readItem, writeItem); },
    [](const QString& text) { roundTrip(text, kindsIn, writeKinds); },
    [](const QString& text) { roundTrip(text, readInputKinds, writeInputKinds); },
    [](const QString& text) { roundTrip(text, readSymbolSet, writeSymbolSet); },
    [](const QString& text) { roundTrip(text, readMapChoice, writeMapChoice); },
    [](const QString& text) { roundTrip(text, charactersIn, writeSpecifyChars); },
    [](const QString& text) { roundTrip(text, readDiffusionSymbols, writeDiffusionSymbols); },
    [](const QString& text) { roundTrip(text, readContrast, writeContrast); },
    [](const QString& text) {
        roundTrip(
            text, [](SequentialReader& file) { return readTotal(file, Places); },
            [](SequentialWriter& file, const CumulativeTable& table) { writeTotal(file, table, Places); });
    }};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size > 0) { // the first byte chooses the reader
        const QString text = QString::fromUtf8(inputOf(data + 1, size - 1));
        expectAnswer([&] { Trips.at (*data % Trips.size())(text); });
    }
    return 0;
}
