#include "atlas/AtlasDrawing.h"

#include "platform/DrawnArea.h"
#include "platform/StandardColors.h"
#include "render/BlankMap.h"
#include "render/Legend.h"
#include "render/MapSize.h"
#include "render/SymbolShapes.h"

#include <algorithm>

namespace {

/// The parts of a map with other lines, style and geometry.
LinguisticMapParts withBase(const LinguisticMapParts& parts, const BaseMap& map, const MapStyle& style)
{
    return {{map, style, parts.base.stampedFile, parts.base.geometry}, parts.text, parts.item, parts.symbols};
}

bool hasExtent(const MapLines& map)
{
    MapGeometry geometry;
    try {
        FindMinMax(map, firstArea(), geometry);
    } catch (const RunTimeError&) {
        return false;
    }
    return true;
}

/// The square that holds the localities and the map's origin.
QRectF squareOf(const Localities& map)
{
    QRectF extent(0, 0, 1, 1);
    for (int i = 1; i <= map.NLocality; ++i) {
        extent |= QRectF(map.LocXY(i, 0), map.LocXY(i, 1), 1, 1);
    }
    const double side = 1.1 * std::max(extent.width(), extent.height());
    return {extent.topLeft(), QSizeF(side, side)};
}

/// `map` with a line that is not drawn around its localities, which gives it its size.
BaseMap framed(const BaseMap& map)
{
    const QRectF square = squareOf(map);
    BaseMap framed = map;
    framed.NLine = 1;
    framed.LinePoints(1) = 2;
    framed.LineStyle(1) = static_cast<qint16>(PenStyle::None);
    for (const int axis : {0, 1}) {
        framed.LineOffset(1, axis) = 0;
        framed.LineXY(1, 1, axis) = static_cast<float>(axis == 0 ? square.left() : square.top());
        framed.LineXY(1, 2, axis) = static_cast<float>(axis == 0 ? square.right() : square.bottom());
    }
    return framed;
}

FormArea zoomed(const FormArea& area, double zoom)
{
    const auto factor = static_cast<float>(zoom);
    return {0, 0, area.Width * factor, area.Height * factor};
}

/// Draws layer after layer and notes where each is.
class AtlasRecorder
{
public:
    AtlasRecorder(const LinguisticMapParts& parts, const AtlasMapStyle& style)
        : m_parts(parts), m_layers(style.layers), m_area(zoomed(firstArea(), style.zoom))
    {
        m_map.zoom = style.zoom;
        m_surface.setFont(textFont(parts.text.font));
    }

    AtlasDrawing linguisticMap()
    {
        tryTo([this] {
            setScale();
            drawBaseMap();
            drawSymbols();
            drawLegend();
        });
        return finished();
    }

    AtlasDrawing otherMap(const OtherMap& map)
    {
        tryTo([&] {
            setScale();
            map.draw(m_parts, surfaces(m_area));
        });
        m_map.paper |= QRectF(QPointF(), map.paper);
        return map.hasLocalities ? finished() : withoutLocalities();
    }

private:
    using Labels = AtlasLayers::Labels;

    MapSurfaces surfaces(const FormArea& area) { return {{m_surface, m_surface}, area}; }
    std::size_t count() const { return m_surface.drawing().operations.size(); }
    MapGeometry& geometry() { return m_parts.base.geometry; }

    /// What was drawn before an error stays.
    template <typename Draw>
    void tryTo(Draw draw)
    {
        try {
            draw();
        } catch (const RunTimeError& error) {
            m_map.trouble = (error.text() + QLatin1Char('\n') + error.where()).trimmed();
        }
    }

    void setScale()
    {
        geometry().Scale = FindMinMax(m_parts.base.map, m_area, geometry());
        m_map.scale = geometry().Scale;
        m_map.paper = QRectF(0, 0, firstArea().Width, firstArea().Height) | extentAtZoom1();
    }

    QRectF extentAtZoom1()
    {
        constexpr double Rim = 2 * MapGeometry::Margin;

        const double twips = m_map.scale / m_map.zoom;
        return {QPointF(twips * geometry().MinX, twips * geometry().MinY),
                QPointF(twips * geometry().MaxX + Rim, twips * geometry().MaxY + Rim)};
    }

    void drawBaseMap()
    {
        const BlankMapParts& base = m_parts.base;
        if (m_layers.lines) {
            PlotLineData(base.map, geometry(), surfaces(m_area));
        }
        PlotLocateData(base.map, base.style, geometry(), surfaces(m_area));
        if (m_layers.placeNames) {
            PlotKanjiData(base.map, geometry(), surfaces(m_area));
        }
        if (base.style.WriteFileName) {
            PlotDate(base.stampedFile, QDateTime::currentDateTime(), surfaces(m_area));
        }
        m_map.baseMap.end = count();
    }

    void drawSymbols()
    {
        std::size_t first = count();
        PlotLinguisticData(m_parts, surfaces(m_area), [&](const PlacedSymbol& symbol) {
            m_map.symbols.push_back({symbol, {first, count()}});
            first = count();
        });
        drawSamples();
    }

    void drawSamples()
    {
        for (int k = 1; k <= m_parts.symbols.NHanrei; ++k) {
            DrawSurface sample;
            SymbolShapes(m_parts.base.map, geometry(), {sample, sample})
                .DrawHanko(m_parts.symbols.Hanko(k), static_cast<float>(SampleMiddle.x()),
                           static_cast<float>(SampleMiddle.y()));
            m_map.samples.push_back(sample.drawing());
        }
    }

    /// The columns of the legend stay as they are on the printed map.
    void drawLegend()
    {
        if (m_layers.legend) {
            m_map.legend.first = count();
            PlotHanrei(m_parts, surfaces(firstArea()));
            m_map.legend.end = count();
        }
    }

    void placeLocalities()
    {
        const BaseMap& map = m_parts.base.map;
        std::vector<MapSpot> spots;
        for (int i = 1; i <= map.NLocality; ++i) {
            const QPointF place(geometry().toScreen(map.LocXY(i, 0)), geometry().toScreen(map.LocXY(i, 1)));
            m_map.localities.push_back(place);
            spots.push_back({place, i});
        }
        for (const DrawnSymbol& symbol : m_map.symbols) {
            if (symbol.word > 1 && symbol.locality <= map.NLocality) {
                spots.push_back({{symbol.x, symbol.y}, symbol.locality});
            }
        }
        m_map.spots = SpotGrid(std::move(spots));
    }

    void drawLabels()
    {
        constexpr QPointF Beside(70, 30);
        constexpr int Size = 8;

        m_surface.FontSize = Size;
        m_surface.ForeColor = QBColor(StandardColor::Gray);
        for (int i = 1; m_layers.labels != Labels::None && i <= m_parts.base.map.NLocality; ++i) {
            const QPointF place = m_map.localities[static_cast<std::size_t>(i - 1)] + Beside;
            const QString name =
                m_layers.labels == Labels::Names ? localityName(m_parts.base.map, i) : QString::number(i);
            m_surface.PrintAt(static_cast<float>(place.x()), static_cast<float>(place.y()), name);
        }
    }

    AtlasDrawing finished()
    {
        tryTo([this] {
            placeLocalities();
            drawLabels();
        });
        return withoutLocalities();
    }

    AtlasDrawing withoutLocalities()
    {
        m_map.drawing = m_surface.drawing();
        m_map.legendBox = drawnArea(m_map.drawing, m_map.legend.first, m_map.legend.end);
        return std::move(m_map);
    }

    LinguisticMapParts m_parts;
    AtlasLayers m_layers;
    FormArea m_area;
    DrawSurface m_surface;
    AtlasDrawing m_map;
};

/// Draws with a recorder on a base map that has an extent, its dots as the layers say.
template <typename Draw>
AtlasDrawing drawWithExtent(const LinguisticMapParts& parts, const AtlasMapStyle& style, Draw draw)
{
    MapStyle mapStyle = parts.base.style;
    mapStyle.PlotDots = style.layers.dots;
    if (hasExtent(parts.base.map)) {
        AtlasRecorder recorder(withBase(parts, parts.base.map, mapStyle), style);
        return draw(recorder);
    }
    const BaseMap map = framed(parts.base.map);
    AtlasRecorder recorder(withBase(parts, map, mapStyle), style);
    return draw(recorder);
}

} // namespace

AtlasDrawing drawAtlasMap(const LinguisticMapParts& parts, const AtlasMapStyle& style)
{
    return drawWithExtent(parts, style, [](AtlasRecorder& recorder) { return recorder.linguisticMap(); });
}

AtlasDrawing drawOtherMap(const LinguisticMapParts& parts, const AtlasMapStyle& style, const OtherMap& map)
{
    return drawWithExtent(parts, style, [&](AtlasRecorder& recorder) { return recorder.otherMap(map); });
}
