#pragma once

#include "symbols/SymbolSet.h"

#include <QDialog>

class QListWidget;
struct MapGeometry;
struct PolygonTable;

/// Shows all symbols with their numbers in a scrolling grid and lets the user choose one, by mouse or by the
/// arrow keys and Enter. Typed digits go to the symbol of that number.
class SymbolPicker : public QDialog
{
    Q_OBJECT

public:
    SymbolPicker(const PolygonTable& polygons, MapGeometry& geometry, QWidget* parent);

    /// Opens the dialog with every symbol drawn in this style; symbol `style.HankoNo` is chosen at first.
    void openWith(const HankoStyle& style);

Q_SIGNALS:
    /// The user chose a symbol.
    void symbolChosen(int number);

private:
    void drawSymbols(const HankoStyle& style);
    void choose();

    const PolygonTable& m_polygons;
    MapGeometry& m_geometry;
    QListWidget* m_symbols;
};
