#include "atlas/forms/RecordsTable.h"

#include "atlas/forms/RecordTextDelegate.h"
#include "atlas/forms/RecordsModel.h"
#include "atlas/forms/SymbolDelegate.h"
#include "shell/VarnModule.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

RecordsTable::RecordsTable(VarnModule& varn, RecordsModel& model, QWidget* parent)
    : QTableView(parent), m_model(model), m_texts(new RecordTextDelegate(varn, this))
{
    setObjectName(QStringLiteral("tblRecords"));
    setAccessibleName(QStringLiteral("Kinds and their symbols"));
    setModel(&model);
    setItemDelegate(m_texts);
    setItemDelegateForColumn(RecordsModel::Symbol, new SymbolDelegate(varn, RecordsModel::StyleRole, this));
    m_texts->showCodes(false); // cells are narrow; their hints have the codes
    setUpRows();
    setUpColumns();
    connect(m_texts, &RecordTextDelegate::typed, &model, &RecordsModel::type);
    connect(m_texts, &RecordTextDelegate::closeEditor, &model, &RecordsModel::endTyping);
    connect(&model, &RecordsModel::modelReset, this, [this] {
        selectionModel()->setCurrentIndex(m_model.index(0, RecordsModel::Kind),
                                          QItemSelectionModel::NoUpdate); // for those who type
    });
    connect(this, &QTableView::clicked, this, [this](const QModelIndex& index) {
        if (index.column() == RecordsModel::Symbol && m_model.isRecord(index)) {
            Q_EMIT symbolWanted();
        }
    });
}

void RecordsTable::setUpRows()
{
    constexpr int Padding = 12;

    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setDragDropMode(InternalMove);
    setDragDropOverwriteMode(false);
    setDefaultDropAction(Qt::MoveAction);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + Padding);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

void RecordsTable::setUpColumns()
{
    constexpr int SymbolWidth = 52;
    constexpr int CountWidth = 52;

    QHeaderView& header = *horizontalHeader();
    header.setHighlightSections(false);
    header.setSectionResizeMode(RecordsModel::Kind, QHeaderView::Stretch);
    header.setSectionResizeMode(RecordsModel::Caption, QHeaderView::Stretch);
    setColumnWidth(RecordsModel::Symbol, SymbolWidth);
    setColumnWidth(RecordsModel::Words, CountWidth);
    setColumnWidth(RecordsModel::Localities, CountWidth);
}

RecordNumbers RecordsTable::chosenRecords() const
{
    RecordNumbers numbers;
    for (const QModelIndex& index : selectionModel()->selectedRows()) {
        if (m_model.isRecord(index)) {
            numbers.insert(index.row() + 1);
        }
    }
    return numbers;
}

void RecordsTable::chooseRecords(const RecordNumbers& numbers)
{
    if (numbers == chosenRecords()) {
        return;
    }
    QItemSelection rows;
    for (const int k : numbers) {
        rows.select(m_model.index(k - 1, 0), m_model.index(k - 1, RecordsModel::ColumnCount - 1));
    }
    selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
    if (!numbers.empty()) {
        const QModelIndex first = m_model.index(*numbers.begin() - 1, RecordsModel::Kind);
        selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        scrollTo(first);
    }
}

void RecordsTable::typeNewRecord()
{
    const QModelIndex cell = m_model.index(m_model.rowCount() - 1, RecordsModel::Kind);
    setCurrentIndex(cell);
    scrollTo(cell);
    edit(cell);
}

QRect RecordsTable::symbolOnScreen() const
{
    const QRect cell = visualRect(m_model.index(std::max(0, currentIndex().row()), RecordsModel::Symbol));
    return {viewport()->mapToGlobal(cell.topLeft()), cell.size()};
}

void RecordsTable::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTableView::selectionChanged(selected, deselected);
    Q_EMIT chosenChanged();
}

/// A click on one of several chosen symbols is for all of them.
QItemSelectionModel::SelectionFlags RecordsTable::selectionCommand(const QModelIndex& index,
                                                                   const QEvent* event) const
{
    const auto* mouse = dynamic_cast<const QMouseEvent*>(event);
    const bool isForAll = mouse != nullptr && mouse->modifiers() == Qt::NoModifier &&
                          index.column() == RecordsModel::Symbol && selectionModel()->isSelected(index);
    return isForAll ? QItemSelectionModel::NoUpdate : QTableView::selectionCommand(index, event);
}

void RecordsTable::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && state() != EditingState && currentIndex().column() == RecordsModel::Symbol &&
        m_model.isRecord(currentIndex())) {
        Q_EMIT symbolWanted();
    } else if (isEnter && state() != EditingState && currentIndex().isValid()) {
        edit(currentIndex());
    } else {
        QTableView::keyPressEvent(event);
    }
}
