#include "mapdata/RegisteredMap.h"
#include "platform/WholeFile.h"
#include "tests/support/TestProgram.h"
#include "tests/support/Transcript.h"

#include <QFile>
#include <QLineEdit>

namespace {

const QString Data = VarnPath + QStringLiteral("\\VarnData\\");
const QString Isle = Data + QStringLiteral("Isle\\Map\\");

/// The map set-up form on the map of a `TestSurvey`, with a second map "\Isle" of half the height, in the
/// same folder.
class Chizu : public StartedForms
{
protected:
    Chizu()
    {
        survey.write(Isle + "Line.map", "1\r\n0,3,1,0,0,0\r\n0,0\r\n500,0\r\n500,500\r\n");
        survey.write(Isle + "Loc.map", "1\r\n7,8\r\n");
        survey.write(Isle + "kanji.map", "1\r\n20,30\r\n\"Isle\"\r\n1,2\r\n\"km\",4,200\r\n");
        program.click("cmdRegMap");
        dialogs.shown.clear();
    }

    void chooseMap(const QString& path, std::deque<bool> use)
    {
        dialogs.files = {survey.drive().hostPath(path)};
        dialogs.yesNo = std::move(use);
        press<frmChizu>("cmdRegMapName");
    }
    void remove(const QString& path) const { QFile::remove(survey.drive().hostPath(path)); }
    const Drawing& drawing() const { return chizu.surface().drawing(); }

    frmChizu& chizu = form<frmChizu>();
    VarnModule& varn = program.varn;
    ScriptedDialogs& dialogs = program.dialogs;
};

} // namespace

TEST_F(Chizu, EveryPartIsLoadedAndDrawnAtItsPlaceOnThisForm)
{
    program.menu("mnuMapBlank").trigger();
    press<frmChizu>("cmdBlankMap");
    EXPECT_TRUE(Program::drawing().operations.empty()) << "the map form's drawing is cleared";
    const std::string blank = transcript(drawing());
    EXPECT_TRUE(wasPrinted(drawing(), "Town"));
    press<frmChizu>("cmdBlankMap");
    EXPECT_EQ(transcript(drawing()), blank) << "it stands alone";
    chizu.Form_Load();
    EXPECT_TRUE(drawing().operations.empty());

    varn.NLine = 0; // each part is read from its file again
    varn.NLocality = 0;
    varn.NKanji = 0;
    press<frmChizu>("cmdCurveLine");
    EXPECT_EQ(drawing().operations.size(), 1U);
    varn.Scale = 0;
    press<frmChizu>("cmdMoji");
    EXPECT_NEAR(printedAt(drawing(), "Town").x(), 400 * 8.82 + 50, 1);
    press<frmChizu>("cmdChiten");
    const auto circles = operationsOf<EllipseOperation>(drawing());
    ASSERT_EQ(circles.size(), 6U);
    EXPECT_NEAR(circles[0].x, 100 * 8.82 + 50, 1);
    EXPECT_NEAR(varn.ScreenXY(3, 1), 600.5 * 8.82 + 50, 1);
    EXPECT_EQ(operationsOf<PolylineOperation>(drawing()).size(), 1U + 6) << "parts lie on each other";
    EXPECT_EQ(dialogs.errors, std::vector<Shown>());
}

TEST_F(Chizu, MissingFilesAreToldAndTheTargetIsTheMapFormAgain)
{
    const std::pair<const char*, QString> rows[] = {
        {"cmdCurveLine", "Map\\Line.map"}, {"cmdChiten", "Map\\loc.map"}, {"cmdMoji", "Map\\kanji.map"}};
    for (const auto& [button, file] : rows) {
        remove(Data + "Test\\" + file);
        press<frmChizu>(button);
        ASSERT_FALSE(dialogs.errors.empty());
        EXPECT_EQ(dialogs.errors.back().title, "Run-time error '53': File not found");
        EXPECT_TRUE(dialogs.errors.back().text.contains(file));
        EXPECT_EQ(varn.NLine * varn.NLocality * varn.NKanji, 6) << "what was loaded stays";
    }
    varn.NLine = 0;
    press<frmChizu>("cmdBlankMap");
    EXPECT_EQ(dialogs.errors.back().title, "Run-time error '11': Division by zero");
    EXPECT_EQ(varn.DrawTarget, &Program::map().surface());
}

TEST_F(Chizu, AMapIsChosenByAnyOfItsFilesAndRegistered)
{
    chooseMap(Isle + "Loc.map", {false});
    EXPECT_FALSE(fileExists(varn.Drive, registeredMapFile()));
    EXPECT_EQ(varn.VarnMapName, "\\Isle") << "No writes nothing and keeps the map";
    for (const auto& [file, name] :
         {std::pair("Test\\Ling\\rain.dbs", "Test"), {"Isle\\Map\\Line.map", "Isle"}}) {
        chooseMap(Data + file, {true});
        EXPECT_EQ((control<frmChizu, QLineEdit>("txtMapName").text()), name);
        EXPECT_EQ(varn.LingFolder, QString("\\VarnData\\%1\\Ling").arg(name));
        EXPECT_EQ(survey.read(registeredMapFile()),
                  QByteArray("\"C:\\Varn62E\\Varn\",\"\\") + name + "\",\"Arial\",12,#TRUE#,#FALSE#,0\r\n");
    }
    EXPECT_EQ(dialogs.shown.back(), (Shown{"Will you use this map ?", "Name of Map"}));
    EXPECT_EQ(printedAt(drawing(), VarnPath), QPointF(50, 9000 - 200)) << "in the lower left corner";
    EXPECT_EQ(drawing().fonts.back().size, 8);
    EXPECT_TRUE(wasPrinted(drawing(), "Isle"));
    EXPECT_EQ(varn.NLocality, 1);
    EXPECT_NEAR(varn.Scale, 0.98 * 9000 / 500, 0.01) << "the map is drawn as large as on the map form";

    const QString lacks = "The map lacks these files; what they hold stays empty:\r\n";
    // A map needs only its localities.
    for (const auto& [file, lines] : {std::pair("kanji.map", 1U), {"Line.map", 0U}}) {
        remove(Isle + file);
        chooseMap(Isle + "Loc.map", {true});
        EXPECT_EQ(operationsOf<PolylineOperation>(drawing()).size(), lines) << "and no scale bar";
    }
    EXPECT_EQ(dialogs.shown.end()[-2].text, lacks + Isle + "Line.map\r\n" + Isle + "kanji.map");
    EXPECT_EQ(varn.NLine + varn.NKanji, 0);
    EXPECT_EQ(dialogs.errors, std::vector<Shown>());
}

TEST_F(Chizu, AFileOfNoMapAndABadMapChangeNothing)
{
    survey.write("C:\\elsewhere\\Loc.map", "0\r\n");
    chooseMap("C:\\elsewhere\\Loc.map", {});
    EXPECT_EQ(dialogs.shown.back().text, "The file is not in the folder of a map under \\VarnData.");
    remove(Isle + "Loc.map");
    chooseMap(Isle + "Line.map", {});
    EXPECT_EQ(dialogs.errors.size(), 1U);
    dialogs.files = {std::nullopt};
    press<frmChizu>("cmdRegMapName");
    EXPECT_EQ(varn.VarnMapName, "\\Test");
    EXPECT_EQ(varn.LinePoints(1), 5);
    EXPECT_TRUE(drawing().operations.empty());
}
