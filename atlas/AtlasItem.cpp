#include "atlas/AtlasItem.h"

#include "lingdata/ItemLoader.h"
#include "lingdata/LinguisticFile.h"
#include "platform/FileName.h"
#include "symbols/SymbolFile.h"

#include <QDir>
#include <QSet>

#include <algorithm>

namespace {

void describe(const ItemAnswers& answers, AtlasItem& item)
{
    QSet<QString> seen;
    item.caption = answers.Hanrei;
    item.localities = answers.NLocate;
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

} // namespace

QString AtlasItem::name() const
{
    return stemOf(path);
}

QStringList atlasItemPaths(const Folders& folders)
{
    const QDir folder(folders.Drive.hostPath(folders.dataFolder()));
    QStringList paths;
    for (const QString& file : folder.entryList({ItemFiles.pattern()}, QDir::Files, QDir::Name)) {
        paths << folders.dataFolder() + QLatin1Char('\\') + file;
    }
    return paths;
}

AtlasItem readAtlasItem(const Folders& folders, const QString& path)
{
    AtlasItem item;
    item.path = path;
    item.hasSymbols = fileExists(folders.Drive, symbolPathOf(path));
    try {
        describe(readItemAnswers(folders, path), item);
    } catch (const RunTimeError& error) {
        item.trouble = error.message();
    }
    return item;
}

QString symbolPathOf(const QString& itemPath)
{
    return withEnding(itemPath, SymbolFiles.ending);
}

bool contains(const AtlasItem& item, const QString& text)
{
    const auto holds = [&](const QString& where) { return where.contains(text, Qt::CaseInsensitive); };
    return holds(item.caption) || holds(item.name()) || std::ranges::any_of(item.wordForms, holds);
}
