#include "lingdata/EnteredItem.h"

#include "lingdata/InputKindsFile.h"
#include "lingdata/ItemLoader.h"
#include "lingdata/LinguisticFile.h"
#include "platform/FileName.h"
#include "platform/SequentialFile.h"

#include <QFile>

namespace {

constexpr QLatin1String ItemEnding(".dbs");

} // namespace

QString enteredItemPath(const Folders& folders, const QString& name)
{
    QString base = name.trimmed();
    if (base.endsWith(ItemEnding, Qt::CaseInsensitive)) {
        base.chop(ItemEnding.size());
    }
    if (base.isEmpty()) {
        return {};
    }
    if (!isFileName(base)) {
        throw RunTimeError(ErrorNumber::BadFileName, base);
    }
    return folders.dataFolder() + QLatin1Char('\\') + base + ItemEnding;
}

QString inputKindsPath(const Folders& folders, const QString& itemPath)
{
    const QString kindsPath = kindsFilePath(folders, itemPath);
    return kindsPath.left(kindsPath.lastIndexOf(QLatin1Char('.'))) + QStringLiteral(".ipt");
}

ItemEditor openItem(const Folders& folders, const QString& itemPath)
{
    ItemAnswers item = readSequentialFile(folders.Drive, itemPath, readItem);
    const QString kindsPath = inputKindsPath(folders, itemPath);
    if (fileExists(folders.Drive, kindsPath)) {
        return {std::move(item), readSequentialFile(folders.Drive, kindsPath, readInputKinds)};
    }
    QStringList kinds = ItemEditor(item, {}).wordsMissingInKinds().mid(0, MostInputKinds);
    return {std::move(item), std::move(kinds)};
}

void saveItem(const Folders& folders, const QString& itemPath, ItemEditor& editor)
{
    const ItemAnswers item = editor.answers();
    writeSequentialFile(folders.Drive, itemPath, [&](SequentialWriter& file) { writeItem(file, item); });
    // Whatever happens from here on, old kinds must not be taken for those of the new item.
    QFile::remove(folders.Drive.hostPath(kindsFilePath(folders, itemPath)));
    writeSequentialFile(folders.Drive, inputKindsPath(folders, itemPath),
                        [&](SequentialWriter& file) { writeInputKinds(file, editor.kinds()); });
    editor.markSaved();
}

void renewKindsFile(const Folders& folders, const QString& itemPath, const ItemEditor& editor)
{
    LinguisticData data;
    static_cast<ItemAnswers&>(data) = editor.answers();
    FileWordData(folders, kindsFilePath(folders, itemPath), data);
}
