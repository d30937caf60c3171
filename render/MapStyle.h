#pragma once

#include <QtGlobal>

/// What the user chose on the map form for the maps drawn next.
struct MapStyle
{
    /// Whether localities are marked with dots.
    bool PlotDots = false;
    /// Whether file name, date and time are written in the corner.
    bool WriteFileName = false;
    /// Where the second and later word forms of a locality stand.
    qint16 HankoPosition = 0;
    /// Whether a record of a symbol set marks only the word forms that equal its kind, and one with an empty
    /// kind those that no other record marks.
    bool WholeWordForms = false;
    /// Whether phonetic glyphs are bold.
    bool PhoneticBold = false;
};

/// Values of `MapStyle::HankoPosition`.
enum HankoPlace : qint16 { HankoCenter = 0, HankoRight = 1, HankoLeft = 2, HankoUp = 3, HankoDown = 4 };
