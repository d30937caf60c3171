#pragma once

#include <QIcon>

/// The program's icon of that name (its file in `platform/forms/icons`, without ending), drawn sharp at every
/// size in the text colour of the theme, paler where it is disabled.
QIcon themeIcon(const QString& name);
