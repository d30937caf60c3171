#include "analysis/SpecifyCharsEditor.h"

#include <algorithm>

void SpecifyCharsEditor::start()
{
    m_current = std::min(1, count());
}

QStringList SpecifyCharsEditor::strings() const
{
    QStringList strings;
    for (int c = 1; c <= count(); ++c) {
        strings << m_data.SpecifyChars(m_data.CurrentWordform, c);
    }
    return strings;
}

QString SpecifyCharsEditor::text() const
{
    return m_current > 0 ? m_data.SpecifyChars(m_data.CurrentWordform, m_current) : QString();
}

void SpecifyCharsEditor::choose(int c)
{
    if (c >= 1 && c <= count()) {
        m_current = c;
    }
}

void SpecifyCharsEditor::add(const QString& text)
{
    const int c = count() + 1;
    m_data.SpecifyChars(m_data.CurrentWordform, c) = text;
    m_data.NumSpecifyChars(m_data.CurrentWordform) = static_cast<qint16>(c);
    m_current = c;
}

void SpecifyCharsEditor::rewrite(const QString& text)
{
    if (m_current > 0) {
        m_data.SpecifyChars(m_data.CurrentWordform, m_current) = text;
    } else {
        add(text);
    }
}

void SpecifyCharsEditor::remove()
{
    if (m_current == 0) {
        return;
    }
    const int k = m_data.CurrentWordform;
    for (int c = m_current; c < count(); ++c) {
        m_data.SpecifyChars(k, c) = m_data.SpecifyChars(k, c + 1);
    }
    --m_data.NumSpecifyChars(k);
    m_current = std::min(m_current, count());
}

void SpecifyCharsEditor::reset()
{
    m_data.NumSpecifyChars(m_data.CurrentWordform) = 0;
    m_current = 0;
}
