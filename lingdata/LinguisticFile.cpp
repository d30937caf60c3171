#include "lingdata/LinguisticFile.h"

ItemAnswers readItem(SequentialReader& file)
{
    ItemAnswers item;
    item.NLocate = file.readCount();
    item.Komoku = file.readString();
    item.Hanrei = file.readString();
    item.Comment = file.readString();
    for (int i = 1; i <= item.NLocate; ++i) {
        item.WordCount(i) = file.readCount();
        for (int j = 1; j <= item.WordCount(i); ++j) {
            const QString word = file.readString();
            item.WordData(i, j) = word;
            const int n = item.WordTotal + 1;
            item.WordList(n) = word;
            item.WordLocate(n) = static_cast<qint16>(i);
            item.WordSub(n) = static_cast<qint16>(j);
            item.WordTotal = static_cast<qint16>(n);
        }
    }
    return item;
}

void writeItem(SequentialWriter& file, const ItemAnswers& item)
{
    // The item field is read and shown, but never written.
    file.write(item.NLocate, QString(), item.Hanrei, item.Comment);
    for (int i = 1; i <= item.NLocate; ++i) {
        file.write(item.WordCount(i));
        for (int j = 1; j <= item.WordCount(i); ++j) {
            file.write(item.WordData(i, j));
        }
    }
}
