// The survey that a new user finds must be whole: everything in it loads, and every word form has its symbol.

#include "lingdata/LinguisticFile.h"
#include "mapdata/MapFiles.h"
#include "render/LinguisticMap.h"
#include "render/MapSize.h"
#include "render/SymbolShapes.h"
#include "shell/MapParts.h"
#include "symbols/SymbolFile.h"
#include "tests/support/TestDrive.h"

#include <QDir>

namespace {

struct SampleSurvey
{
    SampleSurvey()
    {
        varn.VarnPath = varn.Drive.varnPath(QStringLiteral(INSTALLATION_FOLDER));
        varn.VarnMapName = QStringLiteral("\\Sample");
        varn.LingFolder = QStringLiteral("\\VarnData\\Sample\\Ling");
        LoadSquareData(varn.Drive, varn.VarnPath, varn);
        LoadLineData(varn.Drive, varn.VarnPath, varn.VarnMapName, varn);
        LoadLocateData(varn.Drive, varn.VarnPath, varn.VarnMapName, varn);
        LoadKanjiData(varn.Drive, varn.VarnPath, varn.VarnMapName, varn);
    }

    QStringList items() const
    {
        return QDir(varn.Drive.hostPath(varn.dataFolder())).entryList({QStringLiteral("*.dbs")}, QDir::Files);
    }

    void load(const QString& item)
    {
        const QString path = varn.dataFolder() + QLatin1Char('\\') + item;
        static_cast<ItemAnswers&>(varn) = readSequentialFile(varn.Drive, path, readItem);
        LoadHankoData(varn.Drive, path.chopped(4) + QStringLiteral(".han"), varn);
    }

    VarnModule varn;
    DrawSurface frmMap;
};

int symbolsOf(const VarnModule& varn, const QString& word)
{
    int symbols = 0;
    for (int k = 1; k <= varn.NHanrei; ++k) {
        symbols += word.contains(varn.HankoWord(k)) ? 1 : 0;
    }
    return symbols;
}

} // namespace

TEST(SampleSurvey, EveryWordFormHasOneSymbol)
{
    SampleSurvey sample;
    VarnModule& varn = sample.varn;
    EXPECT_GE(varn.NLocality, 100);
    EXPECT_GE(varn.Nsquare, 20);
    EXPECT_GE(sample.items().size(), 8);
    for (const QString& item : sample.items()) {
        sample.load(item);
        EXPECT_EQ(varn.NLocate, varn.NLocality) << qPrintable(item);
        for (int n = 1; n <= varn.WordTotal; ++n) {
            EXPECT_EQ(symbolsOf(varn, varn.WordList(n)), 1) << qPrintable(item + varn.WordList(n));
        }
        for (int k = 1; k <= varn.NHanrei; ++k) {
            EXPECT_LE(varn.Hanko(k).HankoNo, symbolCount(varn)) << qPrintable(item);
        }
    }
}

TEST(SampleSurvey, EveryMapIsDrawnWithoutATrace)
{
    SampleSurvey sample;
    for (const QString& item : sample.items()) {
        sample.load(item);
        DrawSurface target;
        drawLinguisticMap(linguisticMapParts(sample.varn), {{target, sample.frmMap}, firstArea()});
        EXPECT_TRUE(sample.frmMap.drawing().operations.empty()) << qPrintable(item);
        EXPECT_FALSE(target.drawing().operations.empty());
    }
}

TEST(SampleSurvey, EveryPhoneticCodeHasItsGlyphs)
{
    SampleSurvey sample;
    VarnModule& varn = sample.varn;
    const auto symbols = LoadSymbols(varn);
    EXPECT_EQ(symbols.size(), 54U);
    for (const auto& [size, bold] : {std::pair{10, false}, {12, false}, {10, true}, {12, true}}) {
        varn.MapFontSize = static_cast<qint16>(size);
        varn.PhoneticBold = bold;
        DrawSurface target;
        PhoneticText writer(textParts(varn), {target, sample.frmMap});
        for (const PhoneticSymbol& symbol : symbols) {
            EXPECT_GT(writer.PlotChar(0, 0, symbol.code), 0) << qPrintable(symbol.code);
        }
        EXPECT_EQ(operationsOf<PictureOperation>(target.drawing()).size(), 54U);
    }
    EXPECT_TRUE(sample.frmMap.drawing().operations.empty()) << "no illegal code";
}
