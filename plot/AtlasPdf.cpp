#include "plot/AtlasPdf.h"

#include "platform/DrawingPainter.h"
#include "platform/RunTimeError.h"
#include "plot/DrawingFile.h"
#include "plot/PdfJoin.h"

#include <QBuffer>
#include <QHash>
#include <QPdfWriter>
#include <QScopeGuard>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <future>
#include <map>
#include <set>
#include <span>
#include <stdexcept>
#include <tuple>

namespace {

/// Makes equal pictures of all drawings one, so that they are written once.
class SharedPictures
{
public:
    void share(Drawing& drawing)
    {
        for (QImage& picture : drawing.pictures) {
            const QByteArrayView bits(picture.constBits(), picture.sizeInBytes());
            QList<QImage>& alike = m_pictures[qHash(bits)];
            const auto same = std::ranges::find(alike, picture);
            if (same != alike.end()) {
                picture = *same;
            } else {
                alike << picture;
                m_inOrder << picture;
            }
        }
    }

    const QList<QImage>& inOrder() const { return m_inOrder; }

private:
    QHash<size_t, QList<QImage>> m_pictures;
    QList<QImage> m_inOrder;
};

/// What parts begin with, for all of them to number fonts, letters and pictures alike.
class Seed
{
public:
    void add(const Drawing& drawing, bool wholeTexts)
    {
        for (const DrawingOperation& operation : drawing.operations) {
            if (const auto* text = std::get_if<TextOperation>(&operation)) {
                addText(drawing.fonts[static_cast<std::size_t>(text->font)], drawing.texts[text->text],
                        wholeTexts);
            }
        }
    }

    Drawing drawing(const QList<QImage>& pictures) const
    {
        Drawing seed;
        for (const auto& [key, texts] : m_texts) {
            const auto& [name, size, bold, italic] = key;
            seed.fonts.push_back({name, size, bold, italic});
            for (const QString& text : texts) {
                seed.texts.push_back(text);
                seed.operations.emplace_back(TextOperation{static_cast<int>(seed.fonts.size()) - 1,
                                                           qRgb(0, 0, 0), 0, 0, seed.texts.size() - 1});
            }
        }
        for (const QImage& picture : pictures) {
            seed.pictures.push_back(picture);
            seed.operations.emplace_back(PictureOperation{seed.pictures.size() - 1, 0, 0, 100, 100});
        }
        return seed;
    }

private:
    /// The letters of a text, each by itself; where letters are joined into one, the text as a whole.
    void addText(const TextFont& font, const QString& text, bool whole)
    {
        std::set<QString>& texts = m_texts[{font.name, font.size, font.bold, font.italic}];
        if (whole) {
            texts.insert(text);
            return;
        }
        for (const char32_t letter : text.toUcs4()) {
            texts.insert(QString::fromUcs4(&letter, 1));
        }
    }

    std::map<std::tuple<QString, int, bool, bool>, std::set<QString>> m_texts;
};

using Drawings = std::vector<Drawing*>;

/// Of all threads, how many pages are painted, and whether they are to end.
struct Painting
{
    std::atomic<int> painted = 0;
    std::atomic<bool> stopped = false;
};

/// A PDF of the seed and, a page each, the drawings.
QByteArray paintedPart(const Drawing& seed, std::span<Drawing* const> drawings, QSizeF size,
                       Painting& painting)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&buffer);
    setUpPages(pdf, size);
    QPainter painter(&pdf);
    paintDrawing(seed, painter, 1);
    for (const Drawing* drawing : drawings) {
        if (painting.stopped) {
            break;
        }
        pdf.newPage();
        paintDrawing(*drawing, painter, 1);
        ++painting.painted;
    }
    painter.end();
    return buffer.data();
}

/// Paints the pages in parts of a fixed size, so that they are the same for any number of jobs, which take
/// part after part.
std::vector<QByteArray> paintedParts(const Drawing& seed, const Drawings& pages, QSizeF size, int jobs,
                                     const std::function<void(int)>& progress)
{
    constexpr std::size_t PagesOfPart = 8;
    constexpr auto Pause = std::chrono::milliseconds(20);

    std::vector<QByteArray> parts((pages.size() + PagesOfPart - 1) / PagesOfPart);
    Painting painting;
    std::atomic<std::size_t> next = 0;
    const auto paintParts = [&] {
        for (std::size_t part = next++; part < parts.size(); part = next++) {
            const auto first = pages.begin() + static_cast<std::ptrdiff_t>(part * PagesOfPart);
            const auto end = first + std::min<std::ptrdiff_t>(PagesOfPart, pages.end() - first);
            parts[part] = paintedPart(seed, {first, end}, size, painting);
        }
    };
    std::vector<std::future<void>> threads;
    const auto stop = qScopeGuard([&] { painting.stopped = true; }); // before the threads are waited for
    for (int job = 0; job < std::max(1, jobs); ++job) {
        threads.push_back(std::async(std::launch::async, paintParts));
    }
    for (auto& thread : threads) {
        do {
            progress(painting.painted);
        } while (thread.wait_for(Pause) != std::future_status::ready);
        thread.get();
    }
    progress(painting.painted);
    return parts;
}

PdfLayers layersOf(const std::vector<AtlasSheet>& sheets)
{
    const bool haveUnder =
        std::ranges::any_of(sheets, [](const AtlasSheet& sheet) { return !sheet.under.operations.empty(); });
    return haveUnder ? PdfLayers::UnderAndOver : PdfLayers::Over;
}

/// The base map, and the layers of all sheets.
Drawings pagesOf(AtlasSheets& atlas, PdfLayers layers)
{
    Drawings pages = {&atlas.base};
    for (AtlasSheet& sheet : atlas.sheets) {
        if (layers == PdfLayers::UnderAndOver) {
            pages.push_back(&sheet.under);
        }
        pages.push_back(&sheet.over);
    }
    return pages;
}

Drawing seedOf(const Drawings& pages, const SharedPictures& pictures, bool wholeTexts)
{
    Seed seed;
    for (const Drawing* page : pages) {
        seed.add(*page, wholeTexts);
    }
    return seed.drawing(pictures.inOrder());
}

/// The parts in one; nothing where their fonts are not the same.
std::optional<QByteArray> joined(const std::vector<QByteArray>& parts, PdfLayers layers,
                                 const PdfOutline& outline, int jobs)
{
    try {
        return joinedPdf(parts, layers, outline, jobs);
    } catch (const std::runtime_error& error) {
        throw RunTimeError(ErrorNumber::DeviceIOError, QString::fromUtf8(error.what()));
    }
}

} // namespace

QByteArray atlasPdf(AtlasSheets atlas, int jobs, const std::function<void(int, const QString&)>& progress)
{
    const PdfLayers layers = layersOf(atlas.sheets);
    SharedPictures pictures;
    const Drawings pages = pagesOf(atlas, layers);
    for (Drawing* page : pages) {
        pictures.share(*page);
    }
    PdfOutline outline{atlas.title, {}};
    for (const AtlasSheet& sheet : atlas.sheets) {
        outline.captions << sheet.caption;
    }
    const auto tell = [&](int painted) {
        const qsizetype page =
            std::clamp<qsizetype>(painted / static_cast<int>(layers), 1, outline.captions.size());
        progress(static_cast<int>(page), outline.captions[page - 1]);
    };
    for (const bool wholeTexts : {false, true}) {
        const Drawing seed = seedOf(pages, pictures, wholeTexts);
        if (const auto pdf =
                joined(paintedParts(seed, pages, atlas.size, jobs, tell), layers, outline, jobs)) {
            return *pdf;
        }
    }
    throw RunTimeError(ErrorNumber::DeviceIOError, QStringLiteral("The pages cannot be joined."));
}
