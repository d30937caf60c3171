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

    const QByteArray record = "\"\",\"\"\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n";
    const std::tuple<QByteArray, ErrorNumber, int> faults[] = {
        {"\"\"\r\n101\r\n" + record.repeated(101), ErrorNumber::SubscriptOutOfRange, 703},
        {"\"\"\r\n1\r\n\"\",\"\"\r\n1\r\nred\r\n", ErrorNumber::TypeMismatch, 5},
        {"\"\"\r\n1\r\n\"\",\"\"\r\n1\r\n40000\r\n", ErrorNumber::Overflow, 5},
    };
    for (const auto& [text, expected, line] : faults) {
        drive.write(path, text);
        const RunTimeError error = errorOf([&] { LoadHankoData(drive.drive(), path, set); });
        EXPECT_EQ(error.number(), expected) << line;
        EXPECT_EQ(error.place().line, line);
        EXPECT_EQ(set.Explain, QStringLiteral("a comment")) << "what was there stays";
    }
}
