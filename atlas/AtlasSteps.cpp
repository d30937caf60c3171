#include "atlas/AtlasSteps.h"

#include "atlas/AtlasDocument.h"

#include <utility>

PageStep::PageStep(AtlasDocument& document, const QString& text)
    : QUndoCommand(text), m_document(document), m_itemPath(document.page().item.ItemPath)
{}

SymbolsStep::SymbolsStep(AtlasDocument& document, SymbolRecords after, const QString& text, int merging)
    : PageStep(document, text), m_before(document.page().symbols), m_after(std::move(after)),
      m_merging(merging)
{}

void SymbolsStep::undo()
{
    document().putSymbols(itemPath(), m_before);
}

void SymbolsStep::redo()
{
    document().putSymbols(itemPath(), m_after);
}

bool SymbolsStep::mergeWith(const QUndoCommand* next)
{
    const auto* step = static_cast<const SymbolsStep*>(next);
    if (step->itemPath() != itemPath()) {
        return false;
    }
    m_after = step->m_after;
    setObsolete(m_after == m_before);
    return true;
}

WordsStep::WordsStep(AtlasDocument& document, Words after, const QString& text)
    : PageStep(document, text), m_after(std::move(after))
{
    const LocalityWords now = localityWords(document.page().item);
    for (const auto& [locality, words] : m_after) {
        m_before[locality] = now.at(static_cast<std::size_t>(locality - 1));
    }
}

void WordsStep::undo()
{
    document().putWords(itemPath(), m_before);
}

void WordsStep::redo()
{
    document().putWords(itemPath(), m_after);
}

LegendPlaceStep::LegendPlaceStep(AtlasDocument& document, QPointF after)
    : QUndoCommand(QStringLiteral("Move Legend")), m_document(document), m_before(document.legendPlace()),
      m_after(after)
{}

void LegendPlaceStep::undo()
{
    m_document.putLegend(m_before);
}

void LegendPlaceStep::redo()
{
    m_document.putLegend(m_after);
}
