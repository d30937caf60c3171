#include "atlas/forms/AtlasFindBar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include <utility>

namespace {

QToolButton* arrowButton(Qt::ArrowType arrow, const QString& objectName, const QString& name)
{
    auto* button = new QToolButton;
    button->setObjectName(objectName);
    button->setArrowType(arrow);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(name);
    button->setToolTip(name);
    return button;
}

} // namespace

AtlasFindBar::AtlasFindBar(Find find) : m_find(std::move(find)), m_text(new QLineEdit), m_hit(new QLabel)
{
    setObjectName(QStringLiteral("findBar"));
    m_text->setObjectName(QStringLiteral("txtFind"));
    m_text->setAccessibleName(QStringLiteral("Find on the map"));
    m_text->setPlaceholderText(QStringLiteral("Number or name of a locality, or a word form"));
    m_hit->setObjectName(QStringLiteral("lblHit"));
    m_hit->setAccessibleName(QStringLiteral("What was found"));
    auto* previous = arrowButton(Qt::UpArrow, QStringLiteral("cmdPreviousHit"), QStringLiteral("Previous"));
    auto* next = arrowButton(Qt::DownArrow, QStringLiteral("cmdNextHit"), QStringLiteral("Next"));
    auto* done = new QToolButton;
    done->setObjectName(QStringLiteral("cmdCloseFind"));
    done->setText(QStringLiteral("Close"));
    done->setAutoRaise(true);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 4, 6, 4);
    row->addWidget(m_text, 1);
    row->addWidget(m_hit);
    row->addWidget(previous);
    row->addWidget(next);
    row->addWidget(done);
    connect(m_text, &QLineEdit::textChanged, this, &AtlasFindBar::seek);
    connect(previous, &QToolButton::clicked, this, [this] { step(-1); });
    connect(next, &QToolButton::clicked, this, [this] { step(1); });
    connect(done, &QToolButton::clicked, this, &AtlasFindBar::close);
    hide();
}

void AtlasFindBar::begin()
{
    show();
    m_text->setFocus();
    m_text->selectAll();
    seek();
}

void AtlasFindBar::seek()
{
    m_hits = m_find(m_text->text());
    m_current = 0;
    showHit();
}

/// The item may be another one than before.
void AtlasFindBar::step(int by)
{
    m_hits = m_find(m_text->text());
    const auto count = static_cast<int>(m_hits.size());
    if (count > 0) {
        m_current = (m_current + by + count) % count;
        showHit();
    }
}

void AtlasFindBar::showHit()
{
    if (m_hits.empty()) {
        m_hit->setText(m_text->text().isEmpty() ? QString() : QStringLiteral("Not found"));
        return;
    }
    m_hit->setText(QStringLiteral("%1 of %2").arg(m_current + 1).arg(m_hits.size()));
    Q_EMIT found(m_hits[static_cast<std::size_t>(m_current)]);
}

void AtlasFindBar::close()
{
    hide();
    Q_EMIT closed();
}

void AtlasFindBar::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Enter:
    case Qt::Key_Return:
        return step(event->modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
    case Qt::Key_Escape:
        return close();
    default:
        QWidget::keyPressEvent(event);
    }
}
