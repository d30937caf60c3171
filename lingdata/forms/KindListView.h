#pragma once

#include <QListWidget>

/// The list of input kinds, made for entry from the keyboard: typing goes to the kind that begins so, Enter
/// enters it, Delete takes it off the list.
class KindListView : public QListWidget
{
    Q_OBJECT

public:
    using QListWidget::QListWidget;

    void keyboardSearch(const QString& typed) override;

Q_SIGNALS:
    /// The user wants the current kind in the data.
    void kindEntered();
    /// The user wants the current kind off the list.
    void kindRemoved();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// Whether a kind was entered since the last letter, so that the next one begins another word.
    bool m_beginsAnew = false;
};
