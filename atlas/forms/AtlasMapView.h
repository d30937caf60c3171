#pragma once

#include "atlas/AtlasDrawing.h"

#include <QWidget>

#include <functional>
#include <set>

class AtlasCanvas;
class AtlasDocument;
class AtlasFindBar;
class AtlasHoverCard;
class AtlasSelection;
class QAction;
class QLabel;
struct VarnModule;

/// The map of the item shown, which answers to the mouse.
class AtlasMapView : public QWidget
{
    Q_OBJECT

public:
    AtlasMapView(VarnModule& varn, AtlasDocument& document, AtlasSelection& selection);

    /// Shows `map` in place of the linguistic map of the item; one that draws nothing shows that again.
    void setOtherMap(OtherMap map);
    /// Draws anew.
    void renew();

    /// The map as it is printed, with the layers that are shown, and the size of its paper in twips.
    Drawing drawing() const;
    QSizeF paperSize() const;
    /// Why the map is not complete; empty where it is.
    QString trouble() const;

    // What the view can do, for menus and tool bars.

    /// Lines, dots, place names and legend; none, numbers or names of localities, one of which is chosen.
    const QList<QAction*>& layerActions() const { return m_layerActions; }
    /// Where the second and later word forms of a locality stand, one of which is chosen.
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
    void changeEvent(QEvent* event) override;

private:
    void addActions();
    void addLayerActions();
    void addLabelActions();
    void enableLayers();
    void addPlaceActions();
    void addZoomActions();
    QAction* makeAction(const QString& text, const QString& name);
    QAction* makeLayer(const QString& text, const QString& name, bool AtlasLayers::*layer);
    void follow();

    AtlasDrawing draw(double zoom) const;
    void showAnswer(int locality);
    void hideAnswer();
    void click(int locality, bool add);
    void selectAll(const std::set<int>& localities, bool add);
    void moveLegend(QPointF by);
    void putLegendOnFreePlace();
    void goTo(int locality);
    QString message();
    void showMessage();
    void placeMessage();
    void showStyle();

    VarnModule& m_varn;
    AtlasDocument& m_document;
    AtlasSelection& m_selection;
    AtlasLayers m_layers;
    OtherMap m_other;
    AtlasCanvas* m_canvas;
    AtlasHoverCard* m_card;
    AtlasFindBar* m_findBar;
    QLabel* m_message;
    QList<QAction*> m_layerActions;
    QList<QAction*> m_placeActions;
    QList<QAction*> m_zoomActions;
    QAction* m_find = nullptr;
    QAction* m_freePlace = nullptr;
    QAction* m_wholeWordForms = nullptr;
};
