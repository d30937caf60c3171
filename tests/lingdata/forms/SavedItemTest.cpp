#include "lingdata/forms/WordTableView.h"
#include "tests/support/TestProgram.h"

#include <QLineEdit>
#include <QListWidget>

namespace {

const QString Ling = VarnPath + QStringLiteral("\\VarnData\\Test\\Ling\\");

/// The program with an item loaded in the data display and opened in data entry.
class SavedItem : public StartedForms
{
protected:
    SavedItem()
    {
        for (const char* button : {"cmdData", "cmdInputData", "cmdHanko", "cmdSumUp"}) {
            program.click(button);
        }
        openIn<frmData>();
        openIn<frmDataInput>();
        activate<frmSetHanko>();
        activate<frmCalc>();
        program.dialogs.shown.clear();
    }

    template <typename Form>
    void openIn()
    {
        program.dialogs.files = {survey.drive().hostPath(Ling + QStringLiteral("rain.dbs"))};
        trigger<Form>("mnuOpen");
    }
    template <typename Form>
    static void activate()
    {
        QEvent activated(QEvent::WindowActivate);
        QApplication::sendEvent(&form<Form>(), &activated);
    }
    /// Puts `text` into the first cell and saves.
    void enter(const char* text)
    {
        auto& table = control<frmDataInput, WordTableView>("tblWords");
        table.model()->setData(table.model()->index(0, 0), QLatin1String(text));
        if (QFile::exists(survey.drive().hostPath(
                Ling + control<frmDataInput, QLineEdit>("txtFileName").text() + QStringLiteral(".dbs")))) {
            program.dialogs.yesNo = {true};
        }
        trigger<frmDataInput>("mnuSave");
    }
    template <typename Form>
    static QStringList list(const char* name)
    {
        return rowsOf(control<Form, QListWidget>(name));
    }
};

} // namespace

TEST_F(SavedItem, TheLoadedItemIsNewInAllForms)
{
    trigger<frmData>("mnuKind");
    control<frmDataInput, QLineEdit>("txtHanrei").setText(QStringLiteral("Snow"));
    Q_EMIT control<frmDataInput, QLineEdit>("txtHanrei").textEdited(QStringLiteral("Snow"));
    enter("yuki");
    EXPECT_EQ(program.varn.WordList(1), QStringLiteral("yuki"));
    EXPECT_EQ(program.varn.Hanrei, QStringLiteral("Snow"));
    EXPECT_EQ(list<frmSetHanko>("lstKindWord"), QStringList({"2 uyu", "1 yuki"}));
    EXPECT_EQ(list<frmCalc>("lstDisplay"), QStringList({"1 uyu", "2 yuki"}));
    EXPECT_TRUE(form<frmData>().windowTitle().endsWith(QStringLiteral("rain.dbs - Kinds")));
    const QByteArray kinds = survey.read(Ling + QStringLiteral("rain.srt"));
    EXPECT_EQ(kinds, "2\r\n\"uyu\",2\r\n\"yuki\",1\r\n");
    trigger<frmData>("mnuSave");
    EXPECT_EQ(survey.read(Ling + QStringLiteral("rain.srt")), kinds) << "no old kinds over the new ones";

    control<frmDataInput, QLineEdit>("txtFileName").setText(QStringLiteral("other"));
    enter("ame");
    EXPECT_EQ(program.varn.WordList(1), QStringLiteral("yuki")) << "another item was saved";
    EXPECT_EQ(program.dialogs.errors, std::vector<Shown>());
}

TEST_F(SavedItem, AnItemThatCannotBeLoadedAnyMoreIsDropped)
{
    ASSERT_EQ(program.varn.LoadState, 1);
    QFile::remove(survey.drive().hostPath(Ling + QStringLiteral("rain.srt")));
    survey.write(Ling + QStringLiteral("rain.srt\\in.the.way"), "");
    program.varn.NumWordforms = 1;
    activate<frmCalc>();
    EXPECT_TRUE((control<frmCalc, QPushButton>("cmdSetWord").isEnabled()));
    enter("yuki");
    EXPECT_FALSE((control<frmCalc, QPushButton>("cmdSetWord").isEnabled())) << "there are no kinds";
    EXPECT_EQ(program.dialogs.errors.size(), 1U);
    EXPECT_EQ(program.varn.LoadState, 0);
    EXPECT_EQ(list<frmCalc>("lstDisplay"), QStringList());
    EXPECT_FALSE((control<frmData, QAction>("mnuPrint").isEnabled()));
    EXPECT_EQ(form<frmData>().windowTitle(), QStringLiteral("VARN Display Data - Test"));
}
