// A whole small survey of any text: drawn with symbols and as areas, and painted on a picture.

#include "dialectometry/AreaMap.h"
#include "fuzz/FuzzInput.h"
#include "lingdata/LinguisticFile.h"
#include "mapdata/MapFiles.h"
#include "platform/DrawingPainter.h"
#include "render/LinguisticMap.h"
#include "render/MapSize.h"
#include "shell/MapParts.h"
#include "shell/VarnModule.h"
#include "symbols/SymbolFile.h"

#include <QGuiApplication>
#include <QImage>
#include <QList>

namespace {

/// What `text` holds, or what was there where it cannot be read.
template <typename Value>
void take(const QString& text, Value (*read)(SequentialReader&), Value& value)
{
    expectAnswer([&] {
        SequentialReader reader(text);
        value = read(reader);
    });
}

template <typename Draw>
void paint(Draw draw)
{
    DrawSurface surface;
    expectAnswer([&] { draw(MapSurfaces{{surface, surface}, firstArea()}); });
    QImage picture(80, 60, QImage::Format_RGB32);
    QPainter painter(&picture);
    paintDrawing(surface.drawing(), painter, 0.1 / TwipsPerPixel);
}

/// The parts of the survey stand behind each other, parted by a sign that no file has; most inputs have some
/// that are sound, which then meet others that are not those they were made for.
void drawSurvey(const QStringList& parts)
{
    VarnModule varn;
    take<Localities>(parts.value(0), readLocalities, varn);
    take<MapLines>(parts.value(1), readLines, varn);
    take<PlaceNames>(parts.value(2), readPlaceNames, varn);
    take<ItemAnswers>(parts.value(3), readItem, varn);
    take<SymbolSet>(parts.value(4), readSymbolSet, varn);
    take<PolygonTable>(parts.value(5), readPolygons, varn);
    varn.PlotDots = true;
    paint([&](MapSurfaces surfaces) { drawLinguisticMap(linguisticMapParts(varn), surfaces); });
    const LocalityCells cells = localityCells(varn, varn);
    paint([&](MapSurfaces surfaces) {
        drawAreaMap(linguisticMapParts(varn), cells, {AreaLook::Hatched, true}, surfaces);
    });
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text = QString::fromUtf8(inputOf(data, size));
    expectAnswer([&] { drawSurvey(text.split(QLatin1Char('\x1F'))); });
    return 0;
}
