#pragma once

#include "shell/VarnModule.h"

#include <QByteArray>

/// A survey at full capacity: 1000 localities with five word forms each and 100 symbol records, all of which
/// match every word form. The symbols are circle, sector, rectangle and polygon designs, painted and not, in
/// all sizes.
void fillSurvey(VarnModule& varn);

/// The text of a `.dbs` file of 1000 localities with five word forms each, of 200 kinds.
QByteArray fullItemText();
