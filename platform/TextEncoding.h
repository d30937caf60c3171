#pragma once

#include <QByteArray>
#include <QString>

/// The text that the bytes of a file stand for. They are UTF-8, or UTF-16 with a byte order mark; what is
/// neither is Shift-JIS or Windows-1252, whichever it speaks for. Raises type mismatch for bytes that are no
/// text.
QString decodeText(const QByteArray& bytes);
