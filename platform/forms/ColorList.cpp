#include "platform/forms/ColorList.h"

#include "platform/StandardColors.h"

#include <QComboBox>
#include <QIcon>
#include <QPainter>
#include <QPixmap>

namespace {

QIcon swatch(QRgb color, const QComboBox& box)
{
    const QSize size = box.iconSize();
    const double ratio = box.devicePixelRatioF();
    QPixmap picture((QSizeF(size) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(Qt::darkGray);
    painter.setBrush(QColor(color));
    painter.drawRect(QRectF(QPointF(0.5, 0.5), QSizeF(size) - QSizeF(1, 1)));
    QIcon icon(picture);
    icon.addPixmap(picture, QIcon::Selected); // a colour is shown as it is, also where it is chosen
    return icon;
}

} // namespace

void fillColorList(QComboBox& box)
{
    constexpr QSize SwatchSize(24, 14);
    box.clear();
    box.setIconSize(SwatchSize);
    int number = 0;
    for (const QString& name : standardColorNames()) {
        box.addItem(swatch(QBColor(number++), box), name);
    }
    box.setMaxVisibleItems(box.count());
    box.setCurrentIndex(0);
}
