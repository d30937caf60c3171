#include "atlas/forms/SymbolPopup.h"

#include "atlas/forms/SymbolDelegate.h"
#include "platform/StandardColors.h"
#include "render/SymbolShapes.h"
#include "symbols/SymbolEditor.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int DesignSide = 40; // pixels
constexpr int DesignsInRow = 8;
constexpr int DesignRows = 5;

QToolButton* choiceButton(const QString& name, const QString& accessibleName)
{
    auto* button = new QToolButton; // the layout's widget owns it
    button->setCheckable(true);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAccessibleName(accessibleName);
    button->setText(name);
    return button;
}

QPixmap framed(QRgb color, const QColor& frame, int width)
{
    constexpr int Side = 16;
    QPixmap picture(Side, Side);
    picture.fill(frame);
    QPainter(&picture).fillRect(width, width, Side - 2 * width, Side - 2 * width, QColor(color));
    return picture;
}

/// A colour, with a wide frame where it is chosen.
QIcon swatch(QRgb color, const QPalette& palette)
{
    QIcon icon(framed(color, Qt::darkGray, 1));
    icon.addPixmap(framed(color, palette.color(QPalette::Highlight), 3), QIcon::Normal, QIcon::On);
    return icon;
}

/// The top left corner of a popup under `place`, or above it where there is no room, on the screen.
QPoint besidePlace(const QRect& place, const QSize& size, const QRect& screen)
{
    const int below = place.bottom() + 1;
    const int y = below + size.height() <= screen.bottom() ? below : place.top() - size.height();
    return {std::clamp(place.left(), screen.left(), std::max(screen.left(), screen.right() - size.width())),
            std::max(y, screen.top())};
}

} // namespace

SymbolPopup::SymbolPopup(const PolygonTable& polygons, QWidget* parent)
    : QFrame(parent, Qt::Popup), m_polygons(polygons), m_layout(new QVBoxLayout(this)),
      m_designs(new QListWidget(this)), m_filled(new QCheckBox(QStringLiteral("F&illed"), this)),
      m_oneColor(new QCheckBox(QStringLiteral("&One colour for line and fill"), this))
{
    setObjectName(QStringLiteral("popSymbol"));
    setAccessibleName(QStringLiteral("Symbol"));
    setFrameShape(StyledPanel);
    m_filled->setObjectName(QStringLiteral("chkFilled"));
    addDesigns();
    QButtonGroup& lineColors = addColors(QStringLiteral("Line"), &HankoStyle::LineColor);
    connect(&lineColors, &QButtonGroup::idClicked, this, &SymbolPopup::chooseLineColor);
    QButtonGroup& fillColors = addColors(QStringLiteral("Fill"), &HankoStyle::PaintColor);
    connect(&fillColors, &QButtonGroup::idClicked, this, &SymbolPopup::fillWithColor);
    addFill();
    addChoices(QStringLiteral("Size"), &HankoStyle::SymbolSize,
               {QStringLiteral("Small"), QStringLiteral("Normal"), QStringLiteral("Large")});
    addChoices(QStringLiteral("Line width"), &HankoStyle::LineThick,
               {QStringLiteral("Thin"), QStringLiteral("Normal"), QStringLiteral("Thick")});
}

void SymbolPopup::addDesigns()
{
    m_designs->setObjectName(QStringLiteral("lstDesigns"));
    m_designs->setAccessibleName(QStringLiteral("Designs by number"));
    m_designs->setViewMode(QListView::IconMode);
    m_designs->setMovement(QListView::Static);
    m_designs->setResizeMode(QListView::Adjust);
    m_designs->setUniformItemSizes(true);
    m_designs->setGridSize({DesignSide, DesignSide});
    m_designs->setItemDelegate(new SymbolDelegate(m_polygons, Qt::UserRole, m_designs));
    m_designs->setFixedSize(DesignsInRow * DesignSide + m_designs->verticalScrollBar()->sizeHint().width() +
                                2 * m_designs->frameWidth() + 2,
                            DesignRows * DesignSide + 2 * m_designs->frameWidth());
    m_layout->addWidget(m_designs);
    connect(m_designs, &QListWidget::currentRowChanged, this,
            [this](int row) { choose(&HankoStyle::HankoNo, row + 1); });
}

QButtonGroup& SymbolPopup::addColors(const QString& title, StyleField field)
{
    constexpr int InRow = 8;

    auto* group = new QButtonGroup(this);
    auto* grid = new QGridLayout;
    grid->setSpacing(0);
    auto* label = new QLabel(title);
    label->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("Line width  ")));
    grid->addWidget(label, 0, 0);
    int color = 0;
    for (const QString& name : standardColorNames()) {
        QToolButton* button = choiceButton({}, title + QLatin1Char(' ') + name);
        button->setIcon(swatch(QBColor(color), palette()));
        button->setToolTip(name);
        group->addButton(button, color);
        grid->addWidget(button, color / InRow, 1 + color % InRow);
        ++color;
    }
    grid->setColumnStretch(InRow + 1, 1);
    m_layout->addLayout(grid);
    m_groups.emplace_back(field, group);
    connect(group, &QButtonGroup::idClicked, this, [this, field](int value) { choose(field, value); });
    return *group;
}

void SymbolPopup::addFill()
{
    auto* row = new QHBoxLayout;
    row->addWidget(m_filled);
    row->addWidget(m_oneColor, 1);
    m_layout->addLayout(row);
    connect(m_filled, &QCheckBox::clicked, this,
            [this](bool on) { choose(&HankoStyle::PaintOn, on ? 1 : 0); });
    connect(m_oneColor, &QCheckBox::clicked, this, [this](bool on) {
        if (on) {
            choose(&HankoStyle::PaintColor, m_style.LineColor);
        }
    });
}

void SymbolPopup::addChoices(const QString& title, StyleField field, const QStringList& names)
{
    auto* group = new QButtonGroup(this);
    auto* row = new QHBoxLayout;
    auto* label = new QLabel(title);
    label->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("Line width  ")));
    row->addWidget(label);
    for (int value = 0; value < names.size(); ++value) {
        QToolButton* button = choiceButton(names[value], title + QLatin1Char(' ') + names[value]);
        group->addButton(button, value);
        row->addWidget(button);
    }
    row->addStretch();
    m_layout->addLayout(row);
    m_groups.emplace_back(field, group);
    connect(group, &QButtonGroup::idClicked, this, [this, field](int value) { choose(field, value); });
}

void SymbolPopup::openWith(const HankoStyle& style, const QRect& place)
{
    m_style = listedStyle(style);
    m_isRejected = false;
    m_oneColor->setChecked(m_style.LineColor == m_style.PaintColor);
    listDesigns();
    showStyle();
    adjustSize();
    move(besidePlace(place, sizeHint(), parentWidget()->screen()->availableGeometry()));
    show();
    m_designs->setFocus();
    m_designs->scrollToItem(m_designs->currentItem(), QAbstractItemView::PositionAtCenter);
}

void SymbolPopup::listDesigns()
{
    const QSignalBlocker quiet(m_designs);
    m_designs->clear();
    for (int number = 1; number <= symbolCount(m_polygons); ++number) {
        auto* design = new QListWidgetItem(m_designs); // the list owns it
        design->setSizeHint({DesignSide, DesignSide});
        design->setToolTip(QString::number(number));
        design->setData(Qt::AccessibleTextRole, QStringLiteral("Design %1").arg(number));
    }
    restyleDesigns();
    m_designs->setCurrentRow(m_style.HankoNo - 1);
}

/// Draws all designs in the style as it is now.
void SymbolPopup::restyleDesigns()
{
    const QSignalBlocker quiet(m_designs);
    HankoStyle style = m_style;
    for (int row = 0; row < m_designs->count(); ++row) {
        style.HankoNo = static_cast<qint16>(row + 1);
        m_designs->item(row)->setData(Qt::UserRole, QVariant::fromValue(style));
    }
    m_designs->viewport()->update();
}

void SymbolPopup::showStyle()
{
    for (const auto& [field, group] : m_groups) {
        group->button(m_style.*field)->setChecked(true);
    }
    m_filled->setChecked(m_style.PaintOn != 0);
}

void SymbolPopup::choose(StyleField field, int value)
{
    m_style.*field = static_cast<qint16>(value);
    if (field != &HankoStyle::HankoNo) {
        restyleDesigns();
        showStyle();
    }
    Q_EMIT chosen(field, m_style.*field);
}

void SymbolPopup::chooseLineColor(int color)
{
    if (m_oneColor->isChecked()) {
        choose(&HankoStyle::PaintColor, color);
    }
}

/// A colour of its own for the fill, which is seen at once.
void SymbolPopup::fillWithColor()
{
    m_oneColor->setChecked(false);
    choose(&HankoStyle::PaintOn, 1);
}

void SymbolPopup::keyPressEvent(QKeyEvent* event)
{
    m_isRejected = event->key() == Qt::Key_Escape;
    if (m_isRejected || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        hide();
    } else {
        QFrame::keyPressEvent(event);
    }
}

void SymbolPopup::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    if (m_isRejected) {
        Q_EMIT rejected();
    } else {
        Q_EMIT accepted();
    }
}
