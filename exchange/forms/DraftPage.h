#pragma once

#include "exchange/SurveyDraft.h"

#include <QTimer>
#include <QWizardPage>

class QLabel;

/// A page on which a new survey is described. What takes time is done after a short pause in the changes, so
/// that typing does not stall, and at the latest when the user goes on.
class DraftPage : public QWizardPage
{
    Q_OBJECT

public:
    DraftPage(SurveyDraft& draft, QWidget* parent);

    bool validatePage() override;

protected:
    /// Does what changes ask for, and shows what came of it.
    virtual void work() = 0;
    void workSoon();
    void workNow();

    SurveyDraft& draft() const { return m_draft; }
    /// Shows a text, or nothing where it is empty.
    static void tell(QLabel& label, const QString& text);

private:
    SurveyDraft& m_draft;
    QTimer m_pause;
};
