// The dialogs of the desktop program, answered as a person answers them: by keys and buttons.

#include "platform/forms/QtDialogs.h"

#include "tests/support/Controls.h"
#include "tests/support/TestDrive.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTimer>

#include <functional>

namespace {

using Answer = std::function<void(QDialog&)>;

/// Answers the dialogs that a call opens, each with the next of its answers.
class Person
{
public:
    explicit Person(std::vector<Answer> answers) : m_answers(std::move(answers))
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start(5);
    }
    ~Person() { EXPECT_EQ(m_next, m_answers.size()) << "dialogs were shown"; }
    Person(const Person&) = delete;
    Person& operator=(const Person&) = delete;

private:
    void look()
    {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || dialog == m_answered) {
            return;
        }
        m_answered = dialog;
        if (m_next == m_answers.size()) {
            ADD_FAILURE() << "another dialog: " << qPrintable(dialog->windowTitle());
            dialog->reject();
            return;
        }
        m_answers[m_next++](*dialog);
        m_answered = nullptr; // it may be shown again
    }

    std::vector<Answer> m_answers;
    std::size_t m_next = 0;
    QDialog* m_answered = nullptr;
    QTimer m_timer;
};

void send(QWidget& widget, Qt::Key pressed)
{
    QKeyEvent event(QEvent::KeyPress, pressed, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

Answer key(Qt::Key pressed)
{
    return [pressed](QDialog& dialog) {
        QWidget* focused = dialog.focusWidget();
        send(focused == nullptr ? dialog : *focused, pressed);
    };
}

Answer press(QMessageBox::StandardButton button)
{
    return [button](QDialog& dialog) {
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        ASSERT_TRUE(box != nullptr && box->button(button) != nullptr) << qPrintable(dialog.windowTitle());
        box->button(button)->click();
    };
}

QLineEdit& fileName(const QDialog& dialog)
{
    return child<QLineEdit>(dialog, "fileNameEdit");
}

/// Types `name` as that of a file, with `filter` chosen, and accepts.
Answer typeFile(const QString& name, int filter = 0)
{
    return [name, filter](QDialog& dialog) {
        auto& types = child<QComboBox>(dialog, "fileTypeCombo");
        while (types.currentIndex() < filter) {
            send(types, Qt::Key_Down);
        }
        fileName(dialog).setText(name);
        QMetaObject::invokeMethod(&dialog, "accept", Qt::QueuedConnection);
    };
}

/// What a dialog shows: its title, and the texts that stand in it.
QStringList textsOf(const QDialog& dialog)
{
    if (const auto* box = qobject_cast<const QMessageBox*>(&dialog)) {
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        return {box->windowTitle(), box->text(), box->informativeText()};
    }
    if (const auto* input = qobject_cast<const QInputDialog*>(&dialog)) {
        return {input->windowTitle(), input->labelText(), input->textValue()};
    }
    const auto& files = dynamic_cast<const QFileDialog&>(dialog);
    return {files.windowTitle(), files.directory().path(), fileName(files).text()};
}

/// Looks whether these texts are shown, then answers.
Answer seeing(const QStringList& texts, const Answer& answer)
{
    return [=](QDialog& dialog) {
        EXPECT_EQ(textsOf(dialog), texts);
        answer(dialog);
    };
}

class DialogsOfTheDesktop : public testing::Test
{
protected:
    QtDialogs dialogs;
    TestDrive folder;
    const QString filters = QStringLiteral("PDF Files (*.pdf)|*.pdf|SVG Files (*.svg)|*.svg|"
                                           "Map files (*.map;*.dat)|*.map;*.dat");
};

} // namespace

TEST_F(DialogsOfTheDesktop, EnterAndEscapeAnswerWhatLosesNothing)
{
    using Ask = bool (QtDialogs::*)(const QString&, const QString&);
    const std::tuple<const char*, Ask, Answer, bool> rows[] = {
        {"loss, Enter", &QtDialogs::confirmLoss, key(Qt::Key_Return), false},
        {"loss, Escape", &QtDialogs::confirmLoss, key(Qt::Key_Escape), false},
        {"yes or no, Enter", &QtDialogs::askYesNo, key(Qt::Key_Return), true},
        {"yes or no, Escape", &QtDialogs::askYesNo, key(Qt::Key_Escape), false},
        {"ok or cancel, Enter", &QtDialogs::askOkCancel, key(Qt::Key_Return), true},
        {"ok or cancel, Escape", &QtDialogs::askOkCancel, key(Qt::Key_Escape), false},
    };
    for (const auto& [name, ask, answer, expected] : rows) {
        SCOPED_TRACE(name);
        const Person person({seeing({"title", "<b>lost</b>\nall?", ""}, answer)});
        EXPECT_EQ((dialogs.*ask)("<b>lost</b>\r\nall?", "title"), expected);
    }
}

TEST_F(DialogsOfTheDesktop, UnsavedWorkIsSavedByEnterAndStaysByEscape)
{
    const std::pair<Answer, SaveChoice> rows[] = {{key(Qt::Key_Return), SaveChoice::Save},
                                                  {key(Qt::Key_Escape), SaveChoice::Cancel},
                                                  {press(QMessageBox::Discard), SaveChoice::Discard}};
    for (const auto& [answer, expected] : rows) {
        const Person person({seeing({"Atlas", "Save?", ""}, answer)});
        EXPECT_EQ(dialogs.askSaveChoice("Save?", "Atlas"), expected);
    }
}

TEST_F(DialogsOfTheDesktop, MessagesAndErrorsShowTheirTexts)
{
    const auto close = [](QMessageBox::Icon icon, Qt::Key last) {
        return [=](QDialog& dialog) {
            EXPECT_EQ(dynamic_cast<QMessageBox&>(dialog).icon(), icon);
            EXPECT_GT(dialog.width(), dialog.fontMetrics().horizontalAdvance("File: C:\\a"))
                << "a path stays on its line";
            key(last)(dialog);
        };
    };
    const QString error = QStringLiteral("Run-time error '53': File not found");
    const Person person(
        {seeing({"Print", "done", ""}, close(QMessageBox::Information, Qt::Key_Return)),
         seeing({"VARN", error, "File: C:\\a\nLine 2"}, close(QMessageBox::Critical, Qt::Key_Escape))});
    dialogs.message("done", "Print");
    dialogs.error(error, "File: C:\\a\r\nLine 2");
}

TEST_F(DialogsOfTheDesktop, ATextIsTypedOverTheProposedOne)
{
    const std::tuple<QString, Qt::Key, std::optional<QString>> rows[] = {
        {"new", Qt::Key_Return, "new"}, {"", Qt::Key_Return, ""}, {"new", Qt::Key_Escape, std::nullopt}};
    for (const auto& [text, last, expected] : rows) {
        const auto type = [&text = text, last = last](QDialog& dialog) {
            EXPECT_GE(dialog.width(), 360) << "room for a name";
            dynamic_cast<QInputDialog&>(dialog).setTextValue(text);
            key(last)(dialog);
        };
        const Person person({seeing({"title", "two\nlines", "old"}, type)});
        EXPECT_EQ(dialogs.input("two\r\nlines", "title", "old"), expected);
    }
}

TEST_F(DialogsOfTheDesktop, AFileToSaveGetsTheEndingOfItsFilter)
{
    const std::tuple<QString, int, QString> rows[] = {{"map", 0, "map.pdf"},     {"map", 1, "map.svg"},
                                                      {"map", 2, "map.map"},     {"m.x", 1, "m.x"},
                                                      {"map.png", 0, "map.png"}, {"map.pdf", 1, "map.pdf"}};
    for (const auto& [typed, filter, saved] : rows) {
        const Person person({seeing({"Save", folder.root(), "rain"}, typeFile(typed, filter))});
        EXPECT_EQ(dialogs.saveFile("Save", folder.root(), filters, "rain"), folder.hostPath(saved));
    }
    const Person person({[](QDialog& dialog) {
        EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).nameFilters(),
                  QStringList({"PDF Files (*.pdf)", "SVG Files (*.svg)", "Map files (*.map *.dat)"}));
        key(Qt::Key_Escape)(dialog);
    }});
    EXPECT_EQ(dialogs.saveFile("Save", folder.root(), filters, {}), std::nullopt);
}

TEST_F(DialogsOfTheDesktop, AnExistingFileIsReplacedOnlyOnYesWhateverItsLetterCase)
{
    folder.write(QStringLiteral("C:\\Loc.map"), "mine");
    const auto ask = [](const Answer& answer) {
        return seeing({"Save", "Loc.map already exists.\nDo you want to replace it?", ""}, answer);
    };
    const std::tuple<QString, std::vector<Answer>, std::optional<QString>> rows[] = {
        {"Loc.map", {ask(press(QMessageBox::Yes))}, "Loc.map"},
        {"loc.map", {ask(press(QMessageBox::Yes))}, "Loc.map"},
        {"LOC", {ask(press(QMessageBox::Yes))}, "Loc.map"},
        {"loc.map", {ask(key(Qt::Key_Return)), typeFile("loc2.map")}, "loc2.map"},
        {"Loc.map", {ask(key(Qt::Key_Escape)), key(Qt::Key_Escape)}, std::nullopt}};
    for (const auto& [typed, later, saved] : rows) {
        std::vector<Answer> answers = later;
        answers.insert(answers.begin(), typeFile(typed, 2));
        const Person person(answers);
        EXPECT_EQ(dialogs.saveFile("Save", folder.root(), filters, {}),
                  saved ? std::optional(folder.hostPath(*saved)) : std::nullopt)
            << qPrintable(typed);
    }
    EXPECT_EQ(folder.read("C:\\Loc.map"), "mine");
}

TEST_F(DialogsOfTheDesktop, OnlyWhatExistsIsOpened)
{
    folder.write("C:\\Ling\\rain.dbs", "");
    const QString ling = folder.hostPath("Ling");
    const auto inLing = [&](const Answer& answer) { return seeing({"title", ling, ""}, answer); };
    const auto look = [](QDialog& dialog) {
        const auto& files = dynamic_cast<QFileDialog&>(dialog);
        EXPECT_EQ(files.nameFilters(), QStringList("DBS Files (*.dbs)"));
        EXPECT_EQ(files.viewMode(), QFileDialog::List);
        typeFile("rain.dbs")(dialog);
    };
    const auto accept = [](QDialog& dialog) {
        EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).fileMode(), QFileDialog::Directory);
        QMetaObject::invokeMethod(&dialog, "accept", Qt::QueuedConnection);
    };
    const Person person({inLing(look), typeFile("gone.dbs"), press(QMessageBox::Ok), key(Qt::Key_Escape),
                         inLing(key(Qt::Key_Escape)), inLing(accept)});
    const QString filter = QStringLiteral("DBS Files (*.dbs)|*.dbs");
    EXPECT_EQ(dialogs.openFile("title", ling, filter), ling + "/rain.dbs");
    EXPECT_EQ(dialogs.openFile("title", ling, filter), std::nullopt);
    EXPECT_EQ(dialogs.chooseFolder("title", ling), std::nullopt);
    EXPECT_EQ(dialogs.chooseFolder("title", ling), ling);
}

TEST_F(DialogsOfTheDesktop, AFontThatIsNotInstalledKeepsItsNameUntilAnotherIsChosen)
{
    const TextFont missing{QStringLiteral("No such font"), 14, true, true};
    const auto enlarge = [](QDialog& dialog) {
        auto& fonts = dynamic_cast<QFontDialog&>(dialog);
        QFont font = fonts.currentFont();
        EXPECT_EQ(font.pointSize(), 14);
        EXPECT_TRUE(font.bold() && font.italic());
        font.setPointSize(18);
        fonts.setCurrentFont(font);
        key(Qt::Key_Return)(dialog);
    };
    const Person person({key(Qt::Key_Return), enlarge, key(Qt::Key_Escape)});
    EXPECT_EQ(dialogs.chooseFont(missing), missing);
    EXPECT_EQ(dialogs.chooseFont(missing), (TextFont{missing.name, 18, true, true}));
    EXPECT_EQ(dialogs.chooseFont(missing), std::nullopt);
}

TEST_F(DialogsOfTheDesktop, ThePrinterDialogShowsThePageAndGivesBackWhatIsChanged)
{
    const PageLayout layout{"A4", PageOrientation::Landscape, 210, 297, 32, 34, 31, 33};
    const auto look = [](const Answer& answer) {
        return [answer](QDialog& dialog) {
            auto& print = dynamic_cast<QPrintDialog&>(dialog);
            const QPageLayout page = print.printer()->pageLayout();
            EXPECT_EQ(page.pageSize().id(), QPageSize::A4);
            EXPECT_EQ(page.orientation(), QPageLayout::Landscape);
            EXPECT_EQ(page.margins(QPageLayout::Millimeter), QMarginsF(31, 32, 33, 34));
            EXPECT_FALSE(print.testOption(QAbstractPrintDialog::PrintPageRange)) << "a map is one page";
            answer(dialog);
        };
    };
    const auto change = [&](QDialog& dialog) {
        QPrinter& printer = *dynamic_cast<QPrintDialog&>(dialog).printer();
        printer.setOutputFileName(folder.hostPath("map.pdf"));
        printer.setPageOrientation(QPageLayout::Portrait);
        printer.setPageMargins({41, 42, 43, 34}, QPageLayout::Millimeter);
        dialog.done(QDialog::Accepted);
    };
    const Person person({look(key(Qt::Key_Escape)), look(change)});
    EXPECT_EQ(dialogs.choosePrinter(layout), nullptr);
    const auto printer = dialogs.choosePrinter(layout);
    ASSERT_NE(printer, nullptr);
    PageLayout chosen;
    printer->takeChoices(chosen);
    EXPECT_EQ(chosen.PaperOrientation, PageOrientation::Portrait);
    EXPECT_EQ(QMargins(chosen.LeftMargin, chosen.TopMargin, chosen.RightMargin, chosen.BottomMargin),
              QMargins(41, 42, 43, 15))
        << "the lower margin stays, which was left as it was shown";
    printer->print({QStringLiteral("Island"), PageOrientation::Portrait, {Drawing()}});
    EXPECT_TRUE(folder.read("C:\\map.pdf").startsWith("%PDF"));
}
