// Every reader of files: what it reads of any text is written, and reads back as the same.

#include "analysis/ContrastData.h"
#include "analysis/CountedItemsFile.h"
#include "analysis/CumulativeFile.h"
#include "analysis/DiffusionSymbols.h"
#include "analysis/Statistics.h"
#include "dialectometry/DistanceFile.h"
#include "fuzz/FuzzInput.h"
#include "lingdata/InputKindsFile.h"
#include "lingdata/KindList.h"
#include "lingdata/LinguisticFile.h"
#include "mapdata/LocalityNames.h"
#include "mapdata/MapFiles.h"
#include "shell/MapChoice.h"
#include "symbols/SymbolFile.h"

#include <array>
#include <optional>

namespace {

/// Reads a value of `text`, writes it, and reads and writes that again, which never fails.
template <typename Read, typename Write>
void roundTrip(const QString& text, Read read, Write write)
{
    const auto writtenFrom = [&](const QString& from) -> std::optional<QByteArray> {
        try {
            SequentialReader reader(from);
            const auto value = read(reader);
            SequentialWriter writer;
            write(writer, value);
            return writer.bytes();
        } catch (const RunTimeError&) {
            return std::nullopt;
        }
    };
    if (const auto written = writtenFrom(text)) {
        require(writtenFrom(QString::fromUtf8(*written)) == written);
    }
}

WordKinds kindsIn(SequentialReader& file)
{
    WordKinds kinds;
    readKinds(file, kinds);
    return kinds;
}

/// A word form without strings, or with more than ten, has no line in its file, which then ends too early; so
/// there is none here.
CumulativeData charactersIn(SequentialReader& file)
{
    constexpr int MostStrings = 10;
    CumulativeData data;
    readSpecifyChars(file, data);
    for (int k = 1; k <= data.NumWordforms; ++k) {
        if (data.NumSpecifyChars(k) < 1 || data.NumSpecifyChars(k) > MostStrings) {
            throw RunTimeError(ErrorNumber::InputPastEndOfFile);
        }
    }
    return data;
}

CumulativeTable countedItemsIn(SequentialReader& file)
{
    CumulativeTable table;
    table.NumItemsAccumulated = 2;
    table.CountedItems = readCountedItems(file, table.NumItemsAccumulated);
    return table;
}

void writeOwnStatistics(SequentialWriter& file, const Statistics& statistics)
{
    CumulativeTable table;
    table.NumWordforms = static_cast<qint16>(statistics.StatsWordforms);
    table.NumItemsAccumulated = static_cast<qint16>(statistics.StatsItems);
    writeStatistics(file, table, statistics);
}

constexpr int Places = 3;

using Trip = void (*)(const QString&);

constexpr std::array<Trip, 17> Trips = {
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
    },
    [](const QString& text) {
        roundTrip(
            text, [](SequentialReader& file) { return readLocalityNames(file, Places); }, writeLocalityNames);
    },
    [](const QString& text) { roundTrip(text, countedItemsIn, writeCountedItems); },
    [](const QString& text) { roundTrip(text, readStatistics, writeOwnStatistics); },
    [](const QString& text) {
        roundTrip(
            text, [](SequentialReader& file) { return readDistances(file, {}, Places); },
            [](SequentialWriter& file, const DistanceMatrix& distances) {
                writeDistances(file, {}, distances);
            });
    }};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size > 0) { // the first byte chooses the reader
        const QString text = QString::fromUtf8(inputOf(data + 1, size - 1));
        Trips.at (*data % Trips.size())(text);
    }
    return 0;
}
