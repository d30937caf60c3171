#include "atlas/AtlasItem.h"

#include "atlas/ItemKey.h"
#include "lingdata/ItemFolder.h"
#include "lingdata/ItemLoader.h"
#include "platform/FileName.h"
#include "platform/Folder.h"
#include "symbols/SymbolFile.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

bool stands(const QString& text, const QString& where)
{
    return where.contains(text, Qt::CaseInsensitive);
}

/// Whether the item is found without its word forms.
bool isNamed(const AtlasItem& item, const QString& text)
{
    return stands(text, item.caption) || stands(text, item.name());
}

QByteArray markOf(const QFileInfo& file)
{
    return QByteArray::number(file.size()) + ' ' +
           QByteArray::number(file.lastModified().toMSecsSinceEpoch());
}

QFileInfoList symbolFiles(const Folders& folders)
{
    const QDir folder(folders.Drive.hostPath(folders.dataFolder()));
    return folder.entryInfoList({SymbolFiles.pattern()}, QDir::Files);
}

} // namespace

void describe(const ItemAnswers& answers, AtlasItem& item)
{
    QSet<QString> seen;
    item.caption = answers.Hanrei;
    item.localities = answers.NLocate;
    item.answered = 0;
    item.wordForms.clear();
    for (int i = 1; i <= answers.NLocate; ++i) {
        item.answered += answers.WordCount(i) > 0 ? 1 : 0;
        for (int j = 1; j <= answers.WordCount(i); ++j) {
            const QString& word = answers.WordData(i, j);
            if (!seen.contains(word)) {
                seen.insert(word);
                item.wordForms << word;
            }
        }
    }
}

QByteArray fileMark(const Folders& folders, const QString& path)
{
    const QFileInfo file(folders.Drive.hostPath(path));
    return file.exists() ? markOf(file) : QByteArray();
}

QString AtlasItem::name() const
{
    return stemOf(path);
}

QStringList atlasItemPaths(const Folders& folders)
{
    const QString folder = folders.dataFolder();
    return folderExists(folders.Drive, folder) ? itemFiles(folders.Drive, folder) : QStringList();
}

std::vector<std::pair<QString, QByteArray>> atlasItemMarks(const Folders& folders)
{
    QHash<QString, QByteArray> symbols;
    for (const QFileInfo& file : symbolFiles(folders)) {
        symbols.insert(itemKey(file.fileName()), markOf(file));
    }
    std::vector<std::pair<QString, QByteArray>> marks;
    for (const QString& path : atlasItemPaths(folders)) {
        marks.emplace_back(path, fileMark(folders, path) + '/' +
                                     symbols.value(itemKey(fileNameOf(symbolPathOf(path)))));
    }
    return marks;
}

AtlasItem readAtlasItem(const Folders& folders, const QString& path)
{
    AtlasItem item;
    item.path = path;
    item.hasSymbols = fileExists(folders.Drive, symbolPathOf(path));
    QString what = QStringLiteral("The item");
    try {
        describe(readItemAnswers(folders, path), item);
        if (item.hasSymbols) {
            what = QStringLiteral("The symbol file");
            readSequentialFile(folders.Drive, symbolPathOf(path), readSymbolSet);
        }
    } catch (const RunTimeError& error) {
        item.trouble = unreadable(what, error);
    }
    return item;
}

QString unreadable(const QString& what, const RunTimeError& error)
{
    return QStringLiteral("%1 cannot be read: %2.\n%3").arg(what, error.text(), error.where()).trimmed();
}

QString symbolPathOf(const QString& itemPath)
{
    return withEnding(itemPath, SymbolFiles.ending);
}

bool contains(const AtlasItem& item, const QString& text)
{
    const auto holds = [&](const QString& where) { return stands(text, where); };
    return isNamed(item, text) || std::ranges::any_of(item.wordForms, holds);
}

QStringList wordFormsWith(const AtlasItem& item, const QString& text)
{
    return isNamed(item, text) ? QStringList() : item.wordForms.filter(text, Qt::CaseInsensitive);
}
