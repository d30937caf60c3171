#pragma once

#include "render/DrawnWord.h"

#include <QWidget>

/// Shows one word as it is drawn, as large as the widget is high.
class WordView : public QWidget
{
    Q_OBJECT

public:
    explicit WordView(QWidget* parent = nullptr) : QWidget(parent) {}

    void setWord(DrawnWord word);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    DrawnWord m_word;
};
