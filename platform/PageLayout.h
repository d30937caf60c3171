#pragma once

#include <QString>

/// How the paper lies, in the printer's own numbers.
enum class PageOrientation { Portrait = 1, Landscape = 2 };

/// Paper and margins of printed pages, in whole millimetres.
struct PageLayout
{
    QString PaperSizeName = QStringLiteral("A4");
    PageOrientation PaperOrientation = PageOrientation::Landscape;
    qint16 PaperHeight = 210;
    qint16 PaperWidth = 297;
    qint16 TopMargin = 15;
    qint16 BottomMargin = 15;
    qint16 LeftMargin = 20;
    qint16 RightMargin = 15;
};
