#pragma once

#include "lingdata/LinguisticData.h"
#include "lingdata/PhoneticCheck.h"
#include "lingdata/WordBlock.h"
#include "platform/Saved.h"

#include <QStringList>
#include <QUndoStack>

#include <memory>
#include <utility>
#include <vector>

/// A cell of the table: its locality and its number there, both counted from 1.
struct CellPlace
{
    int locality = 0;
    int column = 0;

    bool operator==(const CellPlace&) const = default;
};

/// A word form with an escape that is in no code, and where it stands.
struct FaultyWord
{
    CellPlace place;
    QString word;
    CodeFault fault;

    bool operator==(const FaultyWord&) const = default;
};

/// An item while it is entered: a row of cells for each locality, the caption, the comment, and the list of
/// kinds that cells are filled from. Every change is a step that can be undone; the item is unsaved as long
/// as it differs from what was made, opened or saved.
///
/// Localities count from 1, cells of a locality from 1 to `MostWords`; others raise subscript out of range.
class ItemEditor
{
public:
    static constexpr int MostWords = decltype(ItemAnswers::WordData)::last<1>();

    /// A new item without word forms. Raises subscript out of range beyond 1000 localities.
    explicit ItemEditor(qint16 localities = 0);
    /// An item that was entered before, with its list of kinds.
    ItemEditor(const ItemAnswers& item, QStringList kinds);

    int localities() const { return m_entry->localities; }
    /// Adds localities without word forms, up to `localities`. Raises subscript out of range beyond 1000.
    void addLocalities(qint16 localities);

    const WordCell& cell(const CellPlace& place) const;
    void setCell(const CellPlace& place, const WordCell& cell) { setCells({{place, cell}}); }
    /// Fills cells in one step.
    void setCells(const std::vector<std::pair<CellPlace, WordCell>>& cells);
    /// The cells from `first` to `last`, its lower right corner.
    WordBlock block(const CellPlace& first, const CellPlace& last) const;
    /// Whether all that `block` holds finds its cell when it is pasted from `first` on.
    bool hasRoomFor(const WordBlock& block, const CellPlace& first) const;
    /// Fills the cells from `first` on in one step. Raises subscript out of range where there is no room for
    /// `block`, and changes nothing then.
    void paste(const WordBlock& block, const CellPlace& first);
    /// How many localities have a word form.
    int answeredLocalities() const;
    /// How many word forms there are.
    int wordForms() const;

    const QString& caption() const { return m_entry->caption; }
    void setCaption(const QString& caption) { setText(m_entry->caption, caption); }
    const QString& comment() const { return m_entry->comment; }
    void setComment(const QString& comment) { setText(m_entry->comment, comment); }

    const QStringList& kinds() const { return m_entry->kinds; }
    /// Adds a kind behind the others unless it is among them. Raises subscript out of range where the list is
    /// full, and leaves it as it was.
    void addKind(const QString& kind);
    /// Takes kind `index` (from 0) off the list; the word forms stay.
    void removeKind(int index);
    /// Every distinct word form that the list lacks, in ascending order.
    QStringList wordsMissingInKinds() const;
    /// Adds them behind the others. Raises what `addKind` raises.
    void collectKinds();

    /// All word forms with an escape that is in no code, in locality order.
    std::vector<FaultyWord> checkCodes() const;

    /// The item as its file holds it: where a cell holds nothing, the word forms behind it move up.
    ItemAnswers answers() const;

    bool canUndo() const { return m_steps->canUndo(); }
    bool canRedo() const { return m_steps->canRedo(); }
    /// Takes the last step back; returns the first cell that changed, nothing where none did.
    std::optional<CellPlace> undo();
    /// Takes the step that was undone last again; returns what `undo` returns.
    std::optional<CellPlace> redo();

    bool isUnsaved() const { return m_saved.differs(*m_entry); }
    void markSaved();
    /// From now on the item is unsaved until it is saved.
    void markUnsaved() { m_saved.forget(); }

private:
    struct Entry
    {
        qint16 localities = 0;
        BoundedArray<WordCell, Bounds{1, decltype(ItemAnswers::WordData)::last()}, Bounds{1, MostWords}>
            cells;
        QString caption;
        QString comment;
        QStringList kinds;

        bool operator==(const Entry&) const = default;
    };

    void requireLocality(int locality) const;
    template <typename Value>
    void replace(Value& place, const Value& value);
    void setText(QString& place, const QString& text);
    void setKinds(const QStringList& kinds);
    std::optional<CellPlace> changedBy(void (QUndoStack::*move)());

    /// What the steps change; it stays in its place, since they refer to it.
    std::unique_ptr<Entry> m_entry = std::make_unique<Entry>();
    Saved<Entry> m_saved;
    std::unique_ptr<QUndoStack> m_steps = std::make_unique<QUndoStack>();
};
