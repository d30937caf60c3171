#pragma once

#include "render/MapGeometry.h"
#include "symbols/SymbolSet.h"

#include <QStyledItemDelegate>

struct PolygonTable;

/// Shows the symbol of a row, whose `HankoStyle` is its data of a role, on paper. A symbol that is too large
/// for its cell is drawn smaller; one that cannot be drawn is a question mark.
class SymbolDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    SymbolDelegate(const PolygonTable& polygons, int styleRole, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    void paintSymbol(QPainter& painter, const HankoStyle& hanko, const QRectF& paper) const;

    const PolygonTable& m_polygons;
    int m_styleRole;
    /// Where polygons are put together; that of the map is left alone.
    mutable MapGeometry m_geometry;
};
