#pragma once

#include "lingdata/ItemEditor.h"

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

/// "w1", "w2" and so on.
inline QStringList numbered(int count)
{
    QStringList words;
    for (int i = 1; i <= count; ++i) {
        words << QStringLiteral("w%1").arg(i);
    }
    return words;
}
