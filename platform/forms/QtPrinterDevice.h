#pragma once

#include "platform/PrinterDevice.h"

#include <QMarginsF>
#include <QString>

class QPrinter;
struct PageLayout;

/// A printer of the system, or a file that is printed to.
class QtPrinterDevice : public PrinterDevice
{
public:
    /// Prints on `printer`, whose paper is addressed from its corner. The printer dialog, through which the
    /// user may have changed its page, showed `shownMargins` at first, in millimetres.
    explicit QtPrinterDevice(std::unique_ptr<QPrinter> printer, QMarginsF shownMargins = {});
    ~QtPrinterDevice() override;

    /// Shows the system's printer dialog, the default printer chosen at first; null where it was cancelled.
    static std::unique_ptr<PrinterDevice> choose(const PageLayout& layout);

    void takeChoices(PageLayout& layout) const override;
    void print(const PrintedDocument& document) override;

private:
    void printOnPaper(const std::vector<Drawing>& pages);
    void printToFile(const PrintedDocument& document);

    std::unique_ptr<QPrinter> m_printer;
    QMarginsF m_shownMargins;
    QMarginsF m_chosenMargins;
    /// The file that the first document goes to; empty for a printer of paper.
    QString m_firstFile;
    /// How many documents have been printed to files.
    int m_documents = 0;
};

/// A name beside `file` that no file has: "map.pdf" gives "map-2.pdf" for document 2, and so on.
QString fileOfDocument(const QString& file, int document);
