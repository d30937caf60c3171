#pragma once

#include "platform/DrawSurface.h"

#include <QString>

#include <vector>

/// An axis of a plot: the range of its values and where they lie on the drawing, in twips.
struct PlotAxis
{
    double least = 0;
    double most = 1;
    float start = 0;
    float end = 0;

    float at(double value) const
    {
        const double part = most > least ? (value - least) / (most - least) : 0.5;
        return start + static_cast<float>(part) * (end - start);
    }
};

/// Round values on the axis, at most about eight of them.
std::vector<double> axisTicks(const PlotAxis& axis);
/// A round value as a text, with the decimals that the ticks of its axis need.
QString tickText(double value, const PlotAxis& axis);

/// Draws an axis of x values at height y, with ticks and their texts below it.
void drawAxisBelow(const PlotAxis& axis, float y, DrawSurface& target);
/// Draws an axis of y values at x, with ticks and their texts left of it.
void drawAxisLeft(const PlotAxis& axis, float x, DrawSurface& target);
