#pragma once

#include <QByteArray>

/// A PDF with nothing compressed.
QByteArray plain(const QByteArray& bytes);

/// How many shapes and texts are painted in it.
qsizetype painted(const QByteArray& plainPdf);
