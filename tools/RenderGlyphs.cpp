// Renders the phonetic glyph bitmaps and writes the code list of an installation tree.
//
//     renderglyphs INSTALLATION
//
// Every glyph is one line box: 16 or 18 screen pixels high with its baseline at three quarters of the height.
// It is drawn at four times screen resolution, which the bitmap's header states.

#include <QDir>
#include <QFile>
#include <QFont>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QString>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <stdexcept>
#include <string>

namespace {

enum class Series { Main, Second };

/// One phonetic code, the bitmap that it selects and the letter drawn there.
struct Glyph
{
    const char* code;
    Series series;
    int number;
    const char8_t* letter;
    const char* name;
};

/// In the order of the codes, marks first. The letter is drawn as it stands here.
constexpr std::array glyphs{
    Glyph{"\\!", Series::Second, 16, u8"ꜜ", "downstep"},
    Glyph{"\\'", Series::Main, 26, u8"ˈ", "primary stress"},
    Glyph{"\\:", Series::Main, 28, u8"ː", "long"},
    Glyph{"\\;", Series::Main, 29, u8"ˑ", "half-long"},
    Glyph{"\\?", Series::Second, 15, u8"ʔ", "glottal stop"},
    Glyph{"\\A1", Series::Main, 10, u8"ɑ", "open back unrounded vowel"},
    Glyph{"\\A2", Series::Main, 34, u8"æ", "near-open front unrounded vowel"},
    Glyph{"\\A3", Series::Main, 37, u8"ɐ", "near-open central vowel"},
    Glyph{"\\A4", Series::Main, 38, u8"ɒ", "open back rounded vowel"},
    Glyph{"\\A5", Series::Second, 1, u8"ᵃ", "raised a"},
    Glyph{"\\A6", Series::Second, 8, u8"ᵃ̃", "raised nasal a"},
    Glyph{"\\B", Series::Main, 19, u8"β", "voiced bilabial fricative"},
    Glyph{"\\E1", Series::Main, 9, u8"ɛ", "open-mid front unrounded vowel"},
    Glyph{"\\E2", Series::Main, 2, u8"ə", "mid central vowel"},
    Glyph{"\\E3", Series::Main, 8, u8"ɜ", "open-mid central unrounded vowel"},
    Glyph{"\\E4", Series::Main, 32, u8"ẽ", "nasal close-mid front vowel"},
    Glyph{"\\E5", Series::Second, 2, u8"ᵉ", "raised e"},
    Glyph{"\\E6", Series::Second, 9, u8"ᵉ̃", "raised nasal e"},
    Glyph{"\\F", Series::Main, 18, u8"ɸ", "voiceless bilabial fricative"},
    Glyph{"\\G1", Series::Main, 21, u8"ɣ", "voiced velar fricative"},
    Glyph{"\\G2", Series::Main, 20, u8"ɢ", "voiced uvular plosive"},
    Glyph{"\\H1", Series::Main, 17, u8"ɦ", "voiced glottal fricative"},
    Glyph{"\\H2", Series::Main, 25, u8"ħ", "voiceless pharyngeal fricative"},
    Glyph{"\\I1", Series::Main, 3, u8"ɪ", "near-close front unrounded vowel"},
    Glyph{"\\I2", Series::Main, 6, u8"ɨ", "close central unrounded vowel"},
    Glyph{"\\I3", Series::Main, 31, u8"ï", "centralized close front vowel"},
    Glyph{"\\I4", Series::Main, 11, u8"ᵻ", "near-close central unrounded vowel"},
    Glyph{"\\I5", Series::Main, 13, u8"ĩ", "nasal close front vowel"},
    Glyph{"\\I6", Series::Second, 3, u8"ⁱ", "raised i"},
    Glyph{"\\I7", Series::Second, 10, u8"ⁱ̃", "raised nasal i"},
    Glyph{"\\N1", Series::Main, 22, u8"ŋ", "velar nasal"},
    Glyph{"\\N2", Series::Main, 33, u8"ɲ", "palatal nasal"},
    Glyph{"\\N3", Series::Second, 7, u8"ⁿ", "raised n"},
    Glyph{"\\N4", Series::Second, 14, u8"ⁿ̃", "raised nasal n"},
    Glyph{"\\O1", Series::Main, 4, u8"ɔ", "open-mid back rounded vowel"},
    Glyph{"\\O2", Series::Main, 5, u8"ɵ", "close-mid central rounded vowel"},
    Glyph{"\\O3", Series::Second, 4, u8"ᵒ", "raised o"},
    Glyph{"\\O4", Series::Second, 11, u8"ᵒ̃", "raised nasal o"},
    Glyph{"\\R1", Series::Main, 23, u8"ɾ", "alveolar tap"},
    Glyph{"\\R2", Series::Main, 30, u8"ʀ", "uvular trill"},
    Glyph{"\\S1", Series::Main, 15, u8"ʃ", "voiceless postalveolar fricative"},
    Glyph{"\\S2", Series::Main, 24, u8"ɕ", "voiceless alveolo-palatal fricative"},
    Glyph{"\\T1", Series::Main, 35, u8"θ", "voiceless dental fricative"},
    Glyph{"\\T2", Series::Main, 36, u8"ʈ", "voiceless retroflex plosive"},
    Glyph{"\\U1", Series::Main, 1, u8"ɯ", "close back unrounded vowel"},
    Glyph{"\\U2", Series::Main, 7, u8"ʉ", "close central rounded vowel"},
    Glyph{"\\U3", Series::Main, 14, u8"ʊ", "near-close back rounded vowel"},
    Glyph{"\\U4", Series::Main, 12, u8"ü", "centralized close back vowel"},
    Glyph{"\\U5", Series::Second, 5, u8"ᵘ", "raised u"},
    Glyph{"\\U6", Series::Second, 12, u8"ᵘ̃", "raised nasal u"},
    Glyph{"\\U7", Series::Second, 6, u8"ᵚ", "raised turned m"},
    Glyph{"\\U8", Series::Second, 13, u8"ᵚ̃", "raised nasal turned m"},
    Glyph{"\\Z1", Series::Main, 16, u8"ʒ", "voiced postalveolar fricative"},
    Glyph{"\\Z2", Series::Main, 27, u8"ʑ", "voiced alveolo-palatal fricative"},
};

/// One of the four folders of bitmaps.
struct GlyphSet
{
    const char* folder;
    QFont::Weight weight;
    int boxPixels;   // height of the line box, screen pixels
    double emPixels; // screen pixels
};

constexpr std::array glyphSets{
    GlyphSet{"Standard16", QFont::Normal, 16, 40.0 / 3},
    GlyphSet{"Standard18", QFont::Normal, 18, 15},
    GlyphSet{"Bold16", QFont::Bold, 16, 40.0 / 3},
    GlyphSet{"Bold18", QFont::Bold, 18, 15},
};

constexpr int oversampling = 4; // bitmap pixels per screen pixel
constexpr int dotsPerMetre = static_cast<int>(96 * oversampling / 0.0254);
constexpr double sideBearing = 3;   // least distance of ink from the left and right edge, bitmap pixels
constexpr int outlinePixels = 1000; // size at which outlines are taken from the font
constexpr auto fontFamily = "Charis SIL";

/// The outline of a text on a baseline through the origin, and its advance, both in bitmap pixels.
struct Outline
{
    QPainterPath path;
    double advance;
};

Outline outlineOf(const Glyph& glyph, const GlyphSet& set)
{
    QFont font(fontFamily);
    font.setPixelSize(outlinePixels);
    font.setWeight(set.weight);
    font.setHintingPreference(QFont::PreferNoHinting);

    const QString letter = QString::fromUtf8(glyph.letter);
    QPainterPath path;
    path.addText(0, 0, font, letter);
    const double scale = set.emPixels * oversampling / outlinePixels;
    return {QTransform::fromScale(scale, scale).map(path),
            QFontMetricsF(font).horizontalAdvance(letter) * scale};
}

/// The glyph in its line box. Raises std::runtime_error if its ink reaches beyond the box's top or bottom.
QImage render(const Glyph& glyph, const GlyphSet& set)
{
    const Outline outline = outlineOf(glyph, set);
    const QRectF ink = outline.path.boundingRect();
    const int height = set.boxPixels * oversampling;
    const int baseline = height * 3 / 4;
    if (ink.isEmpty() || baseline + ink.top() < 0 || baseline + ink.bottom() > height) {
        throw std::runtime_error(std::string(glyph.code) + " does not fit its line box in " + set.folder);
    }

    const double left = std::min(0.0, ink.left() - sideBearing);
    const double right = std::max(outline.advance, ink.right() + sideBearing);
    QImage image(static_cast<int>(std::ceil(right - left)), height, QImage::Format_Grayscale8);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    image.fill(Qt::white);

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-left, baseline);
    painter.fillPath(outline.path, Qt::black);
    return image;
}

/// The image with eight-bit pixels, as a bitmap file stores them. The file takes the bytes that pad a row
/// along, so they are set, and the same glyph gives the same file.
QImage indexed(const QImage& image)
{
    QImage result = image.convertToFormat(QImage::Format_Indexed8);
    for (int row = 0; row < result.height(); ++row) {
        uchar* bytes = result.scanLine(row);
        std::fill(bytes + result.width(), bytes + result.bytesPerLine(), uchar{0});
    }
    return result;
}

QString bitmapName(const Glyph& glyph)
{
    const QString series = glyph.series == Series::Main ? "Symbol" : "SymbolS";
    return series + QString::number(glyph.number) + ".bmp";
}

/// Raises std::runtime_error.
void writeGlyphSet(const QDir& symbols, const GlyphSet& set)
{
    symbols.mkpath(set.folder);
    const QDir folder(symbols.filePath(set.folder));
    for (const Glyph& glyph : glyphs) {
        const QString path = folder.filePath(bitmapName(glyph));
        if (!indexed(render(glyph, set)).save(path, "BMP")) {
            throw std::runtime_error("cannot write " + path.toStdString());
        }
    }
}

/// Raises std::runtime_error.
void writeCodeList(const QDir& data)
{
    QString text = QString::number(glyphs.size()) + "\r\n";
    for (const Glyph& glyph : glyphs) {
        text +=
            QString("\"%1\",\"%2\",\"%3\"\r\n").arg(glyph.code, QString::fromUtf8(glyph.letter), glyph.name);
    }

    data.mkpath(".");
    const QByteArray bytes = text.toUtf8();
    QFile file(data.filePath("ExpSymbol.txt"));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
        throw std::runtime_error("cannot write " + file.fileName().toStdString());
    }
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: renderglyphs INSTALLATION\n");
        return 2;
    }
    if (QFontInfo(QFont(fontFamily)).family() != fontFamily) {
        std::fprintf(stderr, "the font %s is not installed\n", fontFamily);
        return 1;
    }
    try {
        const QDir installation(QString::fromLocal8Bit(argv[1]));
        for (const GlyphSet& set : glyphSets) {
            writeGlyphSet(QDir(installation.filePath("VarnSymbol")), set);
        }
        writeCodeList(QDir(installation.filePath("VarnData")));
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
