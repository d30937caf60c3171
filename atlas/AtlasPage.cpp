#include "atlas/AtlasPage.h"

#include "atlas/AtlasItem.h"
#include "atlas/ItemKey.h"
#include "lingdata/ItemLoader.h"
#include "lingdata/KindList.h"
#include "lingdata/LinguisticFile.h"
#include "lingdata/LocalityMismatch.h"
#include "platform/FileName.h"
#include "platform/WholeFile.h"
#include "symbols/SymbolFile.h"

#include <QFile>

namespace {

/// Numbers the word forms of all localities anew.
void listWords(ItemAnswers& item)
{
    item.WordTotal = 0;
    for (qint16 i = 1; i <= item.NLocate; ++i) {
        for (qint16 j = 1; j <= item.WordCount(i); ++j) {
            const int n = ++item.WordTotal;
            item.WordLocate(n) = i;
            item.WordSub(n) = j;
            item.WordList(n) = item.WordData(i, j);
        }
    }
}

void readWords(const Folders& folders, AtlasPage& page)
{
    try {
        static_cast<ItemAnswers&>(page.item) = readItemAnswers(folders, page.item.ItemPath);
        renewKinds(page);
    } catch (const RunTimeError& error) {
        page.trouble = unreadable(QStringLiteral("The item"), error);
    }
    page.savedWords.keep(localityWords(page.item));
}

void readSymbols(const Folders& folders, AtlasPage& page)
{
    const QString path = symbolPathOf(page.item.ItemPath);
    page.symbols.SymbolFilePath = path;
    page.symbols.SymbolFileName = fileNameOf(path);
    noteSymbolFile(folders, page);
    if (page.symbolFile.isEmpty()) {
        return;
    }
    try {
        LoadHankoData(folders.Drive, path, page.symbols);
    } catch (const RunTimeError& error) {
        page.symbolTrouble = unreadable(QStringLiteral("The symbol file"), error);
    }
}

bool hasKinds(const AtlasPage& page)
{
    return page.item.NKind > 0 || page.item.WordTotal == 0;
}

void saveWords(const Folders& folders, AtlasPage& page)
{
    const QString& path = page.item.ItemPath;
    writeSequentialFile(folders.Drive, path, [&](SequentialWriter& file) { writeItem(file, page.item); });
    page.savedWords.keep(localityWords(page.item));
    noteItemFile(folders, page);
    QFile::remove(folders.Drive.hostPath(page.item.KindsPath)); // whatever happens, old kinds are not taken
    if (page.item.NKind > 0) {
        FileWordData(folders, page.item.KindsPath, page.item);
    }
}

void saveSymbols(const Folders& folders, AtlasPage& page)
{
    SaveHankoData(folders.Drive, page.symbols.SymbolFilePath, page.symbols);
    page.symbols.SavedRecords.keep(page.symbols);
    noteSymbolFile(folders, page);
}

} // namespace

void noteItemFile(const Folders& folders, AtlasPage& page)
{
    page.itemFile = fileMark(folders, page.item.ItemPath);
}

void noteSymbolFile(const Folders& folders, AtlasPage& page)
{
    page.symbolFile = fileMark(folders, page.symbols.SymbolFilePath);
}

LocalityWords localityWords(const ItemAnswers& item)
{
    LocalityWords words(static_cast<std::size_t>(item.NLocate));
    for (int i = 1; i <= item.NLocate; ++i) {
        for (int j = 1; j <= item.WordCount(i); ++j) {
            words[static_cast<std::size_t>(i - 1)] << item.WordData(i, j);
        }
    }
    return words;
}

void setLocalityWords(ItemAnswers& item, int i, const QStringList& words)
{
    if (i < 1 || i > item.NLocate) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("%1 is not in 1 to %2.").arg(i).arg(item.NLocate));
    }
    item.WordData.require(i, static_cast<int>(qMax(qsizetype(1), words.size())));
    item.WordCount(i) = static_cast<qint16>(words.size());
    for (int j = 1; j <= item.WordData.last<1>(); ++j) {
        item.WordData(i, j) = words.value(j - 1);
    }
    listWords(item);
}

void renewKinds(AtlasPage& page)
{
    try {
        SearchKindWord(page.item);
        SortKindWord(page.item);
    } catch (const RunTimeError&) {
        static_cast<WordKinds&>(page.item) = {}; // more kinds than the forms can show
    }
}

AtlasPage readAtlasPage(const Folders& folders, const QString& itemPath)
{
    AtlasPage page;
    page.item.ItemPath = itemPath;
    page.item.ItemFileName = fileNameOf(itemPath);
    page.item.KindsPath = kindsFilePath(folders, itemPath);
    noteItemFile(folders, page);
    readWords(folders, page);
    readSymbols(folders, page);
    return page;
}

QStringList warningsOf(const AtlasPage& page, int mapLocalities)
{
    QStringList warnings;
    if (!page.trouble.isEmpty()) {
        warnings << page.trouble;
    } else {
        warnings << localityMismatch(page.item.NLocate, mapLocalities);
    }
    if (!hasKinds(page)) {
        warnings << QStringLiteral("The item has more than %1 kinds of word forms; its kinds are not listed.")
                        .arg(WordKinds().KindWord.last());
    }
    warnings << page.symbolTrouble;
    warnings.removeAll(QString());
    return warnings;
}

void saveAtlasPage(const Folders& folders, AtlasPage& page)
{
    if (page.areWordsUnsaved()) {
        saveWords(folders, page);
    }
    if (page.areSymbolsUnsaved()) {
        saveSymbols(folders, page);
    }
}

QStringList filesChanged(const Folders& folders, const AtlasPage& page)
{
    QStringList changed;
    if (fileMark(folders, page.item.ItemPath) != page.itemFile) {
        changed << page.item.ItemFileName;
    }
    if (fileMark(folders, page.symbols.SymbolFilePath) != page.symbolFile) {
        changed << page.symbols.SymbolFileName;
    }
    return changed;
}

bool hasOwnSymbols(const AtlasPage& page)
{
    return itemKey(page.symbols.SymbolFilePath) == itemKey(symbolPathOf(page.item.ItemPath));
}

void keepAgainstFiles(const Folders& folders, AtlasPage& page)
{
    if (fileMark(folders, page.item.ItemPath) != page.itemFile) {
        page.savedWords.forget();
        noteItemFile(folders, page);
    }
    if (fileMark(folders, page.symbols.SymbolFilePath) != page.symbolFile) {
        page.symbols.SavedRecords.forget();
        noteSymbolFile(folders, page);
    }
}
