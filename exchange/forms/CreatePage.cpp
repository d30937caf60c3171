#include "exchange/forms/CreatePage.h"

#include "platform/forms/ThemeColors.h"
#include "ui_CreatePage.h"

#include <QCoreApplication>

CreatePage::CreatePage(SurveyDraft& draft, QWidget* parent)
    : DraftPage(draft, parent), m_ui(std::make_unique<Ui::CreatePage>())
{
    m_ui->setupUi(this);
    setFinalPage(true);
    showAsWarning(*m_ui->lblFault);
    connect(m_ui->txtMapName, &QLineEdit::textEdited, this, [this](const QString& name) {
        this->draft().setMapName(name);
        work();
    });
    connect(m_ui->cmdCreate, &QPushButton::clicked, this, &CreatePage::cmdCreate_Click);
    connect(m_ui->cmdStop, &QPushButton::clicked, this, &CreatePage::stop);
}

CreatePage::~CreatePage() = default;

void CreatePage::initializePage()
{
    m_ui->txtMapName->setText(draft().mapName());
    enter(State::Describing);
    workNow();
}

void CreatePage::work()
{
    const QString fault = draft().mapNameFault();
    tell(*m_ui->lblFault, fault);
    m_ui->cmdCreate->setEnabled(m_state == State::Describing && fault.isEmpty());
}

void CreatePage::enter(State state)
{
    m_state = state;
    m_ui->txtMapName->setEnabled(state == State::Describing);
    m_ui->cmdCreate->setEnabled(state == State::Describing);
    m_ui->cmdStop->setEnabled(state == State::Creating);
    m_ui->barProgress->setValue(state == State::Created ? m_ui->barProgress->maximum() : 0);
    tell(*m_ui->lblProgress, {});
    Q_EMIT completeChanged();
    Q_EMIT stateChanged();
}

bool CreatePage::showProgress(int done, int total, const QString& item)
{
    m_ui->barProgress->setMaximum(total);
    m_ui->barProgress->setValue(done);
    tell(*m_ui->lblProgress, QStringLiteral("%1 (%2 of %3)").arg(item).arg(done + 1).arg(total));
    QCoreApplication::processEvents(); // a click on Stop
    return !m_isStopped;
}

void CreatePage::cmdCreate_Click()
{
    m_isStopped = false;
    m_ui->txtReport->clear();
    enter(State::Creating);
    const bool isCreated = draft().create(
        [this](int done, int total, const QString& item) { return showProgress(done, total, item); });
    enter(isCreated ? State::Created : State::Describing);
    tell(*m_ui->lblFault, isCreated ? QString() : draft().fault());
    if (isCreated) {
        m_ui->txtReport->setPlainText(draft().made()->report.text());
    } else if (draft().fault().isEmpty()) {
        tell(*m_ui->lblProgress, QStringLiteral("Stopped. Nothing was made."));
    }
}
