// The atlas window's map: from one item to the next, a step of zoom or pan, and an answer to the pointer.

#include "atlas/AtlasDocument.h"
#include "atlas/AtlasDrawing.h"
#include "atlas/LocalityAnswer.h"
#include "bench/FullSurvey.h"
#include "lingdata/LinguisticFile.h"
#include "mapdata/MapFiles.h"
#include "shell/MapParts.h"
#include "symbols/SymbolFile.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <memory>

namespace {

constexpr double PixelsPerTwip = 2 / TwipsPerPixel; // 12000 x 9000 twips on 1600 x 1200 pixels

struct Size
{
    int localities;
    int mostWords;
    int records;
};
constexpr Size Usual = {424, 2, 20};
constexpr Size Full = {1000, 5, 100};

/// An atlas of items in files: each word form is of one kind, and each kind has a record.
class AtlasFiles
{
public:
    AtlasFiles(const Size& size, int items) : varn(std::make_unique<VarnModule>())
    {
        fillSurvey(*varn);
        varn->Drive = DriveC(m_folder.path());
        varn->VarnMapName = QStringLiteral("\\Bench");
        fixLingFolder(*varn);
        varn->NLocality = static_cast<qint16>(size.localities);
        QDir().mkpath(varn->Drive.hostPath(varn->dataFolder()));
        for (int n = 0; n < items; ++n) {
            writeItem(size, n);
        }
        varn->NLocate = 0;
        static_cast<SymbolSet&>(*varn) = {}; // unsaved ones would become those of the first page
        document = std::make_unique<AtlasDocument>(*varn);
        document->restart();
    }

    QString path(int n) const { return varn->dataFolder() + QStringLiteral("\\item%1.dbs").arg(n); }

    /// The map of the page that was turned to.
    AtlasDrawing draw(double zoom) const
    {
        MapGeometry geometry;
        const AtlasPage& page = document->page();
        const LinguisticMapParts parts{
            {*varn, *varn, page.symbols.SymbolFileName, geometry}, textParts(*varn), page.item, page.symbols};
        return drawAtlasMap(parts, {{}, zoom});
    }

    std::unique_ptr<VarnModule> varn;
    std::unique_ptr<AtlasDocument> document;

private:
    static QString kind(int n, int k) { return QStringLiteral("form%1x%2x").arg(n).arg(k); }

    void writeItem(const Size& size, int n) const
    {
        writeSequentialFile(varn->Drive, path(n), [&](SequentialWriter& file) {
            file.write(size.localities, QString(), QStringLiteral("Item %1").arg(n), QString());
            for (int i = 0; i < size.localities; ++i) {
                const int words = 1 + (size.mostWords == 2 ? i % 2 : size.mostWords - 1);
                file.write(words);
                for (int j = 0; j < words; ++j) {
                    file.write(kind(n, (i * 7 + j * 3) % size.records));
                }
            }
        });
        SymbolSet set;
        set.NHanrei = size.records;
        for (int k = 1; k <= size.records; ++k) {
            set.HankoWord(k) = kind(n, k - 1);
            set.HankoCaption(k) = set.HankoWord(k);
            set.Hanko(k) = varn->Hanko(k);
        }
        SaveHankoData(varn->Drive, path(n).chopped(4) + QStringLiteral(".han"), set);
    }

    QTemporaryDir m_folder;
};

QImage blankPage()
{
    QImage page(1600, 1200, QImage::Format_RGB32);
    page.fill(Qt::white);
    return page;
}

void paint(const AtlasDrawing& map, QImage& page, double scale, QPointF offset = {})
{
    page.fill(Qt::white);
    QPainter painter(&page);
    painter.translate(-offset * scale);
    paintAtlasMap(map, painter, {scale, QRectF(offset, QSizeF(page.size()) / scale), {}, true});
}

/// From an item's files to its painted map.
void turnPages(benchmark::State& state, const Size& size)
{
    constexpr int Items = 10;
    const AtlasFiles files(size, Items);
    QImage page = blankPage();
    int n = 0;
    for ([[maybe_unused]] auto step : state) {
        files.document->turnTo(files.path(n++ % Items));
        paint(files.draw(1), page, PixelsPerTwip);
    }
    state.counters["symbols"] = static_cast<double>(files.draw(1).symbols.size());
}

/// Memory of this process that is in use, in kilobytes; 0 where the system does not tell.
double usedMemory()
{
    constexpr double KilobytesAPage = 4;
    QFile file(QStringLiteral("/proc/self/statm"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toDouble() * KilobytesAPage
                                          : 0;
}

/// What 500 pages more than the first 50 leave behind.
void memoryOfTurning(benchmark::State& state)
{
    constexpr int Items = 10;
    const AtlasFiles files(Full, Items);
    QImage page = blankPage();
    const auto turn = [&](int times) {
        for (int n = 0; n < times; ++n) {
            files.document->turnTo(files.path(n % Items));
            paint(files.draw(1), page, PixelsPerTwip);
        }
    };
    for ([[maybe_unused]] auto step : state) {
        turn(50);
        const double before = usedMemory();
        turn(500);
        state.counters["kilobytes"] = usedMemory() - before;
    }
}

/// A step of the wheel: the map is drawn and painted anew.
void zoomStep(benchmark::State& state)
{
    const AtlasFiles files(Full, 1);
    files.document->turnTo(files.path(0));
    QImage page = blankPage();
    double zoom = 1;
    for ([[maybe_unused]] auto step : state) {
        zoom = zoom > 4 ? 1 : zoom * 1.25;
        paint(files.draw(zoom), page, PixelsPerTwip);
    }
}

/// A step of a drag of the whole map: it is painted anew.
void panStep(benchmark::State& state)
{
    const AtlasFiles files(Full, 1);
    files.document->turnTo(files.path(0));
    const AtlasDrawing map = files.draw(1);
    QImage page = blankPage();
    double x = 0;
    for ([[maybe_unused]] auto step : state) {
        x = x > 1000 ? 0 : x + 30;
        paint(map, page, PixelsPerTwip, {x, x});
    }
}

/// What is at the pointer.
void hoverAnswer(benchmark::State& state)
{
    const AtlasFiles files(Full, 1);
    files.document->turnTo(files.path(0));
    const AtlasDrawing map = files.draw(1);
    const AtlasPage& shown = files.document->page();
    double x = 0;
    for ([[maybe_unused]] auto step : state) {
        x = x > 9000 ? 0 : x + 131;
        const int locality = map.spots.nearest({x, x * 0.7}, 400);
        const SymbolMarks marks(shown.symbols, false);
        benchmark::DoNotOptimize(
            answerOf(*files.varn, shown.item, shown.symbols, marks, std::max(1, locality)));
    }
}

BENCHMARK_CAPTURE(turnPages, Usual, Usual)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(turnPages, Full, Full)->Unit(benchmark::kMillisecond);
BENCHMARK(memoryOfTurning)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(zoomStep)->Unit(benchmark::kMillisecond);
BENCHMARK(panStep)->Unit(benchmark::kMillisecond);
BENCHMARK(hoverAnswer)->Unit(benchmark::kMicrosecond);

} // namespace
