#pragma once

#include <QByteArray>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <vector>

/// What a PDF is called, and the captions of its pages.
struct PdfOutline
{
    QString title;
    QStringList captions;
};

/// Which pages of the parts are a page of the document: one that lies over the base, or one that lies under
/// it and the next one over it.
enum class PdfLayers : std::uint8_t { Over = 1, UnderAndOver = 2 };

/// Joins parts of a document into one PDF. The first page of each part is left out: it shows what all parts
/// have in common, so that their fonts and pictures bear the same names. The second page of the first part is
/// the base, which all pages of the document show; the pages after it, of all parts, are their other layers.
/// Shapes that pages repeat are written once; `jobs` threads place them. Nothing where the fonts of the parts
/// are not the same. Raises `std::runtime_error` for a part that is no PDF.
std::optional<QByteArray> joinedPdf(const std::vector<QByteArray>& parts, PdfLayers layers,
                                    const PdfOutline& outline, int jobs);
