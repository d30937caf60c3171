#include "platform/forms/QtPrinterDevice.h"

#include "platform/DrawingPainter.h"
#include "platform/Numbers.h"
#include "platform/PageLayout.h"
#include "platform/RunTimeError.h"
#include "platform/WholeFile.h"

#include <QApplication>
#include <QBuffer>
#include <QFileInfo>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace {

void setPaper(QPrinter& printer, PageOrientation orientation)
{
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(orientation == PageOrientation::Landscape ? QPageLayout::Landscape
                                                                         : QPageLayout::Portrait);
}

QMarginsF marginsOf(const QPrinter& printer)
{
    return printer.pageLayout().margins(QPageLayout::Millimeter);
}

/// Takes over a margin in whole millimetres where it was changed.
void takeMargin(double shown, double chosen, qint16& margin)
{
    if (chosen != shown) {
        margin = toInteger(chosen);
    }
}

RunTimeError notPrinted(const QString& text, const QString& printer)
{
    return RunTimeError(ErrorNumber::DeviceIOError, text.arg(printer));
}

/// A print system takes documents for a printer that is gone or stopped without a word; so it is asked first.
void requireReady(const QString& name)
{
    const QPrinterInfo info = QPrinterInfo::printerInfo(name);
    if (info.isNull()) {
        throw notPrinted(QStringLiteral("The printer %1 is not there."), name);
    }
    if (info.state() == QPrinter::Error || info.state() == QPrinter::Aborted) {
        throw notPrinted(QStringLiteral("The printer %1 is stopped."), name);
    }
}

void paintPages(const std::vector<Drawing>& pages, QPainter& painter, QPagedPaintDevice& device)
{
    const double dotsPerTwip = device.logicalDpiX() / TwipsPerInch;
    for (std::size_t page = 0; page < pages.size(); ++page) {
        if (page > 0) {
            device.newPage();
        }
        paintDrawing(pages[page], painter, dotsPerTwip);
    }
}

} // namespace

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

QtPrinterDevice::QtPrinterDevice(std::unique_ptr<QPrinter> printer, QMarginsF shownMargins)
    : m_printer(std::move(printer)), m_shownMargins(shownMargins), m_chosenMargins(marginsOf(*m_printer)),
      m_firstFile(m_printer->outputFileName())
{
    m_printer->setFullPage(true);
    m_printer->setCreator(QStringLiteral("varn"));
}

QtPrinterDevice::~QtPrinterDevice() = default;

std::unique_ptr<PrinterDevice> QtPrinterDevice::choose(const PageLayout& layout)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    setPaper(*printer, layout.PaperOrientation);
    printer->setPageMargins(
        QMarginsF(layout.LeftMargin, layout.TopMargin, layout.RightMargin, layout.BottomMargin),
        QPageLayout::Millimeter); // a printer may refuse them
    const QMarginsF shownMargins = marginsOf(*printer);
    QPrintDialog dialog(printer.get(), QApplication::activeWindow());
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false); // a map is one page
    if (dialog.exec() != QDialog::Accepted) {
        return nullptr;
    }
    return std::make_unique<QtPrinterDevice>(std::move(printer), shownMargins);
}

void QtPrinterDevice::takeChoices(PageLayout& layout) const
{
    const bool isAcross = m_printer->pageLayout().orientation() == QPageLayout::Landscape;
    layout.PaperOrientation = isAcross ? PageOrientation::Landscape : PageOrientation::Portrait;
    takeMargin(m_shownMargins.left(), m_chosenMargins.left(), layout.LeftMargin);
    takeMargin(m_shownMargins.top(), m_chosenMargins.top(), layout.TopMargin);
    takeMargin(m_shownMargins.right(), m_chosenMargins.right(), layout.RightMargin);
    takeMargin(m_shownMargins.bottom(), m_chosenMargins.bottom(), layout.BottomMargin);
}

void QtPrinterDevice::print(const PrintedDocument& document)
{
    setPaper(*m_printer, document.orientation);
    m_printer->setDocName(document.name);
    if (m_firstFile.isEmpty()) {
        printOnPaper(document.pages);
    } else {
        printToFile(document);
    }
}

void QtPrinterDevice::printOnPaper(const std::vector<Drawing>& pages)
{
    requireReady(m_printer->printerName());
    QPainter painter;
    if (!painter.begin(m_printer.get())) {
        throw notPrinted(QStringLiteral("The printer %1 does not accept the document."),
                         m_printer->printerName());
    }
    paintPages(pages, painter, *m_printer);
    if (!painter.end() || m_printer->printerState() == QPrinter::Error) {
        throw notPrinted(QStringLiteral("The printer %1 did not print the document."),
                         m_printer->printerName());
    }
}

void QtPrinterDevice::printToFile(const PrintedDocument& document)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&buffer);
        pdf.setCreator(m_printer->creator());
        pdf.setTitle(document.name);
        pdf.setResolution(m_printer->resolution());
        pdf.setPageLayout(m_printer->pageLayout());
        QPainter painter(&pdf);
        paintPages(document.pages, painter, pdf);
    }
    const QString file = fileOfDocument(m_firstFile, m_documents + 1);
    replaceHostFile(file, file, buffer.data());
    ++m_documents;
}
