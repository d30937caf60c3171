#include "exchange/ItemFileNames.h"

#include "platform/FileName.h"
#include "tests/support/TestDrive.h"

TEST(ItemFileNames, TheyAreSafeEverywhereAndKeepTheOrder)
{
    const std::pair<QString, QString> rows[] = {
        {QStringLiteral("rain"), QStringLiteral("001-rain")},
        {QStringLiteral("Rain"), QStringLiteral("002-Rain")},
        {QStringLiteral(" to \n go? .. "), QStringLiteral("003-to go_")},
        {QStringLiteral("CON"), QStringLiteral("004-CON")},
        {QStringLiteral("a/b\\c:d\x01"), QStringLiteral("005-a_b_c_d_")},
        {QStringLiteral("e\u0301"), QStringLiteral("006-\u00E9")},
        {QString(), QStringLiteral("007")},
        {QString(100, QChar(0x96E8)), QStringLiteral("008-") + QString(20, QChar(0x96E8))},
        {QStringLiteral("\U0001F327 \xD800"), QStringLiteral("009-\U0001F327 _")},
    };
    QStringList items;
    for (const auto& row : rows) {
        items << row.first;
    }
    const QStringList names = itemFileNames(items);
    for (size_t i = 0; i < std::size(rows); ++i) {
        EXPECT_EQ(names[static_cast<qsizetype>(i)].toStdString(), rows[i].second.toStdString());
    }
    EXPECT_EQ(itemFileNames(QStringList(1000, QStringLiteral("x"))).first(), QStringLiteral("0001-x"));
}
