#include "exchange/forms/ItemsPage.h"

#include "ui_ItemsPage.h"

#include <QHeaderView>
#include <QSignalBlocker>

ItemsPage::ItemsPage(SurveyDraft& draft, QWidget* parent)
    : DraftPage(draft, parent), m_ui(std::make_unique<Ui::ItemsPage>())
{
    m_ui->setupUi(this);
    m_ui->lstItems->setHeaderLabels(
        {QStringLiteral("Item"), QStringLiteral("Kinds"), QStringLiteral("Localities answered")});
    m_ui->lstItems->header()->setStretchLastSection(false);
    m_ui->lstItems->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_ui->lstItems->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    connect(m_ui->lstItems, &QTreeWidget::itemChanged, this, [this](const auto* row) { choose(*row); });
    connect(m_ui->cmdAll, &QPushButton::clicked, this, [this] { chooseAll(true); });
    connect(m_ui->cmdNone, &QPushButton::clicked, this, [this] { chooseAll(false); });
}

ItemsPage::~ItemsPage() = default;

void ItemsPage::initializePage()
{
    const QSignalBlocker filling(m_ui->lstItems);
    m_ui->lstItems->clear();
    for (const DraftItem& item : draft().items()) {
        auto* row = new QTreeWidgetItem(
            m_ui->lstItems, {item.name, QString::number(item.kinds), QString::number(item.localities)});
        row->setCheckState(0, item.isChosen ? Qt::Checked : Qt::Unchecked);
        row->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        row->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
    }
    workNow();
}

void ItemsPage::choose(const QTreeWidgetItem& row)
{
    const int item = m_ui->lstItems->indexOfTopLevelItem(const_cast<QTreeWidgetItem*>(&row));
    draft().choose(item, row.checkState(0) == Qt::Checked);
    workSoon();
}

void ItemsPage::chooseAll(bool isChosen)
{
    for (int row = 0; row < m_ui->lstItems->topLevelItemCount(); ++row) {
        m_ui->lstItems->topLevelItem(row)->setCheckState(0, isChosen ? Qt::Checked : Qt::Unchecked);
    }
    workNow();
}

void ItemsPage::work()
{
    m_ui->lblChosen->setText(
        QStringLiteral("%1 of %2 items").arg(draft().chosenItems()).arg(draft().items().size()));
}

bool ItemsPage::isComplete() const
{
    return draft().chosenItems() > 0;
}
