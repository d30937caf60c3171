#pragma once

#include "atlas/AtlasPage.h"

#include <QPointF>
#include <QUndoCommand>

#include <map>

class AtlasDocument;

/// A step on the page of one item.
class PageStep : public QUndoCommand
{
public:
    PageStep(AtlasDocument& document, const QString& text);

    const QString& itemPath() const { return m_itemPath; }

protected:
    AtlasDocument& document() { return m_document; }

private:
    AtlasDocument& m_document;
    QString m_itemPath;
};

/// New symbols of an item.
class SymbolsStep : public PageStep
{
public:
    /// Successive steps of the same `merging` are one; `NoMerging` is a step of its own.
    static constexpr int NoMerging = -1;

    SymbolsStep(AtlasDocument& document, SymbolRecords after, const QString& text, int merging);

    void undo() override;
    void redo() override;
    int id() const override { return m_merging; }
    bool mergeWith(const QUndoCommand* next) override;

private:
    SymbolRecords m_before;
    SymbolRecords m_after;
    int m_merging;
};

/// New word forms of some localities of an item.
class WordsStep : public PageStep
{
public:
    using Words = std::map<int, QStringList>;

    WordsStep(AtlasDocument& document, Words after, const QString& text);

    void undo() override;
    void redo() override;

private:
    Words m_before;
    Words m_after;
};

/// A new place for title and legend, in map units.
class LegendPlaceStep : public QUndoCommand
{
public:
    LegendPlaceStep(AtlasDocument& document, QPointF after);

    void undo() override;
    void redo() override;

private:
    AtlasDocument& m_document;
    QPointF m_before;
    QPointF m_after;
};
