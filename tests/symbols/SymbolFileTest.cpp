#include "symbols/SymbolFile.h"

#include "tests/support/TestDrive.h"

TEST(SymbolFile, ItIsWrittenAsItIsRead)
{
    const QByteArray two =
        "\"a comment\"\r\n2\r\n\"kind\",\"a \"\"caption\"\", quoted\"\r\n49\r\n1\r\n12\r\n0\r\n"
        "1\r\n2\r\n\"\",\"\"\r\n-3\r\n15\r\n0\r\n1\r\n0\r\n0\r\n";
    const QString path = QStringLiteral("C:\\Ling\\rain.han");
    const TestDrive drive;
    SymbolSet set;
    drive.write(path, two);
    LoadHankoData(drive.drive(), path, set);
    EXPECT_EQ(set.HankoCaption(1), QStringLiteral("a \"caption\", quoted"));
    EXPECT_EQ(set.Hanko(1), (HankoStyle{49, 1, 12, 0, 1, 2}));
    EXPECT_EQ(set.SymbolFileName, QStringLiteral("rain.han"));
    EXPECT_EQ(set.CurrentHanko, 2);
    SaveHankoData(drive.drive(), path, set);
    EXPECT_EQ(drive.read(path), two);

    for (const auto change :
         {+[](SymbolSet& s) { s.Explain = "x"; }, +[](SymbolSet& s) { s.NHanrei = 1; },
          +[](SymbolSet& s) { s.HankoWord(1) = "x"; }, +[](SymbolSet& s) { s.HankoCaption(2) = "x"; },
          +[](SymbolSet& s) { s.Hanko(2).LineThick = 1; }, +[](SymbolSet& s) { s.NHanrei = 0; }}) {
        SymbolSet other = set;
        EXPECT_FALSE(isSymbolSetUnsaved(other));
        change(other);
        EXPECT_TRUE(isSymbolSetUnsaved(other));
    }
    SymbolSet empty = set;
    empty.NHanrei = 0;
    empty.Explain.clear();
    EXPECT_FALSE(isSymbolSetUnsaved(empty)) << "nothing to lose";

    const QByteArray record = "\"\",\"\"\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n";
    drive.write(path, "\"\"\r\n101\r\n" + record.repeated(101));
    const RunTimeError error = errorOf([&] { LoadHankoData(drive.drive(), path, set); });
    EXPECT_EQ(error.number(), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(error.place().line, 2 + 100 * 7 + 1) << "a hundred records are the most";
}
