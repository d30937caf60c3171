#pragma once

#include <QRectF>

#include <vector>

/// The places on a drawing that texts have taken.
class PlacedLabels
{
public:
    /// Takes `place` unless something is there already; returns whether it did.
    bool take(const QRectF& place)
    {
        for (const QRectF& taken : m_taken) {
            if (taken.intersects(place)) {
                return false;
            }
        }
        m_taken.push_back(place);
        return true;
    }

    /// Takes `place` whatever is there.
    void reserve(const QRectF& place) { m_taken.push_back(place); }

private:
    std::vector<QRectF> m_taken;
};
