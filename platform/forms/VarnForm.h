#pragma once

#include "platform/Dialogs.h"
#include "platform/FormArea.h"

#include <QMainWindow>

#include <functional>

class QLabel;
class QPushButton;

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

    /// Takes over what other forms did to the shared state meanwhile. Called whenever the form comes to the
    /// front; a form that is not prepared yet has nothing to take over.
    virtual void followSharedState() {}

    /// Shows the shared state after it was replaced as a whole, by that of another map or by work that was
    /// kept.
    virtual void showNewState();

    /// Runs `handler`, shows the error where it ends with one, and refreshes the form. Returns whether it
    /// ended without one.
    bool run(const std::function<void()>& handler);

    /// The chapter of the manual that the form's work is described in.
    virtual QString helpSection() const = 0;

    /// Frames `flat`, a flat button, while it has the keyboard focus; no style does.
    static void frameFocus(QPushButton& flat);

protected:
    bool event(QEvent* event) override;

    /// The largest size that the form can have on its screen, in its frame.
    QSize roomOnScreen() const;
    /// The form's place on its screen, never beyond the left and the top edge, with a drawing area of `width`
    /// and `height` twips.
    FormArea areaOnScreen(float width, float height) const;

    /// Titles the form with those of `parts` that are not empty.
    void showTitle(const QStringList& parts);
    /// The same for a form that holds work, which is marked where it is `unsaved`.
    void showTitle(const QStringList& parts, bool unsaved);

    /// Writes those of `parts` that are not empty in the status line, which is as wide as the form.
    void showStatus(const QStringList& parts);
    QLabel& statusLine();

    /// Runs `handler`, a member function of the form, whenever `sender` emits `signal`.
    template <typename Sender, typename Signal, typename Form>
    void handle(const Sender* sender, Signal signal, void (Form::*handler)())
    {
        auto* form = static_cast<Form*>(this);
        connect(sender, signal, this,
                [this, form, handler] { run([form, handler] { (form->*handler)(); }); });
    }

    Dialogs& dialogs() const { return m_dialogs; }
    /// The entry that opens the manual, by F1 too.
    QAction& manualEntry() const { return *m_manual; }

private:
    void fitScreen();

    Dialogs& m_dialogs;
    QAction* m_manual;
    /// Null before it is used first.
    QLabel* m_status = nullptr;
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
