#pragma once

#include <QString>
#include <QStringList>

#include <functional>

/// What the user said of the survey that is made. All paths are paths of this machine.
struct SurveyChoices
{
    /// Layers of coasts, borders, rivers and lakes; empty for those of the source, else the installation's
    /// own.
    QStringList baseMap;
    /// "laea" (Lambert azimuthal equal-area at the survey's centre, the default), "tmerc", or "EPSG:N".
    QString projection = QStringLiteral("laea");
    /// Names of the items to take; empty for all.
    QStringList items;
};

/// Is told how far a long work is, and what it does; returns false to stop it.
using ExchangeProgress = std::function<bool(int done, int total, const QString& what)>;
