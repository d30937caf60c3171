#include "atlas/forms/RecordsModel.h"

#include "atlas/AtlasDocument.h"
#include "shell/VarnModule.h"

#include <QDataStream>
#include <QIODevice>
#include <QMimeData>

#include <algorithm>

namespace {

const QString RecordsFormat = QStringLiteral("application/x-varn-symbol-records");

} // namespace

RecordsModel::RecordsModel(VarnModule& varn, AtlasDocument& document, QObject* parent)
    : QAbstractTableModel(parent), m_varn(varn), m_document(document)
{
    connect(&document, &AtlasDocument::pageTurned, this, &RecordsModel::showPage);
    connect(&document, &AtlasDocument::wordsChanged, this, &RecordsModel::showWords);
    connect(&document, &AtlasDocument::symbolsChanged, this, &RecordsModel::showSymbols);
    showPage();
}

bool RecordsModel::isEditable() const
{
    return m_document.hasPage() && m_document.page().symbolTrouble.isEmpty();
}

bool RecordsModel::hasRoom() const
{
    return isEditable() && m_document.page().symbols.NHanrei < MostRecords;
}

bool RecordsModel::isRecord(const QModelIndex& index) const
{
    return index.isValid() && static_cast<std::size_t>(index.row()) < m_counts.records.size();
}

void RecordsModel::showPage()
{
    beginResetModel();
    m_typedColumn.reset();
    m_counter = RecordCounter(answeredWords(m_document.page().item));
    count();
    m_rows = neededRows();
    endResetModel();
    Q_EMIT shownChanged();
}

void RecordsModel::showWords()
{
    m_counter = RecordCounter(answeredWords(m_document.page().item));
    showSymbols();
}

void RecordsModel::count()
{
    m_counts = m_counter.count(m_document.shownSymbols(), m_varn.WholeWordForms);
}

void RecordsModel::showSymbols()
{
    count();
    showRows();
    showCells();
    Q_EMIT shownChanged();
}

/// The cell that is typed in is left alone.
void RecordsModel::showCells()
{
    for (int column = 0; column < ColumnCount && m_rows > 0; ++column) {
        if (column != m_typedColumn) {
            Q_EMIT dataChanged(index(0, column), index(m_rows - 1, column));
        }
    }
}

/// The row for a new record stays the last one while its kind is typed.
int RecordsModel::neededRows() const
{
    return m_document.page().symbols.NHanrei + (hasRoom() ? 1 : 0);
}

/// Rows come and go at the end, so that an open cell stays open.
void RecordsModel::showRows()
{
    const int needed = neededRows();
    if (needed > m_rows) {
        beginInsertRows({}, m_rows, needed - 1);
        m_rows = needed;
        endInsertRows();
    } else if (needed < m_rows) {
        beginRemoveRows({}, needed, m_rows - 1);
        m_rows = needed;
        endRemoveRows();
    }
}

SymbolRecords RecordsModel::edited(const QModelIndex& index, const QString& text) const
{
    const SymbolRecords& records = m_document.page().symbols;
    const int k = index.row() + 1;
    if (k > records.NHanrei) {
        return text.trimmed().isEmpty() ? records : withRecord(records, text, m_varn.Nsquare);
    }
    return index.column() == Kind ? withKind(records, k, text) : withCaption(records, k, text);
}

void RecordsModel::type(const QModelIndex& index, const QString& text)
{
    m_typedColumn = index.column();
    m_document.previewSymbols(edited(index, text));
}

void RecordsModel::endTyping()
{
    m_typedColumn.reset();
    m_document.endPreview();
}

bool RecordsModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable)) {
        return false;
    }
    m_typedColumn.reset();
    const bool isNew = index.row() >= m_document.page().symbols.NHanrei;
    m_document.setSymbols(edited(index, value.toString()), isNew ? QStringLiteral("New Record")
                                                           : index.column() == Kind
                                                               ? QStringLiteral("Change Kind")
                                                               : QStringLiteral("Change Caption"));
    return true;
}

void RecordsModel::move(const RecordNumbers& numbers, int before)
{
    if (isEditable() && !numbers.empty()) {
        m_document.setSymbols(withRecordsMoved(m_document.page().symbols, numbers, before),
                              QStringLiteral("Move Records"));
        Q_EMIT moved(numbersMoved(numbers, before));
    }
}

int RecordsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int RecordsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(ColumnCount);
}

Qt::ItemFlags RecordsModel::flags(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return Qt::ItemIsDropEnabled; // between the rows
    }
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    const bool isNew = !isRecord(index);
    if (isEditable() && (index.column() == Kind || (index.column() == Caption && !isNew))) {
        flags |= Qt::ItemIsEditable;
    }
    if (isEditable() && !isNew) {
        flags |= Qt::ItemIsDragEnabled;
    }
    return flags;
}

QStringList RecordsModel::mimeTypes() const
{
    return {RecordsFormat};
}

QMimeData* RecordsModel::mimeData(const QModelIndexList& indexes) const
{
    RecordNumbers numbers;
    for (const QModelIndex& index : indexes) {
        numbers.insert(index.row() + 1);
    }
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << QList<int>(numbers.begin(), numbers.end());
    auto* data = new QMimeData; // who drags it owns it
    data->setData(RecordsFormat, bytes);
    return data;
}

bool RecordsModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int /*column*/,
                                const QModelIndex& /*parent*/)
{
    if (action != Qt::MoveAction || !data->hasFormat(RecordsFormat)) {
        return false;
    }
    QList<int> numbers;
    QDataStream stream(data->data(RecordsFormat));
    stream >> numbers;
    const int records = m_document.page().symbols.NHanrei;
    const int target = row < 0 ? records : std::min(row, records); // -1 is below the rows
    move({numbers.begin(), numbers.end()}, target + 1);
    return true;
}
