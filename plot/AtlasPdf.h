#pragma once

#include "platform/Drawing.h"

#include <QSizeF>
#include <QString>

#include <functional>
#include <vector>

/// What a page of an atlas shows under the base map and over it, and what its bookmark is called.
struct AtlasSheet
{
    QString caption;
    Drawing under;
    Drawing over;
};

/// An atlas: the base map that all its pages share, and the pages.
struct AtlasSheets
{
    QString title;
    /// Of a page, in twips.
    QSizeF size;
    Drawing base;
    std::vector<AtlasSheet> sheets;
};

/// The atlas as the bytes of a PDF, with the base map, fonts and pictures once for all pages, bookmarks and
/// page labels. The pages are painted by `jobs` threads; the bytes do not depend on their number. `progress`
/// is told the number of pages painted and the caption of the next one; what it raises ends the painting.
QByteArray atlasPdf(AtlasSheets atlas, int jobs, const std::function<void(int, const QString&)>& progress);
