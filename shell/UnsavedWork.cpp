#include "shell/UnsavedWork.h"

#include "analysis/CumulativeFile.h"
#include "platform/FileName.h"
#include "shell/MapChange.h"
#include "shell/VarnModule.h"

#include <utility>

namespace {

QString orNew(const QString& name)
{
    return name.isEmpty() ? QStringLiteral("without a name") : name;
}

void restoreSymbols(const SymbolSet& symbols, VarnModule& varn)
{
    const int reading = varn.HankoReading + 1;
    static_cast<SymbolSet&>(varn) = symbols;
    varn.CurrentHanko = symbols.NHanrei;
    varn.SavedRecords.forget();
    varn.HankoReading = reading;
    symbolSetLoaded(varn);
}

/// What `load` loads; an empty table where the file cannot be read.
template <typename Load>
CumulativeData loadedOrEmpty(Load load)
{
    CumulativeData data;
    try {
        load(data);
    } catch (const RunTimeError&) {
        data = {};
    }
    return data;
}

/// `work.table` as a change of what its files hold now.
CumulativeData changedTable(const UnsavedWork& work, const DriveC& drive)
{
    const CumulativeData& kept = *work.table;
    CumulativeData strings =
        loadedOrEmpty([&](auto& data) { LoadSetData(drive, kept.SpecifyFileName, data); });
    CumulativeData table =
        loadedOrEmpty([&](auto& data) { LoadTotalFile(drive, kept.TotalFilePath, work.localities, data); });
    table.TotalFileName = kept.TotalFileName;
    table.SpecifyFileName = strings.SpecifyFileName;
    table.SavedChars = std::move(strings.SavedChars);
    static_cast<CumulativeTable&>(table) = kept;
    static_cast<SpecifiedChars&>(table) = kept;
    return table;
}

} // namespace

UnsavedWork unsavedWork(const VarnModule& varn, std::optional<UnsavedItem> item)
{
    UnsavedWork work;
    work.map = {varn.VarnPath, varn.VarnMapName};
    work.localities = varn.NLocality;
    work.item = std::move(item);
    if (isSymbolSetUnsaved(varn)) {
        work.symbols = varn;
    }
    if (isTableUnsaved(varn) || areCharsUnsaved(varn)) {
        work.table = varn;
    }
    return work;
}

QString describe(const UnsavedWork& work)
{
    QStringList parts;
    if (work.item) {
        parts << QStringLiteral("item ") + orNew(work.item->fileName);
    }
    if (work.symbols) {
        parts << QStringLiteral("symbol set ") + orNew(work.symbols->SymbolFileName);
    }
    if (work.table) {
        parts << QStringLiteral("cumulative data ") + orNew(work.table->TotalFileName);
    }
    if (work.pages.size() == 1) {
        parts << QStringLiteral("atlas page ") + stemOf(work.pages.front().itemPath);
    } else if (!work.pages.empty()) {
        parts << QStringLiteral("%1 atlas pages").arg(work.pages.size());
    }
    if (work.legendPlace) {
        parts << QStringLiteral("place of the legend");
    }
    return parts.join(QStringLiteral(", "));
}

void restoreWork(const UnsavedWork& work, VarnModule& varn)
{
    if (!isCurrentMap(work.map, varn)) {
        changeMap(work.map, varn);
    }
    if (work.symbols) {
        restoreSymbols(*work.symbols, varn);
    }
    if (work.table) {
        static_cast<CumulativeData&>(varn) = changedTable(work, varn.Drive);
        varn.ContrastAnalysed = false;
    }
}
