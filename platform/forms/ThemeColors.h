#pragma once

#include <QColor>

class QLabel;
class QLineEdit;
class QPalette;

/// Colours of the forms beside those of a palette. They can be read in a light theme and in a dark one.

/// For what stands beside a text: codes and notes.
QColor quietText(const QPalette& palette);
/// For what is wrong.
QColor warningText(const QPalette& palette);
/// Behind a chosen cell, whose text keeps its colour.
QColor chosenCell(const QPalette& palette);

/// Writes the texts of `label` as warnings.
void showAsWarning(QLabel& label);
/// Shows that the text of `box` is for reading only.
void showAsReadOnly(QLineEdit& box);
