#include "analysis/CountedItemsFile.h"

#include "platform/FileName.h"

#include <algorithm>

QString countedItemsPath(const QString& totalPath)
{
    return withEnding(totalPath, QStringLiteral(".itm"));
}

QStringList readCountedItems(SequentialReader& file, int items)
{
    const int number = file.readCount();
    const int itemsWithThem = file.readCount();
    QStringList names;
    for (int n = 1; n <= number; ++n) {
        names << file.readString();
    }
    const int surplus = std::max(itemsWithThem - items, 0);
    return names.first(std::max(number - surplus, 0));
}

void writeCountedItems(SequentialWriter& file, const CumulativeTable& table)
{
    file.write(table.CountedItems.size(), table.NumItemsAccumulated);
    for (const QString& name : table.CountedItems) {
        file.write(name);
    }
}
