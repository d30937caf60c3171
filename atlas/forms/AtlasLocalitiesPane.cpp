#include "atlas/forms/AtlasLocalitiesPane.h"

#include "atlas/AtlasDocument.h"
#include "atlas/AtlasSelection.h"
#include "atlas/forms/AtlasLocalityDelegate.h"
#include "atlas/forms/AtlasLocalityFilter.h"
#include "shell/VarnModule.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QTableView>
#include <QVBoxLayout>

AtlasLocalitiesPane::AtlasLocalitiesPane(VarnModule& varn, AtlasDocument& document, AtlasSelection& selection)
    : m_varn(varn), m_document(document), m_selection(selection), m_table(varn, document),
      m_filter(new AtlasLocalityFilter(this)),
      m_delegate(new AtlasLocalityDelegate(varn, document, *new WordDelegate(varn, this), this)),
      m_filterBox(new QLineEdit), m_onlySelected(new QCheckBox(QStringLiteral("Only selected"))),
      m_list(new QTableView), m_state(new QLabel)
{
    addControls();
    setUpList();
    connectSelection();
    connect(&document, &AtlasDocument::pageTurned, this, &AtlasLocalitiesPane::showPage);
    connect(&document, &AtlasDocument::baseMapChanged, this, &AtlasLocalitiesPane::showPage);
    connect(&document, &AtlasDocument::wordsChanged, m_delegate, &AtlasLocalityDelegate::showKinds);
    connect(m_delegate, &AtlasLocalityDelegate::left, this, &AtlasLocalitiesPane::editBelow);
    connect(m_filterBox, &QLineEdit::textChanged, this, [this](const QString& text) {
        const QScopedValueRollback following(m_isFollowing, true);
        m_filter->setText(text);
        select();
    });
    connect(m_onlySelected, &QCheckBox::toggled, this, &AtlasLocalitiesPane::showOnly);
}

AtlasLocalitiesPane::~AtlasLocalitiesPane() = default;

void AtlasLocalitiesPane::addControls()
{
    m_filterBox->setObjectName(QStringLiteral("txtLocalityFilter"));
    m_filterBox->setPlaceholderText(QStringLiteral("Number, name or word form"));
    m_filterBox->setAccessibleName(QStringLiteral("Filter localities by number, name or word form"));
    m_filterBox->setClearButtonEnabled(true);
    m_onlySelected->setObjectName(QStringLiteral("chkOnlySelected"));
    m_list->setObjectName(QStringLiteral("tblLocalities"));
    m_list->setAccessibleName(QStringLiteral("Localities and their word forms"));
    m_state->setObjectName(QStringLiteral("lblLocalities"));
    m_state->setTextFormat(Qt::PlainText);
    auto* choice = new QHBoxLayout;
    choice->addWidget(m_filterBox);
    choice->addWidget(m_onlySelected);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addLayout(choice);
    layout->addWidget(m_list);
    layout->addWidget(m_state);
}

void AtlasLocalitiesPane::setUpList()
{
    m_filter->setSourceModel(&m_table);
    m_list->setModel(m_filter);
    m_list->setItemDelegate(m_delegate);
    m_list->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                            QAbstractItemView::AnyKeyPressed);
    m_list->setSortingEnabled(true);
    m_list->sortByColumn(AtlasLocalityTable::Number, Qt::AscendingOrder);
    m_list->setAlternatingRowColors(true);
    m_list->setShowGrid(false);
    m_list->setTabKeyNavigation(false); // Tab leaves the list
    m_list->verticalHeader()->hide();
    m_list->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_list->verticalHeader()->setDefaultSectionSize(m_list->fontMetrics().height() + 10);
    m_list->horizontalHeader()->setHighlightSections(false);
    m_list->horizontalHeader()->setDefaultSectionSize(130);
    m_list->setColumnWidth(AtlasLocalityTable::Number, 48);
    m_list->setColumnWidth(AtlasLocalityTable::Name, 110);
    m_list->setColumnHidden(AtlasLocalityTable::Name, true);
}

void AtlasLocalitiesPane::connectSelection()
{
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &AtlasLocalitiesPane::takeSelected);
    connect(m_list, &QTableView::activated, this, &AtlasLocalitiesPane::seek);
    connect(m_list, &QTableView::doubleClicked, this, &AtlasLocalitiesPane::seek);
    connect(&m_selection, &AtlasSelection::localitiesChanged, this, [this] {
        if (!m_isFollowing) {
            showOnly();
        }
        showState();
    });
}

/// The rows of the selected localities.
QItemSelection AtlasLocalitiesPane::rowsSelected() const
{
    QItemSelection rows;
    for (const int locality : m_selection.localities()) {
        const QModelIndex row = m_filter->mapFromSource(m_table.index(locality - 1, 0));
        if (row.isValid()) {
            rows.select(row, row);
        }
    }
    return rows;
}

void AtlasLocalitiesPane::select()
{
    const QScopedValueRollback following(m_isFollowing, true);
    const QItemSelection rows = rowsSelected();
    m_list->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (!rows.isEmpty()) {
        m_list->scrollTo(rows.first().topLeft());
    }
    showState();
}

void AtlasLocalitiesPane::takeSelected()
{
    if (m_isFollowing) {
        return;
    }
    const QScopedValueRollback following(m_isFollowing, true);
    AtlasSelection::Numbers localities;
    for (const QItemSelectionRange& rows : m_list->selectionModel()->selection()) {
        for (int row = rows.top(); row <= rows.bottom(); ++row) { // a column may come or go meanwhile
            localities.insert(m_filter->mapToSource(m_filter->index(row, 0)).row() + 1);
        }
    }
    m_selection.setLocalities(localities);
}

/// What is selected in the list does not change which rows it has.
void AtlasLocalitiesPane::showOnly()
{
    const QScopedValueRollback following(m_isFollowing, true);
    m_filter->setOnly(m_onlySelected->isChecked() ? std::optional(m_selection.localities()) : std::nullopt);
    select();
}

void AtlasLocalitiesPane::showPage()
{
    m_delegate->showKinds();
    m_list->setColumnHidden(AtlasLocalityTable::Name, m_varn.localityNames.empty());
    select();
}

void AtlasLocalitiesPane::showState()
{
    const int all = m_table.rowCount();
    const int shown = m_filter->rowCount();
    const auto selected = m_selection.localities().size();
    QString text = shown < all ? QStringLiteral("%1 of %2 localities").arg(shown).arg(all)
                               : QStringLiteral("%1 localities").arg(all);
    if (all == 0) {
        text = QStringLiteral("The map has no localities.");
    } else if (selected > 0) {
        text += QStringLiteral(", %1 selected").arg(selected);
    }
    m_state->setText(text);
}

/// Word forms are edited by a double click; number and name bring their locality into view.
void AtlasLocalitiesPane::seek(const QModelIndex& index)
{
    if (index.column() < AtlasLocalityTable::FirstWord) {
        Q_EMIT m_selection.localitySought(m_filter->mapToSource(index).row() + 1);
    }
}

/// The arrow keys go on to the same word form of the next locality.
void AtlasLocalitiesPane::editBelow(int rows)
{
    const QModelIndex current = m_list->currentIndex();
    const QModelIndex next = current.siblingAtRow(current.row() + rows);
    if (next.isValid()) {
        m_list->setCurrentIndex(next);
        m_list->edit(next);
    }
}

void AtlasLocalitiesPane::commitEdit()
{
    if (m_list->isPersistentEditorOpen(m_list->currentIndex())) {
        m_list->setFocus(); // the editor gives up what it holds
    }
}
