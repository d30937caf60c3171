#include "exchange/BaseMapMaker.h"

#include "exchange/MapFrame.h"
#include "geodata/GeoData.h"

#include <QLineF>

#include <algorithm>
#include <array>

namespace {

constexpr int MostPoints = 500;
constexpr int MostLines = 100;

QPolygonF outline(const QRectF& area)
{
    return {area}; // closed
}

/// How many lines of the map a line takes; each piece begins with the last point of the one before.
int piecesOf(const BaseLine& line)
{
    return static_cast<int>((line.points.size() - 2) / (MostPoints - 1)) + 1;
}

int piecesOf(const std::vector<BaseLine>& lines)
{
    int pieces = 0;
    for (const BaseLine& line : lines) {
        pieces += piecesOf(line);
    }
    return pieces;
}

/// How much a person would miss a line: its length, times the worth of its kind.
double importance(const BaseLine& line)
{
    static constexpr std::array Worth = {1000, 8, 4, 1, 2}; // by `BaseLineKind`
    double length = 0;
    for (qsizetype i = 1; i < line.points.size(); ++i) {
        length += QLineF(line.points[i - 1], line.points[i]).length();
    }
    return length * Worth.at(static_cast<size_t>(line.kind));
}

void sortByImportance(std::vector<BaseLine>& lines)
{
    std::ranges::stable_sort(lines, std::greater(), [](const BaseLine& line) { return importance(line); });
}

std::vector<BaseLine> simplifiedLines(const std::vector<BaseLine>& lines, double tolerance)
{
    std::vector<BaseLine> simple;
    for (const BaseLine& line : lines) {
        if (QPolygonF points = geoData().simplified(line.points, tolerance); points.size() >= 2) {
            simple.push_back({line.kind, std::move(points)});
        }
    }
    return simple;
}

/// Lines too short for a person to see what they are; a pixel is a little over one map unit.
bool isSpeck(const BaseLine& line)
{
    constexpr double Speck = 2;
    const QRectF extent = line.points.boundingRect();
    return std::max(extent.width(), extent.height()) < Speck;
}

/// The lines, the most important first, that fit in the map beside `taken` others.
std::vector<BaseLine> withinRoom(std::vector<BaseLine> lines, int taken)
{
    static constexpr std::array Tolerances = {0.2, 0.4, 0.7, 1.0}; // less than a pixel

    sortByImportance(lines);
    std::vector<BaseLine> simple;
    for (const double tolerance : Tolerances) {
        simple = simplifiedLines(lines, tolerance);
        if (piecesOf(simple) + taken <= MostLines) {
            return simple;
        }
    }
    while (piecesOf(simple) + taken > MostLines) {
        simple.pop_back();
    }
    return simple;
}

struct Look
{
    int color;
    /// As in `DrawSurface::DrawStyle`.
    qint16 style;
};

Look lookOf(BaseLineKind kind)
{
    constexpr Look Black{0, 0};
    constexpr Look Blue{1, 0};
    constexpr Look LightBlue{9, 0};
    constexpr Look GreyDashDot{8, 3};

    switch (kind) {
    case BaseLineKind::Border:
        return GreyDashDot;
    case BaseLineKind::River:
        return Blue;
    case BaseLineKind::Lake:
        return LightBlue;
    default:
        return Black;
    }
}

void append(MapLines& map, const BaseLine& line, qsizetype first, qsizetype last)
{
    const int i = ++map.NLine;
    const Look look = lookOf(line.kind);
    map.LineKind(i) = static_cast<qint16>(line.kind);
    map.MapLineColor(i) = look.color;
    map.LineStyle(i) = look.style;
    for (qsizetype k = first; k <= last; ++k) {
        const int j = ++map.LinePoints(i);
        map.LineXY(i, j, 0) = static_cast<float>(line.points[k].x());
        map.LineXY(i, j, 1) = static_cast<float>(line.points[k].y());
    }
}

void appendPieces(MapLines& map, const BaseLine& line)
{
    for (qsizetype first = 0; first < line.points.size() - 1; first += MostPoints - 1) {
        append(map, line, first, std::min(first + MostPoints - 1, line.points.size() - 1));
    }
}

std::vector<BaseLine> readLayers(const MapFrame& frame, const QRectF& legend, const QStringList& layers,
                                 ImportReport& report)
{
    std::vector<BaseLine> lines;
    for (const QString& path : layers) {
        std::vector<BaseLine> ofLayer = readBaseLines(path, frame, legend);
        if (ofLayer.empty()) {
            report.tell(QStringLiteral("Base map: %1 has no line in the area of the survey.").arg(path));
        }
        std::ranges::move(ofLayer, std::back_inserter(lines));
    }
    return lines;
}

} // namespace

MapLines makeBaseMap(const MapFrame& frame, const QRectF& legend, const QStringList& layers,
                     ImportReport& report)
{
    std::vector<BaseLine> frames = {
        {BaseLineKind::NeatLine, outline({0, 0, MapFrame::Width, MapFrame::Height})}};
    if (!legend.isEmpty()) {
        frames.push_back({BaseLineKind::NeatLine, outline(legend)});
    }
    std::vector<BaseLine> lines = readLayers(frame, legend, layers, report);
    const size_t found = lines.size();
    std::erase_if(lines, isSpeck);
    lines = withinRoom(std::move(lines), static_cast<int>(frames.size()));
    report.tell(QStringLiteral("Base map: %1 lines%2")
                    .arg(lines.size())
                    .arg(lines.size() == found
                             ? QString()
                             : QStringLiteral("; %1 small ones left out").arg(found - lines.size())));
    MapLines map;
    for (const auto* all : {&frames, &lines}) {
        for (const BaseLine& line : *all) {
            appendPieces(map, line);
        }
    }
    return map;
}
