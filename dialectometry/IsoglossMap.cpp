#include "dialectometry/IsoglossMap.h"

#include "dialectometry/AreaLegend.h"
#include "dialectometry/BorderNumbers.h"
#include "dialectometry/CellLines.h"
#include "render/BlankMap.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace {

using Kinds = std::vector<int>;

/// The kinds of each cell: those of all its localities.
std::vector<Kinds> kindsOfCells(const LocalityCells& cells, const LocalityKinds& kinds)
{
    std::vector<Kinds> ofCell;
    for (const std::vector<int>& localities : cells.localities) {
        Kinds all;
        for (const int locality : localities) {
            const auto index = static_cast<std::size_t>(locality);
            if (index < kinds.size()) {
                all.insert(all.end(), kinds[index].begin(), kinds[index].end());
            }
        }
        std::sort(all.begin(), all.end());
        all.erase(std::unique(all.begin(), all.end()), all.end());
        ofCell.push_back(std::move(all));
    }
    return ofCell;
}

/// How much two rising lists of kinds differ.
double changeBetween(const Kinds& a, const Kinds& b)
{
    if (a == b) {
        return 0;
    }
    Kinds common;
    std::ranges::set_intersection(a, b, std::back_inserter(common));
    return common.empty() ? 1 : 0.5;
}

std::vector<CellLine> linesOf(const AreaMapParts& parts, std::span<const int> classes, bool smooth)
{
    std::vector<CellLine> lines = cellLines(parts.cells, classes, parts.base.geometry);
    for (CellLine& line : lines) {
        line.points = smooth ? smoothed(line.points) : std::move(line.points);
    }
    return lines;
}

AreaLegendRow lineRow(const LinePen& pen, const QString& text)
{
    AreaLegendRow row;
    row.line = pen;
    row.text = text;
    return row;
}

constexpr QRgb IsoglossColor = qRgb(178, 24, 43);
/// Some kinds change; all do.
constexpr std::array IsoglossPens = {LinePen{IsoglossColor, 2, PenStyle::Dash},
                                     LinePen{IsoglossColor, 3, PenStyle::Solid}};

/// The pens of bundles, from the weakest on.
constexpr std::array BundlePens = {
    LinePen{qRgb(200, 200, 200), 1, PenStyle::Solid}, LinePen{qRgb(150, 150, 150), 2, PenStyle::Solid},
    LinePen{qRgb(105, 105, 105), 4, PenStyle::Solid}, LinePen{qRgb(55, 55, 55), 6, PenStyle::Solid},
    LinePen{qRgb(0, 0, 0), 8, PenStyle::Solid}};

/// The classes of numbers of items: as many pens as there are numbers, each for as many of them.
class BundleClasses
{
public:
    explicit BundleClasses(const std::vector<double>& changes)
    {
        const double most = changes.empty() ? 0 : *std::ranges::max_element(changes);
        constexpr double Most = BundlePens.size();
        m_width = std::max(1, static_cast<int>(std::ceil(most / Most)));
        m_count = static_cast<int>(std::ceil(most / m_width));
    }

    int count() const { return m_count; }
    int operator()(double change) const
    {
        return change > 0 ? static_cast<int>(std::ceil(change / m_width)) - 1 : NoLine;
    }
    /// One for each class; the last one has the widest.
    std::span<const LinePen> pens() const
    {
        return std::span(BundlePens).last(static_cast<std::size_t>(m_count));
    }
    QString text(int number) const
    {
        const int last = (number + 1) * m_width;
        const QString unit = last == 1 ? QStringLiteral("item") : QStringLiteral("items");
        return m_width == 1 ? QStringLiteral("%1 %2").arg(QString::number(last), unit)
                            : QStringLiteral("%1-%2 items").arg(number * m_width + 1).arg(last);
    }

private:
    int m_width = 1;
    int m_count = 0;
};

/// Cuts off the corners of a line once (Chaikin 1974).
std::vector<QPointF> cutCorners(const std::vector<QPointF>& line, bool closed)
{
    constexpr double Part = 0.25;

    std::vector<QPointF> result;
    for (std::size_t i = 0; i + 1 < line.size(); ++i) {
        const bool first = i == 0 && !closed;
        const bool last = i + 2 == line.size() && !closed;
        result.push_back(first ? line[i] : line[i] + (line[i + 1] - line[i]) * Part);
        result.push_back(last ? line[i + 1] : line[i + 1] + (line[i] - line[i + 1]) * Part);
    }
    if (closed) {
        result.push_back(result.front());
    }
    return result;
}

/// The number of each border's pen among those of isoglosses.
std::vector<int> isoglossClasses(const BorderChanges& changes)
{
    std::vector<int> classes;
    for (const double change : changes.changes) {
        classes.push_back(change == 0 ? NoLine : change < 1 ? 0 : 1);
    }
    return classes;
}

} // namespace

std::vector<QPointF> smoothed(const std::vector<QPointF>& line)
{
    constexpr int Times = 4;

    std::vector<QPointF> result = line;
    const bool closed = line.size() > 3 && line.front() == line.back();
    for (int i = 0; i < Times && line.size() > 2; ++i) {
        result = cutCorners(result, closed);
    }
    return result;
}

BorderChanges borderChanges(const LocalityCells& cells, const LocalityKinds& kinds)
{
    const std::vector<Kinds> ofCell = kindsOfCells(cells, kinds);
    BorderChanges changes;
    for (const CellBorder& border : cells.borders) {
        changes.changes.push_back(0);
        if (border.left == CellBorder::Outside || border.right == CellBorder::Outside) {
            continue;
        }
        const Kinds& left = ofCell[static_cast<std::size_t>(border.left)];
        const Kinds& right = ofCell[static_cast<std::size_t>(border.right)];
        if (!left.empty() && !right.empty()) {
            changes.changes.back() = changeBetween(left, right);
        }
    }
    return changes;
}

void addChanges(BorderChanges& sum, const BorderChanges& item)
{
    sum.changes.resize(item.changes.size());
    for (std::size_t i = 0; i < item.changes.size(); ++i) {
        sum.changes[i] += item.changes[i];
    }
}

void drawIsoglosses(const AreaMapParts& parts, const BorderChanges& changes, const IsoglossStyle& style,
                    MapSurfaces surfaces)
{
    beginMap(parts, surfaces);
    drawCellLines(linesOf(parts, isoglossClasses(changes), style.smooth), fittingPens(IsoglossPens, parts),
                  surfaces.DrawTarget);
}

void drawIsoglossLegend(const AreaMapParts& parts, const QString& title, const BorderChanges& changes,
                        MapSurfaces surfaces)
{
    AreaLegend legend;
    legend.title = title;
    const std::vector<int> classes = isoglossClasses(changes);
    const std::vector<LinePen> pens = fittingPens(IsoglossPens, parts);
    const std::array texts = {QStringLiteral("some answers change"), QStringLiteral("all answers change")};
    for (int i = 1; i >= 0; --i) {
        if (std::ranges::count(classes, i) > 0) {
            const auto index = static_cast<std::size_t>(i);
            legend.rows.push_back(lineRow(pens[index], texts.at(index)));
        }
    }
    drawAreaLegend(parts, legend, surfaces);
}

void drawIsoglossMap(const AreaMapParts& parts, const QString& title, const BorderChanges& changes,
                     const IsoglossStyle& style, MapSurfaces surfaces)
{
    drawIsoglosses(parts, changes, style, surfaces);
    PlotBaseMap(parts.base, surfaces);
    drawIsoglossLegend(parts, title, changes, surfaces);
}

void drawBundleMap(const AreaMapParts& parts, const QString& title, const BorderChanges& changes,
                   const IsoglossStyle& style, MapSurfaces surfaces)
{
    beginMap(parts, surfaces);
    const BundleClasses classOf(changes.changes);
    std::vector<int> classes;
    std::ranges::transform(changes.changes, std::back_inserter(classes), classOf);
    const std::vector<LinePen> pens = fittingPens(classOf.pens(), parts);
    AreaLegend legend;
    legend.title = title;
    for (int i = classOf.count() - 1; i >= 0; --i) {
        legend.rows.push_back(lineRow(pens[static_cast<std::size_t>(i)], classOf.text(i)));
    }
    drawCellLines(linesOf(parts, classes, style.smooth), pens, surfaces.DrawTarget);
    PlotBaseMap(parts.base, surfaces);
    if (style.numbers) {
        drawBorderNumbers(parts, changes.changes, surfaces.DrawTarget);
    }
    drawAreaLegend(parts, legend, surfaces);
}
