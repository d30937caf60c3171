#pragma once

#include "platform/DriveC.h"

#include <QHash>
#include <QImage>

/// The pictures read so far, so that each file is read once. A picture in shades of gray is ink on white
/// paper: its white is made transparent.
class PictureStore
{
public:
    /// The picture of the bitmap file at `path`. Raises file not found, path not found, permission denied,
    /// out of memory, and type mismatch for a file that is no picture.
    const QImage& picture(const DriveC& drive, const QString& path) const;

private:
    mutable QHash<QString, QImage> m_pictures;
};
