#include "dialectometry/BorderNumbers.h"

#include "dialectometry/KeptStyle.h"
#include "dialectometry/PlacedLabels.h"
#include "platform/StandardColors.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

/// The point in the middle of a line's length.
QPointF middleOf(const std::vector<QPointF>& line)
{
    double length = 0;
    for (std::size_t i = 1; i < line.size(); ++i) {
        length += std::hypot(line[i].x() - line[i - 1].x(), line[i].y() - line[i - 1].y());
    }
    double rest = length / 2;
    for (std::size_t i = 1; i < line.size(); ++i) {
        const QPointF step = line[i] - line[i - 1];
        const double way = std::hypot(step.x(), step.y());
        if (way >= rest && way > 0) {
            return line[i - 1] + step * (rest / way);
        }
        rest -= way;
    }
    return line.back();
}

/// The numbers of the borders to be labelled, the strongest first.
std::vector<std::size_t> strongest(std::span<const double> numbers)
{
    constexpr double Share = 2.0 / 3;
    constexpr std::size_t Most = 30;

    std::vector<std::size_t> order(numbers.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, [&](std::size_t a, std::size_t b) { return numbers[a] > numbers[b]; });
    const double least = order.empty() ? 0 : Share * numbers[order.front()];
    std::erase_if(order, [&](std::size_t i) { return numbers[i] <= 0 || numbers[i] < least; });
    order.resize(std::min(order.size(), Most));
    return order;
}

void writeNumber(const QString& text, const QRectF& place, DrawSurface& target)
{
    target.FilledBox(static_cast<float>(place.left()), static_cast<float>(place.top()),
                     static_cast<float>(place.right()), static_cast<float>(place.bottom()),
                     QBColor(StandardColor::LightWhite));
    target.PrintAt(static_cast<float>(place.left()), static_cast<float>(place.top()), text);
}

} // namespace

void drawBorderNumbers(const AreaMapParts& parts, std::span<const double> numbers, DrawSurface& target)
{
    constexpr double Apart = 30; // side by side they would be read as one number

    const KeptStyle kept(target);
    const TextFont font = target.font();
    target.FontSize = std::max(font.size * 4 / 5, 1);
    target.DrawStyle = PenStyle::None;
    PlacedLabels labels;
    for (const std::size_t i : strongest(numbers)) {
        const QPointF middle = middleOf(parts.cells.borders[i].points);
        const QString text = QString::number(numbers[i]);
        const QSizeF size(target.TextWidth(text), target.TextHeight());
        const QPointF at(parts.base.geometry.toScreen(static_cast<float>(middle.x())),
                         parts.base.geometry.toScreen(static_cast<float>(middle.y())));
        const QRectF place(at - QPointF(size.width() / 2, size.height() / 2), size);
        if (labels.take(place.adjusted(-Apart, 0, Apart, 0))) {
            writeNumber(text, place, target);
        }
    }
    target.setFont(font);
}
