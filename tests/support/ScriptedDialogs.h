#pragma once

#include "platform/Dialogs.h"

#include <deque>
#include <gtest/gtest.h>
#include <vector>

/// Dialogs that are answered from a script, in the order in which they are asked. A question that the script
/// has no answer for fails the test, and so do answers that were not asked for when the test ends.
class ScriptedDialogs : public Dialogs
{
public:
    ScriptedDialogs() = default;
    ~ScriptedDialogs() override
    {
        const std::pair<const char*, std::size_t> left[] = {
            {"saves", saves.size()},           {"yesNo", yesNo.size()}, {"okCancel", okCancel.size()},
            {"inputs", inputs.size()},         {"files", files.size()}, {"folders", folders.size()},
            {"savedFiles", savedFiles.size()}, {"fonts", fonts.size()}};
        for (const auto& [kind, answers] : left) {
            EXPECT_EQ(answers, 0U) << "answers of " << kind << " were not asked for";
        }
        EXPECT_EQ(printer, nullptr) << "the printer was not asked for";
    }
    ScriptedDialogs(const ScriptedDialogs&) = delete;
    ScriptedDialogs& operator=(const ScriptedDialogs&) = delete;

    struct Shown
    {
        QString text;
        QString title;

        bool operator==(const Shown&) const = default;
        friend void PrintTo(const Shown& dialog, std::ostream* out)
        {
            *out << '[' << qPrintable(dialog.title) << "] " << qPrintable(dialog.text);
        }
    };

    /// What a dialog held when it was shown: the folder that a file dialog began in, and the name or text
    /// that stood there.
    struct Proposal
    {
        QString folder;
        QString name;

        bool operator==(const Proposal&) const = default;
        friend void PrintTo(const Proposal& proposal, std::ostream* out)
        {
            *out << qPrintable(proposal.folder) << " : " << qPrintable(proposal.name);
        }
    };

    std::deque<SaveChoice> saves;
    std::deque<bool> yesNo, okCancel;
    std::deque<std::optional<QString>> inputs, files, folders, savedFiles;
    std::deque<std::optional<TextFont>> fonts;
    /// The printer that the user chooses; null for none.
    std::unique_ptr<PrinterDevice> printer;

    /// Questions and messages in the order in which they were shown.
    std::vector<Shown> shown;
    /// What the dialogs for files, folders and texts proposed, in the order in which they were shown.
    std::vector<Proposal> proposals;
    /// Errors, their detail as the text.
    std::vector<Shown> errors;

    void message(const QString& text, const QString& title) override { shown.push_back({text, title}); }
    void error(const QString& title, const QString& detail) override { errors.push_back({detail, title}); }
    bool askYesNo(const QString& text, const QString& title) override { return answer(yesNo, {text, title}); }
    bool confirmLoss(const QString& text, const QString& title) override
    {
        return answer(yesNo, {text, title});
    }
    SaveChoice askSaveChoice(const QString& text, const QString& title) override
    {
        return answer(saves, {text, title});
    }
    bool askOkCancel(const QString& text, const QString& title) override
    {
        return answer(okCancel, {text, title});
    }
    std::optional<QString> input(const QString& prompt, const QString& title, const QString& initial) override
    {
        proposals.push_back({{}, initial});
        return answer(inputs, {prompt, title});
    }
    std::optional<QString> openFile(const QString& title, const QString& folder,
                                    const QString& filter) override
    {
        proposals.push_back({folder, {}});
        return answer(files, {filter, title});
    }
    std::optional<QString> chooseFolder(const QString& title, const QString& folder) override
    {
        proposals.push_back({folder, {}});
        return answer(folders, {folder, title});
    }
    std::optional<TextFont> chooseFont(const TextFont& initial) override
    {
        return answer(fonts, {initial.name, QStringLiteral("font")});
    }
    std::optional<QString> saveFile(const QString& title, const QString& folder, const QString& filter,
                                    const QString& initial) override
    {
        proposals.push_back({folder, initial});
        return answer(savedFiles, {filter, title});
    }
    std::unique_ptr<PrinterDevice> choosePrinter(const PageLayout&) override
    {
        shown.push_back({QString(), QStringLiteral("printer")});
        return std::move(printer);
    }

private:
    template <typename Answer>
    Answer answer(std::deque<Answer>& answers, const Shown& question)
    {
        shown.push_back(question);
        if (answers.empty()) {
            ADD_FAILURE() << "no answer to: " << qPrintable(question.text);
            return Answer();
        }
        Answer next = answers.front();
        answers.pop_front();
        return next;
    }
};
