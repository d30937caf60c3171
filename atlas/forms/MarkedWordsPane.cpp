#include "atlas/forms/MarkedWordsPane.h"

#include "atlas/forms/RecordsModel.h"
#include "platform/forms/ThemeColors.h"
#include "render/forms/WordDelegate.h"
#include "shell/VarnModule.h"

#include <QHeaderView>
#include <QTabBar>
#include <QTableView>

namespace {

void setUp(QTableView& view)
{
    constexpr int Padding = 8;
    constexpr int CountWidth = 56;

    view.setSelectionBehavior(QTableView::SelectRows);
    view.setSelectionMode(QTableView::ExtendedSelection);
    view.setEditTriggers(QTableView::NoEditTriggers);
    view.setTabKeyNavigation(false);
    view.setWordWrap(false);
    view.setShowGrid(false);
    view.verticalHeader()->hide();
    view.verticalHeader()->setDefaultSectionSize(view.fontMetrics().height() + Padding);
    view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    view.horizontalHeader()->setSectionResizeMode(WordsModel::Localities, QHeaderView::Fixed);
    view.setColumnWidth(WordsModel::Localities, CountWidth);
}

QString wordForms(std::size_t number)
{
    return QStringLiteral("%1 %2").arg(number).arg(number == 1 ? QStringLiteral("word form")
                                                               : QStringLiteral("word forms"));
}

} // namespace

MarkedWordsPane::MarkedWordsPane(VarnModule& varn, RecordsModel& records, QWidget* parent)
    : QTabWidget(parent), m_records(records),
      m_unmarked(addList(varn, QStringLiteral("Word forms that no record marks"))),
      m_several(addList(varn, QStringLiteral("Word forms that several records mark")))
{
    setObjectName(QStringLiteral("tabMarkedWords"));
    setDocumentMode(true);
    setUsesScrollButtons(false); // both are always seen
    tabBar()->setAccessibleName(QStringLiteral("Word forms that are not marked once"));
    m_unmarked.view->setObjectName(QStringLiteral("tblUnmarked"));
    m_several.view->setObjectName(QStringLiteral("tblMarkedTwice"));
    connect(&records, &RecordsModel::modelAboutToBeReset, this, [this] { // their word forms go
        m_unmarked.model->show({});
        m_several.model->show({});
    });
    connect(m_unmarked.view, &QTableView::doubleClicked, this, &MarkedWordsPane::recordsWanted);
    connect(m_unmarked.view, &QTableView::clicked, this, [this](const QModelIndex& index) {
        if (index.column() == WordsModel::Records) {
            Q_EMIT recordsWanted();
        }
    });
}

MarkedWordsPane::List MarkedWordsPane::addList(VarnModule& varn, const QString& name)
{
    auto* view = new QTableView(this);
    auto* model = new WordsModel(m_records, view);
    view->setModel(model);
    view->setItemDelegate(new WordDelegate(varn, view));
    view->setAccessibleName(name);
    setUp(*view);
    addTab(view, QString());
    const List list{model, view};
    const auto tell = [this, list] { Q_EMIT localitiesChosen(localitiesOf(list)); };
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this, tell);
    connect(view, &QTableView::clicked, this, tell); // also where the row was chosen before
    return list;
}

void MarkedWordsPane::showMarks()
{
    const std::vector<std::size_t> unmarked = m_records.counts().unmarked();
    const std::vector<std::size_t> several = m_records.counts().markedTwice();
    m_unmarked.model->show(unmarked);
    m_several.model->show(several);
    setTabText(0, QStringLiteral("Not marked: ") + wordForms(unmarked.size()));
    setTabText(1, QStringLiteral("More than once: %1").arg(several.size()));
    setTabToolTip(1, QStringLiteral("Marked more than once: ") + wordForms(several.size()));
    const auto color = [this](bool isWarning) {
        return isWarning ? warningText(palette()) : palette().color(QPalette::WindowText);
    };
    tabBar()->setTabTextColor(0, color(!unmarked.empty()));
    tabBar()->setTabTextColor(1, color(!several.empty()));
}

QStringList MarkedWordsPane::chosenUnmarked() const
{
    QStringList words;
    for (const QModelIndex& index : m_unmarked.view->selectionModel()->selectedRows()) {
        words << m_unmarked.model->word(index.row()).word;
    }
    return words;
}

std::set<int> MarkedWordsPane::localitiesOf(const List& list) const
{
    std::set<int> localities;
    for (const QModelIndex& index : list.view->selectionModel()->selectedRows()) {
        const std::vector<int>& of = list.model->word(index.row()).localities;
        localities.insert(of.begin(), of.end());
    }
    return localities;
}
