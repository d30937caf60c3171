#include "platform/QtPrinterDevice.h"

#include "platform/DrawingPainter.h"
#include "platform/RunTimeError.h"
#include "shell/PageSetup.h"

#include <QApplication>
#include <QFileInfo>
#include <QPageSize>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

QString fileOfDocument(const QString& file, int document)
{
    const QFileInfo first(file);
    QString name = file;
    for (int number = document; number > 1 && (name == file || QFileInfo::exists(name)); ++number) {
        name = QStringLiteral("%1/%2-%3.%4")
                   .arg(first.path(), first.completeBaseName(), QString::number(number), first.suffix());
    }
    return name;
}

QtPrinterDevice::QtPrinterDevice(std::unique_ptr<QPrinter> printer)
    : m_printer(std::move(printer)), m_firstFile(m_printer->outputFileName())
{
    m_printer->setFullPage(true);
    m_printer->setCreator(QStringLiteral("varn"));
}

QtPrinterDevice::~QtPrinterDevice() = default;

std::unique_ptr<PrinterDevice> QtPrinterDevice::choose(const PageLayout& layout)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPageSize(QPageSize(QPageSize::A4));
    printer->setPageOrientation(layout.PaperOrientation == 2 ? QPageLayout::Landscape
                                                             : QPageLayout::Portrait);
    QPrintDialog dialog(printer.get(), QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted) {
        return nullptr;
    }
    return std::make_unique<QtPrinterDevice>(std::move(printer));
}

void QtPrinterDevice::print(const std::vector<Drawing>& pages)
{
    ++m_documents;
    if (!m_firstFile.isEmpty()) {
        m_printer->setOutputFileName(fileOfDocument(m_firstFile, m_documents));
    }
    QPainter painter;
    if (!painter.begin(m_printer.get())) {
        throw RunTimeError(
            ErrorNumber::DeviceIOError,
            QStringLiteral("The printer %1 does not accept the document.")
                .arg(m_firstFile.isEmpty() ? m_printer->printerName() : m_printer->outputFileName()));
    }
    const double dotsPerTwip = m_printer->resolution() / TwipsPerInch;
    for (std::size_t page = 0; page < pages.size(); ++page) {
        if (page > 0) {
            m_printer->newPage();
        }
        paintDrawing(pages[page], painter, dotsPerTwip);
    }
    if (!painter.end() || m_printer->printerState() == QPrinter::Error) {
        throw RunTimeError(ErrorNumber::DeviceIOError, QStringLiteral("The document was not printed."));
    }
}
