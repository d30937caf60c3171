#pragma once

#include "atlas/AtlasDocument.h"
#include "shell/VarnModule.h"
#include "tests/atlas/AtlasItemFiles.h"

/// A document on the map of a `TestSurvey` with these items.
class AtlasSurvey : public testing::Test
{
protected:
    AtlasSurvey()
    {
        writeAtlasItems(survey);
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
