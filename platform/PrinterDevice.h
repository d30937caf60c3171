#pragma once

#include "platform/Drawing.h"
#include "platform/PageLayout.h"

#include <QString>

#include <vector>

/// What is printed as one job, on A4.
struct PrintedDocument
{
    /// What the print system or the PDF file calls it.
    QString name;
    PageOrientation orientation = PageOrientation::Landscape;
    /// A drawing for each page, whose coordinates are twips from the paper's corner.
    std::vector<Drawing> pages;
};

/// A printer that the user has chosen.
class PrinterDevice
{
public:
    virtual ~PrinterDevice() = default;

    /// Takes over into `layout` the orientation chosen in the printer dialog, and the margins changed there.
    virtual void takeChoices(PageLayout& layout) const = 0;

    /// Prints one document. Raises device I/O error where the printer does not take it, and where it is
    /// printed to a file, what writing a file raises.
    virtual void print(const PrintedDocument& document) = 0;
};
