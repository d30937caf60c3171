#include "dialectometry/ScatterPlot.h"

#include "dialectometry/GroupColors.h"
#include "dialectometry/KeptStyle.h"
#include "dialectometry/PlacedLabels.h"
#include "dialectometry/PlotAxis.h"
#include "platform/StandardColors.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr float Dot = 30;

struct Plot
{
    PlotAxis x;
    PlotAxis y;
};

/// What the axes show.
struct PlotCaptions
{
    QString x;
    QString y;
};

/// Makes room for marks at both ends.
void widen(PlotAxis& axis)
{
    constexpr double Share = 0.04;

    const double more = axis.most > axis.least ? Share * (axis.most - axis.least) : 0.5;
    axis.least -= more;
    axis.most += more;
}

/// The axes of `points`, their places on the drawing inside of `area` below the line of the title, with room
/// for ticks and captions.
Plot plotOf(const std::vector<QPointF>& points, const QRectF& area, const DrawSurface& target)
{
    const auto line = static_cast<double>(target.TextHeight());
    const double left = area.left() + 4 * line;
    Plot plot;
    plot.x = {std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest(),
              static_cast<float>(left), static_cast<float>(area.right() - line)};
    plot.y = {plot.x.least, plot.x.most, static_cast<float>(area.bottom() - 3 * line),
              static_cast<float>(area.top() + 2.5 * line)};
    for (const QPointF point : points) {
        plot.x.least = std::min(plot.x.least, point.x());
        plot.x.most = std::max(plot.x.most, point.x());
        plot.y.least = std::min(plot.y.least, point.y());
        plot.y.most = std::max(plot.y.most, point.y());
    }
    widen(plot.x);
    widen(plot.y);
    return plot;
}

/// Widens the axis that has room, so that a unit is as long on both.
void useOneScale(Plot& plot)
{
    const double across = (plot.x.most - plot.x.least) / std::abs(plot.x.end - plot.x.start);
    const double down = (plot.y.most - plot.y.least) / std::abs(plot.y.end - plot.y.start);
    PlotAxis& wide = across < down ? plot.x : plot.y;
    const double extent = std::max(across, down) * std::abs(wide.end - wide.start);
    const double middle = (wide.least + wide.most) / 2;
    wide.least = middle - extent / 2;
    wide.most = middle + extent / 2;
}

/// The caption of y stands above its axis, that of x below the end of its own.
void drawAxes(const Plot& plot, const PlotCaptions& captions, DrawSurface& target)
{
    drawAxisBelow(plot.x, plot.y.start, target);
    drawAxisLeft(plot.y, plot.x.start, target);
    const float line = target.TextHeight();
    target.PrintAt(plot.x.end - target.TextWidth(captions.x), plot.y.start + 2 * line, captions.x);
    target.PrintAt(plot.x.start - 4 * line, plot.y.end - line, captions.y);
}

/// Writes `name` beside (x, y) where there is room for it.
void placeName(const QString& name, QPointF at, PlacedLabels& labels, DrawSurface& target)
{
    constexpr double Away = 2 * Dot + 30;

    const QSizeF size(target.TextWidth(name), target.TextHeight());
    const double middle = -size.height() / 2;
    for (const QPointF corner :
         {QPointF(Away, middle), QPointF(-Away - size.width(), middle), QPointF(-size.width() / 2, Away),
          QPointF(-size.width() / 2, -Away - size.height())}) {
        if (labels.take(QRectF(at + corner, size))) {
            target.PrintAt(static_cast<float>(at.x() + corner.x()), static_cast<float>(at.y() + corner.y()),
                           name);
            return;
        }
    }
}

/// A locality of the plot.
struct PlottedLocality
{
    int number = 0;
    QPointF place;
};

std::vector<PlottedLocality> plotted(const Scaling& scaling)
{
    std::vector<PlottedLocality> all;
    for (std::size_t i = 0; i < scaling.places.size(); ++i) {
        const std::vector<double>& place = scaling.places[i];
        if (!place.empty()) {
            all.push_back({static_cast<int>(i), {place[0], place.size() > 1 ? place[1] : 0}});
        }
    }
    return all;
}

/// Half the width of a locality's mark.
double markSize(int group)
{
    return group > 0 ? 2 * Dot : Dot;
}

void drawLocality(int group, QPointF at, DrawSurface& target)
{
    const auto x = static_cast<float>(at.x());
    const auto y = static_cast<float>(at.y());
    if (group > 0) {
        drawGroupSymbol(group, AreaLook::Colored, x, y, 2 * Dot, target);
    } else {
        target.Circle(x, y, Dot, QBColor(StandardColor::Black));
    }
}

/// The pairs of localities as points: length of the way and distance.
std::vector<QPointF> pairsOf(const DistanceMatrix& ways, const DistanceMatrix& distances)
{
    std::vector<QPointF> points;
    const int size = std::min(ways.size(), distances.size());
    for (int a = 0; a < size; ++a) {
        for (int b = a + 1; b < size; ++b) {
            if (ways.has(a, b) && distances.has(a, b)) {
                points.emplace_back(ways(a, b), distances(a, b));
            }
        }
    }
    return points;
}

void drawDots(const std::vector<QPointF>& points, const Plot& plot, DrawSurface& target)
{
    const KeptStyle kept(target);
    target.FillStyle = DrawSurface::Fill::Solid;
    target.FillColor = QBColor(StandardColor::Black);
    for (const QPointF point : points) {
        target.Circle(plot.x.at(point.x()), plot.y.at(point.y()), Dot / 2, QBColor(StandardColor::Black));
    }
}

/// Boxes on a grid, the darker the more points lie in them.
void drawBoxes(const std::vector<QPointF>& points, const Plot& plot, DrawSurface& target)
{
    constexpr int Columns = 120;
    constexpr int Rows = 80;
    constexpr int Lightest = 225;

    std::vector<int> counts(static_cast<std::size_t>(Columns * Rows));
    const auto cell = [](const PlotAxis& axis, double value, int cells) {
        const float part = (axis.at(value) - axis.start) / (axis.end - axis.start);
        return std::clamp(static_cast<int>(part * static_cast<float>(cells)), 0, cells - 1);
    };
    for (const QPointF point : points) {
        const int box = cell(plot.y, point.y(), Rows) * Columns + cell(plot.x, point.x(), Columns);
        ++counts[static_cast<std::size_t>(box)];
    }
    const int most = *std::ranges::max_element(counts);
    const float width = (plot.x.end - plot.x.start) / Columns;
    const float height = (plot.y.end - plot.y.start) / Rows;
    const KeptStyle kept(target);
    target.DrawStyle = PenStyle::None;
    for (int i = 0; i < Columns * Rows; ++i) {
        if (const int count = counts[static_cast<std::size_t>(i)]; count > 0) {
            const int grey = static_cast<int>(Lightest * (1 - std::sqrt(static_cast<double>(count) / most)));
            const int row = i / Columns;
            const float x = plot.x.start + width * static_cast<float>(i - row * Columns);
            const float y = plot.y.start + height * static_cast<float>(row);
            target.FilledBox(x, y, x + width, y + height, qRgb(grey, grey, grey));
        }
    }
}

/// The line as far as it lies in the plot.
void drawRegression(const Regression& line, const Plot& plot, DrawSurface& target)
{
    constexpr QRgb Red = qRgb(178, 24, 43);
    constexpr int Pieces = 100;

    const KeptStyle kept(target);
    target.DrawWidth = 3;
    std::vector<QPointF> points;
    for (int i = 0; i <= Pieces; ++i) {
        const double x = plot.x.least + (plot.x.most - plot.x.least) * i / Pieces;
        const double y = line.intercept + line.slope * x;
        if (y >= plot.y.least && y <= plot.y.most) {
            points.emplace_back(plot.x.at(x), plot.y.at(y));
        }
    }
    drawLine(points, Red, target);
}

void writeTitle(const QString& title, const QRectF& area, const MapFont& font, DrawSurface& target)
{
    target.setFont(textFont(font));
    target.PrintAt(static_cast<float>(area.left()), static_cast<float>(area.top()), title);
}

} // namespace

void drawScalingPlot(const Scaling& scaling, const QStringList& names, std::span<const int> groups,
                     const MapFont& font, const QString& title, const QRectF& area, DrawSurface& target)
{
    const QString line = QStringLiteral("%1: stress %2, %3 % of the variance");
    const QString percent = QString::number(std::lround(100 * scaling.variance[1]));
    writeTitle(line.arg(title, QString::number(scaling.stress[1], 'f', 3), percent), area, font, target);
    const std::vector<PlottedLocality> localities = plotted(scaling);
    if (localities.empty()) {
        return;
    }
    std::vector<QPointF> points;
    std::ranges::transform(localities, std::back_inserter(points), &PlottedLocality::place);
    Plot plot = plotOf(points, area, target);
    useOneScale(plot);
    drawAxes(plot, {QStringLiteral("dimension 1"), QStringLiteral("dimension 2")}, target);
    PlacedLabels labels;
    const auto at = [&plot](QPointF place) { return QPointF(plot.x.at(place.x()), plot.y.at(place.y())); };
    for (const auto& [number, place] : localities) {
        const auto index = static_cast<std::size_t>(number);
        const int group = index < groups.size() ? groups[index] : 0;
        const double size = markSize(group);
        drawLocality(group, at(place), target);
        labels.reserve(QRectF(at(place) - QPointF(size, size), QSizeF(2 * size, 2 * size)));
    }
    target.FontSize = std::max(target.FontSize * 4 / 5, 1);
    for (const auto& [number, place] : localities) {
        placeName(names.value(number), at(place), labels, target);
    }
    target.setFont(textFont(font));
}

void drawDistancePlot(const Lengths& ways, const DistanceMatrix& distances, const Regression& line,
                      const MapFont& font, const QString& title, const QRectF& area, DrawSurface& target)
{
    constexpr std::size_t MostDots = 5000;

    writeTitle(QStringLiteral("%1: r = %2").arg(title, QString::number(line.correlation, 'f', 3)), area, font,
               target);
    const std::vector<QPointF> points = pairsOf(ways.lengths, distances);
    if (points.empty()) {
        return;
    }
    Plot plot = plotOf(points, area, target);
    plot.x.least = 0;
    plot.y.least = 0;
    if (points.size() > MostDots) {
        drawBoxes(points, plot, target);
    } else {
        drawDots(points, plot, target);
    }
    const bool inKilometres = ways.unit == LengthUnit::Kilometres;
    drawAxes(plot,
             {inKilometres ? QStringLiteral("kilometres") : QStringLiteral("map units"),
              QStringLiteral("distance")},
             target);
    drawRegression(line, plot, target);
}
