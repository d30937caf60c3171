#include "render/MapSize.h"

#include "platform/Numbers.h"

void setFirstSize(DrawSurface& frmMap)
{
    frmMap.Left = 0;
    frmMap.Top = 0;
    frmMap.Width = 12000;
    frmMap.Height = 9000;
}

void setMapHeight(DrawSurface& frmMap, double millimetres)
{
    const double height = millimetres * TwipsPerMm;
    const double ratio = divide(height, frmMap.Height);
    const float width = toSingle(frmMap.Width * ratio);
    frmMap.Height = toSingle(height);
    frmMap.Width = width;
}
