#pragma once

#include "lingdata/LinguisticData.h"

#include <QStringList>

/// An item that was entered and is not saved: as its files would hold it.
struct UnsavedItem
{
    /// Name of the item's file, without its folder; empty for a new item.
    QString fileName;
    ItemAnswers answers;
    QStringList kinds;
};
