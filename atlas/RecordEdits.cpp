#include "atlas/RecordEdits.h"

#include "atlas/AtlasPage.h"
#include "render/LegendText.h"
#include "render/MadeSymbols.h"
#include "symbols/SymbolEditor.h"
#include "symbols/SymbolPalette.h"

#include <algorithm>
#include <vector>

namespace {

struct Record
{
    QString kind;
    QString caption;
    HankoStyle style;
};

Record recordOf(const SymbolRecords& records, int k)
{
    return {records.HankoWord(k), records.HankoCaption(k), records.Hanko(k)};
}

void append(SymbolRecords& records, const Record& record)
{
    const int k = records.NHanrei + 1;
    records.HankoWord(k) = record.kind;
    records.HankoCaption(k) = record.caption;
    records.Hanko(k) = record.style;
    records.NHanrei = k;
}

/// The records of these numbers, in this order, with the comment of the set.
SymbolRecords inOrder(const SymbolRecords& records, const std::vector<int>& numbers)
{
    SymbolRecords result;
    result.Explain = records.Explain;
    for (const int k : numbers) {
        append(result, recordOf(records, k));
    }
    return result;
}

HankoStyle unusedSymbol(const SymbolRecords& records, int polygons)
{
    const SymbolPalette palette(polygons);
    const auto isUsed = [&](const HankoStyle& symbol) {
        bool used = false;
        for (int k = 1; k <= records.NHanrei; ++k) {
            used = used || records.Hanko(k) == symbol;
        }
        return used;
    };
    int n = 0;
    while (n < palette.size() - 1 && isUsed(palette.symbol(n))) {
        ++n;
    }
    return palette.symbol(n);
}

} // namespace

SymbolRecords withKind(SymbolRecords records, int k, const QString& kind)
{
    records.HankoWord(k) = DelBlankChar(kind);
    return records;
}

SymbolRecords withCaption(SymbolRecords records, int k, const QString& caption)
{
    records.HankoCaption(k) = DelBlankChar(caption);
    return records;
}

SymbolRecords withRecord(SymbolRecords records, const QString& kind, int polygons)
{
    const QString word = DelBlankChar(kind);
    append(records, {word, withoutHyphens(word), unusedSymbol(records, polygons)});
    return records;
}

SymbolRecords withoutRecords(const SymbolRecords& records, const RecordNumbers& numbers)
{
    std::vector<int> order;
    for (int k = 1; k <= records.NHanrei; ++k) {
        if (!numbers.contains(k)) {
            order.push_back(k);
        }
    }
    return inOrder(records, order);
}

SymbolRecords withRecordsMoved(const SymbolRecords& records, const RecordNumbers& numbers, int before)
{
    std::vector<int> order;
    for (int k = 1; k <= records.NHanrei + 1; ++k) {
        if (k == before) {
            order.insert(order.end(), numbers.begin(), numbers.end());
        }
        if (k <= records.NHanrei && !numbers.contains(k)) {
            order.push_back(k);
        }
    }
    return inOrder(records, order);
}

RecordNumbers numbersMoved(const RecordNumbers& numbers, int before)
{
    int next = before - static_cast<int>(std::distance(numbers.begin(), numbers.lower_bound(before)));
    RecordNumbers moved;
    for (std::size_t n = 0; n < numbers.size(); ++n) {
        moved.insert(next++);
    }
    return moved;
}

SymbolRecords withStyle(SymbolRecords records, const RecordNumbers& numbers, StyleField field, qint16 value)
{
    for (const int k : numbers) {
        records.Hanko(k).*field = value;
    }
    return records;
}

SymbolRecords withSameSymbol(SymbolRecords records, const RecordNumbers& numbers)
{
    if (numbers.empty()) {
        return records;
    }
    const Record first = recordOf(records, *numbers.begin());
    const QLatin1Char hyphen('-');
    const QString others = first.caption.startsWith(hyphen) ? first.caption : hyphen + first.caption;
    for (const int k : numbers) {
        records.Hanko(k) = first.style;
        records.HankoCaption(k) = k == *numbers.begin() ? first.caption : others;
    }
    return records;
}

SymbolRecords madeRecords(const ItemAnswers& item, int polygons)
{
    return makeSymbols({kindsByFrequency(localityWords(item))}, false, polygons).front();
}
