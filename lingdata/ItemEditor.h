#pragma once

#include "lingdata/LinguisticData.h"
#include "render/PhoneticCheck.h"

#include <QStringList>

#include <vector>

/// A word form with an escape that is in no code, and where it stands.
struct FaultyWord
{
    int locality = 0;
    /// Cell of the locality, from 1.
    int column = 0;
    QString word;
    CodeFault fault;

    bool operator==(const FaultyWord&) const = default;
};

/// An item while it is entered: a row of cells for each locality, the caption, the comment, and the list of
/// kinds that cells are filled from. Knows whether it was changed since it was made, opened or saved.
///
/// Localities count from 1, cells of a locality from 1 to `MostWords`; others raise subscript out of range.
class ItemEditor
{
public:
    static constexpr int MostWords = 5;

    /// A new item without word forms. Raises subscript out of range beyond 1000 localities.
    explicit ItemEditor(qint16 localities = 0);
    /// An item that was entered before, with its list of kinds.
    ItemEditor(ItemAnswers item, QStringList kinds);

    int localities() const { return m_item.NLocate; }
    const QString& word(int locality, int column) const;
    /// Fills a cell; blanks alone empty it.
    void setWord(int locality, int column, const QString& word);
    /// How many localities have a word form.
    int answeredLocalities() const;
    /// How many word forms there are.
    int wordForms() const;

    const QString& caption() const { return m_item.Hanrei; }
    void setCaption(const QString& caption) { change(m_item.Hanrei, caption); }
    const QString& comment() const { return m_item.Comment; }
    void setComment(const QString& comment) { change(m_item.Comment, comment); }

    const QStringList& kinds() const { return m_kinds; }
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

    /// The item as its file holds it: empty cells are no word forms, so what stands behind them moves up.
    ItemAnswers answers() const;

    bool isUnsaved() const { return m_unsaved; }
    void markSaved() { m_unsaved = false; }
    void markUnsaved() { m_unsaved = true; }

private:
    void change(QString& value, const QString& newValue);
    void setKinds(QStringList kinds);

    /// Of its word forms `WordData` alone is kept up to date: the cells, empty ones between others.
    ItemAnswers m_item;
    QStringList m_kinds;
    bool m_unsaved = false;
};
