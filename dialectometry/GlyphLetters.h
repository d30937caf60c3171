#pragma once

#include <QString>
#include <QStringView>

/// A coded text in Unicode letters: each glyph as the letter that is drawn for it; the rest, also illegal
/// escapes, stays.
QString inLetters(QStringView coded);
