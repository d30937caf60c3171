// Texts in lists can be read in a light theme and in a dark one, and in the size of the desktop's font.

#include "platform/forms/ThemeColors.h"
#include "platform/forms/VarnForm.h"
#include "render/forms/WordDelegate.h"
#include "tests/support/Pixels.h"
#include "tests/support/TestDrive.h"

#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>

#include <algorithm>
#include <cmath>

namespace {

/// A light theme and a dark one.
std::vector<QPalette> themes()
{
    std::vector<QPalette> palettes = {{Qt::lightGray, Qt::white}, {QColor(0x31363b), QColor(0x1b1e20)}};
    for (QPalette& palette : palettes) {
        palette.setColor(QPalette::Highlight, QColor(0x2a82da));
    }
    return palettes;
}

/// How bright a colour looks, from 0 to 1.
double luminance(const QColor& color)
{
    const auto linear = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// 1 for the same colour to 21 for black on white; a text can be read from 4.5 up.
double contrast(const QColor& a, const QColor& b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// A list whose first row is chosen.
struct WordList
{
    WordList(const QPalette& palette, int fontPixels)
    {
        survey.varn.VarnPath = survey.varn.Drive.varnPath(QStringLiteral(INSTALLATION_FOLDER));
        QFont font = list.font();
        font.setPixelSize(fontPixels);
        list.setFont(font);
        list.setPalette(palette);
        list.setItemDelegate(new WordDelegate(survey.varn, &list));
        list.addItems({"\\H2", "\\H2", "mm\\E2", "mm", "\\Q1"});
        list.setCurrentRow(0);
        list.setFrameShape(QFrame::NoFrame);
        list.resize(600, 400);
        picture = list.grab().toImage();
    }

    /// How a word stands out at the left of its row, and how high what can be seen of it is.
    std::pair<double, int> word(int row) const
    {
        const QRect cell = list.visualItemRect(list.item(row));
        const QColor background = picture.pixelColor(cell.center().x(), cell.top() + 3);
        double clearest = 0;
        const QRect ink =
            extent(picture, {3, cell.top() + 2, 37, cell.height() - 4}, [&](const QColor& color) {
                clearest = std::max(clearest, contrast(color, background));
                return contrast(color, background) > 2;
            });
        return {clearest, ink.height()};
    }

    TestSurvey survey;
    QListWidget list;
    QImage picture;
};

} // namespace

TEST(Theme, WordsStandOutFromTheirCells)
{
    for (const QPalette& palette : themes()) {
        const WordList words(palette, 24);
        for (int row = 0; row < words.list.count(); ++row) {
            EXPECT_GT(words.word(row).first, row == 4 ? 4.5 : 8) << "row " << row;
        }
    }
}

TEST(Theme, PhoneticLettersAreAsLargeAsTheListsFont)
{
    const int small = WordList({}, 12).word(1).second;
    EXPECT_NEAR(small, 9, 2) << "the h of a text of 12 pixels";
    EXPECT_NEAR(WordList({}, 36).word(1).second, 3 * small, 4);
}

TEST(Theme, ACodeEndsAtTheRightEdgeOfItsCell)
{
    const WordList words({}, 24);
    const QRect cell = words.list.visualItemRect(words.list.item(2));
    EXPECT_EQ(cell.height(), QFontMetrics(words.list.font()).height() + 8);
    const QColor background = words.picture.pixelColor(cell.center().x(), cell.top() + 3);
    const QRect ink = extent(words.picture, cell.adjusted(1, 1, -1, -1),
                             [&](const QColor& color) { return contrast(color, background) > 1.5; });
    EXPECT_NEAR(ink.left(), cell.left() + 5, 3);
    EXPECT_NEAR(ink.right(), cell.right() - 5, 3);
}

TEST(Theme, TheWaitCursorGoesWithItsWork)
{
    {
        const WaitCursor wait;
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(Theme, ColorsBesideThePaletteCanBeReadOnIt)
{
    for (const QPalette& palette : themes()) {
        const QColor base = palette.color(QPalette::Base);
        for (const QColor& ground : {base, chosenCell(palette)}) {
            EXPECT_GT(contrast(quietText(palette), ground), 4);
            EXPECT_GT(contrast(warningText(palette), ground), 4.5);
        }
        EXPECT_GT(contrast(chosenCell(palette), base), 1.2) << "a chosen cell can be seen";
        QLabel label;
        label.setPalette(palette);
        showAsWarning(label);
        EXPECT_EQ(label.palette().color(QPalette::WindowText), warningText(palette));
    }
}
