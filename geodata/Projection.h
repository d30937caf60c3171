#pragma once

#include <QPointF>

#include <optional>

/// A way between two planes, such as degrees and metres.
class Projection
{
public:
    virtual ~Projection() = default;
    /// Nothing for a point that it cannot show.
    virtual std::optional<QPointF> forward(QPointF point) const = 0;
    virtual std::optional<QPointF> backward(QPointF point) const = 0;
};
