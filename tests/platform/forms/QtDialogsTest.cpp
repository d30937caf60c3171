// The dialogs of the desktop program, answered as a person answers them: by keys and buttons.

#include "platform/forms/QtDialogs.h"

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
        ASSERT_NE(box, nullptr) << qPrintable(dialog.windowTitle());
        ASSERT_NE(box->button(button), nullptr) << "button " << button;
        box->button(button)->click();
    };
}

/// Types `name` as that of a file, with `filter` chosen, and accepts.
Answer typeFile(const QString& name, int filter = 0)
{
    return [name, filter](QDialog& dialog) {
        auto* types = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        ASSERT_NE(types, nullptr) << qPrintable(dialog.windowTitle());
        while (types->currentIndex() < filter) {
            send(*types, Qt::Key_Down);
        }
        dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
        QMetaObject::invokeMethod(&dialog, "accept", Qt::QueuedConnection);
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
    struct Row
    {
        Ask ask;
        Answer answer;
        bool expected;
    };
    const Row rows[] = {
        {&QtDialogs::confirmLoss, key(Qt::Key_Return), false},
        {&QtDialogs::confirmLoss, key(Qt::Key_Escape), false},
        {&QtDialogs::confirmLoss, press(QMessageBox::Yes), true},
        {&QtDialogs::confirmLoss, press(QMessageBox::No), false},
        {&QtDialogs::askYesNo, key(Qt::Key_Return), true},
        {&QtDialogs::askYesNo, key(Qt::Key_Escape), false},
        {&QtDialogs::askYesNo, press(QMessageBox::No), false},
        {&QtDialogs::askOkCancel, key(Qt::Key_Return), true},
        {&QtDialogs::askOkCancel, key(Qt::Key_Escape), false},
        {&QtDialogs::askOkCancel, press(QMessageBox::Cancel), false},
    };
    int n = 0;
    for (const Row& row : rows) {
        const Person person({[&row](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), QStringLiteral("title"));
            EXPECT_EQ(dynamic_cast<QMessageBox&>(dialog).text(), QStringLiteral("<b>lost</b>\nall?"));
            EXPECT_EQ(dynamic_cast<QMessageBox&>(dialog).textFormat(), Qt::PlainText);
            row.answer(dialog);
        }});
        EXPECT_EQ((dialogs.*row.ask)(QStringLiteral("<b>lost</b>\r\nall?"), QStringLiteral("title")),
                  row.expected)
            << "row " << n++;
    }
}

TEST_F(DialogsOfTheDesktop, MessagesAndErrorsShowTheirTexts)
{
    const Person person({[](QDialog& dialog) {
                             const auto& box = dynamic_cast<QMessageBox&>(dialog);
                             EXPECT_EQ(box.text(), QStringLiteral("done"));
                             EXPECT_EQ(box.windowTitle(), QStringLiteral("Print"));
                             EXPECT_EQ(box.icon(), QMessageBox::Information);
                             key(Qt::Key_Return)(dialog);
                         },
                         [](QDialog& dialog) {
                             const auto& box = dynamic_cast<QMessageBox&>(dialog);
                             EXPECT_EQ(box.text(), QStringLiteral("Run-time error '53': File not found"));
                             EXPECT_EQ(box.informativeText(), QStringLiteral("File: C:\\a\nLine 2"));
                             EXPECT_EQ(box.icon(), QMessageBox::Critical);
                             EXPECT_EQ(box.windowTitle(), QStringLiteral("VARN"));
                             const int line =
                                 box.fontMetrics().horizontalAdvance(QStringLiteral("File: C:\\a"));
                             EXPECT_GT(box.width(), line) << "the path stays on its line";
                             key(Qt::Key_Escape)(dialog);
                         }});
    dialogs.message(QStringLiteral("done"), QStringLiteral("Print"));
    dialogs.error(QStringLiteral("Run-time error '53': File not found"),
                  QStringLiteral("File: C:\\a\r\nLine 2"));
}

TEST_F(DialogsOfTheDesktop, ATextIsTypedOverTheProposedOne)
{
    const auto type = [](const QString& text, Qt::Key last) {
        return [=](QDialog& dialog) {
            auto& box = dynamic_cast<QInputDialog&>(dialog);
            EXPECT_EQ(box.labelText(), QStringLiteral("two\nlines"));
            EXPECT_EQ(box.textValue(), QStringLiteral("old"));
            EXPECT_EQ(box.windowTitle(), QStringLiteral("title"));
            EXPECT_GE(box.width(), 360) << "room for a name";
            box.setTextValue(text);
            key(last)(dialog);
        };
    };
    const Person person({type(QStringLiteral("new"), Qt::Key_Return), type({}, Qt::Key_Return),
                         type(QStringLiteral("new"), Qt::Key_Escape)});
    for (const auto& expected :
         {std::optional(QStringLiteral("new")), std::optional(QString()), std::optional<QString>()}) {
        EXPECT_EQ(
            dialogs.input(QStringLiteral("two\r\nlines"), QStringLiteral("title"), QStringLiteral("old")),
            expected);
    }
}

TEST_F(DialogsOfTheDesktop, AFileToSaveGetsTheEndingOfItsFilter)
{
    struct Row
    {
        QString typed;
        int filter;
        QString saved;
    };
    const Row rows[] = {{"map", 0, "map.pdf"}, {"map", 1, "map.svg"},     {"map", 2, "map.map"},
                        {"m.x", 1, "m.x"},     {"map.png", 0, "map.png"}, {"map.pdf", 1, "map.pdf"}};
    for (const Row& row : rows) {
        const Person person({[&](QDialog& dialog) {
            const auto& files = dynamic_cast<QFileDialog&>(dialog);
            EXPECT_EQ(files.directory().path(), folder.root());
            EXPECT_EQ(files.windowTitle(), QStringLiteral("Save"));
            EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text(),
                      QStringLiteral("rain"));
            EXPECT_EQ(files.nameFilters(),
                      QStringList({"PDF Files (*.pdf)", "SVG Files (*.svg)", "Map files (*.map *.dat)"}));
            typeFile(row.typed, row.filter)(dialog);
        }});
        EXPECT_EQ(dialogs.saveFile(QStringLiteral("Save"), folder.root(), filters, QStringLiteral("rain")),
                  folder.hostPath(row.saved));
    }
    const Person person({key(Qt::Key_Escape)});
    EXPECT_EQ(dialogs.saveFile(QStringLiteral("Save"), folder.root(), filters, QString()), std::nullopt);
}

TEST_F(DialogsOfTheDesktop, AnExistingFileIsReplacedOnlyOnYesWhateverItsLetterCase)
{
    folder.write(QStringLiteral("C:\\Loc.map"), "mine");
    const auto ask = [](const Answer& answer) {
        return [answer](QDialog& dialog) {
            auto* box = qobject_cast<QMessageBox*>(&dialog);
            ASSERT_NE(box, nullptr) << "no question";
            EXPECT_EQ(box->text(), QStringLiteral("Loc.map already exists.\nDo you want to replace it?"));
            answer(dialog);
        };
    };
    struct Row
    {
        QString typed;
        std::vector<Answer> answers;
        std::optional<QString> saved;
    };
    const Row rows[] = {
        {"Loc.map", {press(QMessageBox::Yes)}, "Loc.map"},
        {"loc.map", {press(QMessageBox::Yes)}, "Loc.map"},
        {"LOC", {press(QMessageBox::Yes)}, "Loc.map"},
        {"loc.map", {key(Qt::Key_Return), typeFile("loc2.map")}, "loc2.map"},
        {"Loc.map", {key(Qt::Key_Escape), key(Qt::Key_Escape)}, std::nullopt},
    };
    for (const Row& row : rows) {
        std::vector<Answer> answers = {typeFile(row.typed, 2), ask(row.answers[0])};
        answers.insert(answers.end(), row.answers.begin() + 1, row.answers.end());
        const Person person(answers);
        const auto saved = dialogs.saveFile(QStringLiteral("Save"), folder.root(), filters, QString());
        EXPECT_EQ(saved, row.saved ? std::optional(folder.hostPath(*row.saved)) : std::nullopt)
            << qPrintable(row.typed);
    }
    EXPECT_EQ(folder.read(QStringLiteral("C:\\Loc.map")), "mine");
}

TEST_F(DialogsOfTheDesktop, OnlyWhatExistsIsOpened)
{
    folder.write(QStringLiteral("C:\\Ling\\rain.dbs"), "");
    const QString ling = folder.hostPath(QStringLiteral("Ling"));
    const Person person({typeFile(QStringLiteral("rain.dbs")), typeFile(QStringLiteral("gone.dbs")),
                         press(QMessageBox::Ok), key(Qt::Key_Escape),
                         [&](QDialog& dialog) {
                             EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).directory().path(), ling);
                             EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Folder"));
                             key(Qt::Key_Escape)(dialog);
                         },
                         [&](QDialog& dialog) {
                             EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).fileMode(), QFileDialog::Directory);
                             QMetaObject::invokeMethod(&dialog, "accept", Qt::QueuedConnection);
                         }});
    const QString filter = QStringLiteral("DBS Files (*.dbs)|*.dbs");
    EXPECT_EQ(dialogs.openFile(QStringLiteral("Open"), ling, filter), ling + QStringLiteral("/rain.dbs"));
    EXPECT_EQ(dialogs.openFile(QStringLiteral("Open"), ling, filter), std::nullopt);
    EXPECT_EQ(dialogs.chooseFolder(QStringLiteral("Folder"), ling), std::nullopt);
    EXPECT_EQ(dialogs.chooseFolder(QStringLiteral("Folder"), ling), ling);
}

TEST_F(DialogsOfTheDesktop, AFontThatIsNotInstalledKeepsItsNameUntilAnotherIsChosen)
{
    const TextFont missing{QStringLiteral("No such font"), 14, true, true};
    const Person person({key(Qt::Key_Return),
                         [](QDialog& dialog) {
                             auto& fonts = dynamic_cast<QFontDialog&>(dialog);
                             QFont font = fonts.currentFont();
                             EXPECT_EQ(font.pointSize(), 14);
                             EXPECT_TRUE(font.bold() && font.italic());
                             font.setPointSize(18);
                             fonts.setCurrentFont(font);
                             key(Qt::Key_Return)(dialog);
                         },
                         key(Qt::Key_Escape)});
    EXPECT_EQ(dialogs.chooseFont(missing), missing);
    EXPECT_EQ(dialogs.chooseFont(missing), (TextFont{missing.name, 18, true, true}));
    EXPECT_EQ(dialogs.chooseFont(missing), std::nullopt);
}

TEST_F(DialogsOfTheDesktop, ThePrinterDialogShowsThePageAndGivesBackWhatIsChosen)
{
    PageLayout layout;
    layout.PaperOrientation = PageOrientation::Landscape;
    layout.LeftMargin = 31;
    layout.TopMargin = 32;
    layout.RightMargin = 33;
    layout.BottomMargin = 34;
    const auto look = [](QDialog& dialog) {
        auto& print = dynamic_cast<QPrintDialog&>(dialog);
        const QPageLayout page = print.printer()->pageLayout();
        EXPECT_EQ(page.pageSize().id(), QPageSize::A4);
        EXPECT_EQ(page.orientation(), QPageLayout::Landscape);
        EXPECT_EQ(page.margins(QPageLayout::Millimeter), QMarginsF(31, 32, 33, 34));
        EXPECT_FALSE(print.testOption(QAbstractPrintDialog::PrintPageRange)) << "a map is one page";
    };
    const Person person({[&](QDialog& dialog) {
                             look(dialog);
                             key(Qt::Key_Escape)(dialog);
                         },
                         [&](QDialog& dialog) {
                             look(dialog);
                             QPrinter& printer = *dynamic_cast<QPrintDialog&>(dialog).printer();
                             printer.setOutputFileName(folder.hostPath(QStringLiteral("map.pdf")));
                             printer.setPageOrientation(QPageLayout::Portrait);
                             dialog.done(QDialog::Accepted);
                         }});
    EXPECT_EQ(dialogs.choosePrinter(layout), nullptr);
    const auto printer = dialogs.choosePrinter(layout);
    ASSERT_NE(printer, nullptr);
    PageLayout chosen = layout;
    printer->takeChoices(chosen);
    EXPECT_EQ(chosen.PaperOrientation, PageOrientation::Portrait);
    EXPECT_EQ(chosen.LeftMargin, 31);
    DrawSurface page;
    page.Box(0, 0, 500, 500, qRgb(0, 0, 0));
    printer->print({QStringLiteral("Island"), PageOrientation::Portrait, {page.drawing()}});
    EXPECT_TRUE(folder.read(QStringLiteral("C:\\map.pdf")).startsWith("%PDF"));
}
