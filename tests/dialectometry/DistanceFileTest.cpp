#include "dialectometry/DistanceFile.h"

#include "platform/SequentialFile.h"
#include "tests/dialectometry/SmallSurvey.h"
#include "tests/support/TestDrive.h"

#include <cmath>

namespace {

const QString File = QStringLiteral("C:\\distances.csv");

LocalityNames named(const QStringList& names)
{
    LocalityNames found;
    for (const QString& name : names) {
        found.localityNames.push_back({name, name, 0, 0});
    }
    return found;
}

DistanceMatrix readBack(const TestDrive& drive, const LocalityNames& names, int localities)
{
    return readSequentialFile(drive.drive(), File,
                              [&](SequentialReader& file) { return readDistances(file, names, localities); });
}

} // namespace

TEST(DistanceFile, WhatIsWrittenComesBackToTheLastDigit)
{
    const TestDrive drive;
    struct Row
    {
        LocalityNames names;
        QByteArray headings;
    };
    const Row rows[] = {
        {named({"Amele", "Bad \"Ort\", See", "岡山"}),
         "\"\",\"Amele\",\"Bad \"\"Ort\"\", See\",\"岡山\"\r\n"},
        {named({"Amele", "Bau", "Amele"}), "\"\",\"1 Amele\",\"2 Bau\",\"3 Amele\"\r\n"},
        {named({"Amele", "", "Bau"}), "\"\",\"1 Amele\",\"2\",\"3 Bau\"\r\n"},
        {LocalityNames(), "\"\",\"1\",\"2\",\"3\"\r\n"},
    };
    const DistanceMatrix distances = matrixOf(3, {1. / 3, -1, 1e-300});
    for (const Row& row : rows) {
        writeSequentialFile(drive.drive(), File,
                            [&](auto& file) { writeDistances(file, row.names, distances); });
        EXPECT_TRUE(drive.read(File).startsWith(row.headings)) << drive.read(File).constData();
        const DistanceMatrix found = readBack(drive, row.names, 3);
        EXPECT_EQ(found(0, 1), 1. / 3);
        EXPECT_FALSE(found.has(0, 2));
        EXPECT_EQ(found(1, 2), 1e-300);
    }
}

TEST(DistanceFile, MayComeFromASpreadsheetInAnotherOrder)
{
    const TestDrive drive;
    const LocalityNames names = named({"A", "B", "C"});
    drive.write(File, "\xEF\xBB\xBF,C,A,B\nC,,0.25,\nA,0.25000000000001,0,2\nB,\"\",2,0\n\n");
    const DistanceMatrix found = readBack(drive, names, 3);
    EXPECT_EQ(found(0, 2), 0.25);
    EXPECT_EQ(found(0, 1), 2);
    EXPECT_FALSE(found.has(1, 2));
}

TEST(DistanceFile, WhatDoesNotFitIsToldAtItsCell)
{
    struct Row
    {
        QByteArray text;
        ErrorNumber error;
        int line;
        int field;
    };
    const Row rows[] = {
        {",A,B,D\nA,0,1,2\nB,1,0,3\nD,2,3,0\n", ErrorNumber::TypeMismatch, 1, 4}, // another name
        {",A,B,B\nA,0,1,2\nB,1,0,3\nB,2,3,0\n", ErrorNumber::TypeMismatch, 1, 4}, // a name twice
        {",A,B,C\nA,0,1,2\nC,2,3,0\nB,1,0,3\n", ErrorNumber::TypeMismatch, 3, 1}, // lines in another order
        {",A,B\nA,0,1\nB,1,0\n", ErrorNumber::SubscriptOutOfRange, 2, 1},         // too small
        {",A,B,C,D\nA,0,1,2,3\n", ErrorNumber::SubscriptOutOfRange, 1, 5},        // too large
        {",A,B,C\nA,0,1,2,9\n", ErrorNumber::SubscriptOutOfRange, 2, 5},          // a cell too many
        {",A,B,C\nA,0,1\nB,1,0,3\n", ErrorNumber::SubscriptOutOfRange, 3, 1},     // one too few
        {",A,B,C\nA,0,1,2\nB,1,0,3\nC,2,3,0\nC,2,3,0\n", ErrorNumber::SubscriptOutOfRange, 5, 1},
        {",A,B,C\nA,0,1,2\nB,1,0,3\n", ErrorNumber::InputPastEndOfFile, 4, 1},
        {",A,B,C\nA,0,1,2\nB,1.5,0,3\nC,2,3,0\n", ErrorNumber::TypeMismatch, 3, 2},   // not symmetric
        {",A,B,C\nA,0,,2\nB,1,0,3\nC,2,3,0\n", ErrorNumber::TypeMismatch, 3, 2},      // nor where it is empty
        {",A,B,C\nA,0,-1,2\nB,-1,0,3\nC,2,3,0\n", ErrorNumber::TypeMismatch, 2, 3},   // negative
        {",A,B,C\nA,0,far,2\nB,far,0,3\nC,2,3,0\n", ErrorNumber::TypeMismatch, 2, 3}, // a word
        {",A,B,C\nA,0,\"0,125\",2\nB,\"0,125\",0,3\nC,2,3,0\n", ErrorNumber::TypeMismatch, 2, 3}, // no 125
        {",A,B,C\nA,0,nan,2\nB,nan,0,3\nC,2,3,0\n", ErrorNumber::TypeMismatch, 2, 3},
        {",A,B,C\nA,0,1e31,2\nB,1e31,0,3\nC,2,3,0\n", ErrorNumber::Overflow, 2, 3},
        {",A,B,C\nA,0,inf,2\nB,inf,0,3\nC,2,3,0\n", ErrorNumber::TypeMismatch, 2, 3},
        {",A,B,C\nA,0,1,2\nB,1,0.5,3\nC,2,3,0\n", ErrorNumber::TypeMismatch, 3, 3}, // the diagonal
        {";A;B;C\nA;0;1;2\nB;1;0;3\nC;2;3;0\n", ErrorNumber::SubscriptOutOfRange, 2, 1},
        {"", ErrorNumber::InputPastEndOfFile, 1, 1},
    };
    const TestDrive drive;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text.constData());
        drive.write(File, row.text);
        const RunTimeError error = errorOf([&] { readBack(drive, named({"A", "B", "C"}), 3); });
        EXPECT_EQ(error.number(), row.error);
        EXPECT_EQ(error.place().path, File);
        EXPECT_EQ(error.place().line, row.line);
        EXPECT_EQ(error.place().field, row.field);
    }
}
