#include "symbols/SymbolEditor.h"

#include "platform/Numbers.h"

#include <algorithm>

namespace {

/// Raises subscript out of range for a negative number of a record.
void checkNotNegative(int n)
{
    if (n < 0) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("%1 is not the number of a record.").arg(n));
    }
}

} // namespace

QString DelBlankChar(const QString& text)
{
    qsizetype length = text.size();
    while (length > 0 && text[length - 1] == QLatin1Char(' ')) {
        --length;
    }
    return text.left(length);
}

HankoStyle listedStyle(const HankoStyle& style)
{
    const auto listed = [](qint16 value, qint16 last) {
        return value >= 0 && value <= last ? value : qint16{0};
    };
    HankoStyle result = style;
    result.LineColor = listed(style.LineColor, 15);
    result.PaintColor = listed(style.PaintColor, 15);
    result.PaintOn = style.PaintOn != 0 ? 1 : 0;
    result.SymbolSize = listed(style.SymbolSize, 2);
    result.LineThick = listed(style.LineThick, 2);
    return result;
}

QString SymbolEditor::counter() const
{
    const QString number = QString::number(m_set.CurrentHanko);
    return m_set.CurrentHanko > m_set.NHanrei ? number + QStringLiteral("/New")
                                              : number + QLatin1Char('/') + QString::number(m_set.NHanrei);
}

HankoFields SymbolEditor::NewData(const QString& Explain)
{
    HankoFields fields;
    fields.Explain = Explain;
    fields.style.SymbolSize = 1;
    fields.style.LineThick = 1;
    return fields;
}

HankoFields SymbolEditor::GetData() const
{
    return fieldsOf(m_set.CurrentHanko);
}

HankoFields SymbolEditor::fieldsOf(int k) const
{
    return {m_set.Explain, m_set.HankoWord(k), m_set.HankoCaption(k), QString::number(m_set.Hanko(k).HankoNo),
            m_set.Hanko(k)};
}

HankoFields SymbolEditor::SetData(const HankoFields& fields)
{
    const int k = m_set.CurrentHanko;
    HankoStyle style = fields.style;
    style.HankoNo = toInteger(Val(fields.number));
    SetSame(style);
    style = listedStyle(style);
    m_set.Hanko(k) = style;
    m_set.HankoWord(k) = DelBlankChar(fields.word);
    m_set.HankoCaption(k) = DelBlankChar(fields.caption);
    m_set.Explain = fields.Explain;
    HankoFields stored = fields;
    stored.style = style;
    return stored;
}

void SymbolEditor::SetSame(HankoStyle& style) const
{
    for (int i = 1; i < m_set.CurrentHanko; ++i) {
        if (m_set.Hanko(i).HankoNo == style.HankoNo) {
            style = m_set.Hanko(i); // the last one of the same number counts
        }
    }
}

HankoFields SymbolEditor::start()
{
    m_set.CurrentHanko = 1;
    return NewData(m_set.Explain);
}

HankoFields SymbolEditor::registerRecord(const HankoFields& fields)
{
    HankoFields stored = SetData(fields);
    if (!fields.word.isEmpty() && m_set.CurrentHanko > m_set.NHanrei) {
        ++m_set.NHanrei;
    }
    DisplayHanreiData();
    return stored;
}

HankoFields SymbolEditor::goTo(int k, const QString& Explain)
{
    HankoFields fields = fieldsOf(k);
    // The comment belongs to the set: what stands in its field is not given up with the record.
    fields.Explain = Explain;
    m_set.CurrentHanko = k;
    return fields;
}

std::optional<HankoFields> SymbolEditor::next(const HankoFields& fields)
{
    if (m_set.CurrentHanko == m_set.Hanko.last()) {
        return std::nullopt;
    }
    if (fields.word.isEmpty() || m_set.CurrentHanko > m_set.NHanrei) {
        return fields;
    }
    if (m_set.CurrentHanko < m_set.NHanrei) {
        return goTo(m_set.CurrentHanko + 1, fields.Explain);
    }
    ++m_set.CurrentHanko;
    return NewData(fields.Explain);
}

HankoFields SymbolEditor::previous(const HankoFields& fields)
{
    return m_set.CurrentHanko == 1 ? fields : goTo(m_set.CurrentHanko - 1, fields.Explain);
}

void SymbolEditor::copyRecord(int from, int to)
{
    m_set.Hanko(to) = m_set.Hanko(from);
    m_set.HankoWord(to) = m_set.HankoWord(from);
    m_set.HankoCaption(to) = m_set.HankoCaption(from);
}

std::optional<HankoFields> SymbolEditor::insertRecord(int n, const QString& Explain)
{
    checkNotNegative(n);
    if (n > m_set.NHanrei) {
        return std::nullopt;
    }
    if (n > 0) { // number 0 moves nothing, but becomes the current record
        for (int i = m_set.NHanrei; i >= n; --i) {
            copyRecord(i, i + 1);
        }
        ++m_set.NHanrei;
    }
    m_set.CurrentHanko = n;
    HankoFields stored = SetData(NewData(Explain));
    DisplayHanreiData();
    return stored;
}

bool SymbolEditor::deleteRecord(int n)
{
    checkNotNegative(n);
    const bool exists = n > 0 && n <= m_set.NHanrei;
    if (exists) {
        for (int i = n; i < m_set.NHanrei; ++i) {
            copyRecord(i + 1, i);
        }
        --m_set.NHanrei;
    }
    DisplayHanreiData();
    return exists && n <= m_set.CurrentHanko;
}

HankoFields SymbolEditor::initialize()
{
    m_set.Explain.clear();
    for (int k = 1; k <= m_set.NHanrei; ++k) {
        m_set.HankoWord(k).clear();
        m_set.HankoCaption(k).clear();
        m_set.Hanko(k) = {};
    }
    m_set.CurrentHanko = 0;
    m_set.NHanrei = 0;
    DisplayHanreiData();
    return GetData();
}

void SymbolEditor::DisplayHanreiData()
{
    m_firstShown = std::max(1, m_set.NHanrei - (MaxShown - 1));
    m_lastShown = m_set.NHanrei;
}

void SymbolEditor::scrollUp()
{
    if (m_firstShown > 1) {
        --m_firstShown;
        --m_lastShown;
    } else {
        m_firstShown = 1;
    }
}

void SymbolEditor::scrollDown()
{
    if (m_lastShown < m_set.NHanrei) {
        ++m_firstShown;
        ++m_lastShown;
    } else {
        m_lastShown = m_set.NHanrei;
        m_firstShown = std::max(1, m_set.NHanrei - (MaxShown - 1));
    }
}
