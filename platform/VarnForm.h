#pragma once

#include "platform/Dialogs.h"

#include <QMainWindow>

#include <functional>

/// Base of the program's forms. Every event handler runs through `run`, so that one that ends with a run-time
/// error tells the user what happened and leaves the program going on with the state it had.
class VarnForm : public QMainWindow
{
    Q_OBJECT

public:
    explicit VarnForm(Dialogs& dialogs);

    /// Shows the form in front of the others.
    void bringToFront();

    /// Shows what the shared state and the form's drawing hold now; called after every handler.
    virtual void refresh() {}

protected:
    /// Runs `handler`, shows the error where it ends with one, and refreshes the form.
    void run(const std::function<void()>& handler);

    /// Runs `handler`, a member function of the form, whenever `sender` emits `signal`.
    template <typename Sender, typename Signal, typename Form>
    void handle(const Sender* sender, Signal signal, void (Form::*handler)())
    {
        auto* form = static_cast<Form*>(this);
        connect(sender, signal, this,
                [this, form, handler] { run([form, handler] { (form->*handler)(); }); });
    }

    Dialogs& dialogs() const { return m_dialogs; }

private:
    Dialogs& m_dialogs;
};

/// Shows the wait cursor while it lives, for a drawing that may take long.
class WaitCursor
{
public:
    WaitCursor();
    ~WaitCursor();
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};
