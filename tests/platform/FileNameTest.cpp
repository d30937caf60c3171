#include "platform/FileName.h"

#include <gtest/gtest.h>

TEST(FileName, PartsOfPaths)
{
    struct Row
    {
        const char* path;
        QString folder;
        QString name;
        QString stem;
        QString otherEnding;
    };
    const Row rows[] = {{"C:\\a.b\\mother.dbs", "C:\\a.b", "mother.dbs", "mother", "C:\\a.b\\mother.ipt"},
                        {"C:\\a.b\\no ending", "C:\\a.b", "no ending", "no ending", "C:\\a.b\\no ending.ipt"},
                        {"C:\\two.dots.dbs", "C:", "two.dots.dbs", "two.dots", "C:\\two.dots.ipt"},
                        {"only.dbs", "", "only.dbs", "only", "only.ipt"},
                        {"", "", "", "", ".ipt"}};
    for (const Row& row : rows) {
        const QString path = QLatin1String(row.path);
        EXPECT_EQ(folderOf(path), row.folder) << row.path;
        EXPECT_EQ(fileNameOf(path), row.name) << row.path;
        EXPECT_EQ(stemOf(path), row.stem) << row.path;
        EXPECT_EQ(withEnding(path, QStringLiteral(".ipt")), row.otherEnding) << row.path;
    }
    EXPECT_EQ(withoutEnding(QStringLiteral("a.DBS"), QStringLiteral(".dbs")), QStringLiteral("a"));
    EXPECT_EQ(withoutEnding(QStringLiteral("a.han"), QStringLiteral(".dbs")), QStringLiteral("a.han"));
}
