// The page set-up on the main form: paper, margins, printer.

#include "platform/Numbers.h"
#include "shell/Printing.h"
#include "shell/forms/frmMain.h"
#include "ui_frmMain.h"

#include <QScopeGuard>

namespace {

/// The place of an orientation in the list.
int indexOf(PageOrientation orientation)
{
    return orientation == PageOrientation::Landscape ? 1 : 0;
}

/// The other orientation.
PageOrientation turned(PageOrientation orientation)
{
    return orientation == PageOrientation::Landscape ? PageOrientation::Portrait : PageOrientation::Landscape;
}

} // namespace

void frmMain::prepareSetMergin()
{
    m_ui->fraSetMergin->hide();
    frameFocus(*m_ui->lblDisplayPaperSize);
    m_ui->cboPaperSize->addItems(
        {QStringLiteral("B5"), QStringLiteral("A4"), QStringLiteral("B4"), QStringLiteral("A3")});
    m_ui->cboOrientation->addItems({QStringLiteral("Portrait"), QStringLiteral("Landscape")});
    m_ui->cboOrientation->setCurrentIndex(indexOf(m_varn.PaperOrientation));

    displayMargins();
    for (const auto& [box, margin] : marginBoxes()) {
        connect(box, &QLineEdit::textChanged, this, [this, box = box, margin = margin] {
            run([this, box, margin] { txtMergin_Change(*box, margin); });
        });
    }
    handle(m_ui->cboPaperSize, &QComboBox::activated, &frmMain::cboPaper_Click);
    handle(m_ui->cboOrientation, &QComboBox::activated, &frmMain::cboPaper_Click);
    handle(m_ui->lblDisplayPaperSize, &QPushButton::clicked, &frmMain::lblDisplayPaperSize_Click);
    handle(m_ui->cmdSettingPrinter, &QPushButton::clicked, &frmMain::cmdSettingPrinter_Click);
    handle(m_ui->cmdPrinter, &QPushButton::clicked, &frmMain::SetPrinter);
    handle(m_ui->cmdExitSetMergin, &QPushButton::clicked, &frmMain::cmdExitSetMergin_Click);
}

std::array<frmMain::MarginBox, 4> frmMain::marginBoxes() const
{
    return {{
        {m_ui->txtTopMergin, &PageLayout::TopMargin},
        {m_ui->txtBottomMergin, &PageLayout::BottomMargin},
        {m_ui->txtLeftMergin, &PageLayout::LeftMargin},
        {m_ui->txtRightMergin, &PageLayout::RightMargin},
    }};
}

void frmMain::displayMargins()
{
    for (const auto& [box, margin] : marginBoxes()) {
        box->setText(QString::number(m_varn.*margin));
    }
}

void frmMain::recomputePaper()
{
    const bool isUpright = m_ui->cboOrientation->currentIndex() == indexOf(PageOrientation::Portrait);
    setPaper(m_varn, isUpright ? PageOrientation::Portrait : PageOrientation::Landscape);
    displayPaper();
}

void frmMain::displayPaper()
{
    m_ui->cboPaperSize->setCurrentText(m_varn.PaperSizeName);
    m_ui->cboOrientation->setCurrentIndex(indexOf(m_varn.PaperOrientation));
    m_ui->lblDisplayPaperSize->setText(paperLabel(m_varn));
    m_ui->lblPaperSpace->setText(paperSpaceLabel(m_varn));
}

void frmMain::txtMergin_Change(const QLineEdit& box, qint16 PageLayout::*margin)
{
    m_varn.*margin = toInteger(Val(box.text()));
}

void frmMain::cboPaper_Click()
{
    recomputePaper();
}

void frmMain::lblDisplayPaperSize_Click()
{
    m_ui->cboOrientation->setCurrentIndex(indexOf(turned(m_varn.PaperOrientation)));
    recomputePaper();
}

void frmMain::cmdSettingPrinter_Click()
{
    m_ui->fraSetMergin->show();
    m_ui->cboPaperSize->setFocus();
}

void frmMain::cmdExitSetMergin_Click()
{
    m_ui->fraSetMergin->hide();
}

void frmMain::SetPrinter()
{
    const auto closed = qScopeGuard([this] {
        displayPaper();
        displayMargins();
        m_ui->fraSetMergin->hide();
    });
    connectPrinter(m_varn, dialogs().choosePrinter(m_varn));
    if (!m_varn.PrinterConnected) {
        dialogs().message(QStringLiteral("Printer is not connected."), QStringLiteral("Set Printer"));
    }
}
