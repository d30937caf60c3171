#include "render/MapSize.h"

#include "platform/Drawing.h"
#include "platform/Numbers.h"

FormArea firstArea()
{
    return {0, 0, 12000, 9000};
}

FormArea withHeight(const FormArea& area, double millimetres)
{
    const double height = millimetres * TwipsPerMm;
    const double ratio = divide(height, area.Height);
    return {area.Left, area.Top, toSingle(area.Width * ratio), toSingle(height)};
}
