#pragma once

#include <QMainWindow>
#include <QUrl>

#include <functional>

class Manual;
class QLabel;
class QLineEdit;
class QListWidget;

/// The window that shows the manual, with its contents beside it and a search.
class HelpWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent = nullptr);

    /// Shows the chapter called `section` for someone who works in `window`, in the help window that is open
    /// or in a new one.
    static void showFor(QWidget& window, const QString& section);

    const Manual& manual() const { return *m_manual; }

private:
    void addTools();
    void showContents();
    void showPlace(const QUrl& place);
    void goToChapter(int row);
    void findText();

    Manual* m_manual;
    /// The page that the contents are of.
    QUrl m_page;
    QListWidget* m_contents;
    QLineEdit* m_text;
    QLabel* m_notFound;
};

/// An entry that opens the manual for `window` at the chapter that `section` gives, by F1 too.
QAction* manualAction(QWidget& window, std::function<QString()> section);
