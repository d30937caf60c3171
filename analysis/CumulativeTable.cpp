#include "analysis/CumulativeTable.h"

#include "platform/StandardColors.h"

#include <array>

namespace {

/// Colours that differ from each other and from the paper.
constexpr std::array FirstColors = {StandardColor::LightRed, StandardColor::LightBlue, StandardColor::Green,
                                    StandardColor::Magenta,  StandardColor::Yellow,    StandardColor::Cyan,
                                    StandardColor::Black,    StandardColor::Red,       StandardColor::Blue,
                                    StandardColor::Gray};

void emptyWordform(CumulativeData& data, int k)
{
    data.WordformName(k).clear();
    data.WordformSymbolColor(k) = 0;
    data.WordformPaintColor(k) = 0;
    data.WordformExtraValue(k) = QVariant();
    data.WordformExtraInt(k) = 0;
    for (int j = 0; j <= data.Counts.last<1>(); ++j) {
        data.Counts(k, j) = 0;
    }
    data.NumSpecifyChars(k) = 0;
}

void beginWordform(CumulativeData& data, int k)
{
    const auto color = FirstColors.at(static_cast<std::size_t>(k) - 1);
    emptyWordform(data, k);
    data.WordformSymbolColor(k) = static_cast<int>(color);
    data.WordformPaintColor(k) = static_cast<qint16>(color);
}

/// Whether there is nothing in the table but a number of word forms.
bool isJustBegun(const CumulativeTable& table)
{
    CumulativeData begun;
    setNumWordforms(begun, table.NumWordforms);
    return static_cast<const CumulativeTable&>(begun) == table;
}

} // namespace

bool SpecifiedChars::operator==(const SpecifiedChars& other) const
{
    bool same = NumSpecifyChars == other.NumSpecifyChars;
    for (int k = 1; same && k <= SpecifyChars.last(); ++k) {
        for (int c = 1; same && c <= NumSpecifyChars(k); ++c) {
            same = SpecifyChars(k, c) == other.SpecifyChars(k, c);
        }
    }
    return same;
}

void setNumWordforms(CumulativeData& data, int number)
{
    if (number != 0) {
        data.WordformName.require(number);
    }
    for (int k = number + 1; k <= data.NumWordforms; ++k) {
        emptyWordform(data, k);
    }
    for (int k = data.NumWordforms + 1; k <= number; ++k) {
        beginWordform(data, k);
    }
    data.NumWordforms = number;
    data.CurrentWordform = 1;
}

bool isTableUnsaved(const CumulativeData& data)
{
    const bool isNew = data.TotalFilePath.isEmpty();
    return data.SavedTable.differs(data) && !(isNew && isJustBegun(data));
}

bool areCharsUnsaved(const CumulativeData& data)
{
    return data.SavedChars.differs(data);
}

bool hasContents(const CumulativeData& data, int k)
{
    bool counted = false;
    for (int j = 1; j <= data.Counts.last<1>(); ++j) {
        counted = counted || data.Counts(k, j) != 0;
    }
    return counted || !data.WordformName(k).isEmpty() || data.NumSpecifyChars(k) > 0;
}

bool hasIdentifyingStrings(const CumulativeData& data)
{
    for (int k = 1; k <= data.NumWordforms; ++k) {
        if (data.NumSpecifyChars(k) > 0) {
            return true;
        }
    }
    return false;
}

bool isCounted(const CumulativeTable& table, const QString& itemName)
{
    return table.CountedItems.contains(itemName, Qt::CaseInsensitive);
}

QStringList wordformNames(const CumulativeTable& table)
{
    QStringList names;
    for (int k = 1; k <= table.NumWordforms; ++k) {
        names << table.WordformName(k);
    }
    return names;
}
