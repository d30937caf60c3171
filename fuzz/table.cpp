// A table of answers: any bytes become a survey, or are told not to be a table. Within the limits of a map
// the items of the survey are written, and read back as they were.

#include "exchange/CldfWriter.h"
#include "exchange/NewSurvey.h"
#include "exchange/SurveyLimits.h"
#include "exchange/TableSource.h"
#include "exchange/TextTable.h"
#include "fuzz/FuzzInput.h"
#include "lingdata/LinguisticFile.h"

#include <QCoreApplication>

#include <optional>

namespace {

SourceTable tableOf(const QByteArray& bytes)
{
    SourceTable table;
    table.path = QStringLiteral("table.csv");
    table.rows = textTableRows(bytes);
    if (!table.rows.empty()) {
        table.headingRow = table.rows.front().number;
        table.headings = table.rows.front().cells;
        table.rows.erase(table.rows.begin());
    }
    for (TableRow& row : table.rows) {
        row.cells.resize(table.headings.size());
    }
    return table;
}

std::optional<SourceSurvey> surveyIn(const QByteArray& bytes)
{
    try {
        const SourceTable table = tableOf(bytes);
        SourceChoices choices;
        choices.path = table.path;
        return surveyInTable(table, choices);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

QByteArray writtenItem(const ItemAnswers& item)
{
    SequentialWriter writer;
    writeItem(writer, item);
    return writer.bytes();
}

void requireItemReadsBack(const SourceItem& item)
{
    const QByteArray written = writtenItem(itemAnswers(item));
    SequentialReader reader(QString::fromUtf8(written));
    require(writtenItem(readItem(reader)) == written);
}

} // namespace

/// The module that parts tables is looked for beside the program.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    static const QCoreApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (auto survey = surveyIn(inputOf(data, size))) {
        require(!writtenCldf(*survey).empty());
        keepToLimits(*survey);
        for (const SourceItem& item : survey->items) {
            require(item.answers.size() == survey->localities.size());
            requireItemReadsBack(item);
        }
    }
    return 0;
}
