// The manual in the program: every form opens it at its chapter, and its links, pictures and search work.

#include "platform/forms/HelpWindow.h"
#include "platform/forms/Manual.h"
#include "platform/forms/ThemeIcon.h"
#include "tests/shell/forms/WaysOut.h"
#include "tests/support/TestProgram.h"

#include <QImage>
#include <QLabel>
#include <QTest>
#include <QTextBlock>

#include <algorithm>

namespace {

HelpWindow& openHelp()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* help = qobject_cast<HelpWindow*>(window); help != nullptr && help->isVisible()) {
            return *help;
        }
    }
    throw std::logic_error("no help is open");
}

Manual& manualOf(const HelpWindow& window)
{
    return *window.findChild<Manual*>();
}

void pressKey(QWidget& window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(&window, static_cast<Qt::Key>(key), modifiers);
}

class Help : public StartedForms
{
protected:
    ~Help() override
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (qobject_cast<HelpWindow*>(window) != nullptr) {
                delete window;
            }
        }
    }
};

QString chosenChapter(const HelpWindow& help)
{
    const auto* item = child<QListWidget>(help, "lstContents").currentItem();
    return item != nullptr ? item->text() : QString();
}

/// The heading that stands at the top of the manual as it is scrolled.
QString headingOnTop(const HelpWindow& help)
{
    QTextBlock block = help.manual().cursorForPosition({10, 30}).block();
    while (block.isValid() && block.blockFormat().headingLevel() == 0) {
        block = block.previous();
    }
    return block.text();
}

} // namespace

TEST_F(Help, F1OnEveryFormShowsItsChapter)
{
    for (VarnForm* form : allForms()) {
        SCOPED_TRACE(form->metaObject()->className());
        form->show();
        form->activateWindow();
        QApplication::processEvents();
        pressKey(*form, Qt::Key_F1);
        EXPECT_EQ(chosenChapter(openHelp()), form->helpSection()) << "the manual has no such chapter";
        EXPECT_EQ(headingOnTop(openHelp()), form->helpSection());
        form->hide();
    }
    const auto isHelp = [](QWidget* window) { return qobject_cast<HelpWindow*>(window) != nullptr; };
    EXPECT_EQ(std::ranges::count_if(QApplication::topLevelWidgets(), isHelp), 1) << "one window for all";
}

TEST_F(Help, BesideAModalWindowItCanBeUsed)
{
    trigger<frmMain>("mnuNewSurvey");
    QApplication::processEvents();
    QWidget& wizard = *QApplication::activeModalWidget();
    pressKey(wizard, Qt::Key_F1);
    EXPECT_EQ(chosenChapter(openHelp()), "Your own survey in five minutes");
    EXPECT_EQ(openHelp().parentWidget(), &wizard) << "another window would be blocked";
    QApplication::processEvents();
    pressKey(openHelp(), Qt::Key_Escape);
    EXPECT_TRUE(wizard.isVisible());
    EXPECT_THROW(openHelp(), std::logic_error);
}

TEST_F(Help, EveryLinkAndEveryPictureOfTheManualIsThere)
{
    HelpWindow window;
    window.show();
    auto& manual = manualOf(window);
    manual.showSection({});
    QSet<QString> anchors;
    for (const ManualSection& section : manual.sections()) {
        anchors << section.anchor;
    }
    EXPECT_GT(anchors.size(), 15);
    const QTextDocument& page = *manual.document();
    int links = 0;
    int pictures = 0;
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            if (format.isImageFormat()) {
                const QUrl name(format.toImageFormat().name());
                const auto picture =
                    manual.document()->resource(QTextDocument::ImageResource, name).value<QImage>();
                EXPECT_FALSE(picture.isNull()) << qPrintable(name.toString());
                EXPECT_LE(picture.width() / picture.devicePixelRatio(), 601) << qPrintable(name.toString());
                ++pictures;
            } else if (const QUrl link(format.anchorHref()); link.isRelative() && link.hasFragment()) {
                EXPECT_TRUE(!link.path().isEmpty() || anchors.contains(link.fragment()))
                    << qPrintable(link.toString());
                ++links;
            }
        }
    }
    EXPECT_GT(links, 15);
    EXPECT_GT(pictures, 10);
}

TEST_F(Help, OneGoesToChaptersAndBackAndFindsTexts)
{
    HelpWindow window;
    window.show();
    window.activateWindow();
    QApplication::processEvents();
    manualOf(window).showSection("Printing");
    auto& contents = child<QListWidget>(window, "lstContents");
    contents.setCurrentItem(contents.findItems("Contrast maps", Qt::MatchContains).value(0));
    EXPECT_EQ(headingOnTop(window), "Contrast maps");
    pressKey(window, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(chosenChapter(window), "Printing");
    pressKey(window, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(chosenChapter(window), "Contrast maps");

    auto& text = child<QLineEdit>(window, "txtFind");
    pressKey(window, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&text, "Natural Earth of nobody");
    pressKey(text, Qt::Key_Return);
    const auto labels = window.findChildren<QLabel*>();
    const auto says = [&] {
        return std::ranges::any_of(labels, [](const QLabel* label) { return label->text() == "Not found"; });
    };
    EXPECT_TRUE(says());
    text.setText("kanji.map");
    pressKey(text, Qt::Key_Return);
    EXPECT_FALSE(says());
    EXPECT_EQ(window.manual().textCursor().selectedText(), "kanji.map");
    const int first = window.manual().textCursor().position();
    pressKey(window, Qt::Key_F3);
    EXPECT_NE(window.manual().textCursor().position(), first);
    pressKey(window, Qt::Key_F3);
    pressKey(window, Qt::Key_F3);
    EXPECT_EQ(window.manual().textCursor().selectedText(), "kanji.map") << "after the last comes the first";
}

TEST(Icons, AreDrawnInTheColorOfTheThemesTexts)
{
    const QPalette before = QGuiApplication::palette();
    for (const QColor& ink : {QColor(Qt::black), QColor(Qt::white)}) {
        QPalette palette = before;
        palette.setColor(QPalette::ButtonText, ink);
        QGuiApplication::setPalette(palette);
        for (const int size : {16, 48}) {
            const QImage icon = themeIcon("save").pixmap(size).toImage();
            EXPECT_EQ(icon.width(), size);
            int inked = 0;
            for (int y = 0; y < size; ++y) {
                for (int x = 0; x < size; ++x) {
                    const QColor pixel = icon.pixelColor(x, y);
                    inked += pixel.alpha() > 200 ? 1 : 0;
                    EXPECT_TRUE(pixel.alpha() < 200 || std::abs(pixel.red() - ink.red()) < 60);
                }
            }
            EXPECT_GT(inked, size) << size;
        }
    }
    QGuiApplication::setPalette(before);
    EXPECT_TRUE(themeIcon("of nobody").isNull());
}
