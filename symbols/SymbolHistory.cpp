#include "symbols/SymbolHistory.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int MostSteps = 500;

/// One step, as the states before and after it.
class Step : public QUndoCommand
{
public:
    Step(SymbolEditorState& present, SymbolEditorState after, int box)
        : m_present(present), m_before(present), m_after(std::move(after)), m_box(box)
    {}

    void undo() override { m_present = m_before; }
    void redo() override { m_present = m_after; }
    int id() const override { return m_box; }

    bool mergeWith(const QUndoCommand* next) override
    {
        m_after = static_cast<const Step*>(next)->m_after;
        setObsolete(m_after == m_before);
        return true;
    }

private:
    SymbolEditorState& m_present;
    SymbolEditorState m_before;
    SymbolEditorState m_after;
    int m_box;
};

} // namespace

SymbolHistory::SymbolHistory()
{
    m_steps.setUndoLimit(MostSteps);
}

void SymbolHistory::restart(const SymbolEditorState& state)
{
    m_steps.clear();
    m_present = state;
}

void SymbolHistory::add(const SymbolEditorState& state, int box)
{
    if (state != m_present) {
        m_steps.push(new Step(m_present, state, box));
    }
}

const SymbolEditorState& SymbolHistory::undo()
{
    m_steps.undo();
    return m_present;
}

const SymbolEditorState& SymbolHistory::redo()
{
    m_steps.redo();
    return m_present;
}
