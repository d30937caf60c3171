#include "lingdata/ItemEditor.h"

#include "lingdata/InputKindsFile.h"

#include <set>
#include <utility>

namespace {

void requireLocality(const ItemAnswers& item, int locality)
{
    if (locality < 1 || locality > item.NLocate) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("%1 is not in 1 to %2.").arg(locality).arg(item.NLocate));
    }
}

void append(ItemAnswers& item, int locality, const QString& word)
{
    const int j = ++item.WordCount(locality);
    const int n = ++item.WordTotal;
    item.WordData(locality, j) = word;
    item.WordList(n) = word;
    item.WordLocate(n) = static_cast<qint16>(locality);
    item.WordSub(n) = static_cast<qint16>(j);
}

} // namespace

ItemEditor::ItemEditor(qint16 localities)
{
    if (localities > 0) {
        m_item.WordCount(localities) = 0; // raises beyond the capacity
    }
    m_item.NLocate = localities;
}

ItemEditor::ItemEditor(ItemAnswers item, QStringList kinds)
    : m_item(std::move(item)), m_kinds(std::move(kinds))
{}

const QString& ItemEditor::word(int locality, int column) const
{
    requireLocality(m_item, locality);
    return m_item.WordData(locality, column);
}

void ItemEditor::setWord(int locality, int column, const QString& word)
{
    requireLocality(m_item, locality);
    change(m_item.WordData(locality, column), word.trimmed().isEmpty() ? QString() : word);
}

void ItemEditor::change(QString& value, const QString& newValue)
{
    if (value != newValue) {
        value = newValue;
        m_unsaved = true;
    }
}

int ItemEditor::answeredLocalities() const
{
    int answered = 0;
    for (int i = 1; i <= m_item.NLocate; ++i) {
        bool any = false;
        for (int j = 1; j <= MostWords; ++j) {
            any = any || !m_item.WordData(i, j).isEmpty();
        }
        answered += any ? 1 : 0;
    }
    return answered;
}

int ItemEditor::wordForms() const
{
    int words = 0;
    for (int i = 1; i <= m_item.NLocate; ++i) {
        for (int j = 1; j <= MostWords; ++j) {
            words += m_item.WordData(i, j).isEmpty() ? 0 : 1;
        }
    }
    return words;
}

void ItemEditor::addKind(const QString& kind)
{
    if (!m_kinds.contains(kind)) {
        setKinds(m_kinds + QStringList(kind));
    }
}

void ItemEditor::removeKind(int index)
{
    QStringList kinds = m_kinds;
    kinds.removeAt(index);
    setKinds(std::move(kinds));
}

QStringList ItemEditor::wordsMissingInKinds() const
{
    std::set<QString> words;
    for (int i = 1; i <= m_item.NLocate; ++i) {
        for (int j = 1; j <= MostWords; ++j) {
            words.insert(m_item.WordData(i, j));
        }
    }
    words.erase(QString());
    for (const QString& kind : m_kinds) {
        words.erase(kind);
    }
    return {words.begin(), words.end()};
}

void ItemEditor::collectKinds()
{
    setKinds(m_kinds + wordsMissingInKinds());
}

void ItemEditor::setKinds(QStringList kinds)
{
    if (kinds.size() > MostInputKinds) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("The list holds %1 kinds at most.").arg(MostInputKinds));
    }
    m_unsaved = m_unsaved || kinds != m_kinds;
    m_kinds = std::move(kinds);
}

std::vector<FaultyWord> ItemEditor::checkCodes() const
{
    std::vector<FaultyWord> faults;
    for (int i = 1; i <= m_item.NLocate; ++i) {
        for (int j = 1; j <= MostWords; ++j) {
            const QString& word = m_item.WordData(i, j);
            if (const auto fault = findCodeFault(word)) {
                faults.push_back({i, j, word, *fault});
            }
        }
    }
    return faults;
}

ItemAnswers ItemEditor::answers() const
{
    ItemAnswers item;
    item.NLocate = m_item.NLocate;
    item.Hanrei = m_item.Hanrei;
    item.Comment = m_item.Comment;
    for (int i = 1; i <= m_item.NLocate; ++i) {
        for (int j = 1; j <= MostWords; ++j) {
            if (const QString& word = m_item.WordData(i, j); !word.isEmpty()) {
                append(item, i, word);
            }
        }
    }
    return item;
}
