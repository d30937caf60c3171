#pragma once

#include "lingdata/ItemEditor.h"

#include <concepts>

/// Types `text` into a cell.
inline void set(ItemEditor& editor, int locality, int column, const QString& text)
{
    editor.setCell({locality, column}, typedCell(text));
}

/// An item of one locality for each of `first`, its only word form.
inline ItemEditor editorWith(const QStringList& first)
{
    ItemEditor editor(static_cast<qint16>(first.size()));
    for (int i = 1; i <= editor.localities(); ++i) {
        set(editor, i, 1, first[i - 1]);
    }
    return editor;
}

/// The text that `word` has for each cell, together: slashes between localities, commas between cells, none
/// behind the last word of a locality.
QString wordsText(int localities, const std::invocable<int, int> auto& word)
{
    QStringList rows;
    for (int i = 1; i <= localities; ++i) {
        QStringList cells;
        for (int j = 1; j <= ItemEditor::MostWords; ++j) {
            cells << word(i, j);
        }
        while (!cells.isEmpty() && cells.last().isEmpty()) {
            cells.removeLast();
        }
        rows << cells.join(',');
    }
    return rows.join('/');
}

/// All that `editor` holds: words, kinds, caption and comment.
inline QString enteredText(const ItemEditor& editor)
{
    const auto word = [&](int i, int j) { return cellText(editor.cell({i, j})); };
    return QStringList({wordsText(editor.localities(), word), editor.kinds().join(','), editor.caption(),
                        editor.comment()})
        .join('|');
}

/// "w1", "w2" and so on.
inline QStringList numbered(int count)
{
    QStringList words;
    for (int i = 1; i <= count; ++i) {
        words << QStringLiteral("w%1").arg(i);
    }
    return words;
}
