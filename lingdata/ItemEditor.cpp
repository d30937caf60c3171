#include "lingdata/ItemEditor.h"

#include "lingdata/InputKindsFile.h"

#include <algorithm>
#include <set>

namespace {

/// A step that puts another value into its place; undone, it puts the old one back.
template <typename Value>
class Replacement : public QUndoCommand
{
public:
    Replacement(Value& place, Value value, QUndoCommand* parent = nullptr)
        : QUndoCommand(parent), m_place(place), m_other(std::move(value))
    {}

    void redo() override { std::swap(m_place, m_other); }
    void undo() override { std::swap(m_place, m_other); }

protected:
    Value& m_place;
    Value m_other;
};

/// The typing of a text, which is one step until another one follows.
class Typing : public Replacement<QString>
{
public:
    using Replacement::Replacement;

    int id() const override { return 1; }
    bool mergeWith(const QUndoCommand* later) override
    {
        if (&static_cast<const Typing*>(later)->m_place != &m_place) {
            return false;
        }
        setObsolete(m_other == m_place);
        return true;
    }
};

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
        m_entry->cells.require(localities, 1);
    }
    m_entry->localities = localities;
    markSaved();
}

ItemEditor::ItemEditor(const ItemAnswers& item, QStringList kinds) : ItemEditor(item.NLocate)
{
    m_entry->caption = item.Hanrei;
    m_entry->comment = item.Comment;
    m_entry->kinds = std::move(kinds);
    for (int i = 1; i <= item.NLocate; ++i) {
        for (int j = 1; j <= item.WordCount(i); ++j) {
            m_entry->cells(i, j) = item.WordData(i, j);
        }
    }
    markSaved();
}

void ItemEditor::requireLocality(int locality) const
{
    if (locality < 1 || locality > localities()) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("%1 is not in 1 to %2.").arg(locality).arg(localities()));
    }
}

// Changes

template <typename Value>
void ItemEditor::replace(Value& place, const Value& value)
{
    if (place != value) {
        m_steps->push(new Replacement<Value>(place, value));
    }
}

void ItemEditor::setText(QString& place, const QString& text)
{
    if (place != text) {
        m_steps->push(new Typing(place, text));
    }
}

std::optional<CellPlace> ItemEditor::undo()
{
    return changedBy(&QUndoStack::undo);
}

std::optional<CellPlace> ItemEditor::redo()
{
    return changedBy(&QUndoStack::redo);
}

std::optional<CellPlace> ItemEditor::changedBy(void (QUndoStack::*move)())
{
    const auto before = m_entry->cells;
    (m_steps.get()->*move)();
    for (int i = 1; i <= localities(); ++i) {
        for (int j = 1; j <= MostWords; ++j) {
            if (before(i, j) != m_entry->cells(i, j)) {
                return CellPlace{i, j};
            }
        }
    }
    return std::nullopt;
}

void ItemEditor::markSaved()
{
    m_saved.keep(*m_entry);
    m_steps->setClean(); // typing that goes on after it is a step of its own
}

// Cells

void ItemEditor::addLocalities(qint16 localities)
{
    m_entry->cells.require(std::max<qint16>(localities, 1), 1);
    replace(m_entry->localities, std::max(localities, m_entry->localities));
}

const WordCell& ItemEditor::cell(const CellPlace& place) const
{
    requireLocality(place.locality);
    return m_entry->cells(place.locality, place.column);
}

void ItemEditor::setCells(const std::vector<std::pair<CellPlace, WordCell>>& cells)
{
    auto step = std::make_unique<QUndoCommand>();
    for (const auto& [place, value] : cells) {
        requireLocality(place.locality);
        WordCell& old = m_entry->cells(place.locality, place.column);
        if (old != value) {
            new Replacement<WordCell>(old, value, step.get());
        }
    }
    if (step->childCount() > 0) {
        m_steps->push(step.release());
    }
}

WordBlock ItemEditor::block(const CellPlace& first, const CellPlace& last) const
{
    WordBlock block;
    for (int i = first.locality; i <= last.locality; ++i) {
        block.emplace_back();
        for (int j = first.column; j <= last.column; ++j) {
            block.back().push_back(cell({i, j}));
        }
    }
    return block;
}

bool ItemEditor::hasRoomFor(const WordBlock& block, const CellPlace& first) const
{
    for (std::size_t i = 0; i < block.size(); ++i) {
        for (std::size_t j = 0; j < block[i].size(); ++j) {
            const bool inside = first.locality + static_cast<int>(i) <= localities() &&
                                first.column + static_cast<int>(j) <= MostWords;
            if (block[i][j] && !inside) {
                return false;
            }
        }
    }
    return true;
}

void ItemEditor::paste(const WordBlock& block, const CellPlace& first)
{
    std::vector<std::pair<CellPlace, WordCell>> cells;
    for (std::size_t i = 0; i < block.size(); ++i) {
        for (std::size_t j = 0; j < block[i].size(); ++j) {
            const CellPlace place{first.locality + static_cast<int>(i), first.column + static_cast<int>(j)};
            if (block[i][j] || (place.locality <= localities() && place.column <= MostWords)) {
                cells.emplace_back(place, block[i][j]);
            }
        }
    }
    setCells(cells);
}

int ItemEditor::answeredLocalities() const
{
    int answered = 0;
    for (int i = 1; i <= localities(); ++i) {
        bool any = false;
        for (int j = 1; j <= MostWords; ++j) {
            any = any || m_entry->cells(i, j);
        }
        answered += any ? 1 : 0;
    }
    return answered;
}

int ItemEditor::wordForms() const
{
    return answers().WordTotal;
}

// Kinds

void ItemEditor::addKind(const QString& kind)
{
    if (!kinds().contains(kind)) {
        setKinds(kinds() + QStringList(kind));
    }
}

void ItemEditor::removeKind(int index)
{
    QStringList left = kinds();
    left.removeAt(index);
    setKinds(left);
}

QStringList ItemEditor::wordsMissingInKinds() const
{
    const ItemAnswers item = answers();
    std::set<QString> words;
    for (int n = 1; n <= item.WordTotal; ++n) {
        words.insert(item.WordList(n));
    }
    for (const QString& kind : kinds()) {
        words.erase(kind);
    }
    return {words.begin(), words.end()};
}

void ItemEditor::collectKinds()
{
    setKinds(kinds() + wordsMissingInKinds());
}

void ItemEditor::setKinds(const QStringList& kinds)
{
    if (kinds.size() > MostInputKinds) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("The list holds %1 kinds at most.").arg(MostInputKinds));
    }
    replace(m_entry->kinds, kinds);
}

// The item as a whole

std::vector<FaultyWord> ItemEditor::checkCodes() const
{
    std::vector<FaultyWord> faults;
    for (int i = 1; i <= localities(); ++i) {
        for (int j = 1; j <= MostWords; ++j) {
            const QString word = m_entry->cells(i, j).value_or(QString());
            if (const auto fault = findCodeFault(word)) {
                faults.push_back({{i, j}, word, *fault});
            }
        }
    }
    return faults;
}

ItemAnswers ItemEditor::answers() const
{
    ItemAnswers item;
    item.NLocate = m_entry->localities;
    item.Hanrei = m_entry->caption;
    item.Comment = m_entry->comment;
    for (int i = 1; i <= localities(); ++i) {
        for (int j = 1; j <= MostWords; ++j) {
            if (const WordCell& cell = m_entry->cells(i, j)) {
                append(item, i, *cell);
            }
        }
    }
    return item;
}
