#include "atlas/AtlasItemTable.h"

#include "atlas/AtlasPage.h"
#include "atlas/ItemKey.h"

#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace {

QString counted(qsizetype kinds)
{
    return kinds == 1 ? QStringLiteral("1 kind") : QStringLiteral("%1 kinds").arg(kinds);
}

/// The name of the file, which may be long, comes last.
QString figures(const AtlasItem& item)
{
    return QStringLiteral("%1  ·  %2 of %3  ·  %4")
        .arg(counted(item.wordForms.size()))
        .arg(item.answered)
        .arg(item.localities)
        .arg(item.name());
}

QString captionOf(const AtlasItem& item)
{
    const QString caption = item.caption.simplified();
    return caption.isEmpty() ? item.name() : caption;
}

} // namespace

AtlasItemTable::AtlasItemTable(const Folders& folders, QObject* parent)
    : QAbstractListModel(parent), m_folders(folders)
{}

/// Rows for the items that are there now: those that are known as they are.
std::vector<AtlasItemTable::Row> AtlasItemTable::rowsNow()
{
    std::vector<Row> rows;
    for (auto& [path, mark] : atlasItemMarks(m_folders)) {
        const int known = rowOf(path);
        Row row = known >= 0 ? m_rows[static_cast<std::size_t>(known)] : Row();
        row.item.path = path;
        row.isRead = row.isRead && (row.isUnsaved || row.mark == mark);
        row.mark = mark;
        rows.push_back(std::move(row));
    }
    return rows;
}

void AtlasItemTable::refresh()
{
    std::vector<Row> rows = rowsNow();
    const auto pathOf = [](const Row& row) { return row.item.path; };
    if (std::ranges::equal(rows, m_rows, {}, pathOf, pathOf)) {
        m_rows = std::move(rows);
    } else {
        replaceRows(std::move(rows));
    }
    m_next = 0;
}

void AtlasItemTable::replaceRows(std::vector<Row> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    m_rowOf.clear();
    for (const Row& row : m_rows) {
        m_rowOf.insert(itemKey(row.item.path), static_cast<int>(m_rowOf.size()));
    }
    endResetModel();
}

bool AtlasItemTable::readSome(int milliseconds)
{
    QElapsedTimer time;
    time.start();
    for (; m_next < m_rows.size() && time.elapsed() < milliseconds; ++m_next) {
        if (!m_rows[m_next].isRead) {
            read(m_rows[m_next]);
            changed(m_next);
        }
    }
    return m_next < m_rows.size();
}

void AtlasItemTable::read(Row& row) const
{
    row.item = readAtlasItem(m_folders, row.item.path);
    row.isRead = true;
}

void AtlasItemTable::showPage(const AtlasPage& page)
{
    const int row = rowOf(page.item.ItemPath);
    if (row < 0) {
        return;
    }
    Row& shown = m_rows[static_cast<std::size_t>(row)];
    describe(page.item, shown.item);
    shown.item.hasSymbols = !page.symbolFile.isEmpty();
    shown.item.trouble = page.trouble.isEmpty() ? page.symbolTrouble : page.trouble;
    shown.mark = page.itemFile + '/' + page.symbolFile;
    shown.isRead = true;
    changed(static_cast<std::size_t>(row));
}

void AtlasItemTable::showUnsaved(const QStringList& paths)
{
    QSet<QString> keys;
    for (const QString& path : paths) {
        keys.insert(itemKey(path));
    }
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        const bool isUnsaved = keys.contains(itemKey(m_rows[row].item.path));
        if (std::exchange(m_rows[row].isUnsaved, isUnsaved) != isUnsaved) {
            changed(row);
        }
    }
}

void AtlasItemTable::changed(std::size_t row)
{
    const QModelIndex place = index(static_cast<int>(row));
    Q_EMIT dataChanged(place, place);
}

int AtlasItemTable::rowOf(const QString& path) const
{
    return m_rowOf.value(itemKey(path), -1);
}

int AtlasItemTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant AtlasItemTable::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const Row& row = m_rows.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case Caption:
        return captionOf(row.item);
    case Path:
        return row.item.path;
    case Figures:
        return row.isRead ? figures(row.item) : row.item.name();
    case Trouble:
        return row.item.trouble;
    case HasSymbols:
        return row.item.hasSymbols;
    case IsUnsaved:
        return row.isUnsaved;
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return wholeText(row);
    default:
        return {};
    }
}

QString AtlasItemTable::wholeText(const Row& row) const
{
    const AtlasItem& item = row.item;
    QStringList parts{captionOf(item).left(200), item.name() + QStringLiteral(".dbs")};
    if (row.isRead && item.localities > 0) {
        parts << counted(item.wordForms.size()) + QStringLiteral(" of word forms")
              << QStringLiteral("%1 of %2 localities answered").arg(item.answered).arg(item.localities);
    }
    parts << (item.hasSymbols ? QStringLiteral("with a symbol file") : QStringLiteral("no symbol file"));
    parts << (row.isUnsaved ? QStringLiteral("not saved") : QString()) << item.trouble;
    parts.removeAll(QString());
    return parts.join(QLatin1Char('\n'));
}
