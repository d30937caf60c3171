#pragma once

#include "platform/DrawSurface.h"
#include "platform/PrinterDevice.h"

#include <QString>

#include <memory>

/// Paper and margins of printed pages, in whole millimetres.
struct PageLayout
{
    QString PaperSizeName = QStringLiteral("A4");
    /// 1 portrait, 2 landscape.
    int PaperOrientation = 2;
    qint16 PaperHeight = 210;
    qint16 PaperWidth = 297;
    qint16 TopMargin = 15;
    qint16 BottomMargin = 15;
    qint16 LeftMargin = 20;
    qint16 RightMargin = 15;
};

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
