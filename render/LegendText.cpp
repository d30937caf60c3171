#include "render/LegendText.h"

#include "mapdata/MapFont.h"
#include "platform/Drawing.h"

#include <QFontMetricsF>

QString cutToWidth(const QString& text, double width)
{
    if (text.contains(QLatin1Char('\\'))) {
        return text;
    }
    const MapFont font;
    const QFontMetricsF metrics(twipFont({font.MapFontName, font.MapFontSize}));
    return metrics.elidedText(text, Qt::ElideRight, width);
}

QString withoutHyphens(QString text)
{
    const QChar hyphen(0x2010);
    return text.replace(QLatin1Char('-'), hyphen);
}
