#include "shell/Printing.h"

#include "platform/DrawnArea.h"
#include "platform/Numbers.h"

#include <algorithm>
#include <utility>

namespace {

QString orientationName(const PageLayout& layout)
{
    return layout.PaperOrientation == PageOrientation::Landscape ? QStringLiteral("Landscape")
                                                                 : QStringLiteral("Portrait");
}

/// An empty page with the paper, the margins and the font chosen now.
void preparePage(PageSetup& page, const MapFont& font)
{
    DrawSurface& printer = page.Printer;
    printer.Width = toSingle(page.PaperWidth * TwipsPerMm);
    printer.Height = toSingle(page.PaperHeight * TwipsPerMm);
    printer.ScaleLeft = toSingle(-page.LeftMargin * TwipsPerMm);
    printer.ScaleTop = toSingle(-page.TopMargin * TwipsPerMm);
    printer.setFont(textFont(font));
    printer.DrawWidth = 1;
    printer.DrawStyle = PenStyle::Solid;
    printer.FillStyle = DrawSurface::Fill::Transparent;
    printer.Cls();
}

} // namespace

void setPaper(PageLayout& layout, PageOrientation orientation)
{
    layout.PaperOrientation = orientation;
    layout.PaperSizeName = QStringLiteral("A4");
    layout.PaperHeight = 210;
    layout.PaperWidth = 297;
    if (orientation == PageOrientation::Portrait) {
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
    if (!varn.PrinterConnected) {
        varn.PrintMode = false;
        return;
    }
    varn.Device->takeChoices(varn);
    setPaper(varn, varn.PaperOrientation);
    preparePage(varn, varn);
    SettingPrinterScale(varn, varn);
}

void PrintYesNo(VarnModule& varn, DrawSurface& frmMap, const QString& name)
{
    if (varn.PrintMode) {
        beginDocument(varn, varn, name);
        varn.DrawTarget = &varn.Printer;
    } else {
        varn.DrawTarget = &frmMap;
    }
}

void newPage(PageSetup& page)
{
    page.Document.pages.push_back(page.Printer.drawing());
    page.Printer.Cls();
}

void PrintEnd(VarnModule& varn)
{
    if (varn.PrintMode) {
        endDocument(varn);
    }
}

void beginDocument(PageSetup& page, const MapFont& font, const QString& name)
{
    page.Document = {name, page.PaperOrientation, {}};
    preparePage(page, font);
}

bool fitsPaper(const PageSetup& page)
{
    const QRectF paper(0, 0, page.PaperWidth * TwipsPerMm, page.PaperHeight * TwipsPerMm);
    const QRectF area = paper.adjusted(page.LeftMargin * TwipsPerMm, page.TopMargin * TwipsPerMm,
                                       -page.RightMargin * TwipsPerMm, -page.BottomMargin * TwipsPerMm);
    const auto fits = [&area](const Drawing& drawing) {
        return drawing.operations.empty() || area.contains(drawnArea(drawing));
    };
    return fits(page.Printer.drawing()) &&
           std::all_of(page.Document.pages.begin(), page.Document.pages.end(), fits);
}

void endDocument(PageSetup& page)
{
    newPage(page);
    const PrintedDocument document = std::exchange(page.Document, {});
    if (page.Device == nullptr) {
        throw RunTimeError(ErrorNumber::DeviceIOError, QStringLiteral("No printer is chosen."));
    }
    page.Device->print(document);
}
