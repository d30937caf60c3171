// What the cells of symbol records and their headings say.

#include "atlas/AtlasDocument.h"
#include "atlas/forms/RecordsModel.h"
#include "platform/forms/ThemeColors.h"
#include "shell/VarnModule.h"

#include <QGuiApplication>
#include <QPalette>

#include <array>

namespace {

struct Heading
{
    const char* text;
    const char* explanation;
};

constexpr std::array<Heading, RecordsModel::ColumnCount> Headings = {{
    {"Symbol", "The symbol: click to choose design, colours, size and thickness"},
    {"Kind", "The kind of word form that the record looks for"},
    {"Caption", "The text in the legend; with a hyphen in it the record is not in the legend"},
    {"Forms", "How many different word forms the record marks"},
    {"Places", "At how many localities the record marks a word form"},
}};

} // namespace

QVariant RecordsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    }
    const Heading& heading = Headings.at(static_cast<std::size_t>(section));
    switch (role) {
    case Qt::DisplayRole:
        return QLatin1String(heading.text);
    case Qt::ToolTipRole:
        return QLatin1String(heading.explanation);
    default:
        return {};
    }
}

QVariant RecordsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    return isRecord(index) ? recordData(index, role) : newRowData(index.column(), role);
}

QVariant RecordsModel::newRowData(int column, int role) const
{
    if (column != Kind) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return QStringLiteral("Type a kind");
    case Qt::ForegroundRole:
        return quietText(QGuiApplication::palette());
    case Qt::ToolTipRole:
        return QStringLiteral("While you type, the map shows what the kind would mark; Enter adds a record.");
    default:
        return {};
    }
}

QString RecordsModel::kindText(int k) const
{
    const QString& kind = m_document.shownSymbols().HankoWord(k);
    if (!kind.isEmpty()) {
        return kind;
    }
    return m_varn.WholeWordForms ? QStringLiteral("(all others)") : QStringLiteral("(every word form)");
}

QVariant RecordsModel::text(const QModelIndex& index) const
{
    const int k = index.row() + 1;
    const RecordCount& marked = m_counts.records[static_cast<std::size_t>(index.row())];
    switch (index.column()) {
    case Kind:
        return kindText(k);
    case Caption:
        return m_document.shownSymbols().HankoCaption(k);
    case Words:
        return static_cast<int>(marked.words.size());
    case Localities:
        return static_cast<int>(marked.localities.size());
    default:
        return {};
    }
}

/// A hyphen in the caption keeps a record out of the legend.
bool RecordsModel::isOutOfLegend(const QModelIndex& index) const
{
    return index.column() == Caption && text(index).toString().contains(QLatin1Char('-'));
}

/// The whole of a text that may be cut off in its cell.
QString RecordsModel::hint(const QModelIndex& index) const
{
    const QString whole = text(index).toString();
    return isOutOfLegend(index) ? whole + QStringLiteral("\nNot in the legend: the caption has a hyphen.")
                                : whole;
}

QVariant RecordsModel::recordData(const QModelIndex& index, int role) const
{
    const int k = index.row() + 1;
    const bool isCount = index.column() == Words || index.column() == Localities;
    switch (role) {
    case Qt::DisplayRole:
        return text(index);
    case Qt::EditRole:
        return index.column() == Kind ? m_document.shownSymbols().HankoWord(k) : text(index);
    case StyleRole:
        return QVariant::fromValue(m_document.shownSymbols().Hanko(k));
    case Qt::ToolTipRole:
        return isCount ? QVariant() : hint(index);
    case Qt::ForegroundRole:
        return isOutOfLegend(index) ? QVariant(quietText(QGuiApplication::palette())) : QVariant();
    case Qt::TextAlignmentRole:
        return isCount ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case Qt::AccessibleTextRole:
        return index.column() == Symbol
                   ? QStringLiteral("Symbol %1").arg(m_document.shownSymbols().Hanko(k).HankoNo)
                   : text(index);
    default:
        return {};
    }
}
