#pragma once

#include "analysis/DiffusionSymbols.h"
#include "platform/DrawSurface.h"
#include "platform/forms/VarnForm.h"

#include <QStringList>

#include <memory>
#include <optional>

class QComboBox;
class QLineEdit;
class SymbolPicker;
struct VarnModule;

namespace Ui {
class frmTotalHanko;
}

/// The set-up form of the diffusion map: gives each distinguished word form its symbol, its caption, and the
/// count from which it is drawn, and keeps them as a file. Whatever is edited counts at once.
class frmTotalHanko : public VarnForm
{
    Q_OBJECT

public:
    frmTotalHanko(VarnModule& varn, Dialogs& dialogs);
    ~frmTotalHanko() override;

    /// Prepares the form to be shown: lists the word forms of the table and shows their symbols.
    void Form_Load();
    void refresh() override;
    QString helpSection() const override { return QStringLiteral("Diffusion maps"); }
    void followSharedState() override;

Q_SIGNALS:
    /// The user wants to see the diffusion map of the symbols.
    void toDrawMap();
    /// The user wants to go back to the form of cumulative analysis.
    void toAnalysis();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    static constexpr QLatin1String FormTitle{"Set Symbols for Diffusion Map"};

    void connectControls();
    void connectFields();
    /// Stores the number that is chosen or typed there into the current word form's symbol.
    void storeChoice(QComboBox* box, qint16 HankoStyle::*member);
    void storeNumber(QLineEdit* box, qint16& (frmTotalHanko::*stored)());
    /// Runs `store` whenever the user edits; not while the form shows what is stored.
    void edit(const std::function<void()>& store);

    void cmdBefore_Click();
    void cmdNext_Click();
    void cmdSymbol_Click();
    void cmdStatistics_Click();
    void lstWordform_Click();
    void mnuTotalHankoOpen_Click();
    void mnuTotalHankoSave_Click();

    HankoStyle& hanko();
    qint16& hankoNumber() { return hanko().HankoNo; }
    qint16& minimumPoints();

    void stepTo(int k);
    /// Shows what is stored for the current word form.
    void showWordform();
    void showList();
    /// Takes over what other forms did to the table meanwhile.
    void followTable();
    void drawSymbols();
    void showState();

    void LoadTotalHanko(const QString& path);
    /// The path to save to; nothing where the user has to name it first or keeps the file that is there.
    std::optional<QString> savePath();
    bool isEdited() const;
    bool mayGiveUpWork(const QString& question);

    std::unique_ptr<Ui::frmTotalHanko> m_ui;
    VarnModule& m_varn;
    SymbolPicker* m_picker;
    DrawSurface m_preview;
    DrawSurface m_sample;
    DrawSurface m_block;
    /// The word form shown, from 1; 0 where the table has none.
    int m_wordform = 0;
    /// The names of the word forms when they were listed last.
    QStringList m_names;
    Saved<DiffusionSymbols> m_saved;
    bool m_prepared = false;
    bool m_showing = false;
};
