#include "shell/forms/PageSetupFrame.h"

#include "platform/Dialogs.h"
#include "platform/Numbers.h"
#include "platform/forms/VarnForm.h"
#include "shell/Printing.h"
#include "ui_PageSetupFrame.h"

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

PageSetupFrame::PageSetupFrame(QWidget* parent)
    : QGroupBox(parent), m_ui(std::make_unique<Ui::PageSetupFrame>())
{
    m_ui->setupUi(this);
    hide();
    VarnForm::frameFocus(*m_ui->lblDisplayPaperSize);
    m_ui->cboPaperSize->addItems(
        {QStringLiteral("B5"), QStringLiteral("A4"), QStringLiteral("B4"), QStringLiteral("A3")});
    m_ui->cboOrientation->addItems({QStringLiteral("Portrait"), QStringLiteral("Landscape")});
    m_ui->cboOrientation->setCurrentIndex(indexOf(PageOrientation::Landscape));
}

PageSetupFrame::~PageSetupFrame() = default;

void PageSetupFrame::edit(VarnModule& varn, Dialogs& dialogs, VarnForm& form)
{
    m_varn = &varn;
    m_dialogs = &dialogs;
    displayMargins();
    connectControls(form);
}

void PageSetupFrame::connectControls(VarnForm& form)
{
    for (const auto& [box, margin] : marginBoxes()) {
        connect(box, &QLineEdit::textChanged, this, [this, &form, margin = margin](const QString& text) {
            form.run([&] { m_varn->*margin = toInteger(Val(text)); });
        });
    }
    const auto handle = [&](auto* sender, auto signal, void (PageSetupFrame::*handler)()) {
        connect(sender, signal, this,
                [this, &form, handler] { form.run([this, handler] { (this->*handler)(); }); });
    };
    handle(m_ui->cboPaperSize, &QComboBox::activated, &PageSetupFrame::recomputePaper);
    handle(m_ui->cboOrientation, &QComboBox::activated, &PageSetupFrame::recomputePaper);
    handle(m_ui->lblDisplayPaperSize, &QPushButton::clicked, &PageSetupFrame::lblDisplayPaperSize_Click);
    handle(m_ui->cmdPrinter, &QPushButton::clicked, &PageSetupFrame::SetPrinter);
    connect(m_ui->cmdExitSetMergin, &QPushButton::clicked, this, &QWidget::hide);
}

std::array<PageSetupFrame::MarginBox, 4> PageSetupFrame::marginBoxes() const
{
    return {{
        {m_ui->txtTopMergin, &PageLayout::TopMargin},
        {m_ui->txtBottomMergin, &PageLayout::BottomMargin},
        {m_ui->txtLeftMergin, &PageLayout::LeftMargin},
        {m_ui->txtRightMergin, &PageLayout::RightMargin},
    }};
}

void PageSetupFrame::displayMargins()
{
    for (const auto& [box, margin] : marginBoxes()) {
        box->setText(QString::number(m_varn->*margin));
    }
}

void PageSetupFrame::recomputePaper()
{
    const bool isUpright = m_ui->cboOrientation->currentIndex() == indexOf(PageOrientation::Portrait);
    setPaper(*m_varn, isUpright ? PageOrientation::Portrait : PageOrientation::Landscape);
    displayPaper();
}

void PageSetupFrame::displayPaper()
{
    m_ui->cboPaperSize->setCurrentText(m_varn->PaperSizeName);
    m_ui->cboOrientation->setCurrentIndex(indexOf(m_varn->PaperOrientation));
    m_ui->lblDisplayPaperSize->setText(paperLabel(*m_varn));
    m_ui->lblPaperSpace->setText(paperSpaceLabel(*m_varn));
}

void PageSetupFrame::lblDisplayPaperSize_Click()
{
    m_ui->cboOrientation->setCurrentIndex(indexOf(turned(m_varn->PaperOrientation)));
    recomputePaper();
}

void PageSetupFrame::open()
{
    show();
    m_ui->cboPaperSize->setFocus();
}

void PageSetupFrame::SetPrinter()
{
    const auto closed = qScopeGuard([this] {
        displayPaper();
        displayMargins();
        hide();
    });
    connectPrinter(*m_varn, m_dialogs->choosePrinter(*m_varn));
    if (!m_varn->PrinterConnected) {
        m_dialogs->message(QStringLiteral("Printer is not connected."), QStringLiteral("Set Printer"));
    }
}
