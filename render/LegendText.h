#pragma once

#include <QString>

/// How wide a legend can be that leaves a new map its room, in twips: six tenths of the map form.
constexpr double WidestLegendText = 6900;

/// `text` as it can stand in the legend of a new map, in the map font: its end is cut off where it is wider
/// than `width` twips, but never within the code of a phonetic letter.
QString cutToWidth(const QString& text, double width);

/// `text` with hyphens of another character: the hyphen of the keyboard would keep a caption out of the
/// legend.
QString withoutHyphens(QString text);
