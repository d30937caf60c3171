#pragma once

#include "atlas/AtlasDrawing.h"
#include "atlas/MapViewport.h"

#include <QPixmap>
#include <QWidget>

#include <functional>
#include <set>

class QNativeGestureEvent;
class QPinchGesture;
class QRubberBand;

/// Shows a map that can be zoomed and moved, and tells what the user points at. The painted map is kept, so
/// that what lies over it costs no painting.
class AtlasCanvas : public QWidget
{
    Q_OBJECT

public:
    /// Draws the map, so many times larger than it is printed while texts and symbols keep their size.
    using DrawMap = std::function<AtlasDrawing(double zoom)>;

    /// By how much one step zooms.
    static constexpr double ZoomStep = 1.25;

    explicit AtlasCanvas(DrawMap drawMap);

    /// Draws the map anew before it is shown next.
    void renew();
    /// The map as it is shown, in its own twips.
    const AtlasDrawing& map();

    void setSymbolsKeepSize(bool keep);
    void setSelected(const std::set<int>& localities);
    /// Lets the symbols of these records stand out; all where there are none.
    void setStandingOut(const std::set<int>& records);

    const MapViewport& viewport() const { return m_viewport; }
    void fit();
    /// Zooms by `factor` about the middle.
    void zoom(double factor);
    void bringIntoView(int locality);
    /// Where a locality is, in pixels.
    QPointF placeOf(int locality);
    /// Where the legend is, in pixels.
    QRectF legendRectangle();

Q_SIGNALS:
    /// The pointer is at a locality, or at none any more: 0.
    void localityHovered(int locality);
    /// A click on a locality or, 0, beside all; `add` where it is added to what is selected.
    void localityClicked(int locality, bool add);
    void localitiesBanded(const std::set<int>& localities, bool add);
    /// The legend was dragged by so many map units.
    void legendDragged(QPointF by);
    /// Something else is in view, or at another size.
    void viewChanged();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    enum class Drag { None, Pan, Band, Legend };

    void zoomAt(QPointF point, double factor);
    void pan(QPointF pixels);
    /// Shows the map as the viewport now has it.
    void showView();
    void repaintMap();

    double painterScale() { return m_viewport.scale() / map().zoom; }
    QPointF toDrawing(QPointF view);
    QPointF toView(QPointF drawing);
    int localityAt(QPointF view);
    bool isOnLegend(QPointF view);

    QPixmap paintedMap();
    void paintSelected(QPainter& painter);
    void paintDraggedLegend(QPainter& painter);

    void beginDrag(const QMouseEvent& event);
    void drag(QPointF place);
    void endDrag(const QMouseEvent& event);
    void cancelDrag();
    void hover(QPointF place);
    bool pinch(const QPinchGesture& gesture);
    bool gesture(const QNativeGestureEvent& event);

    DrawMap m_drawMap;
    AtlasDrawing m_map;
    bool m_isStale = true;
    bool m_symbolsKeepSize = true;
    MapViewport m_viewport;
    /// The painted map; null where it must be painted anew.
    QPixmap m_picture;
    std::set<int> m_selected;
    std::set<int> m_standingOut;

    Drag m_drag = Drag::None;
    bool m_isPressed = false;
    QPointF m_pressed;
    QPointF m_dragged;
    QRubberBand* m_band;
    int m_hovered = 0;
};
