#pragma once

#include "symbols/SymbolEditor.h"

#include <QUndoStack>

/// What the symbol editor goes back to: the records, which of them is being edited, and what its fields hold.
struct SymbolEditorState
{
    SymbolRecords records;
    int CurrentHanko = 0;
    HankoFields fields;
    /// The fields as they were shown or registered last.
    HankoFields stored;
    /// Whether the current record was deleted or moved away from under its fields.
    bool orphaned = false;

    bool operator==(const SymbolEditorState&) const = default;
};

/// The steps of work on a symbol set, for undo and redo.
class SymbolHistory
{
public:
    SymbolHistory();

    /// Forgets all steps; the work goes on from `state`.
    void restart(const SymbolEditorState& state);

    /// Adds the step that led to `state`; nothing where it is the present one.
    void record(const SymbolEditorState& state) { add(state, NoBox); }
    /// The same for what was typed in text box `box`, from 0. Typing on in a box is one step.
    void recordTyping(const SymbolEditorState& state, int box) { add(state, box); }

    bool canUndo() const { return m_steps.canUndo(); }
    bool canRedo() const { return m_steps.canRedo(); }
    /// Each goes one step and returns the state to be shown.
    const SymbolEditorState& undo();
    const SymbolEditorState& redo();

private:
    static constexpr int NoBox = -1;

    void add(const SymbolEditorState& state, int box);

    QUndoStack m_steps;
    SymbolEditorState m_present;
};
