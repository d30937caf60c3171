#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>
#include <vector>

/// What a PDF is called, and the captions of its pages.
struct PdfOutline
{
    QString title;
    QStringList captions;
};

/// Joins parts of a document into one PDF. The first page of each part is left out: it shows what all parts
/// have in common, so that their fonts and pictures bear the same names. The second page of the first part
/// lies under each page of the document. Nothing where the fonts of the parts are not the same. Raises
/// `std::runtime_error` for a part that is no PDF.
std::optional<QByteArray> joinedPdf(const std::vector<QByteArray>& parts, const PdfOutline& outline);
