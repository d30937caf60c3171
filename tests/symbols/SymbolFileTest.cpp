#include "symbols/SymbolFile.h"

#include "tests/support/TestDrive.h"

namespace {

const QByteArray Two =
    "\"a comment\"\r\n2\r\n\"kind\",\"a \"\"caption\"\", quoted\"\r\n49\r\n1\r\n12\r\n0\r\n1\r\n2\r\n"
    "\"\",\"\"\r\n-3\r\n15\r\n0\r\n1\r\n0\r\n0\r\n";
const QString Path = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\rain.han");

} // namespace

TEST(SymbolFile, ItIsWrittenAsItIsRead)
{
    TestSurvey survey;
    survey.write(Path, Two);
    LoadHankoData(survey.drive(), Path, survey.varn);
    EXPECT_EQ(survey.varn.Explain, QStringLiteral("a comment"));
    EXPECT_EQ(survey.varn.NHanrei, 2);
    EXPECT_EQ(survey.varn.HankoCaption(1), QStringLiteral("a \"caption\", quoted"));
    EXPECT_EQ(survey.varn.Hanko(1), (HankoStyle{49, 1, 12, 0, 1, 2}));
    EXPECT_EQ(survey.varn.SymbolFileName, QStringLiteral("rain.han"));

    const QString copy = QStringLiteral("C:\\copy.han");
    SaveHankoData(survey.drive(), copy, survey.varn);
    EXPECT_EQ(survey.read(copy), Two);
}

TEST(SymbolFile, AFaultIsToldWithItsLine)
{
    struct Row
    {
        QByteArray text;
        ErrorNumber expected;
        int line;
    };
    const QByteArray record = "\"\",\"\"\r\n1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n";
    const Row rows[] = {
        {"\"\"\r\n101\r\n" + record.repeated(101), ErrorNumber::SubscriptOutOfRange, 703},
        {"\"\"\r\n1\r\n\"\",\"\"\r\n1\r\nred\r\n", ErrorNumber::TypeMismatch, 5},
        {"\"\"\r\n1\r\n\"\",\"\"\r\n1\r\n40000\r\n", ErrorNumber::Overflow, 5},
    };
    const TestDrive drive;
    for (const Row& row : rows) {
        drive.write(Path, row.text);
        SymbolSet set;
        const RunTimeError error = errorOf([&] { LoadHankoData(drive.drive(), Path, set); });
        EXPECT_EQ(error.number(), row.expected) << row.line;
        EXPECT_EQ(error.place().line, row.line);
        EXPECT_EQ(error.place().path, Path);
    }
}
