#pragma once

#include <QDialog>

/// Tells what the program is and what it is made with.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    /// `text` is Markdown.
    explicit AboutDialog(const QString& text, QWidget* parent = nullptr);
};
