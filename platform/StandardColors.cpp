#include "platform/StandardColors.h"

#include "platform/RunTimeError.h"

#include <array>

namespace {

struct PaletteEntry
{
    const char* name;
    QRgb rgb;
};

constexpr std::array<PaletteEntry, 16> Palette = {{
    {"Black", qRgb(0, 0, 0)},
    {"Blue", qRgb(0, 0, 128)},
    {"Green", qRgb(0, 128, 0)},
    {"Cyan", qRgb(0, 128, 128)},
    {"Red", qRgb(128, 0, 0)},
    {"Magenta", qRgb(128, 0, 128)},
    {"Yellow", qRgb(128, 128, 0)},
    {"White", qRgb(192, 192, 192)},
    {"Gray", qRgb(128, 128, 128)},
    {"L.Blue", qRgb(0, 0, 255)},
    {"L.Green", qRgb(0, 255, 0)},
    {"L.Cyan", qRgb(0, 255, 255)},
    {"L.Red", qRgb(255, 0, 0)},
    {"L.Magenta", qRgb(255, 0, 255)},
    {"L.Yellow", qRgb(255, 255, 0)},
    {"L.White", qRgb(255, 255, 255)},
}};

} // namespace

QRgb QBColor(StandardColor color)
{
    return QBColor(static_cast<int>(color));
}

QRgb QBColor(int number)
{
    if (number < 0 || number >= static_cast<int>(Palette.size())) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall,
                           QStringLiteral("%1 is not a colour number 0 to 15.").arg(number));
    }
    return Palette.at(static_cast<std::size_t>(number)).rgb;
}

QStringList standardColorNames()
{
    QStringList names;
    for (const PaletteEntry& color : Palette) {
        names << QLatin1String(color.name);
    }
    return names;
}
