#include "mapdata/MapSearch.h"
#include "tests/support/TestDrive.h"

namespace {

const QString File = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Map\\Localities.csv");

} // namespace

TEST(LocalityNames, WhatIsWrittenComesBackAlsoFromASpreadsheet)
{
    TestSurvey survey;
    for (const bool plane : {false, true}) {
        const LocalityNames names{QStringLiteral("+proj=laea +lat_0=-5"),
                                  plane,
                                  {{QStringLiteral("a"), QStringLiteral("Bad \"Ort\", am See"), -145.25, 5.5},
                                   {QStringLiteral("b"), QStringLiteral("岡山"), 0.1, -90},
                                   {QStringLiteral("c"), QString(), 7, 8}}};
        writeSequentialFile(survey.drive(), File, [&](auto& file) { writeLocalityNames(file, names); });
        loadLocalityNames(survey.varn, survey.varn);
        EXPECT_EQ(static_cast<LocalityNames&>(survey.varn), names);
    }
    EXPECT_EQ(localityTitle(survey.varn, 2), QStringLiteral("2 岡山"));
    EXPECT_EQ(localityTitle(survey.varn, 3), QStringLiteral("3"));

    survey.write(File, "\xEF\xBB\xBFid,name,longitude,latitude,projection\n1,Amele,145.7,-5.25,+proj=laea\n"
                       "2,\"A, B\",145,-5,+proj=laea\n3,,145,-5,+proj=laea\n\n");
    loadLocalityNames(survey.varn, survey.varn);
    EXPECT_EQ(localityTitle(survey.varn, 1), QStringLiteral("1 Amele"));
    EXPECT_EQ(survey.varn.localityNames[1],
              (LocalityName{QStringLiteral("2"), QStringLiteral("A, B"), 145, -5}));
    EXPECT_EQ(survey.varn.projection, QStringLiteral("+proj=laea"));
}

TEST(LocalityNames, AFileThatDoesNotFitTheMapIsToldAndNamesNothing)
{
    const QByteArray head = "id,name,longitude,latitude,projection\n";
    const QByteArray row = "1,Amele,145.7,-5.25,+proj=laea\n";
    struct Row
    {
        QByteArray text;
        ErrorNumber error;
    };
    const Row rows[] = {
        {head + row + row, ErrorNumber::SubscriptOutOfRange},
        {head + row.repeated(4), ErrorNumber::SubscriptOutOfRange},
        {QByteArray(head + row.repeated(3)).replace(',', ';'), ErrorNumber::TypeMismatch},
        {head + row.repeated(2) + "3,Amele,145\xC2\xB0,-5,x\n", ErrorNumber::TypeMismatch},
        {head + row.repeated(2) + "3,Amele\n", ErrorNumber::InputPastEndOfFile},
    };
    TestSurvey survey;
    for (const Row& faulty : rows) {
        SCOPED_TRACE(faulty.text.constData());
        survey.varn.localityNames.resize(3);
        survey.write(File, faulty.text);
        const RunTimeError error = errorOf([&] { loadLocalityNames(survey.varn, survey.varn); });
        EXPECT_EQ(error.number(), faulty.error);
        EXPECT_EQ(error.place().path, File);
        EXPECT_TRUE(survey.varn.localityNames.empty());
    }
    EXPECT_EQ(localityTitle(survey.varn, 3), QStringLiteral("3"));
}
