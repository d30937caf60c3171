#include "exchange/forms/frmNewSurvey.h"

#include "exchange/forms/ColumnsPage.h"
#include "exchange/forms/CreatePage.h"
#include "exchange/forms/ItemsPage.h"
#include "exchange/forms/MapPage.h"
#include "exchange/forms/SourcePage.h"
#include "platform/forms/HelpWindow.h"

#include <QAbstractButton>
#include <QScreen>
#include <QStyle>

namespace {

/// The largest size that the wizard can have on its screen, in its frame.
QSize roomOnScreen(const QWidget& wizard)
{
    const int title = wizard.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    return wizard.screen()->availableGeometry().size() - QSize(0, 2 * title);
}

} // namespace

frmNewSurvey::frmNewSurvey(const Folders& folders, Dialogs& dialogs, QWidget* parent)
    : QWizard(parent), m_draft(folders), m_source(new SourcePage(m_draft, dialogs, this)),
      m_create(new CreatePage(m_draft, this))
{
    constexpr QSize FirstSize(860, 560);
    setWindowTitle(QStringLiteral("New Survey"));
    setModal(true); // a map that is changed meanwhile would be another's
    setWizardStyle(ClassicStyle);
    setOption(NoBackButtonOnStartPage);
    addPage(m_source);
    addPage(new ColumnsPage(m_draft, this));
    addPage(new MapPage(m_draft, dialogs, this));
    addPage(new ItemsPage(m_draft, this));
    addPage(m_create);
    manualAction(*this, [] { return QStringLiteral("Your own survey in five minutes"); });
    resize(FirstSize.boundedTo(roomOnScreen(*this)));
    connect(m_create, &CreatePage::stateChanged, this, &frmNewSurvey::showCreation);
    connect(this, &QDialog::accepted, this,
            [this] { Q_EMIT surveyMade(m_draft.mapName(), m_draft.firstItem()); });
}

void frmNewSurvey::begin(const QString& path)
{
    restart();
    m_source->setSource(path);
    show();
    raise();
    activateWindow();
}

/// While the map is made there is no way but to stop, and once it is made no way back.
void frmNewSurvey::showCreation()
{
    const bool isOpen = !m_create->isCreating() && !m_create->isComplete();
    button(BackButton)->setEnabled(isOpen);
    button(CancelButton)->setEnabled(!m_create->isComplete());
}

void frmNewSurvey::reject()
{
    if (m_create->isCreating()) {
        m_create->stop();
    } else {
        QWizard::reject();
    }
}
