#include "platform/SequentialFile.h"

#include "tests/support/TestDrive.h"

namespace {

SequentialReader reader(const char* text)
{
    return SequentialReader(QString::fromUtf8(text));
}

} // namespace

TEST(SequentialReader, FieldsMayBeSpreadOverLinesInAnyWay)
{
    for (const char* text : {"1,\"a,b\",2.5,#TRUE#\r\n", "1\n\"a,b\"\n2.5\n#TRUE#",
                             " 1 ,a\"b x\r\n2.5 #true#", "1\r\n\"a,b\" , 2.5\r\n\r\n\r\n#TRUE#\r\n"}) {
        SequentialReader file = reader(text);
        EXPECT_EQ(file.readInteger(), 1) << text;
        EXPECT_TRUE(file.readString().startsWith(QLatin1Char('a'))) << text;
        EXPECT_EQ(file.readSingle(), 2.5F) << text;
        EXPECT_TRUE(file.readBoolean()) << text;
    }
}

TEST(SequentialReader, StringsKeepWhatTheirQuotesHold)
{
    SequentialReader file = reader("\"\",\" say \"\"a\"\", b\r\nc \",bare text ,\r\nlast");
    EXPECT_EQ(file.readString(), QString());
    EXPECT_EQ(file.readString(), QStringLiteral(" say \"a\", b\r\nc "));
    EXPECT_EQ(file.readString(), QStringLiteral("bare text"));
    EXPECT_EQ(file.readString(), QString()) << "the empty field before the line end";
    EXPECT_EQ(file.readString(), QStringLiteral("last"));
    EXPECT_EQ(file.line(), 3);
}

TEST(SequentialReader, MalformedFieldsAreErrorsOfTheirKind)
{
    struct Row
    {
        const char* text;
        ErrorNumber expected;
    };
    const Row rows[] = {
        {"", ErrorNumber::InputPastEndOfFile},
        {"\r\n \r\n", ErrorNumber::InputPastEndOfFile},
        {"two", ErrorNumber::TypeMismatch},
        {"\"2\"", ErrorNumber::TypeMismatch},
        {"1x", ErrorNumber::TypeMismatch},
        {",1", ErrorNumber::TypeMismatch},
        {"nan", ErrorNumber::TypeMismatch},
        {"inf", ErrorNumber::TypeMismatch},
        {"\"open", ErrorNumber::InputPastEndOfFile},
        {"32768", ErrorNumber::Overflow},
        {"1e999", ErrorNumber::Overflow},
        {"-1", ErrorNumber::SubscriptOutOfRange},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(errorOf([&row] { reader(row.text).readCount(); }).number(), row.expected) << row.text;
    }
    EXPECT_EQ(errorOf([] { reader("1e39").readSingle(); }).number(), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf([] { reader("#MAYBE#").readBoolean(); }).number(), ErrorNumber::TypeMismatch);
    EXPECT_EQ(errorOf([] { reader("\"a\"b").readString(); }).number(), ErrorNumber::TypeMismatch);
    EXPECT_EQ(errorOf([] { reader("\"cut short").readString(); }).number(), ErrorNumber::InputPastEndOfFile);
}

TEST(SequentialReader, ErrorsNameFileLineAndField)
{
    const TestDrive drive;
    const QString path = QStringLiteral("C:\\numbers.txt");
    drive.write(path, "1,\"a\r\nb\",2\r\n3,word\r\n");
    const RunTimeError error = errorOf([&] {
        readSequentialFile(drive.drive(), path, [](SequentialReader& file) {
            file.readInteger();
            file.readString();
            file.readInteger();
            file.readInteger();
            file.readInteger();
        });
    });
    EXPECT_EQ(error.place().path, path);
    EXPECT_EQ(error.place().line, 3);
    EXPECT_EQ(error.place().field, 2);
    EXPECT_TRUE(error.message().contains(QStringLiteral("Run-time error '13': Type mismatch")));
    EXPECT_TRUE(error.message().contains(QStringLiteral("\"word\"")));
}

TEST(SequentialWriter, ReadsBackWhatItWrote)
{
    const QString text = QStringLiteral("a \"b\", c\r\n\\A1 %1").arg(QChar(0x14B));
    const float single = 0.1F;
    const double number = 1.0 / 3;
    SequentialWriter writer;
    writer.write(qint16{-7}, text, true, false, single, number, 20.0F);
    EXPECT_TRUE(writer.bytes().startsWith("-7,\"a \"\"b\"\", c\r\n\\A1 "));
    EXPECT_TRUE(writer.bytes().endsWith(",#TRUE#,#FALSE#,0.1,0.3333333333333333,20\r\n"));

    SequentialReader file(QString::fromUtf8(writer.bytes()));
    EXPECT_EQ(file.readInteger(), -7);
    EXPECT_EQ(file.readString(), text);
    EXPECT_TRUE(file.readBoolean());
    EXPECT_FALSE(file.readBoolean());
    EXPECT_EQ(file.readSingle(), single);
    EXPECT_EQ(file.readNumber(), number);
    EXPECT_EQ(file.readSingle(), 20.0F);
}
