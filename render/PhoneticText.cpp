#include "render/PhoneticText.h"

#include "platform/SequentialFile.h"

PhoneticText::PhoneticText(const TextParts& parts, const TracedTarget& target)
    : m_parts(parts), m_target(target.DrawTarget), m_frmMap(target.frmMap)
{}

float PhoneticText::PlotChar(float x, float y, QStringView text)
{
    qsizetype position = 0;
    while (position < text.size()) {
        // Plain characters are written together, so that combining marks stand on their letters.
        const qsizetype escape = text.indexOf(QLatin1Char('\\'), position);
        const qsizetype plain = (escape < 0 ? text.size() : escape) - position;
        if (plain > 0) {
            x = PlotWord(x, y, text.mid(position, plain));
            position += plain;
        } else {
            int consumed = 0;
            x = One(x, y, text.mid(position), consumed);
            position += consumed;
        }
    }
    return x;
}

float PhoneticText::One(float x, float y, QStringView text, int& consumed)
{
    consumed = 0;
    if (text.isEmpty()) {
        return x;
    }
    const PhoneticUnit unit = decodePhonetic(text);
    consumed = unit.consumed;
    switch (unit.kind) {
    case PhoneticUnit::Kind::Plain:
        return PlotWord(x, y, text.left(1));
    case PhoneticUnit::Kind::Glyph:
        return PlotOneSymbol(x, y, unit.series, unit.number);
    case PhoneticUnit::Kind::Illegal:
        // On the map form, wherever the text is drawn.
        m_frmMap.Print(text.left(unit.consumed).toString() +
                       QStringLiteral(" Illegal Data for Phonetic Alphabet."));
        break;
    }
    return x;
}

float PhoneticText::PlotWord(float x, float y, QStringView text)
{
    m_target.CurrentX = x;
    m_target.CurrentY = y;
    m_target.Print(text.toString(), DrawSurface::LineEnd::Stay);
    return m_target.CurrentX;
}

float PhoneticText::PlotOneSymbol(float x, float y, GlyphSeries series, int number)
{
    // A glyph bitmap is a line of text: its baseline lies at three quarters of its height.
    constexpr float BaselineOfGlyph = 0.75F;

    const QString name = series == GlyphSeries::Main ? QStringLiteral("Symbol") : QStringLiteral("SymbolS");
    const QImage& glyph = m_parts.pictures.picture(
        m_parts.folders.Drive, glyphFolder() + name + QString::number(number) + QStringLiteral(".bmp"));
    const QSizeF size = naturalSize(glyph);
    const float baseline = y + m_target.TextAscent();
    const float shift = m_parts.font.SpecialFontShift * static_cast<float>(TwipsPerPoint);
    m_target.PaintPicture(glyph, x, baseline - BaselineOfGlyph * static_cast<float>(size.height()) + shift);
    return x + static_cast<float>(size.width());
}

QString PhoneticText::glyphFolder() const
{
    QString set;
    if (m_parts.style.PhoneticBold) {
        set = m_parts.font.MapFontSize < 11 ? QStringLiteral("Bold16") : QStringLiteral("Bold18");
    } else {
        set = m_parts.font.MapFontSize > 10 ? QStringLiteral("Standard18") : QStringLiteral("Standard16");
    }
    return m_parts.folders.VarnPath + QStringLiteral("\\VarnSymbol\\") + set + QLatin1Char('\\');
}

std::vector<PhoneticSymbol> LoadSymbols(const Folders& folders)
{
    const QString path = folders.VarnPath + QStringLiteral("\\VarnData\\ExpSymbol.txt");
    return readSequentialFile(folders.Drive, path, [](SequentialReader& file) {
        std::vector<PhoneticSymbol> symbols;
        const int count = file.readCount();
        for (int i = 1; i <= count; ++i) {
            PhoneticSymbol symbol;
            symbol.code = file.readString();
            symbol.letter = file.readString();
            symbol.name = file.readString();
            symbols.push_back(std::move(symbol));
        }
        return symbols;
    });
}
