#include "platform/forms/ThemeColors.h"

#include <QLabel>
#include <QLineEdit>
#include <QPalette>

namespace {

/// The colour that lies at `share`, 0 to 1, of the way between two others.
QColor between(const QColor& from, const QColor& to, float share)
{
    const auto mixed = [share](float a, float b) { return a + share * (b - a); };
    return QColor::fromRgbF(mixed(from.redF(), to.redF()), mixed(from.greenF(), to.greenF()),
                            mixed(from.blueF(), to.blueF()));
}

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

} // namespace

QColor quietText(const QPalette& palette)
{
    return between(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.3F);
}

QColor warningText(const QPalette& palette)
{
    return isDark(palette) ? QColor(0xff, 0x90, 0x90) : QColor(0xb0, 0x00, 0x00);
}

QColor chosenCell(const QPalette& palette)
{
    return between(palette.color(QPalette::Base), palette.color(QPalette::Highlight), 0.25F);
}

void showAsWarning(QLabel& label)
{
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, warningText(palette));
    label.setPalette(palette);
}

void showAsReadOnly(QLineEdit& box)
{
    QPalette palette = box.palette();
    palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    box.setPalette(palette);
}
