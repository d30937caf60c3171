#include "render/forms/SymbolPicker.h"
#include "symbols/SymbolFile.h"
#include "symbols/forms/frmSetHanko.h"
#include "tests/support/OneForm.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QStatusBar>

#include <algorithm>
#include <functional>

namespace {

using Shown = ScriptedDialogs::Shown;

const QByteArray TwoRecords = "\"rain set\"\r\n2\r\n\"ame\",\"AME\"\r\n1\r\n1\r\n2\r\n1\r\n0\r\n2\r\n"
                              "\"uyu\",\"UYU\"\r\n49\r\n4\r\n0\r\n0\r\n1\r\n1\r\n";
const Shown NameQuestion{"Input File Name of Symbol Data", "Save Symbol File"};

/// The symbol set-up form with the item `rain.dbs`, beside which one symbol file lies.
class SetHanko : public OneForm<frmSetHanko>
{
protected:
    SetHanko()
    {
        survey.write(ling("rain.dbs"),
                     "3,\"\",\"Rain\",\"\"\r\n2\r\n\"uyu\"\r\n\"ame no\"\r\n0\r\n1\r\n\"uyu\"\r\n");
        survey.write(ling("rain.han"), TwoRecords);
        for (const auto leaving : {&frmSetHanko::toMain, &frmSetHanko::toDrawMap}) {
            QObject::connect(&form, leaving, &form, [this] { ++leavings; });
        }
        open("mnuInputWord", "rain.dbs");
        load();
        dialogs.shown.clear();
    }

    void load()
    {
        form.Form_Load();
        form.bringToFront();
        QApplication::processEvents();
    }

    void choose(const char* name, int number) { control<QComboBox>(name).setCurrentIndex(number); }
    int chosen(const char* name) { return control<QComboBox>(name).currentIndex(); }
    QString counter() { return control<QLabel>("lblRec").text(); }
    bool isOrphaned()
    {
        return form.statusBar()->findChild<QLabel*>()->text().contains("no longer those of");
    }

    /// Clicks the row of the preview, from 0.
    void clickRow(int row)
    {
        const QPointF place(100, 26 + 22 * row + 11);
        QMouseEvent event(QEvent::MouseButtonRelease, place, place, Qt::LeftButton, Qt::NoButton, {});
        QApplication::sendEvent(&control<QWidget>("picHanrei"), &event);
    }

    /// Counter, comment, kind, caption, number and style in the fields, whether the form says that they are
    /// not those of the record; then kind, caption and number of each record.
    std::string work()
    {
        QStringList parts{counter()};
        for (const char* box : {"txtExplain", "txtWord", "txtHanrei", "txtHankoNumber"}) {
            parts << text(box);
        }
        for (const char* box : {"cboColor", "cboBack", "cboSize", "cboWidth"}) {
            parts << QString::number(chosen(box));
        }
        parts << (control<QCheckBox>("chkPat").isChecked() ? "painted" : "");
        parts.back() += isOrphaned() ? "!" : "";
        for (int k = 1; k <= varn.NHanrei; ++k) {
            parts << QStringLiteral("%1,%2,%3")
                         .arg(varn.HankoWord(k), varn.HankoCaption(k))
                         .arg(varn.Hanko(k).HankoNo);
        }
        return parts.join(QLatin1Char('|')).toStdString();
    }

    void openSet(const char* file) { open("mnuOpenHanko", file); }
    void save() { menu("mnuSaveHanko").trigger(); }
    void undo() { menu("mnuUndo").trigger(); }
    void redo() { menu("mnuRedo").trigger(); }

    void registerRecord(const char* word, const char* number)
    {
        type("txtWord", word);
        click("cmdAutoHanrei");
        type("txtHankoNumber", number);
        click("cmdSave");
    }

    int leavings = 0;
};

} // namespace

TEST_F(SetHanko, WithoutAnItemTheUserIsSentToTheMainForm)
{
    EXPECT_EQ(leavings, 0);
    EXPECT_EQ(varn.LoadState, 1);
    EXPECT_EQ(work(), "1/New|||||0|0|1|1|");
    varn.ItemFileName.clear();
    varn.NKind = 0;
    load();
    EXPECT_EQ(dialogs.shown, std::vector<Shown>({{"Specify Linguistic Data", "Input Ling. Data"}}));
    EXPECT_EQ(leavings, 1);
}

TEST_F(SetHanko, KindsAreThoseOfTheirFile)
{
    EXPECT_EQ(listed("lstKindWord"), QStringList({"1 ame no", "2 uyu"}));
    EXPECT_TRUE(survey.read(ling("rain.srt")).startsWith("2\r\n"));
    click("cmdWord");
    EXPECT_EQ(text("txtWord"), QStringLiteral("ame no")) << "the text after the first blank";

    survey.write(ling("rain.srt"), "1\r\n\"from the file\",7\r\n");
    form.Form_Load();
    EXPECT_EQ(listed("lstKindWord"), QStringList("7 from the file"));
    EXPECT_EQ(text("txtWord"), QStringLiteral("ame no")) << "what is typed outlives a visit to the main form";

    type("txtWord", "");
    survey.write(ling("rain.srt"), "2\r\n\"ame\"");
    openSet("rain.han");
    ASSERT_EQ(dialogs.errors.size(), 1U);
    EXPECT_TRUE(dialogs.errors[0].text.contains(QStringLiteral("rain.srt")));
    EXPECT_EQ(counter(), QStringLiteral("2/2")) << "the set is opened all the same";
    EXPECT_EQ(listed("lstKindWord"), QStringList());
    EXPECT_EQ(survey.read(ling("rain.srt")), "2\r\n\"ame\"");
}

TEST_F(SetHanko, ASetIsBuiltAndSavedAndReadAgain)
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
    click("cmdNext");
    EXPECT_EQ(work(), "2/New|mine||||0|0|1|1||ame no,,50");
    registerRecord("uyu ", "50");
    EXPECT_EQ(work(), "2/2|mine|uyu |uyu |50|12|3|2|0|painted|ame no,,50|uyu,uyu,50")
        << "one number, one style";
    EXPECT_TRUE(form.isWindowModified());

    menu("mnuLoadMap").trigger();
    EXPECT_EQ(leavings, 1);
    EXPECT_TRUE(canDrawLinguisticMap(varn)) << "before it is saved";

    type("txtExplain", "mine too");
    dialogs.inputs = {"new.han"};
    save();
    EXPECT_EQ(dialogs.shown, std::vector{NameQuestion});
    EXPECT_EQ(survey.read(ling("new.han")),
              "\"mine too\"\r\n2\r\n\"ame no\",\"\"\r\n50\r\n12\r\n3\r\n1\r\n2\r\n0\r\n"
              "\"uyu\",\"uyu\"\r\n50\r\n12\r\n3\r\n1\r\n2\r\n0\r\n");
    EXPECT_EQ(varn.SymbolFileName, QStringLiteral("new.han"));
    EXPECT_EQ(varn.LoadState, 2);
    EXPECT_EQ(counter(), QStringLiteral("2/2"));
    EXPECT_FALSE(form.isWindowModified());
    EXPECT_TRUE(form.windowTitle().contains(QStringLiteral("Test - rain.dbs - new.han")));
    undo();
    EXPECT_TRUE(form.isWindowModified()) << "what is taken back is not in the file";
    redo();
    EXPECT_FALSE(form.isWindowModified());
}

TEST_F(SetHanko, SavingAsksBeforeAFileIsReplaced)
{
    registerRecord("ame", "1");
    const std::string before = work();
    dialogs.inputs = {"RAIN", std::nullopt};
    dialogs.yesNo = {false};
    save();
    const Shown overwriteQuestion{"File already exist. Overwrite O.K.? ", "Re Input File Name"};
    EXPECT_EQ(dialogs.shown, std::vector({NameQuestion, overwriteQuestion, NameQuestion}));
    EXPECT_EQ(survey.read(ling("rain.han")), TwoRecords);

    dialogs.inputs = {"a\\b"};
    save();
    ASSERT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(dialogs.errors[0].title, QStringLiteral("Run-time error '52': Bad file name or number"));
    EXPECT_EQ(work(), before);
    EXPECT_TRUE(isSymbolSetUnsaved(varn));
    EXPECT_EQ(varn.SymbolFileName, QString());
}

TEST_F(SetHanko, SaveProposesTheLoadedItemUnlessTheSetIsItsOwn)
{
    const auto proposed = [this](std::optional<QString> answer) {
        dialogs.inputs = {std::move(answer)};
        save();
        return dialogs.proposals.back().name;
    };
    registerRecord("ame", "1");
    EXPECT_EQ(proposed(std::nullopt), QStringLiteral("rain"));
    dialogs.yesNo = {true};
    for (const auto& [file, name] : {std::pair("wind.han", "rain"), {"rain2.han", "rain2"}}) {
        survey.write(ling(file), TwoRecords);
        openSet(file);
        EXPECT_EQ(proposed(std::nullopt), QLatin1String(name));
    }
    proposed("mine");
    EXPECT_EQ(proposed(std::nullopt), QStringLiteral("mine"));
}

TEST_F(SetHanko, AFileIsShownAsItIs)
{
    const std::string rain = "2/2|rain set|uyu|UYU|49|4|0|1|1||ame,AME,1|uyu,UYU,49";
    openSet("rain.han");
    EXPECT_EQ(varn.LoadState, 2);
    openSet("gone.han");
    EXPECT_EQ(dialogs.errors.size(), 1U);
    EXPECT_EQ(varn.SymbolFileName, QStringLiteral("rain.han"));
    EXPECT_EQ(work(), rain);

    survey.write(ling("odd.han"), "\"\"\r\n1\r\n\"k\",\"c\"\r\n9999\r\n16\r\n-1\r\n1\r\n3\r\n-32768\r\n");
    openSet("odd.han");
    EXPECT_EQ(work(), "1/1||k|c|9999|-1|-1|-1|-1|painted|k,c,9999") << "what no list has is shown as nothing";
    click("cmdSave");
    EXPECT_EQ(varn.Hanko(1), (HankoStyle{9999, 0, 0, 1, 0, 0})) << "and stored as zero";
    EXPECT_EQ(dialogs.errors.size(), 1U);

    type("txtWord", "typed");
    LoadHankoData(varn.Drive, ling("rain.han"), varn); // as another form does
    form.Form_Load();
    EXPECT_EQ(work(), rain);
    frmSetHanko opened(varn, dialogs);
    opened.Form_Load();
    EXPECT_EQ(child<QLabel>(opened, "lblRec").text(), QStringLiteral("2/2"));
}

TEST_F(SetHanko, NextAtRecordHundredTellsThatTheSetIsFull)
{
    varn.NHanrei = 100;
    varn.CurrentHanko = 100;
    click("cmdNext");
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text, QStringLiteral("Caption Data exceed Maximum."));
}

TEST_F(SetHanko, WorkIsGivenUpOnlyWhenTheUserAgrees)
{
    openSet("rain.han");
    EXPECT_TRUE(form.close()) << "nothing to lose, nothing to ask";
    form.bringToFront();
    registerRecord("changed", "3");
    const std::string changed = work();
    dialogs.yesNo = {false, false, false, true};
    menu("mnuOpenHanko").trigger();
    menu("mnuHankoInit").trigger();
    EXPECT_FALSE(form.close());
    EXPECT_EQ(work(), changed);
    menu("mnuHankoInit").trigger();
    EXPECT_EQ(work(), "0/0||||0|0|0|0|0|");

    type("txtWord", "not registered");
    dialogs.yesNo = {false, false};
    EXPECT_FALSE(form.close());
    save();
    for (const char* way : {"mnuHankoReturn", "mnuLoadMap"}) {
        leavings = 0;
        dialogs.yesNo = {false, true};
        menu(way).trigger();
        EXPECT_EQ(leavings, 0) << way;
        menu(way).trigger();
        EXPECT_EQ(leavings, 1) << way;
    }
    EXPECT_EQ(text("txtWord"), QStringLiteral("not registered"));
    EXPECT_TRUE(dialogs.errors.empty());
}

TEST_F(SetHanko, ASymbolIsChosenFromTheCatalogue)
{
    type("txtHankoNumber", "93");
    click("cmdSymbol");
    auto* picker = form.findChild<SymbolPicker*>();
    auto& symbols = *picker->findChild<QListWidget*>();
    const auto& buttons = *picker->findChild<QDialogButtonBox*>();
    const auto icon = [&](int row, QIcon::Mode mode = QIcon::Normal) {
        return symbols.item(row)->icon().pixmap(symbols.iconSize(), mode).toImage();
    };
    EXPECT_EQ(symbols.count(), 160);
    EXPECT_EQ(symbols.currentItem()->text(), QStringLiteral("93"));
    EXPECT_EQ(picker->windowTitle(), QStringLiteral("Symbols"));
    EXPECT_EQ(picker->focusWidget(), &symbols);
    EXPECT_EQ(picker->size(), QSize(700, 520));
    EXPECT_EQ(symbols.iconSize(), QSize(44, 44));
    EXPECT_EQ(symbols.gridSize(), QSize(60, 72));
    EXPECT_EQ(symbols.accessibleName(), "Symbols by number");
    EXPECT_NEAR(symbols.visualItemRect(symbols.currentItem()).center().y(),
                symbols.viewport()->rect().center().y(), 36)
        << "the symbol chosen is in the middle";
    EXPECT_EQ(symbols.viewMode(), QListView::IconMode);
    EXPECT_EQ(symbols.movement(), QListView::Static) << "the numbers keep their places";
    EXPECT_EQ(icon(0, QIcon::Selected), icon(0));
    EXPECT_EQ(icon(0).pixelColor(0, 0), Qt::white);
    EXPECT_NE(icon(0), icon(48));
    symbols.setCurrentRow(159);
    Q_EMIT symbols.itemActivated(symbols.currentItem());
    EXPECT_FALSE(picker->isVisible());
    EXPECT_EQ(text("txtHankoNumber"), QStringLiteral("160"));

    for (const char* odd : {"", "-4", "1e30", "9999"}) {
        type("txtHankoNumber", odd);
        click("cmdSymbol");
        EXPECT_EQ(symbols.currentItem()->text(), QStringLiteral("1")) << odd;
        buttons.button(QDialogButtonBox::Cancel)->click();
        EXPECT_EQ(text("txtHankoNumber"), QLatin1String(odd));
    }
    click("cmdSymbol");
    QPushButton& ok = *buttons.button(QDialogButtonBox::Ok);
    symbols.setCurrentRow(-1);
    EXPECT_FALSE(ok.isEnabled());
    symbols.setCurrentRow(0);
    ok.click();
    EXPECT_EQ(text("txtHankoNumber"), QStringLiteral("1"));
    EXPECT_TRUE(dialogs.errors.empty());
}

TEST_F(SetHanko, EveryStepIsTakenBackAndDoneAgain)
{
    openSet("rain.han");
    EXPECT_FALSE(menu("mnuUndo").isEnabled());
    dialogs.shown.clear();
    dialogs.inputs = {"1", std::nullopt, "2", "1"};
    dialogs.yesNo = {false, true, true};
    const std::pair<std::function<void()>, std::string> steps[] = {
        {[&] { click("cmdBefore"); }, "1/2|rain set|ame|AME|1|1|2|0|2|painted|ame,AME,1|uyu,UYU,49"},
        {[&] { choose("cboColor", 9); }, "1/2|rain set|ame|AME|1|9|2|0|2|painted|ame,AME,1|uyu,UYU,49"},
        {[&] { clickRow(1); },
         "1/2|rain set|ame|AME|1|9|2|0|2|painted|ame,AME,1|uyu,UYU,49"},                 // asked, and no
        {[&] { clickRow(1); }, "2/2|rain set|uyu|UYU|49|4|0|1|1||ame,AME,1|uyu,UYU,49"}, // yes
        {[&] { clickRow(2); }, "2/2|rain set|uyu|UYU|49|4|0|1|1||ame,AME,1|uyu,UYU,49"}, // no record is there
        {[&] { clickRow(-1); }, "2/2|rain set|uyu|UYU|49|4|0|1|1||ame,AME,1|uyu,UYU,49"},
        {[&] { clickRow(0); }, "1/2|rain set|ame|AME|1|1|2|0|2|painted|ame,AME,1|uyu,UYU,49"},
        {[&] { registerRecord("a", "93"); }, "1/2|rain set|a|a|93|1|2|0|2|painted|a,a,93|uyu,UYU,49"},
        {[&] { click("cmdNext"); }, "2/2|rain set|uyu|UYU|49|4|0|1|1||a,a,93|uyu,UYU,49"},
        {[&] { click("cmdInserte"); }, "1/3|rain set||||0|0|1|1||,,0|a,a,93|uyu,UYU,49"},
        {[&] { click("cmdInserte"); }, "1/3|rain set||||0|0|1|1||,,0|a,a,93|uyu,UYU,49"}, // cancelled
        {[&] { click("cmdDelete"); },
         "1/2|rain set||||0|0|1|1||,,0|uyu,UYU,49"}, // the second, record 1 is as it was
        {[&] { click("cmdDelete"); }, "1/1|rain set||||0|0|1|1|!|uyu,UYU,49"},
        {[&] { click("cmdSave"); }, "1/1|rain set||||0|0|1|1||,,0"},
        {[&] { menu("mnuHankoInit").trigger(); }, "0/0||||0|0|0|0|0|"},
    };
    const std::string first = work();
    for (const auto& [step, expected] : steps) {
        step();
        EXPECT_EQ(work(), expected);
    }
    EXPECT_EQ(dialogs.shown[2], (Shown{"Specify Number of Insert Data.", "Insert"}));
    EXPECT_EQ(dialogs.shown[4], (Shown{"Specify Number of Delete Data.", "Delete"}));
    const std::string last = work();
    std::vector<std::string> undone{work()};
    while (menu("mnuUndo").isEnabled() && undone.size() < 50) {
        undo();
        undone.push_back(work());
    }
    ASSERT_FALSE(menu("mnuUndo").isEnabled()) << "there is an end";
    for (const auto& [step, before] : steps) {
        EXPECT_GT(std::ranges::count(undone, before), 0) << before;
    }
    EXPECT_EQ(work(), first);
    EXPECT_FALSE(form.isWindowModified()) << "the set is as it was read";
    for (int times = 0; times < 50 && menu("mnuRedo").isEnabled(); ++times) {
        redo();
    }
    EXPECT_EQ(work(), last);
    EXPECT_FALSE(form.isWindowModified()) << "an empty set is nothing to lose";
    undo();
    EXPECT_EQ(work(), undone[1]);
    EXPECT_TRUE(form.isWindowModified());

    dialogs.yesNo = {true};
    openSet("rain.han");
    EXPECT_FALSE(menu("mnuUndo").isEnabled()) << "steps belong to one set";
}

TEST_F(SetHanko, ATextBoxTakesBackItsOwnTypingFirst)
{
    auto& box = control<QLineEdit>("txtWord");
    choose("cboColor", 4);
    box.setFocus();
    for (const char* letter : {"a", "b"}) {
        box.insert(QLatin1String(letter)); // as if typed
    }
    QKeyEvent keys(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
    keys.ignore();
    QApplication::sendEvent(&box, &keys);
    EXPECT_FALSE(keys.isAccepted()) << "left to the form";
    undo();
    EXPECT_EQ(box.text(), QString());
    EXPECT_TRUE(box.isRedoAvailable());
    EXPECT_EQ(chosen("cboColor"), 4);
    redo();
    EXPECT_EQ(box.text(), QStringLiteral("ab"));
    undo();
    undo();
    EXPECT_EQ(chosen("cboColor"), 0);
    EXPECT_FALSE(menu("mnuUndo").isEnabled());
}
