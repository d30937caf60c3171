#pragma once

#include "shell/Recovery.h"

#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

class Dialogs;
class VarnForm;
struct VarnModule;

/// Keeps the unsaved work of all forms while the program runs, every minute and when the session ends, and
/// offers what was kept when the program ended without saving.
class WorkKeeper : public QObject
{
    Q_OBJECT

public:
    using Collect = std::function<UnsavedWork()>;

    /// `collect` gives the unsaved work of all forms. Errors are shown by `form`.
    WorkKeeper(VarnModule& varn, Dialogs& dialogs, VarnForm& form, Collect collect);
    ~WorkKeeper() override;

    /// Begins to keep.
    void start();
    /// Offers the work that was left behind. Where the user wants it, it is the shared state's now, and comes
    /// back for the forms to show it.
    std::optional<UnsavedWork> offer();
    /// Keeps the work as it is now.
    void keep();
    /// Ends the keeping; whatever is unsaved was given up.
    void giveUp();

    /// Whether the user gives up the work that another map would take the place of.
    bool mayChangeMap();

private:
    std::optional<UnsavedWork> open(const QString& folder);

    VarnModule& m_varn;
    Dialogs& m_dialogs;
    VarnForm& m_form;
    Collect m_collect;
    /// Null before the start.
    std::unique_ptr<Recovery> m_recovery;
    QTimer m_timer{this};
};
