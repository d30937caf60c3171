#pragma once

#include "platform/Dialogs.h"

/// The dialogs of the desktop program. Each belongs to the window that is active when it is asked for.
class QtDialogs : public Dialogs
{
public:
    void message(const QString& text, const QString& title) override;
    void error(const QString& title, const QString& detail) override;
    bool askYesNo(const QString& text, const QString& title) override;
    bool confirmLoss(const QString& text, const QString& title) override;
    SaveChoice askSaveChoice(const QString& text, const QString& title) override;
    bool askOkCancel(const QString& text, const QString& title) override;
    std::optional<QString> input(const QString& prompt, const QString& title,
                                 const QString& initial) override;
    std::optional<QString> openFile(const QString& title, const QString& folder,
                                    const QString& filter) override;
    std::optional<QString> chooseFolder(const QString& title, const QString& folder) override;
    std::optional<TextFont> chooseFont(const TextFont& initial) override;
    std::optional<QString> saveFile(const QString& title, const QString& folder, const QString& filter,
                                    const QString& initial) override;
    std::unique_ptr<PrinterDevice> choosePrinter(const PageLayout& layout) override;
};

/// The name filters that "DBS Files (*.dbs)|*.dbs" stands for: descriptions and patterns in turn.
QStringList nameFilters(const QString& filter);
