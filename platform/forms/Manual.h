#pragma once

#include <QTextBrowser>

#include <vector>

/// A heading of the manual.
struct ManualSection
{
    QString title;
    /// What links to it end in.
    QString anchor;
    /// 1 for the title of a page, 2 for a chapter, and so on.
    int level;
};

/// Shows the user's manual with its pictures, and the pages that it links to.
class Manual : public QTextBrowser
{
    Q_OBJECT

public:
    explicit Manual(QWidget* parent = nullptr);

    /// The headings of the page shown.
    std::vector<ManualSection> sections() const;
    /// Shows the chapter of that title; the beginning of the manual where there is none.
    void showSection(const QString& title);
    /// Goes to the next place of `text`, from the first one again after the last. Returns whether there is
    /// one.
    bool findNext(const QString& text);

protected:
    void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
    QVariant loadResource(int type, const QUrl& name) override;

private:
    void addAnchors();
};
