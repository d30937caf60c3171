#pragma once

#include "platform/Drawing.h"

#include <vector>

/// A printer that the user has chosen.
class PrinterDevice
{
public:
    virtual ~PrinterDevice() = default;

    /// Prints one document: a page for each drawing, whose coordinates are twips from the paper's corner.
    /// Raises device I/O error where the document cannot be printed.
    virtual void print(const std::vector<Drawing>& pages) = 0;
};
