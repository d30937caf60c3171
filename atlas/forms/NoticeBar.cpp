#include "atlas/forms/NoticeBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

NoticeBar::NoticeBar(QWidget* parent) : QFrame(parent), m_row(new QHBoxLayout(this)), m_text(new QLabel)
{
    setObjectName(QStringLiteral("fraNotice"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    m_text->setObjectName(QStringLiteral("lblNotice"));
    m_text->setForegroundRole(QPalette::ToolTipText);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_row->addWidget(m_text, 1);
    hide();
}

void NoticeBar::showNotice(const QString& text, const QList<QAction*>& actions)
{
    if (isVisibleTo(parentWidget()) && m_text->text() == text) {
        return; // a button may have the focus
    }
    hideNotice();
    m_text->setText(text);
    for (QAction* action : actions) {
        auto* button = new QToolButton;
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setFocusPolicy(Qt::StrongFocus);
        m_row->addWidget(button);
        m_buttons << button;
    }
    show();
}

void NoticeBar::hideNotice()
{
    qDeleteAll(m_buttons);
    m_buttons.clear();
    hide();
}
