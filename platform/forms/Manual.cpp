#include "platform/forms/Manual.h"

#include <QImage>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>

namespace {

const QUrl FirstPage(QStringLiteral("qrc:/manual/manual.md"));

/// The anchor of a heading as readers of Markdown make it.
QString anchorOf(const QString& title)
{
    static const QRegularExpression Punctuation(QStringLiteral("[^\\w\\s-]"),
                                                QRegularExpression::UseUnicodePropertiesOption);
    return title.toLower().remove(Punctuation).replace(QLatin1Char(' '), QLatin1Char('-'));
}

QList<QTextBlock> headings(const QTextDocument& page)
{
    QList<QTextBlock> found;
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0) {
            found << block;
        }
    }
    return found;
}

} // namespace

Manual::Manual(QWidget* parent) : QTextBrowser(parent)
{
    setOpenExternalLinks(true);
    setAccessibleName(QStringLiteral("Manual"));
}

std::vector<ManualSection> Manual::sections() const
{
    std::vector<ManualSection> sections;
    for (const QTextBlock& heading : headings(*document())) {
        sections.push_back({heading.text(), anchorOf(heading.text()), heading.blockFormat().headingLevel()});
    }
    return sections;
}

void Manual::showSection(const QString& title)
{
    QUrl place = FirstPage;
    place.setFragment(anchorOf(title));
    setSource(place);
}

bool Manual::findNext(const QString& text)
{
    if (find(text)) {
        return true;
    }
    const QTextCursor here = textCursor();
    moveCursor(QTextCursor::Start);
    const bool found = find(text);
    if (!found) {
        setTextCursor(here);
    }
    return found;
}

void Manual::doSetSource(const QUrl& url, QTextDocument::ResourceType type)
{
    constexpr double Margin = 16;
    QTextBrowser::doSetSource(url, type);
    document()->setDocumentMargin(Margin);
    addAnchors();
    if (url.hasFragment()) {
        scrollToAnchor(url.fragment());
    }
}

/// The reader of Markdown leaves headings without anchors.
void Manual::addAnchors()
{
    for (const QTextBlock& heading : headings(*document())) {
        QTextCharFormat anchor;
        anchor.setAnchor(true);
        anchor.setAnchorNames({anchorOf(heading.text())});
        QTextCursor cursor(heading);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(anchor);
    }
}

/// Pictures are made as narrow as a page is in a small window.
QVariant Manual::loadResource(int type, const QUrl& name)
{
    constexpr int WidestPicture = 600;
    QVariant resource = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource) {
        return resource;
    }
    QImage picture = resource.canConvert<QImage>() ? resource.value<QImage>() : QImage();
    if (picture.isNull()) {
        picture.loadFromData(resource.toByteArray());
    }
    // All pixels are kept for screens that can show them.
    picture.setDevicePixelRatio(std::max(1.0, picture.width() / double(WidestPicture)));
    return picture;
}
