#pragma once

#include "platform/DrawSurface.h"
#include "platform/PageLayout.h"
#include "platform/PrinterDevice.h"

#include <memory>

/// The page set-up and the printer.
struct PageSetup : PageLayout
{
    /// Whether a printer has been chosen; without one nothing is printed.
    bool PrinterConnected = false;
    /// Whether drawing commands draw on the printer.
    bool PrintMode = false;
    /// Drawing units per map unit that would fill the height between the margins.
    float PrinterScale = 0;
    float PrinterFactor = 0;

    /// The printer chosen by the user; null before.
    std::unique_ptr<PrinterDevice> Device;
    /// The page being drawn: its origin lies at the margins.
    DrawSurface Printer;
    /// The document being drawn, with its finished pages.
    PrintedDocument Document;
};
