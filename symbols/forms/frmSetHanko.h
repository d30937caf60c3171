#pragma once

#include "platform/DrawSurface.h"
#include "platform/forms/VarnForm.h"
#include "symbols/SymbolEditor.h"
#include "symbols/SymbolHistory.h"

#include <memory>

class QLineEdit;
class SymbolPicker;
struct VarnModule;

namespace Ui {
class frmSetHanko;
}

/// The symbol set-up form: gives the kinds of an item their symbols and captions, and keeps them as a symbol
/// file.
class frmSetHanko : public VarnForm
{
    Q_OBJECT

public:
    frmSetHanko(VarnModule& varn, Dialogs& dialogs);
    ~frmSetHanko() override;

    /// Prepares the form to be shown: lists the kinds of the loaded item and begins record 1, or shows the
    /// symbol set that is loaded. Once the form stands on the screen, an item is asked for where none is
    /// loaded.
    void Form_Load();
    void refresh() override;
    QString helpSection() const override { return QStringLiteral("Giving the kinds their symbols"); }
    void followSharedState() override;
    void showNewState() override;

Q_SIGNALS:
    /// The user wants to go back to the main form.
    void toMain();
    /// The user wants to draw the map.
    void toDrawMap();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void connectMenus();
    void connectButtons();
    void connectFields();
    void connectHistory();

    void cmdWord_Click();
    void cmdAutoHanrei_Click();
    void cmdSave_Click();
    void cmdNext_Click();
    void cmdBefore_Click();
    void cmdInserte_Click();
    void cmdDelete_Click();
    void cmdUp_Click();
    void cmdDown_Click();
    void cmdSymbol_Click();
    void mnuInputWord_Click();
    void mnuOpenHanko_Click();
    void mnuSaveHanko_Click();
    void mnuHankoInit_Click();
    void mnuUndo_Click();
    void mnuRedo_Click();
    void mnuLoadMap_Click();
    void mnuHankoReturn_Click();

    void SetKindWord();
    void LoadSrtData();
    void LoadGengoDataCheck();
    void LoadHankoData(const QString& path);
    void ResetHankoData(const QString& path);
    void DisplayHanrei();

    /// What the controls hold, and the other way round.
    HankoFields fields() const;
    void showFields(const HankoFields& fields);
    /// The same, where the fields hold what is stored.
    void showStored(const HankoFields& fields);
    /// Shows the shared symbol set at its current record.
    void showSet();
    /// Shows the record whose row in the preview lies at height `y`, twips.
    void showRecordAt(float y);

    /// What undo goes back to.
    SymbolEditorState state() const;
    void restore(const SymbolEditorState& state);
    /// The text box that is being typed in; null where none is.
    QLineEdit* typingBox() const;

    /// Shows the shared symbol set where another form loaded it meanwhile.
    void followSet();
    void drawSample();
    QStringList status() const;
    bool isEdited() const { return m_stored != fields(); }
    bool hasSet() const;
    bool mayGiveUpFields(const QString& question);
    bool mayGiveUpWork(const QString& question);
    std::optional<QString> askForFile(const QString& title, const QString& filter);
    QString proposedName() const;
    std::optional<QString> askForSavePath();

    std::unique_ptr<Ui::frmSetHanko> m_ui;
    VarnModule& m_varn;
    SymbolEditor m_editor;
    SymbolPicker* m_picker;
    DrawSurface m_preview;
    DrawSurface m_sample;
    /// The fields as they were shown or registered last.
    HankoFields m_stored;
    /// Whether the current record was deleted or moved away from under its fields.
    bool m_orphaned = false;
    SymbolHistory m_history;
    /// The item that was loaded when the set was saved last.
    QString m_savedForItem;
    /// Which loading of an item the listed kinds are of.
    int m_listedReading = 0;
    /// Which reading of a symbol set is shown; -1 before the form was loaded.
    int m_shownReading = -1;
    /// Whether a preview is shown that can be drawn anew for another size.
    bool m_previewDrawn = false;
};
