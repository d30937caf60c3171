#pragma once

#include "render/MapGeometry.h"

#include <QSizeF>
#include <QWidget>

#include <functional>

class AtlasDocument;
class AtlasSelection;
struct VarnModule;

/// The map of the item shown, which answers to the mouse.
class AtlasMapView : public QWidget
{
    Q_OBJECT

public:
    AtlasMapView(VarnModule& varn, AtlasDocument& document, AtlasSelection& selection);

    /// Shows the map that `draw` draws in place of the linguistic map of the item; null shows that again.
    void setMapKind(std::function<void(MapSurfaces)> draw);

    /// The map as it is printed, and the size of its paper in twips.
    Drawing drawing() const { return m_surface.drawing(); }
    QSizeF size() const;

    const QList<QAction*>& layerActions() const { return m_layerActions; }
    const QList<QAction*>& placeActions() const { return m_placeActions; }
    /// Larger, smaller, whole map, and whether symbols keep their size.
    const QList<QAction*>& zoomActions() const { return m_zoomActions; }
    QAction* findAction() const { return m_find; }
    QAction* freePlaceAction() const { return m_freePlace; }
    QAction* wholeWordFormsAction() const { return m_wholeWordForms; }

Q_SIGNALS:
    /// The pointer is at a locality: its number, name and word forms; empty where it is at none.
    void localityHovered(const QString& answer);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void draw();

    VarnModule& m_varn;
    AtlasDocument& m_document;
    AtlasSelection& m_selection;
    std::function<void(MapSurfaces)> m_draw;
    DrawSurface m_surface;
    QList<QAction*> m_layerActions;
    QList<QAction*> m_placeActions;
    QList<QAction*> m_zoomActions;
    QAction* m_find;
    QAction* m_freePlace;
    QAction* m_wholeWordForms;
};
