#include "shell/Printing.h"

#include "platform/Numbers.h"

#include <utility>

namespace {

QString orientationName(const PageLayout& layout)
{
    return layout.PaperOrientation == 2 ? QStringLiteral("Landscape") : QStringLiteral("Portrait");
}

} // namespace

void setPaper(PageLayout& layout, int orientation)
{
    layout.PaperOrientation = orientation == 2 ? 2 : 1;
    layout.PaperSizeName = QStringLiteral("A4");
    layout.PaperHeight = 210;
    layout.PaperWidth = 297;
    if (layout.PaperOrientation != 2) {
        std::swap(layout.PaperHeight, layout.PaperWidth);
    }
}

QString paperLabel(const PageLayout& layout)
{
    return QStringLiteral("%1 %2(%3 X %4) mm")
        .arg(layout.PaperSizeName, orientationName(layout))
        .arg(layout.PaperHeight)
        .arg(layout.PaperWidth);
}

QString paperSpaceLabel(const PageLayout& layout)
{
    return QStringLiteral("Height:%1(mm) Width:%2(mm)").arg(layout.PaperHeight).arg(layout.PaperWidth);
}

QString printModeLabel(const PageSetup& page)
{
    if (!page.PrintMode) {
        return QStringLiteral("Don't print");
    }
    return QStringLiteral("Print %1 %2").arg(page.PaperSizeName, orientationName(page));
}

void SettingPrinterScale(PageSetup& page, MapGeometry& geometry)
{
    if (!page.PrinterConnected) {
        return;
    }
    geometry.RatioY = divide((page.PaperHeight - page.TopMargin - page.BottomMargin) * TwipsPerMm,
                             geometry.MaxY - geometry.MinY);
    geometry.RatioX = divide((page.PaperWidth - page.LeftMargin - page.RightMargin) * TwipsPerMm,
                             geometry.MaxX - geometry.MinX);
    page.PrinterScale = toSingle(1.0 * geometry.RatioY);
}

void connectPrinter(VarnModule& varn, std::unique_ptr<PrinterDevice> device)
{
    varn.Device = std::move(device);
    varn.PrinterConnected = varn.Device != nullptr;
    SettingPrinterScale(varn, varn);
    varn.Printer.FontName = varn.MapFontName;
    varn.Printer.FontSize = varn.MapFontSize;
    varn.Printer.Width = toSingle(varn.PaperWidth * TwipsPerMm);
    varn.Printer.Height = toSingle(varn.PaperHeight * TwipsPerMm);
}

void PrintYesNo(VarnModule& varn, DrawSurface& frmMap)
{
    if (varn.PrintMode) {
        beginDocument(varn);
        varn.DrawTarget = &varn.Printer;
    } else {
        varn.DrawTarget = &frmMap;
    }
}

void newPage(PageSetup& page)
{
    page.PrintedPages.push_back(page.Printer.drawing());
    page.Printer.Cls();
}

void PrintEnd(VarnModule& varn)
{
    if (varn.PrintMode) {
        endDocument(varn);
    }
}

void beginDocument(PageSetup& page)
{
    page.PrintedPages.clear();
    page.Printer.ScaleLeft = toSingle(-page.LeftMargin * TwipsPerMm);
    page.Printer.ScaleTop = toSingle(-page.TopMargin * TwipsPerMm);
    page.Printer.Cls();
    page.Printer.DrawWidth = 1;
    page.Printer.DrawStyle = 0;
    page.Printer.FillStyle = 1;
}

void endDocument(PageSetup& page)
{
    newPage(page);
    const std::vector<Drawing> pages = std::exchange(page.PrintedPages, {});
    if (page.Device == nullptr) {
        throw RunTimeError(ErrorNumber::DeviceIOError, QStringLiteral("No printer is chosen."));
    }
    page.Device->print(pages);
}
