#pragma once

#include "tests/support/OneForm.h"

/// Makes `table` one of the word forms w1, w2, ..., with count k * j at locality j of three.
inline void fillTable(CumulativeTable& table, int wordforms)
{
    table.NumWordforms = wordforms;
    table.NumItemsAccumulated = 10;
    for (int k = 1; k <= wordforms; ++k) {
        table.WordformName(k) = QStringLiteral("w%1").arg(k);
        table.WordformSymbolColor(k) = k;
        table.WordformPaintColor(k) = static_cast<qint16>(8 + k);
        for (int j = 1; j <= 3; ++j) {
            table.Counts(k, j) = static_cast<qint16>(k * j);
        }
    }
}

/// A form of the analysis that is loaded with such a table.
template <typename Form>
class AnalysisForm : public OneForm<Form>
{
protected:
    explicit AnalysisForm(int wordforms)
    {
        fillTable(this->varn, wordforms);
        this->form.Form_Load();
    }
};
