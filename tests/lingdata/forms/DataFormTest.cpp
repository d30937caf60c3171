#include "lingdata/ItemLoader.h"
#include "lingdata/forms/frmData.h"
#include "platform/WholeFile.h"
#include "shell/Printing.h"
#include "tests/support/Controls.h"
#include "tests/support/RecordingPrinter.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QStatusBar>

namespace {

using Shown = ScriptedDialogs::Shown;

/// The data display form on a map with two items: one of three word forms and one of 130, two a locality.
class DataForm : public testing::Test
{
protected:
    DataForm()
    {
        survey.write(ling("rain.dbs"),
                     "3,\"\",\"Rain\",\"\"\r\n2\r\n\"uyu\"\r\n\"ame\"\r\n0\r\n1\r\n\"uyu\"\r\n");
        QByteArray many = "65,\"\",\"Many\",\"\"\r\n";
        for (int i = 1; i <= 65; ++i) {
            many += "2\r\n\"w" + QByteArray::number(i) + "\"\r\n\"v" + QByteArray::number(i) + "\"\r\n";
        }
        survey.write(ling("many.dbs"), many);
    }

    static QString ling(const char* file)
    {
        return QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\") + QLatin1String(file);
    }

    QAction& menu(const char* name) { return child<QAction>(form, name); }
    void open(const char* file)
    {
        dialogs.files = {varn.Drive.hostPath(ling(file))};
        menu("mnuOpen").trigger();
    }
    void specifyPage(const char* answer)
    {
        dialogs.inputs = {QLatin1String(answer)};
        menu("mnuPageNo").trigger();
    }
    QString status() const { return form.statusBar()->findChild<QLabel*>()->text(); }
    bool statusBegins(const char* text) const { return status().startsWith(QLatin1String(text)); }

    TestSurvey survey;
    VarnModule& varn = survey.varn;
    ScriptedDialogs dialogs;
    RecordingPrinter::Documents documents;
    frmData form{varn, dialogs};
};

} // namespace

TEST_F(DataForm, AnItemIsOpenedForAllForms)
{
    int signalled = 0;
    QObject::connect(&form, &frmData::itemLoaded, [&signalled] { ++signalled; });
    open("rain.dbs");
    EXPECT_EQ(varn.LoadState, 1);
    EXPECT_EQ(signalled, 1);
    EXPECT_EQ(survey.read(ling("rain.srt")), "2\r\n\"ame\",1\r\n\"uyu\",2\r\n");
    EXPECT_EQ(form.windowTitle(), QStringLiteral("VARN Display Data - Test - rain.dbs - Data"));
    EXPECT_TRUE(statusBegins("Page 1 of 1    |    Word forms: 3"));

    open("gone.dbs");
    EXPECT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(varn.Hanrei, QStringLiteral("Rain"));
    dialogs.files = {std::nullopt};
    menu("mnuOpen").trigger();
    EXPECT_EQ(signalled, 1);
    EXPECT_TRUE(statusBegins("Page 1 of 1    |    Word forms: 3"));
}

TEST_F(DataForm, SavingMakesTheKindsAnewAndShowsThem)
{
    survey.write(ling("rain.srt"), "1\r\n\"stale\",9\r\n");
    open("rain.dbs");
    menu("mnuKind").trigger();
    EXPECT_TRUE(statusBegins("Page 1 of 1    |    Kinds of word forms: 1"));
    varn.LingFolder = QStringLiteral("\\VarnData\\Elsewhere\\Ling");
    menu("mnuSave").trigger();
    EXPECT_EQ(survey.read(ling("rain.srt")), "2\r\n\"ame\",1\r\n\"uyu\",2\r\n")
        << "beside its item, also when another map was chosen since";
    EXPECT_TRUE(statusBegins("Page 1 of 1    |    Kinds of word forms: 2"));
    EXPECT_EQ(dialogs.errors, std::vector<Shown>());
}

TEST_F(DataForm, PagesAreTurnedWithinTheirBounds)
{
    open("many.dbs");
    const char* const steps[][2] = {
        {"mnuPreviousPage", "Page 1 of 3"}, {"mnuNextPage", "Page 2 of 3"},
        {"mnuNextPage", "Page 3 of 3"},     {"mnuNextPage", "Page 3 of 3"},
        {"mnuPreviousPage", "Page 2 of 3"}, {"mnuKind", "Page 1 of 3"},
    };
    for (const auto& [action, status] : steps) {
        menu(action).trigger();
        EXPECT_TRUE(statusBegins(status)) << action;
    }
    specifyPage(" 3 ");
    EXPECT_TRUE(statusBegins("Page 3 of 3"));
    dialogs.shown.clear();
    for (const char* answer : {"0", "4", "-1", "two", "", "2.5", "99999999999"}) {
        specifyPage(answer);
        EXPECT_TRUE(statusBegins("Page 3 of 3")) << answer;
        EXPECT_EQ(dialogs.shown.back().text, QStringLiteral("Page No. must be a number from 1 to 3."));
    }
    EXPECT_EQ(dialogs.shown[0].text, QStringLiteral("Specify Page No."));
    dialogs.inputs = {std::nullopt};
    menu("mnuPageNo").trigger();
    EXPECT_EQ(dialogs.shown.back().text, QStringLiteral("Specify Page No.")) << "cancelled, no message";
    specifyPage("1");
    EXPECT_TRUE(statusBegins("Page 1 of 3"));
}

TEST_F(DataForm, AllPagesArePrintedAsOneDocument)
{
    open("many.dbs");
    menu("mnuPrint").trigger();
    EXPECT_EQ(dialogs.shown.back().text,
              QStringLiteral("Printer is not connected. Please connect the printer in the Main Form."));

    connectPrinter(varn, std::make_unique<RecordingPrinter>(documents));
    varn.MapFontSize = 23;
    dialogs.yesNo = {false, true};
    menu("mnuPrint").trigger();
    EXPECT_TRUE(documents.empty());
    menu("mnuPrint").trigger();
    EXPECT_EQ(dialogs.shown.back().text, QStringLiteral("Print ?"));
    ASSERT_EQ(documents.size(), 1U);
    ASSERT_EQ(documents[0].size(), 3U);
    EXPECT_TRUE(wasPrinted(documents[0][1], QStringLiteral("** PAGE = 2 / 3")));
    EXPECT_TRUE(wasPrinted(documents[0][2], QStringLiteral("v65")));
    EXPECT_EQ(varn.Printer.FontSize, 23) << "maps are printed with their own font";
    const QPointF corner = printedAt(documents[0][0], QStringLiteral("** PAGE = 1 / 3"));
    EXPECT_NEAR(corner.x(), varn.LeftMargin * TwipsPerMm, 1);
    EXPECT_NEAR(corner.y(), varn.TopMargin * TwipsPerMm, 1);

    // The pages shown lie across, those printed from now on are upright.
    setPaper(varn, PageOrientation::Portrait);
    dialogs.yesNo = {true};
    menu("mnuPrint").trigger();
    const double end = printedAt(documents.at(1)[0], QStringLiteral("many.dbs")).x();
    EXPECT_LT(end, (varn.PaperWidth - varn.RightMargin) * TwipsPerMm);
    EXPECT_GT(end, varn.PaperWidth * TwipsPerMm / 2);
}

TEST_F(DataForm, AnItemLoadedElsewhereIsShownWhenTheFormOpens)
{
    form.Form_Load();
    EXPECT_EQ(status(), QString());
    varn.WordTotal = 1;
    varn.WordList(1) = QStringLiteral("ame");
    varn.ItemFileName = QStringLiteral("other.dbs");
    form.Form_Load();
    EXPECT_TRUE(statusBegins("Page 1 of 1    |    Word forms: 1"));

    QEvent activated(QEvent::WindowActivate);
    for (const auto& [file, status] :
         {std::pair("many.dbs", "Page 1 of 3"), std::pair("rain.dbs", "Page 1 of 1")}) {
        LoadWordData(varn, ling(file), varn, varn);
        QApplication::sendEvent(&form, &activated);
        EXPECT_TRUE(statusBegins(status)) << "it is brought to the front";
    }
    dropItem(varn, varn);
    QApplication::sendEvent(&form, &activated);
    EXPECT_EQ(status(), QString());
    EXPECT_FALSE(menu("mnuPageNo").isEnabled());
}
