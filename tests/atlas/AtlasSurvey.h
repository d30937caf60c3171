#pragma once

#include "atlas/AtlasDocument.h"
#include "shell/VarnModule.h"
#include "tests/support/TestDrive.h"

inline const QByteArray RainItem = "3,\"\",\"Rain\",\"\"\r\n2\r\n\"ame\"\r\n\"uyu\"\r\n0\r\n1\r\n\"uyu\"\r\n";
inline const QByteArray RainSymbols = "\"\"\r\n2\r\n\"ame\",\"AME\"\r\n1\r\n0\r\n0\r\n1\r\n1\r\n1\r\n\"uyu\","
                                      "\"UYU\"\r\n49\r\n4\r\n0\r\n0\r\n1\r\n1\r\n";
inline const QByteArray SnowItem = "3,\"\",\"Snow\",\"\"\r\n1\r\n\"yuki\"\r\n1\r\n\"yuki\"\r\n0\r\n";

/// Path of a file in the folder of the items of a `TestSurvey`.
inline QString ling(const char* file)
{
    return QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\") + QLatin1String(file);
}

/// A document on a map with an item that has symbols, and one that has none.
class AtlasSurvey : public testing::Test
{
protected:
    AtlasSurvey()
    {
        survey.write(ling("rain.dbs"), RainItem);
        survey.write(ling("rain.han"), RainSymbols);
        survey.write(ling("snow.dbs"), SnowItem);
        document.restart();
    }

    /// Gives the first record of the page another caption.
    void caption(const char* text)
    {
        SymbolRecords records = document.page().symbols;
        records.NHanrei = std::max(records.NHanrei, 1);
        records.HankoCaption(1) = QLatin1String(text);
        document.setSymbols(records, QStringLiteral("Caption"));
    }
    void word(int locality, const QStringList& words) { document.setWords({{locality, words}}, "Word"); }
    QString captions() const { return page().symbols.HankoCaption(1) + '/' + varn.HankoCaption(1); }
    const AtlasPage& page() const { return document.page(); }

    TestSurvey survey;
    VarnModule& varn = survey.varn;
    AtlasDocument document{varn};
};
