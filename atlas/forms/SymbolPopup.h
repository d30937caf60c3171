#pragma once

#include "atlas/RecordEdits.h"

#include <QFrame>

class QBoxLayout;
class QButtonGroup;
class QCheckBox;
class QListWidget;
struct PolygonTable;

/// A popup that changes a symbol: its design, from a grid drawn in the symbol's own style, its colours, size
/// and thickness. What is chosen is told at once. It closes by Enter, by a click elsewhere, and by Escape,
/// which gives up what was chosen.
class SymbolPopup : public QFrame
{
    Q_OBJECT

public:
    SymbolPopup(const PolygonTable& polygons, QWidget* parent);

    /// Opens beside `place`, on the screen, with a symbol of this style chosen.
    void openWith(const HankoStyle& style, const QRect& place);

Q_SIGNALS:
    void chosen(StyleField field, qint16 value);
    void accepted();
    void rejected();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void addDesigns();
    void addChoices(const QString& title, StyleField field, const QStringList& names);
    QButtonGroup& addColors(const QString& title, StyleField field);
    void addFill();
    void listDesigns();
    void choose(StyleField field, int value);
    void chooseLineColor(int color);
    void fillWithColor();
    void showStyle();
    void restyleDesigns();

    const PolygonTable& m_polygons;
    QBoxLayout* m_layout;
    QListWidget* m_designs;
    /// The buttons of each number that has some.
    std::vector<std::pair<StyleField, QButtonGroup*>> m_groups;
    QCheckBox* m_filled;
    QCheckBox* m_oneColor;
    HankoStyle m_style;
    bool m_isRejected = false;
};
