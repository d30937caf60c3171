#include "mapdata/RegisteredMap.h"
#include "mapdata/forms/frmChizu.h"
#include "platform/StandardColors.h"
#include "platform/WholeFile.h"
#include "tests/support/Controls.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"

#include <QFile>
#include <QLineEdit>
#include <QPushButton>

namespace {

using Shown = ScriptedDialogs::Shown;

const QString Data = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\");

/// The map set-up form on the map of a `TestSurvey`, with a second map "\Isle" of half the height, in the
/// same folder.
class Chizu : public testing::Test
{
protected:
    Chizu()
    {
        survey.write(Data + QStringLiteral("Isle\\Map\\Line.map"),
                     "1\r\n0,3,1,0,0,0\r\n0,0\r\n500,0\r\n500,500\r\n");
        survey.write(Data + QStringLiteral("Isle\\Map\\Loc.map"), "1\r\n7,8\r\n");
        survey.write(Data + QStringLiteral("Isle\\Map\\kanji.map"),
                     "1\r\n20,30\r\n\"Isle\"\r\n1,2\r\n\"km\",4,200\r\n");
        survey.write(Data + QStringLiteral("Isle\\Ling\\rain.dbs"), "0,\"\",\"\",\"\"\r\n");
        varn.DrawTarget = &survey.frmMap;
    }

    void click(const char* name) { child<QPushButton>(form, name).click(); }
    QString text(const char* name) const { return child<QLineEdit>(form, name).text(); }
    void chooseMap(const QString& path, std::deque<bool> use)
    {
        dialogs.files = {varn.Drive.hostPath(path)};
        dialogs.yesNo = std::move(use);
        click("cmdRegMapName");
    }
    const Drawing& drawing() const { return form.surface().drawing(); }

    TestSurvey survey;
    VarnModule& varn = survey.varn;
    ScriptedDialogs dialogs;
    frmChizu form{varn, dialogs,
                  [this] {
                      return MapSurfaces{{*varn.DrawTarget, survey.frmMap}, survey.surfaces.area};
                  },
                  [this] { return mayChangeMap; }};
    bool mayChangeMap = true;
};

} // namespace

TEST_F(Chizu, EveryPartIsLoadedAndDrawnAtItsPlace)
{
    varn.NLine = 0; // each part is read from its file again
    varn.NLocality = 0;
    varn.NKanji = 0;
    click("cmdCurveLine");
    EXPECT_EQ(operationsOf<PolylineOperation>(drawing()).size(), 1U);
    EXPECT_TRUE(drawing().texts.empty());
    varn.Scale = 0;
    click("cmdMoji");
    EXPECT_NEAR(printedAt(drawing(), QStringLiteral("Town")).x(), 400 * 8.82 + 50, 1);
    click("cmdChiten");
    const auto circles = operationsOf<EllipseOperation>(drawing());
    ASSERT_EQ(circles.size(), 6U);
    EXPECT_NEAR(circles[0].x, 100 * 8.82 + 50, 1);
    EXPECT_NEAR(circles[0].y, 200 * 8.82 + 50, 1);
    EXPECT_EQ(circles[0].fill, QBColor(10));
    EXPECT_EQ(drawing().pens[static_cast<std::size_t>(circles[1].pen)].color, QBColor(12));
    EXPECT_NEAR(varn.ScreenXY(3, 1), 600.5 * 8.82 + 50, 1);
    EXPECT_EQ(operationsOf<PolylineOperation>(drawing()).size(), 1U + 6) << "parts lie on each other";
    EXPECT_TRUE(survey.frmMap.drawing().operations.empty());
    EXPECT_EQ(dialogs.errors, std::vector<Shown>());

    form.Form_Load();
    EXPECT_TRUE(drawing().operations.empty());
}

TEST_F(Chizu, ABlankMapStandsAloneOnThisForm)
{
    survey.frmMap.Print(QStringLiteral("old map"));
    for (int twice = 0; twice < 2; ++twice) {
        click("cmdBlankMap");
        EXPECT_EQ(operationsOf<TextOperation>(drawing()).size(), 4U);
    }
    EXPECT_TRUE(survey.frmMap.drawing().operations.empty()) << "the map form's drawing is cleared";
    EXPECT_EQ(varn.DrawTarget, &survey.frmMap);
}

TEST_F(Chizu, MissingFilesAreToldAndTheTargetIsTheMapFormAgain)
{
    const std::pair<const char*, const char*> rows[] = {
        {"cmdCurveLine", "Line.map"}, {"cmdChiten", "loc.map"}, {"cmdMoji", "kanji.map"}};
    for (const auto& [button, file] : rows) {
        QFile::remove(varn.Drive.hostPath(Data + QStringLiteral("Test\\Map\\") + QLatin1String(file)));
        click(button);
        ASSERT_FALSE(dialogs.errors.empty());
        EXPECT_EQ(dialogs.errors.back().title, QStringLiteral("Run-time error '53': File not found"));
        EXPECT_TRUE(dialogs.errors.back().text.contains(QStringLiteral("Map\\") + QLatin1String(file)));
        EXPECT_EQ(varn.NLine * varn.NLocality * varn.NKanji, 6) << "what was loaded stays";
    }
    varn.NLine = 0;
    click("cmdBlankMap");
    EXPECT_EQ(dialogs.errors.back().title, QStringLiteral("Run-time error '11': Division by zero"));
    EXPECT_EQ(varn.DrawTarget, &survey.frmMap);
}

TEST_F(Chizu, AMapIsChosenByAnyOfItsFilesAndRegistered)
{
    varn.MapFontName = QStringLiteral("Times");
    varn.MapFontBold = true;
    varn.SpecialFontShift = -1.5F;
    for (const char* file : {"Isle\\Ling\\rain.dbs", "Test\\Map\\Loc.map", "Isle\\Map\\Line.map"}) {
        chooseMap(Data + QLatin1String(file), {true});
        const QString name = QString::fromLatin1(file).left(4);
        EXPECT_EQ(text("txtMapName"), name);
        EXPECT_EQ(text("txtPathName"), QStringLiteral("C:\\Varn62E\\Varn"));
        EXPECT_EQ(varn.LingFolder, QStringLiteral("\\VarnData\\%1\\Ling").arg(name));
        const QPointF path = printedAt(drawing(), QStringLiteral("C:\\Varn62E\\Varn"));
        EXPECT_EQ(path, QPointF(50, 9000 - 200)) << "in the lower left corner";
        EXPECT_EQ(drawing().fonts.back().size, 8);
        EXPECT_EQ(survey.read(registeredMapFile()),
                  "\"C:\\Varn62E\\Varn\",\"\\" + name.toLatin1() + "\",\"Times\",10,#TRUE#,#FALSE#,-1.5\r\n");
    }
    EXPECT_EQ(dialogs.shown.back(),
              (Shown{QStringLiteral("Will you use this map ?"), QStringLiteral("Name of Map")}));
    EXPECT_TRUE(wasPrinted(drawing(), QStringLiteral("Isle")));
    EXPECT_EQ(varn.NLocality, 1);
    EXPECT_NEAR(varn.Scale, 0.98 * 9000 / 500, 0.01) << "the map is drawn as large as on the map form";
}

TEST_F(Chizu, NoWritesNothingAndKeepsTheChosenMap)
{
    chooseMap(Data + QStringLiteral("Isle\\Map\\Loc.map"), {false});
    EXPECT_FALSE(fileExists(varn.Drive, registeredMapFile()));
    EXPECT_EQ(varn.VarnMapName, QStringLiteral("\\Isle"));
}

TEST_F(Chizu, AFileOfNoMapAndABadMapChangeNothing)
{
    int signalled = 0;
    QObject::connect(&form, &frmChizu::mapChosen, [&signalled] { ++signalled; });
    survey.write(QStringLiteral("C:\\elsewhere\\Loc.map"), "0\r\n");
    chooseMap(QStringLiteral("C:\\elsewhere\\Loc.map"), {});
    EXPECT_EQ(dialogs.shown.back().text,
              QStringLiteral("The file is not in the folder of a map under \\VarnData."));
    mayChangeMap = false;
    chooseMap(Data + QStringLiteral("Isle\\Map\\Loc.map"), {});
    EXPECT_EQ(dialogs.errors, std::vector<Shown>()) << "the user keeps his work on the current map";
    mayChangeMap = true;
    QFile::remove(varn.Drive.hostPath(Data + QStringLiteral("Isle\\Map\\Loc.map")));
    chooseMap(Data + QStringLiteral("Isle\\Map\\Line.map"), {});
    ASSERT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(dialogs.errors[0].title, QStringLiteral("Run-time error '53': File not found"));
    dialogs.files = {std::nullopt};
    click("cmdRegMapName");
    EXPECT_EQ(varn.VarnMapName, QStringLiteral("\\Test"));
    EXPECT_EQ(varn.LinePoints(1), 5);
    EXPECT_EQ(text("txtMapName"), QStringLiteral("Test"));
    EXPECT_EQ(signalled, 0);
}

TEST_F(Chizu, AMapNeedsOnlyItsLocalities)
{
    const QString folder = Data + QStringLiteral("Isle\\Map\\");
    QFile::remove(varn.Drive.hostPath(folder + QStringLiteral("kanji.map")));
    chooseMap(folder + QStringLiteral("Loc.map"), {true});
    EXPECT_EQ(dialogs.shown[1].text,
              QStringLiteral("The map lacks these files; what they hold stays empty:\r\n") + folder +
                  QStringLiteral("kanji.map"));
    EXPECT_EQ(operationsOf<PolylineOperation>(drawing()).size(), 1U) << "the lines, and no scale bar";

    QFile::remove(varn.Drive.hostPath(folder + QStringLiteral("Line.map")));
    chooseMap(folder + QStringLiteral("Loc.map"), {true});
    EXPECT_TRUE(dialogs.shown[dialogs.shown.size() - 2].text.contains(QStringLiteral("Line.map")));
    EXPECT_EQ(varn.NLine + varn.NKanji, 0);
    EXPECT_EQ(varn.NLocality, 1);
    EXPECT_EQ(dialogs.errors, std::vector<Shown>());
    EXPECT_TRUE(fileExists(varn.Drive, registeredMapFile()));
}
