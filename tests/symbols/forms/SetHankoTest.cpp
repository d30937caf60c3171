#include "platform/WholeFile.h"
#include "render/forms/SymbolPicker.h"
#include "shell/VarnModule.h"
#include "symbols/SymbolFile.h"
#include "symbols/forms/frmSetHanko.h"
#include "tests/support/Controls.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStatusBar>

#include <algorithm>
#include <functional>

namespace {

using Shown = ScriptedDialogs::Shown;

const QByteArray TwoRecords = "\"rain set\"\r\n2\r\n\"ame\",\"AME\"\r\n1\r\n1\r\n2\r\n1\r\n0\r\n2\r\n"
                              "\"uyu\",\"UYU\"\r\n49\r\n4\r\n0\r\n0\r\n1\r\n1\r\n";

/// The symbol set-up form on the map of a `TestSurvey` that has one item, `rain.dbs`, and one symbol file.
class SetHanko : public testing::Test
{
protected:
    SetHanko()
    {
        survey.write(ling("rain.dbs"),
                     "3,\"\",\"Rain\",\"\"\r\n2\r\n\"uyu\"\r\n\"ame no\"\r\n0\r\n1\r\n\"uyu\"\r\n");
        survey.write(ling("rain.han"), TwoRecords);
    }

    static QString ling(const char* file)
    {
        return QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\") + QLatin1String(file);
    }

    template <typename Control>
    Control& control(const char* name)
    {
        return child<Control>(form, name);
    }
    QAction& menu(const char* name) { return control<QAction>(name); }
    QString text(const char* name) { return control<QLineEdit>(name).text(); }
    void type(const char* name, const char* text) { control<QLineEdit>(name).setText(QLatin1String(text)); }
    void choose(const char* name, int number) { control<QComboBox>(name).setCurrentIndex(number); }
    int chosen(const char* name) { return control<QComboBox>(name).currentIndex(); }
    void click(const char* name) { control<QPushButton>(name).click(); }
    QString counter() { return control<QLabel>("lblRec").text(); }
    QString status() { return form.statusBar()->findChild<QLabel*>()->text(); }

    void press(QWidget& box, Qt::Key key, const char* letter)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QLatin1String(letter));
        QApplication::sendEvent(&box, &event);
    }

    /// Clicks the row of the preview, from 0.
    void clickRow(int row)
    {
        const QPointF place(100, 26 + 22 * row + 11);
        QMouseEvent event(QEvent::MouseButtonRelease, place, place, Qt::LeftButton, Qt::NoButton, {});
        QApplication::sendEvent(&control<QWidget>("picHanrei"), &event);
    }

    /// All that a step changes: the records, the current one, and the fields.
    QString work()
    {
        QStringList parts{counter(), QString::number(chosen("cboColor"))};
        for (const char* box : {"txtExplain", "txtWord", "txtHanrei", "txtHankoNumber"}) {
            parts << text(box);
        }
        for (int k = 1; k <= varn.NHanrei; ++k) {
            parts << varn.HankoWord(k) << varn.HankoCaption(k) << QString::number(varn.Hanko(k).HankoNo);
        }
        return parts.join(QLatin1Char('|'));
    }

    void trigger(const char* entry, const char* file)
    {
        dialogs.files = {survey.drive().hostPath(ling(file))};
        menu(entry).trigger();
    }

    void registerRecord(const char* word, const char* number)
    {
        type("txtWord", word);
        click("cmdAutoHanrei");
        type("txtHankoNumber", number);
        click("cmdSave");
    }

    QStringList listedKinds() { return rowsOf(control<QListWidget>("lstKindWord")); }

    TestSurvey survey;
    VarnModule& varn = survey.varn;
    ScriptedDialogs dialogs;
    frmSetHanko form{varn, dialogs};
};

/// The same with the item loaded and the form shown.
class OpenSetHanko : public SetHanko
{
protected:
    OpenSetHanko()
    {
        trigger("mnuInputWord", "rain.dbs");
        form.Form_Load();
        form.bringToFront();
        QApplication::processEvents();
        dialogs.shown.clear();
    }
};

} // namespace

TEST_F(SetHanko, WithoutAnItemTheUserIsSentToTheMainForm)
{
    int returns = 0;
    QObject::connect(&form, &frmSetHanko::toMain, &form, [&returns] { ++returns; });
    form.Form_Load();
    form.bringToFront();
    QApplication::processEvents();
    EXPECT_EQ(dialogs.shown, std::vector<Shown>({{QStringLiteral("Specify Linguistic Data"),
                                                  QStringLiteral("Input Ling. Data")}}));
    EXPECT_EQ(returns, 1);
    EXPECT_EQ(counter(), QStringLiteral("1/New"));

    trigger("mnuInputWord", "rain.dbs");
    form.Form_Load();
    QApplication::processEvents();
    EXPECT_EQ(returns, 1);
    EXPECT_EQ(varn.LoadState, 1);
}

TEST_F(OpenSetHanko, FormBeginsWithTheKindsAndDefaults)
{
    EXPECT_EQ(listedKinds(), QStringList({QStringLiteral("1 ame no"), QStringLiteral("2 uyu")}));
    EXPECT_TRUE(fileExists(survey.drive(), ling("rain.srt")));
    EXPECT_EQ(counter(), QStringLiteral("1/New"));
    click("cmdWord");
    EXPECT_EQ(text("txtWord"), QStringLiteral("ame no")) << "the text after the first blank";

    survey.write(ling("rain.srt"), "1\r\n\"from the file\",7\r\n");
    form.Form_Load();
    EXPECT_EQ(listedKinds(), QStringList(QStringLiteral("7 from the file")));
    EXPECT_EQ(text("txtWord"), QStringLiteral("ame no")) << "what is typed outlives a visit to the main form";
}

TEST_F(OpenSetHanko, ASetIsBuiltAndSavedAndReadAgain)
{
    click("cmdWord");
    type("txtHankoNumber", "50");
    choose("cboColor", 12);
    choose("cboBack", 3);
    control<QCheckBox>("chkPat").setChecked(true);
    choose("cboSize", 2);
    choose("cboWidth", 0);
    type("txtExplain", "mine");
    click("cmdSave");
    EXPECT_EQ(counter(), QStringLiteral("1/1"));
    click("cmdNext");
    EXPECT_EQ(text("txtExplain"), QStringLiteral("mine"));
    registerRecord("uyu ", "50");
    EXPECT_EQ(chosen("cboColor"), 12) << "one number, one style";
    EXPECT_TRUE(form.isWindowModified());

    type("txtExplain", "mine too");
    dialogs.inputs = {QStringLiteral("new.han")};
    menu("mnuSaveHanko").trigger();
    EXPECT_EQ(dialogs.shown, std::vector<Shown>({{QStringLiteral("Input File Name of Symbol Data"),
                                                  QStringLiteral("Save Symbol File")}}));
    EXPECT_EQ(survey.read(ling("new.han")),
              "\"mine too\"\r\n2\r\n\"ame no\",\"\"\r\n50\r\n12\r\n3\r\n1\r\n2\r\n0\r\n"
              "\"uyu\",\"uyu\"\r\n50\r\n12\r\n3\r\n1\r\n2\r\n0\r\n");
    EXPECT_EQ(varn.SymbolFileName, QStringLiteral("new.han"));
    EXPECT_EQ(varn.LoadState, 2);
    EXPECT_EQ(counter(), QStringLiteral("2/2"));
    EXPECT_FALSE(form.isWindowModified());
    EXPECT_TRUE(form.windowTitle().contains(QStringLiteral("Test - rain.dbs - new.han")));
}

TEST_F(OpenSetHanko, SavingAsksBeforeAFileIsReplaced)
{
    const Shown nameQuestion{QStringLiteral("Input File Name of Symbol Data"),
                             QStringLiteral("Save Symbol File")};
    const Shown overwriteQuestion{QStringLiteral("File already exist. Overwrite O.K.? "),
                                  QStringLiteral("Re Input File Name")};
    registerRecord("ame", "1");
    dialogs.inputs = {QStringLiteral("RAIN"), std::nullopt};
    dialogs.yesNo = {false};
    menu("mnuSaveHanko").trigger();
    EXPECT_EQ(dialogs.shown, std::vector<Shown>({nameQuestion, overwriteQuestion, nameQuestion}));
    EXPECT_EQ(survey.read(ling("rain.han")), TwoRecords);
    EXPECT_TRUE(isSymbolSetUnsaved(varn));

    dialogs.inputs = {QStringLiteral("a\\b")};
    menu("mnuSaveHanko").trigger();
    survey.write(ling("blocked.han\\file"), "a folder where the file should be");
    dialogs.inputs = {QStringLiteral("blocked")};
    menu("mnuSaveHanko").trigger();
    ASSERT_EQ(dialogs.errors.size(), 2U);
    EXPECT_EQ(dialogs.errors[0].title, QStringLiteral("Run-time error '52': Bad file name or number"));
    EXPECT_EQ(text("txtWord"), QStringLiteral("ame"));
    EXPECT_EQ(counter(), QStringLiteral("1/1"));
    EXPECT_TRUE(isSymbolSetUnsaved(varn));
    EXPECT_EQ(varn.SymbolFileName, QString());
}

TEST_F(OpenSetHanko, AFileIsOpenedAtItsLastRecord)
{
    trigger("mnuOpenHanko", "rain.han");
    EXPECT_EQ(counter(), QStringLiteral("2/2"));
    EXPECT_EQ(text("txtHanrei"), QStringLiteral("UYU"));
    EXPECT_EQ(text("txtExplain"), QStringLiteral("rain set"));
    EXPECT_EQ(varn.LoadState, 2);
    click("cmdBefore");
    EXPECT_EQ(counter(), QStringLiteral("1/2"));
    EXPECT_EQ(text("txtHankoNumber"), QStringLiteral("1"));
    EXPECT_EQ(chosen("cboColor"), 1);
    EXPECT_EQ(chosen("cboBack"), 2);
    EXPECT_TRUE(control<QCheckBox>("chkPat").isChecked());
    EXPECT_EQ(chosen("cboSize"), 0);
    EXPECT_EQ(chosen("cboWidth"), 2);

    trigger("mnuOpenHanko", "gone.han");
    EXPECT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(varn.SymbolFileName, QStringLiteral("rain.han"));
    EXPECT_EQ(counter(), QStringLiteral("1/2"));
}

TEST_F(OpenSetHanko, ValuesThatNoListHasAreShownAsNothingAndStoredAsZero)
{
    survey.write(ling("odd.han"), "\"\"\r\n1\r\n\"k\",\"c\"\r\n9999\r\n16\r\n-1\r\n1\r\n3\r\n-32768\r\n");
    trigger("mnuOpenHanko", "odd.han");
    for (const char* box : {"cboColor", "cboBack", "cboSize", "cboWidth"}) {
        EXPECT_EQ(chosen(box), -1) << box;
    }
    click("cmdSave");
    EXPECT_EQ(varn.Hanko(1), (HankoStyle{9999, 0, 0, 1, 0, 0}));
    EXPECT_EQ(dialogs.errors, std::vector<Shown>());
}

TEST_F(OpenSetHanko, RecordsAreInsertedAndDeletedByNumber)
{
    trigger("mnuOpenHanko", "rain.han");
    dialogs.shown.clear();
    dialogs.inputs = {QStringLiteral("1"), QStringLiteral("2"), std::nullopt, QStringLiteral("-1")};
    click("cmdInserte");
    EXPECT_EQ(counter(), QStringLiteral("1/3"));
    EXPECT_EQ(text("txtWord"), QString());
    click("cmdDelete");
    EXPECT_EQ(varn.HankoWord(2), QStringLiteral("uyu"));
    EXPECT_EQ(
        dialogs.shown,
        std::vector<Shown>({{QStringLiteral("Specify Number of Insert Data."), QStringLiteral("Insert")},
                            {QStringLiteral("Specify Number of Delete Data."), QStringLiteral("Delete")}}));
    click("cmdInserte");
    EXPECT_EQ(counter(), QStringLiteral("1/2")) << "a cancelled question changes nothing";
    click("cmdInserte");
    ASSERT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(dialogs.errors[0].title, QStringLiteral("Run-time error '9': Subscript out of range"));
    EXPECT_EQ(counter(), QStringLiteral("1/2"));
}

TEST_F(OpenSetHanko, NextAtRecordHundredTellsThatTheSetIsFull)
{
    varn.NHanrei = 100;
    varn.CurrentHanko = 100;
    click("cmdNext");
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text, QStringLiteral("Caption Data exceed Maximum."));
}

TEST_F(OpenSetHanko, WorkIsGivenUpOnlyWhenTheUserAgrees)
{
    trigger("mnuOpenHanko", "rain.han");
    dialogs.shown.clear();
    EXPECT_TRUE(form.close());
    EXPECT_TRUE(dialogs.shown.empty()) << "nothing to lose, nothing to ask";
    form.bringToFront();

    registerRecord("changed", "3");
    dialogs.yesNo = {false, false, false};
    menu("mnuOpenHanko").trigger();
    menu("mnuHankoInit").trigger();
    EXPECT_FALSE(form.close());
    EXPECT_EQ(dialogs.shown.size(), 3U);
    EXPECT_EQ(varn.HankoWord(2), QStringLiteral("changed"));

    dialogs.yesNo = {true};
    menu("mnuHankoInit").trigger();
    EXPECT_EQ(counter(), QStringLiteral("0/0"));
    EXPECT_EQ(text("txtHankoNumber"), QStringLiteral("0"));

    type("txtWord", "not registered");
    dialogs.yesNo = {false, false};
    EXPECT_FALSE(form.close());
    menu("mnuSaveHanko").trigger();
    EXPECT_EQ(text("txtWord"), QStringLiteral("not registered"));
    EXPECT_TRUE(dialogs.errors.empty());
}

TEST_F(OpenSetHanko, ASetThatAnotherFormLoadedIsShown)
{
    type("txtWord", "typed");
    LoadHankoData(varn.Drive, ling("rain.han"), varn);
    form.Form_Load();
    EXPECT_EQ(text("txtWord"), QStringLiteral("uyu"));
    EXPECT_EQ(counter(), QStringLiteral("2/2"));

    frmSetHanko opened(varn, dialogs);
    opened.Form_Load();
    EXPECT_EQ(child<QLabel>(opened, "lblRec").text(), QStringLiteral("2/2"));
}

TEST_F(OpenSetHanko, ARegisteredSetCanBeDrawnBeforeItIsSaved)
{
    int visits = 0;
    QObject::connect(&form, &frmSetHanko::toDrawMap, &form, [&visits] { ++visits; });
    registerRecord("ame", "1");
    menu("mnuLoadMap").trigger();
    EXPECT_EQ(visits, 1);
    EXPECT_TRUE(canDrawLinguisticMap(varn));
}

TEST_F(OpenSetHanko, ASymbolIsChosenFromTheCatalogue)
{
    type("txtHankoNumber", "93");
    click("cmdSymbol");
    auto* picker = form.findChild<SymbolPicker*>();
    auto* symbols = picker->findChild<QListWidget*>();
    ASSERT_TRUE(picker->isVisible());
    EXPECT_EQ(symbols->count(), 160);
    EXPECT_EQ(symbols->currentItem()->text(), QStringLiteral("93"));
    EXPECT_EQ(picker->windowTitle(), QStringLiteral("Symbols"));
    EXPECT_EQ(picker->focusWidget(), symbols);
    EXPECT_TRUE(symbols->viewport()->rect().contains(symbols->visualItemRect(symbols->currentItem())));
    EXPECT_GT(symbols->visualItemRect(symbols->item(2)).left(),
              symbols->visualItemRect(symbols->item(1)).right());
    EXPECT_EQ(symbols->movement(), QListView::Static) << "the numbers keep their places";
    const QSize size = symbols->iconSize();
    EXPECT_EQ(symbols->item(0)->icon().pixmap(size, QIcon::Selected).toImage(),
              symbols->item(0)->icon().pixmap(size).toImage());
    EXPECT_EQ(symbols->item(0)->icon().pixmap(size).toImage().pixelColor(0, 0), Qt::white);
    EXPECT_NE(symbols->item(0)->icon().pixmap(size).toImage(),
              symbols->item(48)->icon().pixmap(size).toImage());
    symbols->setCurrentRow(159);
    Q_EMIT symbols->itemActivated(symbols->currentItem());
    EXPECT_FALSE(picker->isVisible());
    EXPECT_EQ(text("txtHankoNumber"), QStringLiteral("160"));

    for (const char* odd : {"", "-4", "1e30", "9999"}) {
        type("txtHankoNumber", odd);
        click("cmdSymbol");
        EXPECT_EQ(symbols->currentItem()->text(), QStringLiteral("1")) << odd;
        picker->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->click();
        EXPECT_FALSE(picker->isVisible());
        EXPECT_EQ(text("txtHankoNumber"), QLatin1String(odd));
    }
    click("cmdSymbol");
    QPushButton& ok = *picker->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    symbols->setCurrentRow(-1);
    EXPECT_FALSE(ok.isEnabled());
    symbols->setCurrentRow(0);
    ok.click();
    EXPECT_EQ(text("txtHankoNumber"), QStringLiteral("1"));
    EXPECT_TRUE(dialogs.errors.empty());
}

TEST_F(OpenSetHanko, EveryStepIsTakenBackAndDoneAgain)
{
    trigger("mnuOpenHanko", "rain.han");
    EXPECT_FALSE(menu("mnuUndo").isEnabled());
    const std::function<void()> steps[] = {
        [&] { choose("cboColor", 9); },
        [&] { registerRecord("ame", "93"); },
        [&] { click("cmdNext"); },
        [&] { click("cmdBefore"); },
        [&] {
            dialogs.inputs = {QStringLiteral("1")};
            click("cmdInserte");
        },
        [&] {
            dialogs.inputs = {QStringLiteral("2")};
            click("cmdDelete");
        },
        [&] { clickRow(1); },
        [&] {
            dialogs.yesNo = {true};
            menu("mnuHankoInit").trigger();
        },
    };
    std::vector<QString> works{work()};
    for (const auto& step : steps) {
        step();
        works.push_back(work());
    }
    std::vector<QString> undone;
    for (int times = 0; times < 50 && menu("mnuUndo").isEnabled(); ++times) {
        menu("mnuUndo").trigger();
        undone.push_back(work());
    }
    ASSERT_FALSE(menu("mnuUndo").isEnabled()) << "there is an end";
    for (const QString& before : works) {
        EXPECT_TRUE(before == works.back() || std::ranges::count(undone, before) > 0) << qPrintable(before);
    }
    EXPECT_EQ(work(), works.front());
    EXPECT_FALSE(form.isWindowModified()) << "the set is as it was read";
    for (int times = 0; times < 50 && menu("mnuRedo").isEnabled(); ++times) {
        menu("mnuRedo").trigger();
    }
    EXPECT_EQ(work(), works.back());
    menu("mnuUndo").trigger();
    EXPECT_EQ(work(), works[works.size() - 2]);
    EXPECT_TRUE(form.isWindowModified());

    dialogs.yesNo = {true};
    trigger("mnuOpenHanko", "rain.han");
    EXPECT_FALSE(menu("mnuUndo").isEnabled()) << "steps belong to one set";
}

TEST_F(OpenSetHanko, AfterASaveWhatIsTakenBackIsUnsaved)
{
    registerRecord("ame", "1");
    dialogs.inputs = {QStringLiteral("new")};
    menu("mnuSaveHanko").trigger();
    EXPECT_FALSE(isSymbolSetUnsaved(varn));
    registerRecord("uyu", "2");
    for (int times = 0; times < 50 && isSymbolSetUnsaved(varn); ++times) {
        menu("mnuUndo").trigger();
    }
    EXPECT_EQ(varn.HankoWord(1), QStringLiteral("ame"));
    for (int times = 0; times < 50 && varn.NHanrei > 0; ++times) {
        menu("mnuUndo").trigger();
    }
    menu("mnuRedo").trigger();
    EXPECT_EQ(varn.NHanrei, 1);
    EXPECT_FALSE(isSymbolSetUnsaved(varn));
}

TEST_F(OpenSetHanko, ATextBoxTakesBackItsOwnTypingFirst)
{
    auto& box = control<QLineEdit>("txtWord");
    choose("cboColor", 4);
    box.setFocus();
    press(box, Qt::Key_A, "a");
    press(box, Qt::Key_B, "b");
    QKeyEvent keys(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
    keys.ignore();
    QApplication::sendEvent(&box, &keys);
    EXPECT_FALSE(keys.isAccepted()) << "left to the form";
    menu("mnuUndo").trigger();
    EXPECT_EQ(box.text(), QString());
    EXPECT_TRUE(box.isRedoAvailable());
    EXPECT_EQ(chosen("cboColor"), 4);
    menu("mnuRedo").trigger();
    EXPECT_EQ(box.text(), QStringLiteral("ab"));
    menu("mnuUndo").trigger();
    menu("mnuUndo").trigger();
    EXPECT_EQ(chosen("cboColor"), 0);
    EXPECT_FALSE(menu("mnuUndo").isEnabled());
}

TEST_F(OpenSetHanko, SaveProposesTheLoadedItemUnlessTheSetIsItsOwn)
{
    const auto proposed = [this] {
        dialogs.inputs = {std::nullopt};
        menu("mnuSaveHanko").trigger();
        return dialogs.proposals.back().name;
    };
    registerRecord("ame", "1");
    EXPECT_EQ(proposed(), QStringLiteral("rain"));
    survey.write(ling("wind.han"), TwoRecords);
    survey.write(ling("rain2.han"), TwoRecords);
    dialogs.yesNo = {true};
    trigger("mnuOpenHanko", "wind.han");
    EXPECT_EQ(proposed(), QStringLiteral("rain"));
    trigger("mnuOpenHanko", "rain2.han");
    EXPECT_EQ(proposed(), QStringLiteral("rain2"));
    dialogs.inputs = {QStringLiteral("mine")};
    menu("mnuSaveHanko").trigger();
    EXPECT_EQ(proposed(), QStringLiteral("mine"));
}

TEST_F(OpenSetHanko, AfterDeleteTheFormSaysThatTheFieldsAreNotTheRecords)
{
    trigger("mnuOpenHanko", "rain.han");
    const auto isSaid = [this] { return status().contains(QStringLiteral("no longer those of record 1")); };
    click("cmdBefore");
    dialogs.inputs = {QStringLiteral("2"), QStringLiteral("1")};
    click("cmdDelete");
    EXPECT_FALSE(isSaid()) << "record 1 is what it was";
    click("cmdDelete");
    EXPECT_TRUE(isSaid());
    EXPECT_EQ(text("txtWord"), QStringLiteral("ame"));
    click("cmdSave");
    EXPECT_FALSE(isSaid());
    menu("mnuUndo").trigger();
    EXPECT_TRUE(isSaid());
}

TEST_F(OpenSetHanko, AClickOnARowGoesToItsRecord)
{
    trigger("mnuOpenHanko", "rain.han");
    dialogs.shown.clear();
    clickRow(2);
    clickRow(-1);
    EXPECT_EQ(counter(), QStringLiteral("2/2")) << "no record stands there";
    clickRow(0);
    EXPECT_EQ(counter(), QStringLiteral("1/2"));
    EXPECT_EQ(text("txtHanrei"), QStringLiteral("AME"));
    EXPECT_TRUE(dialogs.shown.empty());
    type("txtHanrei", "not registered");
    dialogs.yesNo = {false, true};
    clickRow(1);
    EXPECT_EQ(counter(), QStringLiteral("1/2"));
    EXPECT_EQ(text("txtHanrei"), QStringLiteral("not registered"));
    clickRow(1);
    EXPECT_EQ(counter(), QStringLiteral("2/2"));
}

TEST_F(OpenSetHanko, LeavingWithUnregisteredFieldsAsks)
{
    int visits = 0;
    QObject::connect(&form, &frmSetHanko::toMain, &form, [&visits] { ++visits; });
    QObject::connect(&form, &frmSetHanko::toDrawMap, &form, [&visits] { ++visits; });
    registerRecord("ame", "1");
    type("txtWord", "not registered");
    for (const char* way : {"mnuHankoReturn", "mnuLoadMap"}) {
        visits = 0;
        dialogs.yesNo = {false, true};
        menu(way).trigger();
        EXPECT_EQ(visits, 0) << way;
        menu(way).trigger();
        EXPECT_EQ(visits, 1) << way;
    }
}

TEST_F(OpenSetHanko, ADamagedKindsFileDoesNotKeepASetClosed)
{
    survey.write(ling("rain.srt"), "2\r\n\"ame\"");
    trigger("mnuOpenHanko", "rain.han");
    ASSERT_EQ(dialogs.errors.size(), 1U);
    EXPECT_TRUE(dialogs.errors[0].text.contains(QStringLiteral("rain.srt")));
    EXPECT_EQ(counter(), QStringLiteral("2/2"));
    EXPECT_TRUE(listedKinds().isEmpty());
    EXPECT_EQ(survey.read(ling("rain.srt")), "2\r\n\"ame\"");
}
