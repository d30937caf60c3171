#pragma once

#include "platform/forms/SurfaceView.h"
#include "render/LocalityMap.h"

/// Shows a map of the localities with one of them highlighted. The highlight lies over the painted map, so
/// that moving it repaints but a spot.
class LocalityView : public SurfaceView
{
    Q_OBJECT

public:
    explicit LocalityView(QWidget* parent = nullptr);

    /// Draws the lines and localities of `map`.
    void setMap(const BaseMap& map);
    /// Highlights locality i = 1.., or none for a number that the map does not have.
    void highlight(int locality);

Q_SIGNALS:
    /// The user clicked near a locality.
    void localityClicked(int locality);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    /// Pixels of the widget per twip of the paper.
    double pixelsPerTwip() const;
    /// The spot of the highlight in pixels; empty where there is none.
    QRectF spot() const;

    LocalityMap m_map;
    int m_locality = 0;
};
