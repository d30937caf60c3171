#pragma once

#include <QFrame>

class QHBoxLayout;
class QLabel;

/// A line over the panes that says what is missing and offers what to do next; hidden while it has no text.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget* parent = nullptr);

    /// Shows `text` with buttons for `actions`.
    void showNotice(const QString& text, const QList<QAction*>& actions);
    void hideNotice();

private:
    QHBoxLayout* m_row;
    QLabel* m_text;
    QList<QWidget*> m_buttons;
};
