#pragma once

#include "analysis/SpecifyCharsEditor.h"

#include <QGroupBox>

#include <memory>
#include <optional>

class Dialogs;
class VarnForm;
struct VarnModule;

namespace Ui {
class StringsFrame;
}

/// The strings that identify the current word form, on the set-up form of cumulative analysis, and the file
/// that the strings of all word forms are saved to.
class StringsFrame : public QGroupBox
{
    Q_OBJECT

public:
    explicit StringsFrame(QWidget* parent = nullptr);
    ~StringsFrame() override;

    /// Edits the strings of `varn`; errors are shown by `form`. Called once, before anything else.
    void edit(VarnModule& varn, Dialogs& dialogs, VarnForm& form);
    /// Shows the strings of the current word form from the first one on.
    void showWordform();
    /// Shows which file the strings are of.
    void showFile();
    /// Lets the user edit `text` as a string.
    void enter(const QString& text);
    /// Enables what can be done with the strings as they are.
    void refresh();

private:
    void connectButtons(VarnForm& form);
    void cmdWordSelect_Click();
    void cmdWordRewrite_Click();
    void cmdWordDelete_Click();
    void cmdWordReset_Click();
    void cmdWordNext_Click();
    void cmdWordBefore_Click();
    void LstWord_Click();
    void SaveSetData();
    void SetTotalWordList();
    /// Shows the current string in the list and in the edit box.
    void showString();
    bool mayRegister(const QString& text);
    void tellWordformsWithoutLine(const QString& title);

    std::unique_ptr<Ui::StringsFrame> m_ui;
    VarnModule* m_varn = nullptr;
    Dialogs* m_dialogs = nullptr;
    std::optional<SpecifyCharsEditor> m_editor;
};
