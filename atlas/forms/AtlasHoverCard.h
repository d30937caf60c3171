#pragma once

#include "atlas/LocalityAnswer.h"
#include "render/DrawnWord.h"

#include <QWidget>

struct VarnModule;

/// What a locality answered, shown beside it on the map: its number and name, and each word form with its
/// phonetic letters and the symbols that mark it.
class AtlasHoverCard : public QWidget
{
    Q_OBJECT

public:
    AtlasHoverCard(VarnModule& varn, QWidget* map);

    /// Shows `answer` beside `place` of the map, with the symbols of `symbols`.
    void showAnswer(const LocalityAnswer& answer, const SymbolRecords& symbols, QPointF place);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Row
    {
        std::vector<Drawing> symbols;
        DrawnWord word;
        QString code;
    };

    Row rowOf(const MarkedWord& word, const SymbolRecords& symbols) const;
    double wordScale(const Row& row) const;
    int widthOf(const Row& row) const;
    QSize sizeOfContents() const;
    void paintRow(QPainter& painter, const Row& row, int top) const;

    VarnModule& m_varn;
    QString m_title;
    std::vector<Row> m_rows;
};
