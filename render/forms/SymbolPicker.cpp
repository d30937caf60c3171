#include "render/forms/SymbolPicker.h"

#include "platform/DrawingPainter.h"
#include "render/SymbolSample.h"
#include "render/SymbolShapes.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int PictureSide = 44; // pixels: the largest size of every design stands clear of its neighbours

QIcon symbolIcon(const Drawing& drawing, double ratio)
{
    QPixmap picture((QSizeF(PictureSide, PictureSide) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    paintDrawing(drawing, painter, 1 / TwipsPerPixel);
    painter.end();
    QIcon icon(picture);
    icon.addPixmap(picture, QIcon::Selected);
    return icon;
}

} // namespace

SymbolPicker::SymbolPicker(const PolygonTable& polygons, MapGeometry& geometry, QWidget* parent)
    : QDialog(parent), m_polygons(polygons), m_geometry(geometry), m_symbols(new QListWidget(this))
{
    setWindowTitle(QStringLiteral("Symbols"));
    m_symbols->setObjectName(QStringLiteral("lstSymbols"));
    m_symbols->setAccessibleName(QStringLiteral("Symbols by number"));
    m_symbols->setViewMode(QListView::IconMode);
    m_symbols->setMovement(QListView::Static);
    m_symbols->setResizeMode(QListView::Adjust);
    m_symbols->setUniformItemSizes(true);
    m_symbols->setIconSize({PictureSide, PictureSide});
    m_symbols->setGridSize({PictureSide + 16, PictureSide + 28});

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_symbols);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &SymbolPicker::choose);
    connect(buttons, &QDialogButtonBox::rejected, this, &SymbolPicker::reject);
    connect(m_symbols, &QListWidget::itemActivated, this, &SymbolPicker::choose);
    connect(m_symbols, &QListWidget::currentRowChanged, this,
            [buttons](int row) { buttons->button(QDialogButtonBox::Ok)->setEnabled(row >= 0); });
    resize(700, 520);
}

void SymbolPicker::openWith(const HankoStyle& style)
{
    drawSymbols(style);
    m_symbols->setCurrentRow(style.HankoNo >= 1 && style.HankoNo <= m_symbols->count() ? style.HankoNo - 1
                                                                                       : 0);
    open();
    m_symbols->setFocus();
    m_symbols->scrollToItem(m_symbols->currentItem(), QAbstractItemView::PositionAtCenter);
}

void SymbolPicker::drawSymbols(const HankoStyle& style)
{
    m_symbols->clear();
    HankoStyle hanko = style;
    for (int number = 1; number <= symbolCount(m_polygons); ++number) {
        hanko.HankoNo = static_cast<qint16>(number);
        DrawSurface surface;
        surface.Width = surface.Height = static_cast<float>(PictureSide * TwipsPerPixel);
        drawSymbol(hanko, m_polygons, m_geometry, surface);
        m_symbols->addItem(
            new QListWidgetItem(symbolIcon(surface.drawing(), devicePixelRatioF()), QString::number(number)));
    }
}

void SymbolPicker::choose()
{
    if (m_symbols->currentRow() >= 0) {
        Q_EMIT symbolChosen(m_symbols->currentRow() + 1);
        accept();
    }
}
