#include "exchange/ImportReport.h"

#include <gtest/gtest.h>

TEST(ImportReport, TellsEachReasonOnceWithItsCountAndTheFirstNames)
{
    ImportReport report;
    report.tell(QStringLiteral("98 localities"));
    report.note(QStringLiteral("Items of many kinds"), QStringLiteral("rain"));
    EXPECT_TRUE(report.isComplete());
    for (const char* name : {"A", "B", "C", "D", "E", "F"}) {
        report.leaveOut(QStringLiteral("localities without coordinates"), QLatin1String(name));
    }
    report.leaveOut(QStringLiteral("empty items"), QStringLiteral("rain"));
    EXPECT_FALSE(report.isComplete());
    EXPECT_EQ(report.text(),
              QStringLiteral("98 localities\n"
                             "Items of many kinds: 1 (rain)\n"
                             "Left out, localities without coordinates: 6 (A, B, C, D, E, ...)\n"
                             "Left out, empty items: 1 (rain)"));
}
