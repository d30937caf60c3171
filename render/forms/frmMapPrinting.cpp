// The printing of the map form: what is drawn goes to the form or, in print mode, to a document.

#include "render/forms/frmMap.h"
#include "shell/Printing.h"
#include "shell/VarnModule.h"
#include "ui_frmMap.h"

#include <QPushButton>
#include <QScopeGuard>
#include <QStatusBar>

void frmMap::drawOnTarget(const QString& subject, const std::function<void()>& draw)
{
    QStringList name = {m_varn.VarnMapName.mid(1), subject};
    name.removeAll(QString());
    const QString document = name.join(QStringLiteral(" - "));
    const auto backToForm = qScopeGuard([this] { m_varn.DrawTarget = &m_surface; });
    hideStyle();
    {
        const WaitCursor wait;
        PrintYesNo(m_varn, m_surface, document);
        draw();
    }
    if (m_varn.PrintMode) {
        printDocument(document);
    }
}

void frmMap::printDocument(const QString& name)
{
    constexpr int MessageTime = 10000; // milliseconds

    if (!fitsPaper(m_varn) &&
        !dialogs().confirmLoss(QStringLiteral("The drawing is larger than the paper within its margins and "
                                              "will be cut. Print it ?"),
                               QStringLiteral("Print"))) {
        return;
    }
    const WaitCursor wait;
    PrintEnd(m_varn);
    statusBar()->showMessage(QStringLiteral("Printed: ") + name, MessageTime);
}

void frmMap::mnuFilePrint_Click()
{
    if (!m_varn.PrinterConnected) {
        dialogs().message(
            QStringLiteral("Printer is not connected.  Please connect the printer in the Main Form."),
            QStringLiteral("Print"));
        return;
    }
    m_varn.PrintMode = dialogs().askYesNo(QStringLiteral("Will you print ?"), QStringLiteral("Print"));
    if (m_varn.PrintMode) {
        SettingPrinterScale(m_varn, m_varn);
        m_varn.PrinterFactor = 1.0F;
    }
    DisplayInsatsu();
}

void frmMap::lblInsatsumode_Click()
{
    if (!m_varn.PrinterConnected) {
        dialogs().message(
            QStringLiteral("Printer is not connected. Please connect the printer in the Main Form."),
            QStringLiteral("Print"));
        return;
    }
    m_varn.PrintMode = !m_varn.PrintMode;
    if (m_varn.PrintMode) {
        m_varn.PrinterFactor = 1.0F;
    }
    DisplayInsatsu();
}
