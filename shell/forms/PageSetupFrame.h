#pragma once

#include "platform/PageLayout.h"

#include <QGroupBox>

#include <array>
#include <memory>
#include <utility>

class Dialogs;
class QLineEdit;
class VarnForm;
struct VarnModule;

namespace Ui {
class PageSetupFrame;
}

/// The page set-up on the main form: paper, margins, printer. It is hidden until it is asked for.
class PageSetupFrame : public QGroupBox
{
    Q_OBJECT

public:
    explicit PageSetupFrame(QWidget* parent = nullptr);
    ~PageSetupFrame() override;

    /// Edits the page set-up of `varn`; errors are shown by `form`. Called once, before anything else.
    void edit(VarnModule& varn, Dialogs& dialogs, VarnForm& form);
    /// Computes paper and orientation from the choice in the frame, and shows them.
    void recomputePaper();
    /// Shows the frame, ready for the keyboard.
    void open();

private:
    using MarginBox = std::pair<QLineEdit*, qint16 PageLayout::*>;
    std::array<MarginBox, 4> marginBoxes() const;
    void connectControls(VarnForm& form);
    void displayPaper();
    void displayMargins();
    void SetPrinter();
    void lblDisplayPaperSize_Click();

    std::unique_ptr<Ui::PageSetupFrame> m_ui;
    VarnModule* m_varn = nullptr;
    Dialogs* m_dialogs = nullptr;
};
