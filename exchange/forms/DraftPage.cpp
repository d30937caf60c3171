#include "exchange/forms/DraftPage.h"

#include "platform/forms/VarnForm.h"

#include <QLabel>

DraftPage::DraftPage(SurveyDraft& draft, QWidget* parent) : QWizardPage(parent), m_draft(draft)
{
    constexpr int Pause = 400; // milliseconds
    m_pause.setSingleShot(true);
    m_pause.setInterval(Pause);
    connect(&m_pause, &QTimer::timeout, this, &DraftPage::workNow);
}

void DraftPage::workSoon()
{
    m_pause.start();
    Q_EMIT completeChanged();
}

void DraftPage::workNow()
{
    const WaitCursor wait;
    m_pause.stop();
    work();
    Q_EMIT completeChanged();
}

bool DraftPage::validatePage()
{
    if (m_pause.isActive()) {
        workNow();
    }
    return isComplete();
}

void DraftPage::tell(QLabel& label, const QString& text)
{
    label.setText(text);
    label.setVisible(!text.isEmpty());
}
