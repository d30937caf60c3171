// The start of the program: its installation, map and font, and the unsaved work that was kept at its end.

#include "platform/WholeFile.h"
#include "tests/support/TestProgram.h"

#include <QFile>
#include <QTimer>

namespace {

const QString DataFolder = VarnPath + "\\VarnData\\";
const QByteArray TestFile = "\"\\Test\",\"Arial\",12,#TRUE#,#FALSE#,0\r\n";

/// The titles of the errors that were shown, then the messages and questions.
QString toldBy(const ScriptedDialogs& dialogs)
{
    QString told;
    for (const Shown& error : dialogs.errors) {
        told += error.title + '\n';
    }
    for (const Shown& shown : dialogs.shown) {
        told += '[' + shown.title + "] " + QString(shown.text).replace("\r\n", " / ") + '\n';
    }
    return told;
}

void enterAnItem(const Program& program)
{
    program.click("cmdInputData");
    enterWord(1, 0, "mi");
}

/// Lets the time pass after which unsaved work is kept.
void keepWork(const Program& program)
{
    program.main.findChild<QTimer*>()->setInterval(0);
    QApplication::processEvents();
}

} // namespace

TEST(FirstStart, NewUserGetsTheSampleAndKeepsWhatIsChanged)
{
    const TestDrive drive;
    const QString glyph = VarnPath + "\\VarnSymbol\\Bold18\\SymbolS16.bmp";
    const QString codes = DataFolder + "ExpSymbol.txt";
    const QString places = DataFolder + "Sample\\Map\\kanji.map";
    const QString localities = DataFolder + "Sample\\Map\\Loc.map";
    {
        Program program(drive);
        program.dialogs.yesNo = {true};
        program.start(InstallationFolder);
        EXPECT_EQ(toldBy(program.dialogs),
                  "[Map Name, Font] C:\\Varn62E\\ / Map Name Sample / Font Arial / Font Style 'Standard' / "
                  "Size of Fonts 10 OK?\n");
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
    drive.write(MapNameFile, "\"\\Other\",\"Arial\",14,#TRUE#,#TRUE#,0\r\n");
    Program program(drive);
    program.dialogs.yesNo = {true, false};
    program.start(InstallationFolder);
    EXPECT_EQ(drive.read(glyph), glyphBytes) << "a missing glyph is laid down again";
    EXPECT_FALSE(fileExists(drive.drive(), localities)) << "the sample is laid down only as a whole";
    EXPECT_EQ(drive.read(places) + drive.read(codes), "mine0\r\n");
    EXPECT_EQ(toldBy(program.dialogs),
              "[Map Name, Font] C:\\Varn62E\\ / Map Name Other / Font Arial / Font Style 'Bold Slant' / Size "
              "of Fonts 14 OK?\n[Map Name of Varn] There is no map Other. Make a new one?\n");
    EXPECT_EQ(program.main.windowTitle(), "VARN - Other");
}

TEST(FirstStart, InstallationThatCannotBeWrittenIsToldAndTheFormOpens)
{
    const TestDrive drive;
    drive.write("C:\\Varn62E", "a file where the folder should be");
    Program program(drive);
    program.start(InstallationFolder);
    EXPECT_TRUE(toldBy(program.dialogs).startsWith("Run-time error '70': Permission denied\n"));
    EXPECT_EQ(program.varn.MapFormHeight, 9000);
}

TEST_F(Forms, MapAndFontAreReadOrAskedFor)
{
    using Inputs = std::deque<std::optional<QString>>;
    using Fonts = std::deque<std::optional<TextFont>>;
    const auto answered = [this](const std::deque<bool>& yesNo, const Inputs& inputs, const Fonts& fonts) {
        Program program(survey);
        program.dialogs.yesNo = yesNo;
        program.dialogs.inputs = inputs;
        program.dialogs.fonts = fonts;
        program.start(nothing.path());
        EXPECT_EQ(program.map().surface().FontName, program.varn.MapFontName);
        EXPECT_EQ(program.map().surface().FontSize, program.varn.MapFontSize);
        EXPECT_EQ(program.map().surface().FontBold, program.varn.PhoneticBold);
        return toldBy(program.dialogs) + survey.read(MapNameFile) + QString::number(program.varn.NLocality);
    };
    const QString ask = "[Map Name of Varn] Input Map Name\n[Setting of Fonts] Input Font Name\n";
    const QString askFont =
        "[font] Arial\n[Vertical Position of Special Fonts] Input Vertical Position of "
        "Special Fonts.  Input (-3.0 to 3.0).  Default (0) / Move Upper for Smaller Number\n";
    EXPECT_EQ(
        answered({false, true}, {std::nullopt, std::nullopt}, {std::nullopt}),
        "[Map Name, Font] C:\\Varn62E\\ / Map Name Test / Font Arial / Font Style 'Bold' / Size of Fonts "
        "12 OK?\n" +
            ask + askFont + TestFile + "3");
    QFile::remove(survey.drive().hostPath(DriveFile));
    EXPECT_EQ(answered({true}, {"Test", "-1.5"}, {TextFont{"Times", 14, true, false}}),
              ask + askFont + "\"\\Test\",\"Times\",14,#TRUE#,#FALSE#,-1.5\r\n3");
    survey.write(MapNameFile, "\"\\Test\",\"Arial\"");
    const QString cannotRead = "Run-time error '62': Input past end of file\n[Map Name, Font] The map name "
                               "could not be read. Input map name and font now?\n";
    EXPECT_EQ(answered({false}, {}, {}), cannotRead + "\"\\Test\",\"Arial\"0") << "no map, no files of a map";
    EXPECT_EQ(answered({true, false}, {"Test"}, {}),
              cannotRead + ask + "\"\\Test\",\"Arial\",10,#FALSE#,#FALSE#,0\r\n3");
}

TEST_F(Forms, MapNameAndDriveFileAreThereBeforeTheNameIsAskedFor)
{
    /// Notes what the files hold while the map's name is asked for.
    struct Witness : ScriptedDialogs
    {
        std::optional<QString> input(const QString&, const QString&, const QString& initial) override
        {
            held = initial.toUtf8() + drive->read(DriveFile) + drive->read(MapNameFile);
            return "Test";
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
    EXPECT_EQ(dialogs.held, "\"C:\\Varn62E\\\"\r\n\"\",\"Arial\",10,#FALSE#,#FALSE#,0\r\n");
}

TEST_F(Forms, FilesMissingAtStartAreToldOnceAndTheFormOpens)
{
    const QStringList files = {DataFolder + "Test\\Map\\Loc.map", DataFolder + "Test\\Map\\Line.map"};
    for (const QString& file : files) {
        QFile::remove(survey.drive().hostPath(file));
    }
    Program program(survey);
    start(program);
    EXPECT_EQ(toldBy(program.dialogs).count("Run-time error '53': File not found\n"), 1);
    for (const QString& file : files) {
        EXPECT_TRUE(program.dialogs.errors.at(0).text.contains(file)) << qPrintable(file);
    }
    EXPECT_EQ(program.varn.NKanji, 2);

    program.click("cmdMapName");
    EXPECT_EQ(program.dialogs.errors.back().title, "Run-time error '11': Division by zero");
    EXPECT_EQ(program.varn.DrawTarget, &program.map().surface()) << "also after a preview that failed";
}

TEST_F(Forms, UnsavedWorkIsOfferedWhenTheProgramStartsAgain)
{
    for (const bool byExit : {true, false}) {
        SCOPED_TRACE(byExit ? "after Exit" : "after a crash");
        {
            Program program(survey);
            start(program);
            enterAnItem(program);
            if (byExit) {
                QTimer::singleShot(0, [&program] { program.click("cmdExit"); });
                QTimer::singleShot(5000, &program.main, [] { QCoreApplication::exit(1); });
                EXPECT_EQ(QApplication::exec(), 0) << "the program goes on";
            } else {
                keepWork(program);
            }
        }
        for (const bool open : {true, false}) {
            Program program(survey);
            program.dialogs.yesNo = {true, open};
            program.start(nothing.path());
            EXPECT_TRUE(toldBy(program.dialogs)
                            .endsWith("[Unsaved Work] Unsaved work of map Test was kept when the program "
                                      "ended: item without a name. Open it?\n"));
            EXPECT_EQ(form<frmDataInput>().isWindowModified(), open);
            EXPECT_EQ(form<frmDataInput>().isVisible(), open);
            const auto& words = *control<frmDataInput, QAbstractItemView>("tblWords").model();
            EXPECT_EQ(words.index(1, 0).data().toString(), open ? "mi" : "");
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
        enterAnItem(program);
        form<frmDataInput>().hide();
        keepWork(program);
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

TEST_F(Forms, KeptWorkThatCannotBeReadIsToldOnceAndDoesNotBlockTheStart)
{
    survey.write(VarnPath + "\\Recovery\\old\\contents.dat", "\"C:");
    for (const std::size_t messages : {2U, 1U}) {
        Program program(survey);
        start(program);
        EXPECT_EQ(program.dialogs.shown.size(), messages);
        EXPECT_EQ(program.dialogs.errors.size(), messages - 1);
        EXPECT_EQ(program.varn.NLocality, 3);
    }
}
