#include "lingdata/EnteredItem.h"

#include "lingdata/InputKindsFile.h"
#include "lingdata/LinguisticFile.h"
#include "platform/FileName.h"
#include "platform/SequentialFile.h"

#include <QFile>

namespace {

QStringList wordFormsOf(const ItemAnswers& item)
{
    return ItemEditor(item, {}).wordsMissingInKinds().mid(0, MostInputKinds);
}

/// Removes the kinds file of a saved item, so that old kinds are not taken for those of the item.
void removeOldKinds(const Folders& folders, const QString& itemPath)
{
    const QString path = kindsFilePath(folders, itemPath);
    QFile file(folders.Drive.hostPath(path));
    if (file.exists() && !file.remove()) {
        throw RunTimeError(ErrorNumber::PermissionDenied, QStringLiteral("The old kinds cannot be removed."))
            .at({path});
    }
}

} // namespace

QString enteredItemPath(const Folders& folders, const QString& name)
{
    const QString base = withoutEnding(name.trimmed(), ItemFiles.ending);
    if (base.isEmpty()) {
        return {};
    }
    if (!isFileName(base)) {
        throw RunTimeError(ErrorNumber::BadFileName, base);
    }
    return folders.dataFolder() + QLatin1Char('\\') + base + ItemFiles.ending;
}

QString inputKindsPath(const Folders& folders, const QString& itemPath)
{
    return withEnding(kindsFilePath(folders, itemPath), InputKindsEnding);
}

OpenedItem openItem(const Folders& folders, const QString& itemPath)
{
    const ItemAnswers item = readItemAnswers(folders, itemPath);
    const QString kindsPath = inputKindsPath(folders, itemPath);
    if (!fileExists(folders.Drive, kindsPath)) {
        return {ItemEditor(item, wordFormsOf(item)), {}};
    }
    try {
        return {ItemEditor(item, readSequentialFile(folders.Drive, kindsPath, readInputKinds)), {}};
    } catch (const RunTimeError& error) {
        return {ItemEditor(item, wordFormsOf(item)),
                QStringLiteral(
                    "The list of kinds cannot be read. It is left as it is until the item is saved; the "
                    "kinds shown are the word forms of the item.\r\n\r\n") +
                    error.message()};
    }
}

void saveItem(const Folders& folders, const QString& itemPath, ItemEditor& editor)
{
    const ItemAnswers item = editor.answers();
    writeSequentialFile(folders.Drive, itemPath, [&](SequentialWriter& file) { writeItem(file, item); });
    // Whatever happens from here on, old kinds must not be taken for those of the new item. One that stays is
    // told of when the kinds are made anew.
    QFile::remove(folders.Drive.hostPath(kindsFilePath(folders, itemPath)));
    writeSequentialFile(folders.Drive, inputKindsPath(folders, itemPath),
                        [&](SequentialWriter& file) { writeInputKinds(file, editor.kinds()); });
    editor.markSaved();
}

void renewKindsFile(const Folders& folders, const QString& itemPath, const ItemEditor& editor)
{
    removeOldKinds(folders, itemPath);
    LinguisticData data;
    static_cast<ItemAnswers&>(data) = editor.answers();
    FileWordData(folders, kindsFilePath(folders, itemPath), data);
}

void reloadItem(const Folders& folders, const QString& itemPath, LinguisticData& data, LoadedState& state,
                Dialogs& dialogs)
{
    try {
        removeOldKinds(folders, itemPath);
        LoadWordData(folders, itemPath, data, state, dialogs);
    } catch (const RunTimeError&) {
        dropItem(data, state);
        throw;
    }
}
