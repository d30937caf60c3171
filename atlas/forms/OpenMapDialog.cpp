#include "atlas/forms/OpenMapDialog.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

QStandardItem* textCell(const QString& text)
{
    auto* cell = new QStandardItem(text); // its model owns it
    cell->setEditable(false);
    return cell;
}

/// A count is sorted as a number.
QStandardItem* countCell(int count)
{
    auto* cell = textCell({});
    cell->setData(count, Qt::DisplayRole);
    cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return cell;
}

/// Whether the map of a row can be opened.
constexpr int CanOpenRole = Qt::UserRole;

/// A map that cannot be opened stands there, paler, with its reason.
QList<QStandardItem*> rowOf(const InstalledMap& map)
{
    const QString reason = map.trouble.section(QLatin1Char('\n'), 0, 0);
    QList<QStandardItem*> row = {textCell(map.name), countCell(map.items), countCell(map.localities),
                                 textCell(reason)};
    for (QStandardItem* cell : row) {
        cell->setToolTip(map.trouble);
        cell->setData(map.trouble.isEmpty(), CanOpenRole);
        if (!map.trouble.isEmpty()) {
            cell->setForeground(QGuiApplication::palette().placeholderText());
        }
    }
    return row;
}

} // namespace

OpenMapDialog::OpenMapDialog(const std::vector<InstalledMap>& maps, const QString& current, QWidget* parent)
    : QDialog(parent), m_shown(new QSortFilterProxyModel(this)), m_text(new QLineEdit), m_maps(new QTreeView)
{
    setWindowTitle(QStringLiteral("Open Map"));
    auto* all = new QStandardItemModel(0, 4, this);
    all->setHorizontalHeaderLabels({QStringLiteral("Map"), QStringLiteral("Items"),
                                    QStringLiteral("Localities"), QStringLiteral("Cannot be opened")});
    int here = 0;
    for (const InstalledMap& map : maps) {
        here = map.name.compare(current, Qt::CaseInsensitive) == 0 ? all->rowCount() : here;
        all->appendRow(rowOf(map));
    }
    m_shown->setSourceModel(all);
    m_shown->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_shown->setSortCaseSensitivity(Qt::CaseInsensitive);
    addControls();
    const auto isBroken = [](const InstalledMap& map) { return !map.trouble.isEmpty(); };
    m_maps->setColumnHidden(3, std::ranges::none_of(maps, isBroken));
    goTo(here);
    resize(640, 440);
}

void OpenMapDialog::addControls()
{
    m_text->setObjectName(QStringLiteral("txtFilter"));
    m_text->setPlaceholderText(QStringLiteral("Type a part of the name"));
    m_text->setAccessibleName(QStringLiteral("Filter maps"));
    m_text->setClearButtonEnabled(true);
    m_text->installEventFilter(this);
    m_maps->setObjectName(QStringLiteral("tblMaps"));
    m_maps->setAccessibleName(QStringLiteral("Maps"));
    m_maps->setModel(m_shown);
    m_maps->setRootIsDecorated(false);
    m_maps->setUniformRowHeights(true);
    m_maps->setSortingEnabled(true);
    m_maps->sortByColumn(0, Qt::AscendingOrder);
    m_maps->setColumnWidth(0, 220);
    m_maps->resizeColumnToContents(1);
    m_maps->resizeColumnToContents(2);
    auto* answers = new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel);
    m_open = answers->button(QDialogButtonBox::Open);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(m_text);
    rows->addWidget(m_maps, 1);
    rows->addWidget(answers);
    connect(m_text, &QLineEdit::textChanged, this, &OpenMapDialog::filter);
    connect(m_maps, &QTreeView::doubleClicked, this, &OpenMapDialog::choose);
    connect(m_maps->selectionModel(), &QItemSelectionModel::currentChanged, this, &OpenMapDialog::showChoice);
    connect(answers, &QDialogButtonBox::accepted, this, &OpenMapDialog::choose);
    connect(answers, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void OpenMapDialog::filter(const QString& text)
{
    m_shown->setFilterFixedString(text);
    goTo(std::max(0, m_maps->currentIndex().row()));
}

void OpenMapDialog::goTo(int row)
{
    m_maps->setCurrentIndex(m_shown->index(std::clamp(row, 0, std::max(0, m_shown->rowCount() - 1)), 0));
    showChoice();
}

void OpenMapDialog::showChoice()
{
    m_open->setEnabled(m_maps->currentIndex().data(CanOpenRole).toBool());
}

void OpenMapDialog::choose()
{
    if (m_open->isEnabled()) {
        const QString name = m_maps->currentIndex().siblingAtColumn(0).data().toString();
        accept();
        Q_EMIT chosen(name);
    }
}

/// The arrow keys go through the list while a name is typed.
bool OpenMapDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_text && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Down || key == Qt::Key_Up) {
            goTo(m_maps->currentIndex().row() + (key == Qt::Key_Down ? 1 : -1));
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}
