#pragma once

#include "lingdata/UnsavedItem.h"
#include "lingdata/forms/WordTable.h"
#include "platform/forms/VarnForm.h"

#include <memory>
#include <optional>

class QLabel;
class WordDelegate;
class WordEntryDelegate;
struct VarnModule;

namespace Ui {
class frmDataInput;
}

/// The data input form: entry of one item, locality by locality. The item is the form's own; the one that the
/// other forms have loaded stays as it is.
class frmDataInput : public VarnForm
{
    Q_OBJECT

public:
    frmDataInput(VarnModule& varn, Dialogs& dialogs);
    ~frmDataInput() override;

    /// Prepares the form for the current map. What is being entered stays, but for an item of another map,
    /// which makes way for a new one; that is asked about where it is unsaved.
    void Form_Load();
    void refresh() override;
    QString helpSection() const override { return QStringLiteral("Entering an item"); }

    /// Begins a new item where another map is the current one now.
    void showNewState() override;
    /// The item being entered, where it is not saved; and the other way round, an item that was kept.
    std::optional<UnsavedItem> unsavedItem() const;
    void enterUnsaved(const UnsavedItem& item);

Q_SIGNALS:
    /// The user wants to go back to the main form.
    void toMain();
    /// The user wants to go on to the form where data is accumulated.
    void toAccumulateData();
    /// The item that is loaded was saved here and loaded afresh.
    void itemReloaded();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void setUpTable();
    void connectMenus();
    void connectEditMenu();
    void connectKinds();
    void connectTexts();

    void mnuOpen_Click();
    void mnuSave_Click();
    void mnuInitialize_Click();
    void mnuToMain_Click();
    void mnuToAccumulate_Click();
    void mnuUndo_Click();
    void mnuRedo_Click();
    void mnuCut_Click();
    void mnuCopy_Click();
    void mnuPaste_Click();
    void mnuGoTo_Click();
    void mnuAddLocalities_Click();
    void cmdKindToData_Click();
    void cmdDataToKind_Click();
    void cmdSetKind_Click();
    void cmdDelKind_Click();
    void cmdCheckCode_Click();

    void LoadWordData();
    void SaveWord();
    void renewKinds(const QString& itemPath);
    bool mayOpen();
    bool mayLeave();
    void newItem();
    void showItem(ItemEditor item, const QString& itemPath);
    void moved();
    void drawWordShown(const QString& text);
    void emptySelected();
    void showStep(const std::optional<CellPlace>& place);
    void showEdited();
    void showTexts();
    void showKinds();
    void showFaults();
    void goToFault(int index);
    void hideFaults();
    void showState();

    std::unique_ptr<Ui::frmDataInput> m_ui;
    VarnModule& m_varn;
    ItemEditor m_editor;
    WordTable m_table;
    std::vector<FaultyWord> m_faults;
    WordDelegate* m_kindDelegate;
    WordEntryDelegate* m_delegate;
    QLabel* m_progress;
    QLabel* m_warning;
    /// The map that the item belongs to.
    QString m_mapName;
    /// The file that the item was opened from or saved to last, without its folder; empty for a new item.
    QString m_fileName;
};
