// A table of answers: any bytes become a survey, or are told not to be a table.

#include "exchange/TableSource.h"
#include "exchange/TextTable.h"
#include "fuzz/FuzzInput.h"

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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    expectAnswer([&] {
        const SourceTable table = tableOf(inputOf(data, size));
        SourceChoices choices;
        choices.path = table.path;
        const SourceSurvey survey = surveyInTable(table, choices);
        for (const SourceItem& item : survey.items) {
            require(item.answers.size() == survey.localities.size());
        }
    });
    return 0;
}
