#include "atlas/AtlasLocalityTable.h"

#include "atlas/AtlasDocument.h"
#include "lingdata/WordCell.h"
#include "render/SymbolMarks.h"
#include "shell/VarnModule.h"

#include <algorithm>

namespace {

constexpr int MostWords = decltype(ItemAnswers::WordData)::last<1>();

/// Word forms of locality i: at most so many as the item has.
int wordCount(const ItemAnswers& item, int i)
{
    return i <= item.NLocate ? item.WordCount(i) : 0;
}

int mostWords(const ItemAnswers& item)
{
    int most = 0;
    for (int i = 1; i <= item.NLocate; ++i) {
        most = std::max(most, wordCount(item, i));
    }
    return most;
}

} // namespace

AtlasLocalityTable::AtlasLocalityTable(const VarnModule& varn, AtlasDocument& document, QObject* parent)
    : QAbstractTableModel(parent), m_varn(varn), m_document(document)
{
    connect(&document, &AtlasDocument::pageTurned, this, &AtlasLocalityTable::showPage);
    connect(&document, &AtlasDocument::baseMapChanged, this, &AtlasLocalityTable::showMap);
    connect(&document, &AtlasDocument::wordsChanged, this, &AtlasLocalityTable::showWords);
    connect(&document, &AtlasDocument::symbolsChanged, this, &AtlasLocalityTable::showWords);
}

void AtlasLocalityTable::showPage()
{
    if (rowsNow() != m_rows) {
        showMap();
    }
    showWords();
}

void AtlasLocalityTable::showMap()
{
    beginResetModel();
    m_rows = rowsNow();
    endResetModel();
}

int AtlasLocalityTable::rowsNow() const
{
    return std::max(m_varn.NLocality, m_document.page().item.NLocate);
}

/// The rows and columns that stay show other words, so that a view of them stays where it is.
void AtlasLocalityTable::showWords()
{
    setWordColumns(std::min(MostWords, mostWords(m_document.page().item) + 1));
    if (m_rows > 0) {
        Q_EMIT dataChanged(index(0, FirstWord), index(m_rows - 1, columnCount() - 1));
    }
}

void AtlasLocalityTable::setWordColumns(int count)
{
    const int last = FirstWord + m_wordColumns - 1;
    if (count > m_wordColumns) {
        beginInsertColumns({}, last + 1, FirstWord + count - 1);
        m_wordColumns = count;
        endInsertColumns();
    } else if (count < m_wordColumns) {
        beginRemoveColumns({}, FirstWord + count, last);
        m_wordColumns = count;
        endRemoveColumns();
    }
}

int AtlasLocalityTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int AtlasLocalityTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : FirstWord + m_wordColumns;
}

QVariant AtlasLocalityTable::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const int locality = index.row() + 1;
    if (index.column() >= FirstWord) {
        return word(locality, index.column() - FirstWord + 1, role);
    }
    if (role == Qt::TextAlignmentRole && index.column() == Number) {
        return (Qt::AlignRight | Qt::AlignVCenter).toInt();
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    return index.column() == Number ? QVariant(locality) : localityName(m_varn, locality);
}

QVariant AtlasLocalityTable::word(int locality, int j, int role) const
{
    const ItemAnswers& item = m_document.page().item;
    if (j > wordCount(item, locality)) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return cellText(item.WordData(locality, j));
    case Marks:
        return marks(item.WordData(locality, j));
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole:
        return accessibleText(locality, j);
    default:
        return {};
    }
}

QVariant AtlasLocalityTable::marks(const QString& word) const
{
    const SymbolRecords& symbols = m_document.shownSymbols();
    const SymbolMarks isMarked(symbols, m_varn.WholeWordForms);
    QVariantList records;
    for (int k = 1; k <= symbols.NHanrei; ++k) {
        if (isMarked(k, word)) {
            records << k;
        }
    }
    return records;
}

QString AtlasLocalityTable::accessibleText(int locality, int j) const
{
    const QString& word = m_document.page().item.WordData(locality, j);
    QStringList captions;
    for (const QVariant& k : marks(word).toList()) {
        captions << m_document.shownSymbols().HankoCaption(k.toInt());
    }
    return captions.isEmpty()
               ? cellText(word) + QStringLiteral(", no symbol")
               : cellText(word) + QStringLiteral(", symbol of ") + captions.join(QStringLiteral(" and "));
}

bool AtlasLocalityTable::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable)) {
        return false;
    }
    const int locality = index.row() + 1;
    QStringList words = localityWords(m_document.page().item).at(static_cast<std::size_t>(index.row()));
    const qsizetype place = std::min<qsizetype>(index.column() - FirstWord, words.size());
    const WordCell cell = typedCell(value.toString());
    if (place < words.size()) {
        words.removeAt(place);
    }
    if (cell) {
        words.insert(place, *cell);
    }
    m_document.setWords({{locality, words}}, QStringLiteral("Word Forms of Locality %1").arg(locality));
    return true;
}

QVariant AtlasLocalityTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation == Qt::Vertical) {
        return {};
    }
    if (section >= FirstWord) {
        return QStringLiteral("Word %1").arg(section - FirstWord + 1);
    }
    return section == Number ? QStringLiteral("No.") : QStringLiteral("Name");
}

/// The item may have fewer localities than the map.
Qt::ItemFlags AtlasLocalityTable::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags shown = QAbstractTableModel::flags(index);
    const bool isWord = index.column() >= FirstWord && index.row() < m_document.page().item.NLocate;
    return isWord ? shown | Qt::ItemIsEditable : shown;
}
