#pragma once

#include "analysis/TotalCommands.h"
#include "platform/forms/VarnForm.h"

#include <memory>
#include <optional>

class QComboBox;
struct VarnModule;

namespace Ui {
class frmCalc;
}

/// The set-up form of cumulative analysis: names the word forms that are counted, with their colours and
/// identifying strings, and keeps them and the counts as files.
class frmCalc : public VarnForm
{
    Q_OBJECT

public:
    frmCalc(VarnModule& varn, Dialogs& dialogs);
    ~frmCalc() override;

    /// Prepares the form to be shown: shows the table, the strings and the item that are loaded.
    void Form_Load();
    void refresh() override;
    QString helpSection() const override { return QStringLiteral("Counting over many items"); }
    void followSharedState() override;
    void showNewState() override;

Q_SIGNALS:
    /// The user wants to go back to the main form.
    void toMain();
    /// The user wants to add items to the counts.
    void toExecute();
    /// The user wants to draw a map.
    void toDrawMap();
    /// The user wants to contrast two groups of word forms.
    void toContrast();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    /// Name and colours of a word form as the controls hold them; a colour is -1 where none is chosen.
    struct WordformFields
    {
        QString name;
        int symbolColor = -1;
        int paintColor = -1;

        bool operator==(const WordformFields&) const = default;
    };

    void connectMenus();
    void connectButtons();
    void connectFields();

    void mnuFileOpen_Click();
    void mnuFileSave_Click() { SaveTotalFile(); }
    void mnuGengoOpen_Click();
    void mnuSetFileLoad_Click() { LoadSetData(); }
    void mnuInitialize_Click() { Initialize(); }
    void cmdTotalNumber_Click();
    void cmdSetInput_Click();
    void cmdTotalFileSave_Click() { SaveTotalFile(); }
    void cmdNext_Click();
    void cmdPrevious_Click();
    void cmdSet_Click();
    void lstTotal_Click(int row);
    void lstDisplay_Click();
    void cmdSetWord_Click();

    void Initialize();
    void LoadTotalFile(const QString& path);
    void SaveTotalFile();
    void LoadSetData();
    void SetTotal();
    void TotalDataSpecified();
    void TotalSet(int k);
    void SetTotalList();
    void SetKindWord();

    /// Shows the table from its first word form on.
    void showTable();
    void moveTo(int k);
    void takeFileName();
    TotalState state();

    WordformFields fields() const;
    bool isEdited() const { return m_prepared && fields() != m_stored; }
    /// Whether the user gives up what is unsaved; `question` ends the text that tells of it.
    bool mayGiveUpFields(const QString& question);
    bool mayGiveUpTable(const QString& question);
    bool mayGiveUpStrings(const QString& question);
    std::optional<QString> askForFile(const QString& title, const QString& filter);
    void showState();
    QStringList status() const;

    std::unique_ptr<Ui::frmCalc> m_ui;
    VarnModule& m_varn;
    /// The word form shown, and its fields as they were shown or registered last.
    int m_shownWordform = 0;
    WordformFields m_stored;
    /// The number of items that is shown.
    int m_shownItems = -1;
    /// Which loading of an item the listed kinds are of.
    int m_listedReading = 0;
    bool m_prepared = false;
};
