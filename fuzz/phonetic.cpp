// Phonetic text: any of it is cut into units and spelled in letters, and what is typed in a cell reads the
// same when it is edited again.

#include "dialectometry/Levenshtein.h"
#include "fuzz/FuzzInput.h"
#include "lingdata/PhoneticCheck.h"
#include "lingdata/PhoneticCode.h"
#include "lingdata/WordCell.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text = QString::fromUtf8(inputOf(data, size));
    expectAnswer([&] {
        QStringView rest = text;
        while (!rest.isEmpty()) {
            const int consumed = decodePhonetic(rest).consumed; // of an escape cut short more than there is
            require(consumed > 0);
            rest = rest.mid(std::min<qsizetype>(consumed, rest.size()));
        }
        findCodeFault(text);
        const SpelledForm letters = Speller(true).spell(text);
        require(Aligner().distance(letters, letters) == 0);
        require(typedCell(cellText(typedCell(text))) == typedCell(text));
    });
    return 0;
}
