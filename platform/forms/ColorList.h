#pragma once

class QComboBox;

/// Fills `box` with the names of the sixteen standard colours, each beside a swatch of it, so that the list
/// position is the colour's number. The first colour is chosen.
void fillColorList(QComboBox& box);
