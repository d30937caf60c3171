#include "lingdata/ItemLoader.h"
#include "shell/Printing.h"
#include "tests/support/RecordingPrinter.h"
#include "tests/support/TestProgram.h"

#include <QAbstractItemView>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStatusBar>

namespace {

const QString Ling = VarnPath + QStringLiteral("\\VarnData\\Test\\Ling\\");

/// The data display form of a program with two items: one of three word forms and one of 130, two a locality.
class DataForm : public StartedForms
{
protected:
    DataForm()
    {
        QByteArray many = "65,\"\",\"Many\",\"\"\r\n";
        for (int i = 1; i <= 65; ++i) {
            many += QString("2\r\n\"w%1\"\r\n\"v%1\"\r\n").arg(i).toUtf8();
        }
        survey.write(Ling + "many.dbs", many);
        program.click("cmdData");
    }

    template <typename Form = frmData>
    void open(const char* file)
    {
        dialogs.files = {survey.drive().hostPath(Ling + file)};
        trigger<Form>("mnuOpen");
    }
    QString status() const { return data.statusBar()->findChild<QLabel*>()->text(); }
    template <typename Form>
    static void bringToFront()
    {
        QEvent activated(QEvent::WindowActivate);
        QApplication::sendEvent(&form<Form>(), &activated);
    }

    frmData& data = form<frmData>();
    VarnModule& varn = program.varn;
    ScriptedDialogs& dialogs = program.dialogs;
};

} // namespace

TEST_F(DataForm, SavingMakesTheKindsAnewAndShowsThem)
{
    survey.write(Ling + "rain.srt", "1\r\n\"stale\",9\r\n");
    open("rain.dbs");
    trigger<frmData>("mnuKind");
    open("gone.dbs");
    dialogs.files = {std::nullopt};
    trigger<frmData>("mnuOpen");
    EXPECT_EQ(status(), "Page 1 of 1    |    Kinds of word forms: 1");
    varn.LingFolder = "\\VarnData\\Elsewhere\\Ling";
    trigger<frmData>("mnuSave");
    EXPECT_EQ(survey.read(Ling + "rain.srt"), "2\r\n\"ame\",1\r\n\"uyu\",2\r\n")
        << "beside its item, also when another map was chosen since";
    EXPECT_EQ(status(), "Page 1 of 1    |    Kinds of word forms: 2");
    EXPECT_EQ(dialogs.errors.size(), 1U) << "of the item that is not there";
}

TEST_F(DataForm, APageIsChosenByItsNumber)
{
    open("many.dbs");
    const QString asked = "Specify Page No.";
    const QString wrong = "Page No. must be a number from 1 to 3.";
    const std::tuple<std::optional<QString>, const char*, QString> answers[] = {
        {" 3 ", "3", asked}, {"0", "3", wrong}, {"4", "3", wrong},
        {"two", "3", wrong}, {{}, "3", asked},  {"1", "1", asked}};
    for (const auto& [answer, page, text] : answers) {
        dialogs.inputs = {answer};
        trigger<frmData>("mnuPageNo");
        EXPECT_EQ(status(), QString("Page %1 of 3    |    Word forms: 130").arg(page));
        EXPECT_EQ(dialogs.shown.back().text, text) << qPrintable(answer.value_or("cancelled"));
    }
}

TEST_F(DataForm, AllPagesArePrintedAsOneDocument)
{
    RecordingPrinter::Documents documents;
    open("many.dbs");
    connectPrinter(varn, std::make_unique<RecordingPrinter>(documents));
    varn.MapFontSize = 23;
    for (const bool yes : {false, true}) {
        dialogs.yesNo = {yes};
        trigger<frmData>("mnuPrint");
        EXPECT_EQ(documents.size(), yes ? 1U : 0U);
    }
    EXPECT_EQ(dialogs.shown.back().text, "Print ?");
    ASSERT_EQ(documents.at(0).size(), 3U);
    EXPECT_TRUE(wasPrinted(documents[0][1], "** PAGE = 2 / 3"));
    EXPECT_TRUE(wasPrinted(documents[0][2], "v65"));
    EXPECT_EQ(varn.Printer.FontSize, 23) << "maps are printed with their own font";
    EXPECT_EQ(printedAt(documents[0][0], "** PAGE = 1 / 3").toPoint(),
              (QPointF(varn.LeftMargin, varn.TopMargin) * TwipsPerMm).toPoint());

    // The pages shown lie across, those printed from now on are upright.
    setPaper(varn, PageOrientation::Portrait);
    dialogs.yesNo = {true};
    trigger<frmData>("mnuPrint");
    const double end = printedAt(documents.at(1)[0], "many.dbs").x();
    EXPECT_LT(end, (varn.PaperWidth - varn.RightMargin) * TwipsPerMm);
    EXPECT_GT(end, varn.PaperWidth * TwipsPerMm / 2);
}

TEST_F(DataForm, AnItemLoadedElsewhereIsShownWhenTheFormOpensOrComesToTheFront)
{
    EXPECT_EQ(status(), "");
    LoadWordData(varn, Ling + "many.dbs", varn, varn);
    data.Form_Load();
    EXPECT_EQ(status(), "Page 1 of 3    |    Word forms: 130");
    LoadWordData(varn, Ling + "rain.dbs", varn, varn);
    bringToFront<frmData>();
    EXPECT_EQ(status(), "Page 1 of 1    |    Word forms: 3");
    dropItem(varn, varn);
    bringToFront<frmData>();
    EXPECT_EQ(status(), "");
}

TEST_F(DataForm, ASavedItemIsNewOrDroppedInAllFormsThatHaveItLoaded)
{
    for (const char* button : {"cmdInputData", "cmdHanko", "cmdSumUp"}) {
        program.click(button);
    }
    open("rain.dbs");
    trigger<frmData>("mnuKind");
    open<frmDataInput>("rain.dbs");
    bringToFront<frmSetHanko>();
    varn.NumWordforms = 1;
    bringToFront<frmCalc>();
    const auto& kindsToCount = control<frmCalc, QListWidget>("lstDisplay");
    const auto enter = [this](const char* text, std::deque<bool> answers) {
        auto& words = *control<frmDataInput, QAbstractItemView>("tblWords").model();
        words.setData(words.index(0, 0), text);
        dialogs.yesNo = std::move(answers);
        trigger<frmDataInput>("mnuSave");
    };
    enter("yuki", {true});
    EXPECT_EQ(varn.WordList(1), "yuki");
    EXPECT_EQ(rowsOf(control<frmSetHanko, QListWidget>("lstKindWord")), QStringList({"2 uyu", "1 yuki"}));
    EXPECT_EQ(rowsOf(kindsToCount), QStringList({"1 uyu", "2 yuki"}));
    EXPECT_EQ(data.windowTitle(), "VARN Display Data - Test - rain.dbs - Kinds");
    const QByteArray kinds = survey.read(Ling + "rain.srt");
    EXPECT_EQ(kinds, "2\r\n\"uyu\",2\r\n\"yuki\",1\r\n");
    trigger<frmData>("mnuSave");
    EXPECT_EQ(survey.read(Ling + "rain.srt"), kinds) << "no old kinds over the new ones";

    control<frmDataInput, QLineEdit>("txtFileName").setText("other");
    enter("ame", {});
    EXPECT_EQ(varn.WordList(1), "yuki") << "another item was saved";
    EXPECT_EQ(dialogs.errors, std::vector<Shown>());

    control<frmDataInput, QLineEdit>("txtFileName").setText("rain");
    QFile::remove(survey.drive().hostPath(Ling + "rain.srt"));
    survey.write(Ling + "rain.srt\\in.the.way", "");
    EXPECT_TRUE((control<frmCalc, QPushButton>("cmdSetWord").isEnabled()));
    enter("hail", {true});
    EXPECT_FALSE((control<frmCalc, QPushButton>("cmdSetWord").isEnabled())) << "there are no kinds";
    EXPECT_EQ(kindsToCount.count(), 0);
    EXPECT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(varn.LoadState, 0);
    EXPECT_EQ(data.windowTitle(), "VARN Display Data - Test");
}
