#include "platform/FileName.h"

#include <gtest/gtest.h>

TEST(FileName, PartsOfPaths)
{
    // A path, then its folder, name, stem, and the path with another ending.
    const std::vector<QString> rows[] = {
        {"C:\\a.b\\mother.dbs", "C:\\a.b", "mother.dbs", "mother", "C:\\a.b\\mother.ipt"},
        {"C:\\a.b\\no ending", "C:\\a.b", "no ending", "no ending", "C:\\a.b\\no ending.ipt"},
        {"C:\\two.dots.dbs", "C:", "two.dots.dbs", "two.dots", "C:\\two.dots.ipt"},
        {"only.dbs", "", "only.dbs", "only", "only.ipt"},
        {"", "", "", "", ".ipt"}};
    for (const auto& row : rows) {
        const QString& path = row[0];
        EXPECT_EQ(
            std::vector({path, folderOf(path), fileNameOf(path), stemOf(path), withEnding(path, ".ipt")}),
            row);
    }
    EXPECT_EQ(withoutEnding("a.DBS", ".dbs"), "a");
    EXPECT_EQ(withoutEnding("a.han", ".dbs"), "a.han");
}
