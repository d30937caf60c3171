#pragma once

#include <QString>

/// Paper and margins of printed pages, in whole millimetres.
struct PageLayout
{
    QString PaperSizeName = QStringLiteral("A4");
    /// 1 portrait, 2 landscape.
    int PaperOrientation = 2;
    qint16 PaperHeight = 210;
    qint16 PaperWidth = 297;
    qint16 TopMargin = 15;
    qint16 BottomMargin = 15;
    qint16 LeftMargin = 20;
    qint16 RightMargin = 15;
};
