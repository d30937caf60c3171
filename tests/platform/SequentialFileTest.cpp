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
    using enum ErrorNumber;
    const std::pair<ErrorNumber, std::vector<const char*>> rows[] = {
        {InputPastEndOfFile, {"\r\n \r\n", "\"open"}},
        {TypeMismatch, {"\"2\"", "1x", ",1", "nan", "inf"}},
        {Overflow, {"32768", "1e999"}},
    };
    for (const auto& [expected, texts] : rows) {
        for (const char* text : texts) {
            EXPECT_EQ(errorOf([text] { reader(text).readCount(); }).number(), expected) << text;
        }
    }
    EXPECT_EQ(errorOf([] { reader("1e39").readSingle(); }).number(), Overflow);
    EXPECT_EQ(errorOf([] { reader("#MAYBE#").readBoolean(); }).number(), TypeMismatch);
    EXPECT_EQ(errorOf([] { reader("\"a\"b").readString(); }).number(), TypeMismatch);
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
    EXPECT_EQ(error.message(), QStringLiteral("Run-time error '13': Type mismatch\nFile: C:\\numbers.txt\n"
                                              "Line 3, field 2\n\"word\" is not a number."));
}

TEST(SequentialWriter, WritesWhatIsReadBack)
{
    SequentialWriter writer;
    writer.write(qint16{-7}, QStringLiteral("a \"b\", c\r\n\\A1 %1").arg(QChar(0x14B)), true, false, 0.1F,
                 1.0 / 3, 20.0F);
    EXPECT_EQ(writer.bytes(),
              "-7,\"a \"\"b\"\", c\r\n\\A1 \xC5\x8B\",#TRUE#,#FALSE#,0.1,0.3333333333333333,20\r\n");
    EXPECT_FALSE(reader("#FALSE#").readBoolean());
    EXPECT_EQ(reader("0.1").readSingle(), 0.1F);
    EXPECT_EQ(reader("0.3333333333333333").readNumber(), 1.0 / 3);
}
