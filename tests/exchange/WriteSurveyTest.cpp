#include "exchange/WriteSurvey.h"

#include "exchange/SurveyLimits.h"
#include "lingdata/LinguisticFile.h"
#include "mapdata/MapSearch.h"
#include "render/MadeSymbols.h"
#include "symbols/SymbolFile.h"
#include "tests/support/FailingStep.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/TestDrive.h"

#include <QDir>

#include <cerrno>

namespace {

const QString Maps = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\");

bool goOn(int /*done*/, int /*total*/, const QString& /*what*/)
{
    return true;
}

/// An installation with a map "Test", and a survey of two localities and one item.
struct WriteSurvey : testing::Test
{
    WriteSurvey()
    {
        folders.Drive = drive.drive();
        survey.localities.NLocality = 2;
        survey.localities.LocXY(2, 0) = 12.5F;
        survey.names.localityNames = {{QStringLiteral("a"), QStringLiteral("Ann"), 5, 6}, {}};
        const SourceItem item{QStringLiteral("say \"rain\""), {{QStringLiteral("ra\"in"), word}, {}}};
        survey.items.push_back({QStringLiteral("001-rain"), item,
                                makeSymbols({kindsByFrequency(item.answers)}, false, 2).front()});
        survey.report.tell(QStringLiteral("one\ntwo"));
    }

    QStringList maps() const
    {
        return QDir(drive.drive().hostPath(Maps))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    TestSurvey drive;
    Folders folders;
    NewSurvey survey;
    const QString word = QStringLiteral("\u014Ba, b");
};

} // namespace

TEST_F(WriteSurvey, TheMapIsThereAsItWasMade)
{
    EXPECT_TRUE(writeSurvey(survey, folders, QStringLiteral("New"), goOn));
    BaseMap map;
    chooseMap({folders.VarnPath, QStringLiteral("\\New")}, folders, map);
    loadLocalityNames(folders, map);
    EXPECT_EQ(map.LocXY(2, 0), 12.5F);
    EXPECT_EQ(map.localityNames, survey.names.localityNames);
    const QString path = folders.dataFolder() + QStringLiteral("\\001-rain");
    const ItemAnswers item = readSequentialFile(folders.Drive, path + QStringLiteral(".dbs"), readItem);
    EXPECT_EQ(item.Hanrei, survey.items[0].source.name);
    EXPECT_EQ(item.NLocate, 2);
    EXPECT_EQ(item.WordTotal, 2);
    EXPECT_EQ(item.WordData(1, 2), word);
    const SymbolSet symbols = readSequentialFile(folders.Drive, path + QStringLiteral(".han"), readSymbolSet);
    EXPECT_EQ(static_cast<const SymbolRecords&>(symbols), survey.items[0].symbols);
    EXPECT_EQ(drive.read(Maps + QStringLiteral("New\\Import.txt")), "one\r\ntwo\r\n");
    EXPECT_EQ(maps(),
              QStringList({QStringLiteral("New"), QStringLiteral("Square.sbl"), QStringLiteral("Test")}));
}

TEST_F(WriteSurvey, NothingIsLeftOfAMapThatIsNotComplete)
{
    const QStringList before = maps();
    const auto stop = [](int, int, const QString&) { return false; };
    EXPECT_FALSE(writeSurvey(survey, folders, QStringLiteral("New"), stop));
    EXPECT_EQ(maps(), before);
    const RunTimeError error = errorOf([&] {
        const FileSizeLimit disk(40);
        writeSurvey(survey, folders, QStringLiteral("New"), goOn);
    });
    EXPECT_EQ(error.number(), ErrorNumber::DeviceIOError);
    EXPECT_TRUE(error.place().path.startsWith(Maps + QStringLiteral("New\\"))) << error.what();
    EXPECT_EQ(maps(), before);
    const RunTimeError misplaced = errorOf([&] {
        const FailingStep rename(SaveStep::Rename, EACCES);
        writeSurvey(survey, folders, QStringLiteral("New"), goOn);
    });
    EXPECT_EQ(misplaced.place().path, Maps + QStringLiteral("New"));
    EXPECT_EQ(maps(), before);
}

TEST_F(WriteSurvey, AMapNeedsANameOfItsOwnThatEverySystemTakes)
{
    for (const char* name :
         {"Test", "tEST", "", "a/b", "..", ".hidden", "end.", "end ", "nul", "LPT1.x", "a\nb"}) {
        EXPECT_EQ(errorOf([&] { requireNewMap(folders, QLatin1String(name)); }).number(),
                  ErrorNumber::BadFileName)
            << name;
    }
    requireNewMap(folders, QStringLiteral("nulla \u65B9\u8A00"));
    folders.VarnPath = QStringLiteral("C:\\Elsewhere");
    EXPECT_EQ(errorOf([&] { requireNewMap(folders, QStringLiteral("New")); }).number(),
              ErrorNumber::PathNotFound);
}

TEST(SurveyLimits, WhatAMapCannotHoldIsLeftOutAndTold)
{
    SourceSurvey survey;
    for (int i = 0; i < 1001; ++i) {
        survey.localities.push_back({QStringLiteral("p%1").arg(i), {}, {i / 100.0, 50}});
    }
    const QStringList six = {QStringLiteral(" a\n b"), QString(),           QStringLiteral("c"),
                             QStringLiteral("d"),      QStringLiteral("e"), QStringLiteral("f"),
                             QStringLiteral("g")};
    survey.items = {{QStringLiteral("rain"), {six}},
                    {QStringLiteral("snow"), std::vector<QStringList>(1001)},
                    {QStringLiteral("hail"), {{QStringLiteral("\\A1x")}}}};
    survey.items[1].answers[1000] = {QStringLiteral("far")};
    SourceSurvey coded = survey;
    survey.items[2].answers[0] << QStringLiteral("r\\");
    keepToLimits(survey);
    EXPECT_EQ(survey.localities.size(), 1000U);
    ASSERT_EQ(survey.items.size(), 2U);
    EXPECT_EQ(survey.items[0].answers[0],
              QStringList({QStringLiteral("a b"), six[2], six[3], six[4], six[5]}));
    EXPECT_EQ(survey.items[1].answers[0],
              QStringList({QStringLiteral("\u2216A1x"), QStringLiteral("r\u2216")}));
    const QString report = survey.report.text();
    for (const char* line : {"0.00 to 9.99, 10.00 to 10.00", "localities beyond 1000: 1 (p1000)",
                             "answers beyond five at a locality: 1 (rain at p0: g)",
                             "items without answers: 1 (snow)", "letters, is written as \u2216: 2 ("}) {
        EXPECT_TRUE(report.contains(QString::fromUtf8(line))) << line << '\n' << report.toStdString();
    }
    keepToLimits(coded);
    EXPECT_EQ(coded.items[1].answers[0], QStringList(QStringLiteral("\\A1x")))
        << "codes of this program stay";
}
