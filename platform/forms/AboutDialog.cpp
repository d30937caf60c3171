#include "platform/forms/AboutDialog.h"

#include <QDialogButtonBox>
#include <QTextBrowser>
#include <QVBoxLayout>

AboutDialog::AboutDialog(const QString& text, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("About VARN"));
    auto* facts = new QTextBrowser;
    facts->setAccessibleName(windowTitle());
    facts->setOpenExternalLinks(true);
    facts->setMarkdown(text);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(facts);
    rows->addWidget(buttons);
    resize(620, 480);
}
