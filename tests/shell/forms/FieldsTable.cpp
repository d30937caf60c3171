// What the forms show at once of what is typed and chosen on them.

#include "lingdata/forms/WordEntryDelegate.h"
#include "tests/shell/forms/EveryWayOut.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>

std::vector<EveryWayOut::Way> EveryWayOut::fields()
{
    using Test = EveryWayOut;
    const auto nothing = [](Test&) {};
    const auto chooseRow = [](const char* form, const char* list, int row) {
        return [=](Test&) { child<QListWidget>(formNamed(QLatin1String(form)), list).setCurrentRow(row); };
    };
    const auto chooseColor = [](const char* form, const char* box) {
        return [=](Test&) { child<QComboBox>(formNamed(QLatin1String(form)), box).setCurrentIndex(3); };
    };
    const auto savedContrast = [](Test&) {
        type<frmRankData>("txtRankFileName", "west");
        trigger<frmRankData>("mnuRankSave");
    };
    const auto faults = [](Test&) {
        auto& words = control<frmDataInput, QAbstractItemView>("tblWords");
        words.model()->setData(words.model()->index(0, 0), QStringLiteral("a\\Q"));
        press<frmDataInput>("cmdCheckCode");
        words.setCurrentIndex(words.model()->index(2, 0));
    };
    return {
        {"frmCalc", "lstDisplay", "Kind of word 2 of 2", nothing, chooseRow("frmCalc", "lstDisplay", 1)},
        {"frmCalc", "lstDisplay", "txtInputWord=ame", nothing,
         [](Test&) {
             auto& kinds = control<frmCalc, QListWidget>("lstDisplay");
             Q_EMIT kinds.itemActivated(kinds.item(0));
         }},
        {"frmCalc", "LstWord", "txtInputWord=am", nothing, chooseRow("frmCalc", "LstWord", 1)},
        {"frmCalc", "txtTotalName", "Changes not registered", nothing,
         [](Test&) { type<frmCalc>("txtTotalName", "uno"); }},
        {"frmCalc", "cboForeColor", "Changes not registered", nothing,
         chooseColor("frmCalc", "cboForeColor")},
        {"frmCalc", "cboFillColor", "Changes not registered", nothing,
         chooseColor("frmCalc", "cboFillColor")},
        {"frmMain", "cboOrientation", "Portrait(", [](Test&) { press<frmMain>("cmdSettingPrinter"); },
         [](Test&) {
             control<frmMain, QComboBox>("cboOrientation").setCurrentIndex(0);
             Q_EMIT control<frmMain, QComboBox>("cboOrientation").activated(0);
         }},
        {"frmSetHanko", "lstKindWord", "txtWord=ame", [](Test&) { type<frmSetHanko>("txtWord", ""); },
         [](Test&) {
             auto& kinds = control<frmSetHanko, QListWidget>("lstKindWord");
             Q_EMIT kinds.itemActivated(kinds.item(0));
         }},
        {"frmSetHanko", "txtHankoNumber", "*picSample", nothing,
         [](Test&) { type<frmSetHanko>("txtHankoNumber", "93"); }},
        {"frmSetHanko", "cboColor", "*picSample", nothing, chooseColor("frmSetHanko", "cboColor")},
        {"frmSetHanko", "chkPat", "*picSample",
         [](Test&) {
             type<frmSetHanko>("txtHankoNumber", "16");
             control<frmSetHanko, QComboBox>("cboBack").setCurrentIndex(12);
         },
         [](Test&) { control<frmSetHanko, QCheckBox>("chkPat").click(); }},
        {"frmRankData", "txtRankFileName", "west.rnk", nothing,
         [](Test&) { type<frmRankData>("txtRankFileName", "west"); }},
        {"frmRankData", "txtSetColor1", "<modified>", savedContrast,
         chooseColor("frmRankData", "txtSetColor1")},
        {"frmRankData", "txtFillColor1", "<modified>", savedContrast,
         chooseColor("frmRankData", "txtFillColor1")},
        {"frmTotalHanko", "txtFileName", "west.htL", nothing,
         [](Test&) { type<frmTotalHanko>("txtFileName", "west"); }},
        {"frmDataInput", "tblWords", "-lblFault=\n", nothing,
         [](Test&) {
             auto* editor = control<frmDataInput, QAbstractItemView>("tblWords").itemDelegate();
             Q_EMIT dynamic_cast<WordEntryDelegate&>(*editor).typed(QStringLiteral("a\\Q"));
         }},
        {"frmDataInput", "tblWords", "lblFault=\n",
         [](Test&) {
             auto* editor = control<frmDataInput, QAbstractItemView>("tblWords").itemDelegate();
             Q_EMIT dynamic_cast<WordEntryDelegate&>(*editor).typed(QStringLiteral("a\\Q"));
         },
         [](Test&) {
             auto* editor = control<frmDataInput, QAbstractItemView>("tblWords").itemDelegate();
             Q_EMIT editor->closeEditor(nullptr, QAbstractItemDelegate::RevertModelCache);
         }},
        {"frmDataInput", "txtKind", "-lblFault=\n", nothing,
         [](Test&) { control<frmDataInput, QLineEdit>("txtKind").insert(QStringLiteral("a\\Q")); }},
        {"frmDataInput", "txtKind", "lstKind=hail", [](Test&) { type<frmDataInput>("txtKind", "hail"); },
         [](Test&) { Q_EMIT control<frmDataInput, QLineEdit>("txtKind").returnPressed(); }},
        {"frmDataInput", "lstCheck", "lblCell=Locality 1, word 1", faults,
         [](Test&) {
             auto& faulty = control<frmDataInput, QListWidget>("lstCheck");
             Q_EMIT faulty.itemClicked(faulty.item(0));
         }},
    };
}
