#include "atlas/forms/WordsModel.h"

#include "atlas/forms/RecordsModel.h"

#include <QGuiApplication>
#include <QPalette>
#include <QStringList>

#include <array>
#include <utility>

void WordsModel::show(std::vector<std::size_t> words)
{
    beginResetModel();
    m_words = std::move(words);
    endResetModel();
}

const AnsweredWord& WordsModel::word(int row) const
{
    return m_records.words().at(m_words.at(static_cast<std::size_t>(row)));
}

const std::vector<int>& WordsModel::recordsOf(int row) const
{
    return m_records.counts().marks.at(m_words.at(static_cast<std::size_t>(row)));
}

QString WordsModel::offer() const
{
    return m_records.hasRoom() ? QStringLiteral("New record") : QString();
}

QString WordsModel::kindsOf(int row) const
{
    QStringList kinds;
    for (const int k : recordsOf(row)) {
        kinds << m_records.index(k - 1, RecordsModel::Kind).data().toString();
    }
    return kinds.join(QStringLiteral(", "));
}

int WordsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_words.size());
}

int WordsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 3;
}

QVariant WordsModel::data(const QModelIndex& index, int role) const
{
    if (role == Qt::TextAlignmentRole && index.column() == Localities) {
        return (Qt::AlignRight | Qt::AlignVCenter).toInt();
    }
    const bool isOffer = index.column() == Records && recordsOf(index.row()).empty();
    if (role == Qt::ForegroundRole && isOffer) {
        return QGuiApplication::palette().color(QPalette::Link);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (index.column()) {
    case Word:
        return word(index.row()).word;
    case Localities:
        return static_cast<int>(word(index.row()).localities.size());
    default:
        return isOffer ? offer() : kindsOf(index.row());
    }
}

QVariant WordsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    constexpr std::array Headings = {"Word form", "Places", "Marked by"};
    return QLatin1String(Headings.at(static_cast<std::size_t>(section)));
}
