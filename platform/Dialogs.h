#pragma once

#include "platform/Drawing.h"
#include "platform/PrinterDevice.h"

#include <QString>

#include <memory>
#include <optional>

struct PageLayout;

/// What becomes of unsaved work.
enum class SaveChoice { Save, Discard, Cancel };

/// The dialogs that the forms ask their questions with. The desktop program shows real ones; whoever drives
/// the forms without a person answers them from a script.
class Dialogs
{
public:
    virtual ~Dialogs() = default;

    /// Shows a text with an OK button.
    virtual void message(const QString& text, const QString& title) = 0;
    /// Shows an error: its title line and, under it, what is known of its cause.
    virtual void error(const QString& title, const QString& detail) = 0;
    /// Asks a question with Yes and No; true where the answer is Yes.
    virtual bool askYesNo(const QString& text, const QString& title) = 0;
    /// Asks whether to go on where something would be lost, with Yes and No; No is what Enter answers. True
    /// where the answer is Yes.
    virtual bool confirmLoss(const QString& text, const QString& title) = 0;
    /// Asks what becomes of unsaved work, with Save, Discard and Cancel; Save is what Enter answers.
    virtual SaveChoice askSaveChoice(const QString& text, const QString& title) = 0;
    /// Asks a question with OK and Cancel; true where the answer is OK.
    virtual bool askOkCancel(const QString& text, const QString& title) = 0;
    /// Asks for a line of text, `initial` standing there at first. Nothing where the dialog was cancelled.
    virtual std::optional<QString> input(const QString& prompt, const QString& title,
                                         const QString& initial) = 0;
    /// Asks for an existing file in `folder`, a folder of this machine. `filter` is written as in
    /// "HAN files (*.han)|*.han". Nothing where the dialog was cancelled.
    virtual std::optional<QString> openFile(const QString& title, const QString& folder,
                                            const QString& filter) = 0;
    /// Asks for an existing folder, beginning in `folder`, a folder of this machine. Nothing where the dialog
    /// was cancelled.
    virtual std::optional<QString> chooseFolder(const QString& title, const QString& folder) = 0;
    /// Asks for a font, `initial` chosen at first. Nothing where the dialog was cancelled.
    virtual std::optional<TextFont> chooseFont(const TextFont& initial) = 0;
    /// Asks for the name of a file to save, in `folder` at first, `initial` as its name; asks before an
    /// existing file is replaced, also one whose name differs in letter case, which is then the name given. A
    /// name without an ending gets that of the filter chosen. Nothing where the dialog was cancelled.
    virtual std::optional<QString> saveFile(const QString& title, const QString& folder,
                                            const QString& filter, const QString& initial) = 0;
    /// Asks for a printer for pages of this layout; null where the dialog was cancelled.
    virtual std::unique_ptr<PrinterDevice> choosePrinter(const PageLayout& layout) = 0;
};
