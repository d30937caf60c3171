// The survey that a new user finds must be whole: everything in it loads, and every word form has its symbol.

#include "dialectometry/DistanceFile.h"
#include "dialectometry/Distances.h"
#include "lingdata/ItemFolder.h"
#include "lingdata/LinguisticFile.h"
#include "mapdata/MapFiles.h"
#include "mapdata/MapSearch.h"
#include "platform/FileName.h"
#include "render/LinguisticMap.h"
#include "render/MapSize.h"
#include "shell/MapParts.h"
#include "symbols/SymbolFile.h"
#include "tests/support/TestDrive.h"

#include <QDir>

#include <algorithm>

namespace {

struct SampleSurvey
{
    SampleSurvey()
    {
        varn.VarnPath = varn.Drive.varnPath(QStringLiteral(INSTALLATION_FOLDER));
        varn.VarnMapName = QStringLiteral("\\Sample");
        varn.LingFolder = QStringLiteral("\\VarnData\\Sample\\Ling");
        LoadSquareData(varn.Drive, varn.VarnPath, varn);
        loadBaseMap(varn.Drive, {varn.VarnPath, varn.VarnMapName}, {}, varn);
    }

    QStringList items() const
    {
        return QDir(varn.Drive.hostPath(varn.dataFolder())).entryList({QStringLiteral("*.dbs")}, QDir::Files);
    }

    void load(const QString& item)
    {
        const QString path = varn.dataFolder() + QLatin1Char('\\') + item;
        static_cast<ItemAnswers&>(varn) = readSequentialFile(varn.Drive, path, readItem);
        LoadHankoData(varn.Drive, withEnding(path, ".han"), varn);
    }

    int symbolsOf(const QString& word)
    {
        int symbols = 0;
        for (int k = 1; k <= varn.NHanrei; ++k) {
            symbols += word.contains(varn.HankoWord(k)) ? 1 : 0;
        }
        return symbols;
    }

    VarnModule varn;
    DrawSurface frmMap;
};

} // namespace

TEST(SampleSurvey, EveryItemIsDrawnWithOneSymbolForEachWordForm)
{
    SampleSurvey sample;
    VarnModule& varn = sample.varn;
    EXPECT_GE(varn.NLocality, 100);
    EXPECT_GE(varn.Nsquare, 20);
    EXPECT_GE(sample.items().size(), 8);
    for (const QString& item : sample.items()) {
        SCOPED_TRACE(qPrintable(item));
        sample.load(item);
        EXPECT_EQ(varn.NLocate, varn.NLocality);
        for (int n = 1; n <= varn.WordTotal; ++n) {
            EXPECT_EQ(sample.symbolsOf(varn.WordList(n)), 1) << qPrintable(varn.WordList(n));
        }
        DrawSurface target;
        drawLinguisticMap(linguisticMapParts(varn), {{target, sample.frmMap}, firstArea()});
        EXPECT_FALSE(target.drawing().operations.empty());
        EXPECT_TRUE(sample.frmMap.drawing().operations.empty())
            << "a symbol without a design or an illegal code";
    }
}

TEST(SampleSurvey, EveryPhoneticCodeIsALetter)
{
    const auto symbols = LoadSymbols(SampleSurvey().varn);
    EXPECT_EQ(symbols.size(), 54U);
    for (const PhoneticSymbol& symbol : symbols) {
        const PhoneticUnit unit = decodePhonetic(symbol.code);
        EXPECT_EQ(unit.kind, PhoneticUnit::Kind::Glyph) << qPrintable(symbol.code);
        EXPECT_EQ(unit.consumed, symbol.code.size()) << qPrintable(symbol.code);
    }
}

TEST(SampleSurvey, ItsDistancesAreThoseOfItsWordForms)
{
    const SampleSurvey sample;
    const VarnModule& varn = sample.varn;
    SurveyAnswers answers{varn.NLocality, {}};
    for (const QString& path : itemFiles(varn.Drive, varn.dataFolder())) {
        answers.items.push_back(readComparedItem(varn.Drive, path, {}, varn.NLocality));
    }
    const DistanceMatrix found = *distances(answers, {}, [](int, int) { return true; });
    const auto read = [&varn](SequentialReader& file) { return readDistances(file, varn, varn.NLocality); };
    const DistanceMatrix kept = readSequentialFile(varn.Drive, varn.dataFolder() + "\\distances.csv", read);
    EXPECT_TRUE(std::ranges::equal(found.pairs(), kept.pairs()));
}
