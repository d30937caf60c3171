#include "platform/WholeFile.h"
#include "platform/forms/SurfaceView.h"
#include "tests/support/TestProgram.h"

#include <QAbstractItemView>
#include <QFile>
#include <QFrame>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollArea>
#include <QTimer>

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
    program.dialogs.yesNo = {true, false};
    program.start(InstallationFolder);
    EXPECT_EQ(drive.read(glyph), glyphBytes) << "a missing glyph is laid down again";
    EXPECT_FALSE(fileExists(drive.drive(), localities)) << "the sample is laid down only as a whole";
    EXPECT_EQ(drive.read(places), "mine");
    EXPECT_EQ(drive.read(codes), "0\r\n");
    EXPECT_EQ(program.varn.VarnMapName, QStringLiteral("\\Other"));
    EXPECT_EQ(program.dialogs.shown.back().text, QStringLiteral("There is no map Other. Make a new one?"));
    EXPECT_EQ(program.dialogs.errors, std::vector<Shown>()) << "a map that is not there is told once";
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

TEST_F(Forms, FilesMissingAtStartAreToldOnceAndTheFormOpens)
{
    const QString folder = survey.drive().hostPath(VarnPath + QStringLiteral("\\VarnData\\Test\\Map\\"));
    QFile::remove(folder + QStringLiteral("/Loc.map"));
    QFile::remove(folder + QStringLiteral("/Line.map"));
    Program program(survey);
    start(program);
    ASSERT_EQ(program.dialogs.errors.size(), 1U);
    EXPECT_EQ(program.dialogs.errors[0].title, QStringLiteral("Run-time error '53': File not found"));
    for (const char* name : {"Map\\Line.map", "Map\\Loc.map"}) {
        EXPECT_TRUE(program.dialogs.errors[0].text.contains(QLatin1String(name))) << name;
    }
    EXPECT_EQ(program.varn.NKanji, 2);

    program.click("cmdMapName");
    EXPECT_EQ(program.dialogs.errors.back().title, QStringLiteral("Run-time error '11': Division by zero"));
    EXPECT_EQ(program.varn.DrawTarget, &program.map().surface()) << "also after a preview that failed";
}

TEST_F(Forms, AMapNameFileThatCannotBeReadIsToldAndReplacedIfTheUserWants)
{
    const std::pair<QByteArray, const char*> rows[] = {
        {"\"\\Test\",\"Arial\"", "Run-time error '62': Input past end of file"},
        {QByteArray(), "Run-time error '53': File not found"}};
    for (const auto& [contents, error] : rows) {
        QFile::remove(survey.drive().hostPath(MapNameFile));
        if (!contents.isEmpty()) {
            survey.write(MapNameFile, contents);
        }
        for (const bool now : {false, true}) {
            Program program(survey);
            program.dialogs.yesNo = {now};
            if (now) {
                program.dialogs.yesNo.push_back(false);
                program.dialogs.inputs = {QStringLiteral("Test")};
            }
            program.start(nothing.path());
            ASSERT_EQ(program.dialogs.errors.size(), 1U) << "no map, no files of a map";
            EXPECT_EQ(program.dialogs.errors[0].title, QLatin1String(error));
            EXPECT_EQ(program.dialogs.shown[0].text,
                      QStringLiteral("The map name could not be read. Input map name and font now?"));
            EXPECT_EQ(program.varn.NLocality, now ? 3 : 0);
        }
        EXPECT_EQ(survey.read(MapNameFile), "\"\\Test\",\"Arial\",10,#FALSE#,#FALSE#,0\r\n");
    }
}

TEST_F(Forms, MapNameAndDriveFileAreThereBeforeTheNameIsAskedFor)
{
    /// Notes what the map-name file holds while the map's name is asked for.
    struct Witness : ScriptedDialogs
    {
        std::optional<QString> input(const QString&, const QString&, const QString& initial) override
        {
            EXPECT_EQ(drive->read(DriveFile), "\"C:\\Varn62E\\\"\r\n");
            held = drive->read(MapNameFile);
            EXPECT_EQ(initial, QString());
            return QStringLiteral("Test");
        }
        const TestDrive* drive = nullptr;
        QByteArray held;
    };
    QFile::remove(survey.drive().hostPath(DriveFile));
    QFile::remove(survey.drive().hostPath(MapNameFile));
    Witness dialogs;
    dialogs.drive = &survey;
    dialogs.yesNo = {false};
    VarnModule varn;
    varn.Drive = survey.drive();
    frmMain main(varn, dialogs);
    main.Form_Load(nothing.path());
    EXPECT_EQ(dialogs.held, "\"\",\"Arial\",10,#FALSE#,#FALSE#,0\r\n");
    EXPECT_EQ(survey.read(MapNameFile), "\"\\Test\",\"Arial\",10,#FALSE#,#FALSE#,0\r\n");
}

TEST_F(StartedForms, CheckMapNameDrawsThePreviewAndAsks)
{
    const QImage empty = child<SurfaceView>(program.main, "picPreview").grab().toImage();
    program.dialogs.yesNo = {false};
    program.click("cmdMapName");
    EXPECT_GT(program.varn.Scale, 0);
    EXPECT_EQ(program.dialogs.shown.back(),
              (Shown{QStringLiteral("Is this a right map name ? "), QStringLiteral("Map Name")}));
    EXPECT_EQ(child<QLineEdit>(program.main, "txtVarnMapName").text(), QStringLiteral("Test"));
    EXPECT_TRUE(program.drawing().operations.empty()) << "the preview is the main form's own drawing";
    auto& preview = child<SurfaceView>(program.main, "picPreview");
    const QImage drawn = preview.grab().toImage();
    EXPECT_NE(drawn, empty);
    program.dialogs.yesNo = {true};
    program.click("cmdMapName");
    EXPECT_EQ(preview.grab().toImage(), drawn) << "drawn anew";
    program.click("cmdRegMap");
    EXPECT_EQ(preview.grab().toImage(), empty) << "another map may be chosen";
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
    const QString path = VarnPath + QStringLiteral("\\VarnData\\Test\\Ling\\gone.dbs");
    EXPECT_TRUE(program.dialogs.errors[0].text.contains(path));
    EXPECT_TRUE(program.dialogs.errors[0].text.endsWith(QStringLiteral("\nOn this machine: ") +
                                                        DriveC().hostPath(path)));
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
    auto& panel = child<QFrame>(program.map(), "fraStyle");
    for (const char* draw : {"mnuMapBlank", "mnuHanrei", "mnuSymbols", "mnuHankoList"}) {
        program.menu("mnuHpos").trigger();
        EXPECT_TRUE(panel.isVisible()) << draw;
        const QRect map = child<QWidget>(program.map(), "picMap").visibleRegion().boundingRect();
        EXPECT_EQ(panel.geometry().top(), map.top() + 12);
        EXPECT_NEAR(panel.geometry().right(), map.right() - 12, 1);
        EXPECT_EQ(program.map().focusWidget(), &child<QWidget>(panel, "optHankoCenter"));
        program.menu(draw).trigger();
        EXPECT_FALSE(panel.isVisible()) << draw;
    }
    int place = 0;
    for (const char* option :
         {"optHankoCenter", "optHankoRight", "optHankoLeft", "optHankoUp", "optHankoDown"}) {
        child<QRadioButton>(panel, option).click();
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

namespace {

QAbstractItemModel& enteredWords()
{
    return *control<frmDataInput, QAbstractItemView>("tblWords").model();
}

void enterWord(const Program& program, const QString& word)
{
    program.click("cmdInputData");
    EXPECT_TRUE(enteredWords().setData(enteredWords().index(1, 0), word));
}

} // namespace

TEST_F(Forms, UnsavedWorkIsOfferedWhenTheProgramStartsAgain)
{
    const QString word = QStringLiteral("mi");
    const auto endProgram = [](const Program& program, bool byExit) {
        if (byExit) {
            QTimer::singleShot(0, [&program] { program.click("cmdExit"); });
            QApplication::exec();
        } else { // a while passes, then a crash
            program.main.findChild<QTimer*>()->setInterval(0);
            QApplication::processEvents();
        }
    };
    for (const bool byExit : {true, false}) {
        {
            Program program(survey);
            start(program);
            enterWord(program, word);
            endProgram(program, byExit);
        }
        for (const bool open : {true, false}) {
            Program program(survey);
            program.dialogs.yesNo = {true, open};
            program.start(nothing.path());
            ASSERT_EQ(program.dialogs.shown.size(), 2U) << byExit << open;
            EXPECT_EQ(program.dialogs.shown[1].text,
                      QStringLiteral("Unsaved work of map Test was kept when the program ended: item without "
                                     "a name. Open it?"));
            EXPECT_EQ(form<frmDataInput>().isWindowModified(), open);
            EXPECT_EQ(form<frmDataInput>().isVisible(), open);
            EXPECT_EQ(enteredWords().index(1, 0).data().toString(), open ? word : QString());
        }
        Program program(survey);
        start(program);
        EXPECT_EQ(program.dialogs.shown.size(), 1U) << "No removes it";
    }
}

TEST_F(Forms, ClosingAsksForUnsavedWorkOfHiddenFormsAndKeepsNoneThatWasGivenUp)
{
    {
        Program program(survey);
        start(program);
        enterWord(program, QStringLiteral("mi"));
        form<frmDataInput>().hide();
        program.main.findChild<QTimer*>()->setInterval(0);
        QApplication::processEvents();
        program.dialogs.yesNo = {false, true};
        program.main.show();
        EXPECT_FALSE(program.main.close());
        EXPECT_TRUE(program.main.close());
        QApplication::processEvents(); // nothing is kept any more
    }
    Program program(survey);
    start(program);
    EXPECT_EQ(program.dialogs.shown.size(), 1U);
}

TEST_F(Forms, KeptWorkThatCannotBeReadIsToldAndDoesNotBlockTheStart)
{
    survey.write(VarnPath + QStringLiteral("\\Recovery\\old\\contents.dat"), "\"C:");
    for (const std::size_t messages : {2U, 1U}) {
        Program program(survey);
        start(program);
        EXPECT_EQ(program.dialogs.shown.size(), messages) << "told once";
        EXPECT_EQ(program.dialogs.errors.size(), messages - 1);
        EXPECT_EQ(program.varn.NLocality, 3);
    }
}

TEST_F(StartedForms, AChangeOfMapIsSeenInAllForms)
{
    const QString isle = VarnPath + QStringLiteral("\\VarnData\\Isle\\Map\\");
    survey.write(isle + QStringLiteral("Loc.map"), "1\r\n7,8\r\n");
    survey.write(isle + QStringLiteral("Line.map"), "0\r\n");
    survey.write(isle + QStringLiteral("kanji.map"), "0\r\n1,2\r\n\"km\",1,100\r\n");
    program.load("mnuInputWord", "rain.dbs");
    program.load("mnuHankoInput", "rain.han");
    program.menu("mnuMapLing").trigger();
    for (const char* button : {"cmdData", "cmdHanko", "cmdSumUp"}) {
        program.click(button);
    }
    control<frmCalc, QLineEdit>("txtTotalNumber").setText(QStringLiteral("2"));
    press<frmCalc>("cmdTotalNumber");
    control<frmCalc, QLineEdit>("txtExplain").setText(QStringLiteral("unsaved"));
    enterWord(program, QStringLiteral("mi"));

    for (const bool lose : {false, true}) {
        program.dialogs.files = {survey.drive().hostPath(isle + QStringLiteral("Loc.map"))};
        program.dialogs.yesNo = {lose};
        if (lose) {
            program.dialogs.yesNo.push_back(true);
        }
        press<frmChizu>("cmdRegMapName");
        EXPECT_EQ(program.varn.VarnMapName, lose ? QStringLiteral("\\Isle") : QStringLiteral("\\Test"));
        EXPECT_EQ(enteredWords().rowCount(), lose ? 1 : 3);
        EXPECT_EQ(program.varn.NumWordforms, lose ? 0 : 2);
        EXPECT_EQ(program.drawing().operations.empty(), lose);
    }
    EXPECT_EQ(program.dialogs.shown[program.dialogs.shown.size() - 2].text,
              QStringLiteral("Unsaved work belongs to map Test and will be lost: item without a name, "
                             "cumulative data without a name. Choose the other map?"));
    EXPECT_FALSE(program.menu("mnuMapLing").isEnabled());
    const std::pair<QWidget*, const char*> titles[] = {
        {&program.main, "VARN - Isle"},
        {&program.map(), "VARN Map - Isle - rain.han"},
        {&form<frmDataInput>(), "VARN Input Linguistic Data - Isle[*]"},
        {&form<frmData>(), "VARN Display Data - Isle"},
        {&form<frmSetHanko>(), "Set Symbols for Kinds - Isle - rain.han[*]"},
        {&form<frmCalc>(), "Accumulate Data - Isle[*]"}};
    for (const auto& [window, title] : titles) {
        EXPECT_EQ(window->windowTitle(), QLatin1String(title));
    }
    EXPECT_EQ((control<frmSetHanko, QListWidget>("lstKindWord").count()), 0);
    EXPECT_EQ((control<frmCalc, QLineEdit>("txtExplain").text()), QString());
    EXPECT_EQ((control<frmCalc, QListWidget>("lstTotal").count()), 0);
}

TEST_F(Forms, FormsFitTheScreenAndTheirButtonsHoldTheirTextsInALargeFont)
{
    const QFont before = QApplication::font();
    const auto back = qScopeGuard([&before] { QApplication::setFont(before); });
    QFont large = before;
    large.setPointSize(24);
    QApplication::setFont(large);
    Program program(survey);
    start(program);
    int buttons = 0;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (qobject_cast<VarnForm*>(window) == nullptr) {
            continue;
        }
        window->show();
        QApplication::processEvents();
        const QSize screen = window->screen()->availableSize();
        EXPECT_LE(window->width(), screen.width()) << qPrintable(window->windowTitle());
        EXPECT_LE(window->height(), screen.height()) << qPrintable(window->windowTitle());
        for (const QPushButton* button : window->findChildren<QPushButton*>()) {
            const QSize text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
            EXPECT_TRUE(!button->isVisible() || button->width() > text.width()) << qPrintable(button->text());
            EXPECT_TRUE(!button->isVisible() || button->height() > text.height());
            ++buttons;
        }
    }
    EXPECT_GT(buttons, 50);
}

TEST_F(StartedForms, AFlatButtonShowsThatItHasTheFocus)
{
    const std::pair<QMainWindow*, const char*> buttons[] = {{&program.main, "lblDisplayPaperSize"},
                                                            {&program.map(), "lblInsatsumode"}};
    program.click("cmdSettingPrinter");
    for (const auto& [window, name] : buttons) {
        auto* button = window->findChild<QPushButton*>(QLatin1String(name));
        window->show();
        window->activateWindow();
        QApplication::processEvents();
        button->clearFocus();
        const QImage without = button->grab().toImage();
        button->setFocus();
        ASSERT_TRUE(button->hasFocus()) << name;
        EXPECT_NE(button->grab().toImage(), without) << name;
    }
}
