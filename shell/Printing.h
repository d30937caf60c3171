#pragma once

#include "shell/VarnModule.h"

/// Sets paper and orientation: A4 whatever paper is asked for.
void setPaper(PageLayout& layout, PageOrientation orientation);

/// "A4 Landscape(210 X 297) mm".
QString paperLabel(const PageLayout& layout);
/// "Height:210(mm) Width:297(mm)".
QString paperSpaceLabel(const PageLayout& layout);
/// What the map form says of the print switch: "Print A4 Landscape", or "Don't print".
QString printModeLabel(const PageSetup& page);

/// Computes the scales that would fill the paper between the margins. Raises division by zero for a map
/// without extent.
void SettingPrinterScale(PageSetup& page, MapGeometry& geometry);

/// Makes `device` the printer and takes over the page that was chosen with it; with null there is none, and
/// print mode goes off.
void connectPrinter(VarnModule& varn, std::unique_ptr<PrinterDevice> device);

/// Called before a drawing command: the command draws on a fresh page of the printer, a document called
/// `name`, where print mode is on, otherwise on `frmMap`.
void PrintYesNo(VarnModule& varn, DrawSurface& frmMap, const QString& name);
/// Finishes the page being drawn and begins the next one of the same document.
void newPage(PageSetup& page);
/// Called after a drawing command: where print mode is on, ends the document so that it is printed. Raises
/// what the printer raises.
void PrintEnd(VarnModule& varn);
/// Begins a document called `name` on the printer, whatever the print switch says: lists are printed with it.
/// Its paper and margins are those chosen now, drawing coordinate 0 falls on the margins, texts are in
/// `font`.
void beginDocument(PageSetup& page, const MapFont& font, const QString& name);
/// Whether what has been drawn of the document lies within the margins.
bool fitsPaper(const PageSetup& page);
/// Ends the document being drawn, so that it is printed.
void endDocument(PageSetup& page);
