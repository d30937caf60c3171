#include "platform/WholeFile.h"
#include "render/SurfaceView.h"
#include "tests/TestProgram.h"

#include <QFile>
#include <QFrame>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollArea>

TEST(FirstStart, NewUserGetsTheSampleAndKeepsWhatIsChanged)
{
    const TestDrive drive;
    const QString glyph = VarnPath + QStringLiteral("\\VarnSymbol\\Bold18\\SymbolS16.bmp");
    const QString codes = VarnPath + QStringLiteral("\\VarnData\\ExpSymbol.txt");
    const QString places = VarnPath + QStringLiteral("\\VarnData\\Sample\\Map\\kanji.map");
    const QString localities = VarnPath + QStringLiteral("\\VarnData\\Sample\\Map\\Loc.map");
    {
        Program program(drive);
        program.dialogs.yesNo = {true};
        program.start(InstallationFolder);
        EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
        ASSERT_EQ(program.dialogs.shown.size(), 1U);
        EXPECT_EQ(program.dialogs.shown[0].title, QStringLiteral("Map Name, Font"));
        EXPECT_GT(program.varn.NLocality, 0);
        EXPECT_EQ(program.varn.ExpSymbols.size(), 54U);
    }
    EXPECT_EQ(drive.read(DriveFile), "\"C:\\Varn62E\\\"\r\n");
    EXPECT_EQ(drive.read(MapNameFile), "\"\\Sample\",\"Arial\",10,#FALSE#,#FALSE#,0\r\n");

    const QByteArray glyphBytes = drive.read(glyph);
    QFile::remove(drive.drive().hostPath(glyph));
    QFile::remove(drive.drive().hostPath(localities));
    drive.write(places, "mine");
    drive.write(codes, "0\r\n");
    drive.write(MapNameFile, "\"\\Other\",\"Arial\",14,#FALSE#,#FALSE#,0\r\n");
    Program program(drive);
    program.dialogs.yesNo = {true};
    program.start(InstallationFolder);
    EXPECT_EQ(drive.read(glyph), glyphBytes) << "a missing glyph is laid down again";
    EXPECT_FALSE(fileExists(drive.drive(), localities)) << "the sample is laid down only as a whole";
    EXPECT_EQ(drive.read(places), "mine");
    EXPECT_EQ(drive.read(codes), "0\r\n");
    EXPECT_EQ(program.varn.VarnMapName, QStringLiteral("\\Other"));
    EXPECT_EQ(program.dialogs.errors.size(), 3U) << "one for each file that the other map lacks";
    EXPECT_EQ(program.main.windowTitle(), QStringLiteral("VARN - Other"));
}

TEST(FirstStart, InstallationThatCannotBeWrittenIsToldAndTheFormOpens)
{
    const TestDrive drive;
    drive.write(QStringLiteral("C:\\Varn62E"), "a file where the folder should be");
    Program program(drive);
    program.start(InstallationFolder);
    ASSERT_FALSE(program.dialogs.errors.empty());
    EXPECT_EQ(program.dialogs.errors[0].title, QStringLiteral("Run-time error '70': Permission denied"));
    EXPECT_EQ(program.varn.MapFormHeight, 9000);
}

TEST_F(Forms, WithoutADriveFileMapAndFontAreAskedFor)
{
    QFile::remove(survey.drive().hostPath(DriveFile));
    Program program(survey);
    program.dialogs.inputs = {QStringLiteral("Test"), QStringLiteral("-1.5")};
    program.dialogs.yesNo = {true};
    program.dialogs.fonts = {TextFont{QStringLiteral("Times"), 14, true, false}};
    program.start(nothing.path());
    const std::vector<Shown> questions = {
        {QStringLiteral("Input Map Name"), QStringLiteral("Map Name of Varn")},
        {QStringLiteral("Input Font Name"), QStringLiteral("Setting of Fonts")},
        {QStringLiteral("Arial"), QStringLiteral("font")},
        {QStringLiteral("Input Vertical Position of Special Fonts.  Input (-3.0 to 3.0).  Default (0)\r\n"
                        "Move Upper for Smaller Number"),
         QStringLiteral("Vertical Position of Special Fonts")}};
    EXPECT_EQ(program.dialogs.shown, questions);
    EXPECT_EQ(survey.read(MapNameFile), "\"\\Test\",\"Times\",14,#TRUE#,#FALSE#,-1.5\r\n");
    EXPECT_TRUE(fileExists(survey.drive(), DriveFile));
    EXPECT_TRUE(program.varn.PhoneticBold);
    EXPECT_EQ(program.map().surface().FontName, QStringLiteral("Times"));
    EXPECT_EQ(program.varn.NLocality, 3);
}

TEST_F(Forms, NoToTheConfirmationAsksAgainAndACancelledDialogKeepsTheMap)
{
    Program program(survey);
    program.dialogs.yesNo = {false, false};
    program.dialogs.inputs = {std::nullopt};
    program.start(nothing.path());
    EXPECT_EQ(program.dialogs.shown.size(), 3U);
    EXPECT_EQ(survey.read(MapNameFile), "\"\\Test\",\"Arial\",12,#TRUE#,#FALSE#,0\r\n");
    EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
    EXPECT_EQ(program.map().surface().FontSize, 12);
    EXPECT_TRUE(program.map().surface().FontBold);
}

TEST_F(Forms, FilesMissingAtStartAreToldOnceEachAndTheFormOpens)
{
    const QString folder = survey.drive().hostPath(VarnPath + QStringLiteral("\\VarnData\\Test\\Map\\"));
    QFile::remove(folder + QStringLiteral("/Loc.map"));
    QFile::remove(folder + QStringLiteral("/Line.map"));
    {
        Program program(survey);
        start(program);
        ASSERT_EQ(program.dialogs.errors.size(), 2U);
        EXPECT_EQ(program.dialogs.errors[1].title, QStringLiteral("Run-time error '53': File not found"));
        const QString path = QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Map\\Loc.map");
        EXPECT_EQ(program.dialogs.errors[1].text,
                  QStringLiteral("File: %1\nOn this machine: %2").arg(path, DriveC().hostPath(path)));
        EXPECT_EQ(program.varn.NKanji, 2);

        program.click("cmdMapName");
        EXPECT_EQ(program.dialogs.errors.back().title,
                  QStringLiteral("Run-time error '11': Division by zero"));
        EXPECT_EQ(program.varn.DrawTarget, &program.map().surface()) << "also after a preview that failed";
    }
    QFile::remove(survey.drive().hostPath(MapNameFile));
    Program program(survey);
    program.start(nothing.path());
    EXPECT_EQ(program.dialogs.errors.size(), 1U) << "no map, no files of a map";
}

TEST_F(StartedForms, CheckMapNameDrawsThePreviewAndAsks)
{
    program.dialogs.yesNo = {false};
    program.click("cmdMapName");
    EXPECT_GT(program.varn.Scale, 0);
    EXPECT_EQ(program.dialogs.shown.back(),
              (Shown{QStringLiteral("Is this a right map name ? "), QStringLiteral("Map Name")}));
    EXPECT_EQ(program.main.findChild<QLineEdit*>(QStringLiteral("txtVarnMapName"))->text(),
              QStringLiteral("Test"));
    EXPECT_TRUE(program.drawing().operations.empty()) << "the preview is the main form's own drawing";
    EXPECT_EQ(program.varn.DrawTarget, &program.map().surface());
}

TEST_F(Forms, DataAndSymbolsInEitherOrderEnableTheLinguisticMap)
{
    const std::pair<const char*, const char*> item{"mnuInputWord", "rain.dbs"};
    const std::pair<const char*, const char*> symbols{"mnuHankoInput", "rain.han"};
    for (const auto& [first, second] : {std::pair(item, symbols), std::pair(symbols, item)}) {
        Program program(survey);
        start(program);
        program.load(first.first, first.second);
        EXPECT_FALSE(program.menu("mnuMapLing").isEnabled());
        program.load(second.first, second.second);
        EXPECT_TRUE(program.menu("mnuMapLing").isEnabled());
        auto* view = program.map().findChild<SurfaceView*>();
        const QImage emptyView = view->grab().toImage();
        program.menu("mnuMapLing").trigger();
        EXPECT_NE(view->grab().toImage(), emptyView);
        EXPECT_TRUE(wasPrinted(program.drawing(), QStringLiteral("Rain")));
        EXPECT_TRUE(wasPrinted(program.drawing(), QStringLiteral("UYU")));
        EXPECT_EQ(program.map().windowTitle(), QStringLiteral("VARN Map - Test - rain.dbs - rain.han"));
        EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
    }
}

TEST_F(StartedForms, AFailedOrCancelledLoadChangesNothing)
{
    program.load("mnuInputWord", "rain.dbs");
    program.load("mnuHankoInput", "rain.han");
    program.load("mnuInputWord", "gone.dbs");
    ASSERT_EQ(program.dialogs.errors.size(), 1U);
    EXPECT_TRUE(program.dialogs.errors[0].text.contains(QStringLiteral("Ling\\gone.dbs")));
    program.dialogs.files = {std::nullopt};
    program.menu("mnuInputWord").trigger();
    EXPECT_EQ(program.varn.Hanrei, QStringLiteral("Rain"));
    EXPECT_TRUE(program.menu("mnuMapLing").isEnabled());
    program.menu("mnuMapLing").trigger();
    EXPECT_TRUE(wasPrinted(program.drawing(), QStringLiteral("AME")));
}

TEST_F(StartedForms, PositionPanelShowsUntilTheNextDrawing)
{
    program.map().show();
    auto* panel = program.map().findChild<QFrame*>(QStringLiteral("fraStyle"));
    for (const char* draw : {"mnuMapBlank", "mnuHanrei", "mnuSymbols", "mnuHankoList"}) {
        program.menu("mnuHpos").trigger();
        EXPECT_TRUE(panel->isVisible()) << draw;
        program.menu(draw).trigger();
        EXPECT_FALSE(panel->isVisible()) << draw;
    }
    int place = 0;
    for (const char* option :
         {"optHankoCenter", "optHankoRight", "optHankoLeft", "optHankoUp", "optHankoDown"}) {
        panel->findChild<QRadioButton*>(QLatin1String(option))->click();
        EXPECT_EQ(program.varn.HankoPosition, place++);
    }
}

TEST_F(StartedForms, QuestionsDecideOnDotsAndFileName)
{
    for (const bool yes : {true, false}) {
        program.dialogs.yesNo = {yes, yes};
        program.menu("mnuChiten").trigger();
        program.menu("mnuStyle").trigger();
        program.menu("mnuMapBlank").trigger();
        EXPECT_EQ(operationsOf<EllipseOperation>(program.drawing()).size(), yes ? 3U : 0U);
        EXPECT_EQ(program.varn.WriteFileName, yes);
    }
    const auto& shown = program.dialogs.shown;
    EXPECT_EQ(shown[shown.size() - 2].text, QStringLiteral("Will you plot dots for localities ?"));
    EXPECT_EQ(shown.back().text, QStringLiteral("Will you print File Name?"));
}

TEST_F(StartedForms, MapHeightIsSetInMillimetres)
{
    struct Row
    {
        std::optional<QString> answer;
        float height;
    };
    const std::vector<Row> rows = {{QStringLiteral("100"), 5670},  {std::nullopt, 5670},
                                   {QStringLiteral("0.1"), 5.67F}, {QStringLiteral("0.05"), 9000},
                                   {QStringLiteral("300"), 17010}, {QStringLiteral("0"), 9000}};
    program.map().show();
    for (const Row& row : rows) {
        program.dialogs.inputs = {row.answer};
        program.menu("mnuMapSize").trigger();
        QApplication::processEvents();
        EXPECT_NEAR(program.map().surface().Height, row.height, row.height * 1e-5F);
        EXPECT_NEAR(program.map().surface().Width, row.height * 4 / 3, row.height * 1e-5F);
    }
}

TEST_F(StartedForms, DrawingAreaFollowsTheWindow)
{
    program.map().show();
    QApplication::processEvents();
    EXPECT_EQ(program.map().surface().Width, 12000);
    EXPECT_EQ(program.map().surface().Height, 9000);
    program.map().resize(640, 480);
    QApplication::processEvents();
    const QSize shown = program.map().findChild<QScrollArea*>()->viewport()->size();
    EXPECT_EQ(program.map().surface().Width, static_cast<float>(640 * TwipsPerPixel));
    EXPECT_EQ(program.map().surface().Height, static_cast<float>(shown.height() * TwipsPerPixel));
}

TEST_F(Forms, CatalogueStaysWithinItsPages)
{
    QByteArray polygons = "3\r\n";
    for (int k = 0; k < 3; ++k) {
        polygons += "2\r\n0,0,0\r\n-10,-5\r\n10,5\r\n";
    }
    survey.write(VarnPath + QStringLiteral("\\VarnData\\Square.sbl"), polygons);
    Program program(survey);
    start(program);
    const std::vector<std::pair<const char*, const char*>> steps = {
        {"mnuHankoList", "1"},   {"mnuHankoPrevious", "1"}, {"mnuHankoNext", "161"},
        {"mnuHankoNext", "161"}, {"mnuHankoPrevious", "1"}, {"mnuHankoNext", "161"},
        {"mnuHankoList", "1"},
    };
    for (const auto& [menu, first] : steps) {
        program.menu(menu).trigger();
        EXPECT_EQ(program.drawing().texts.at(0), QLatin1String(first)) << menu;
    }
}
