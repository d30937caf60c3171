#include "atlas/forms/ItemsDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

ItemsDialog::ItemsDialog(std::vector<AtlasItem> items, ItemsQuestion question, QWidget* parent)
    : QDialog(parent), m_items(std::move(items)), m_question(std::move(question)), m_list(listItems())
{
    setWindowTitle(m_question.title);
    auto* label = new QLabel(m_question.label);
    label->setBuddy(m_list);
    auto* answers = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_choose = answers->addButton(QString(), QDialogButtonBox::AcceptRole);
    m_choose->setObjectName(QStringLiteral("cmdChoose"));
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(label);
    rows->addWidget(m_list, 1);
    rows->addLayout(tickButtons());
    rows->addWidget(answers);
    m_choose->setDefault(true);
    connect(m_list, &QListWidget::itemChanged, this, &ItemsDialog::showTicked);
    connect(answers, &QDialogButtonBox::accepted, this, &ItemsDialog::choose);
    connect(answers, &QDialogButtonBox::rejected, this, &QDialog::reject);
    showTicked();
    resize(420, 460);
}

/// An item that cannot be read is listed, and cannot be ticked.
QListWidget* ItemsDialog::listItems()
{
    auto* list = new QListWidget;
    list->setObjectName(QStringLiteral("lstItems"));
    list->setAccessibleName(QStringLiteral("Items"));
    for (const AtlasItem& item : m_items) {
        const bool canBeRead = item.trouble.isEmpty();
        auto* row = new QListWidgetItem(canBeRead ? QStringLiteral("%1 (%2)").arg(item.caption, item.name())
                                                  : QStringLiteral("%1 cannot be read").arg(item.name()),
                                        list); // the list owns it
        row->setToolTip(item.trouble);
        const bool isTicked = m_question.ticked.isEmpty() || m_question.ticked.contains(item.path);
        row->setCheckState(canBeRead && isTicked ? Qt::Checked : Qt::Unchecked);
        if (!canBeRead) {
            row->setFlags(Qt::ItemIsSelectable);
        }
    }
    return list;
}

QHBoxLayout* ItemsDialog::tickButtons()
{
    auto* buttons = new QHBoxLayout;
    const auto add = [&](const char* name, const char* text, auto isWanted) {
        auto* button = new QPushButton(QLatin1String(text));
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, isWanted] { tick(isWanted); });
        buttons->addWidget(button);
    };
    add("cmdAll", "&All", [](const AtlasItem&) { return true; });
    add("cmdWithSymbols", "With &Symbols", [](const AtlasItem& item) { return item.hasSymbols; });
    add("cmdNone", "&None", [](const AtlasItem&) { return false; });
    buttons->addStretch();
    return buttons;
}

void ItemsDialog::tick(const std::function<bool(const AtlasItem&)>& isWanted)
{
    for (int row = 0; row < m_list->count(); ++row) {
        const AtlasItem& item = m_items[static_cast<std::size_t>(row)];
        m_list->item(row)->setCheckState(item.trouble.isEmpty() && isWanted(item) ? Qt::Checked
                                                                                  : Qt::Unchecked);
    }
}

QStringList ItemsDialog::ticked() const
{
    QStringList itemPaths;
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->checkState() == Qt::Checked) {
            itemPaths << m_items[static_cast<std::size_t>(row)].path;
        }
    }
    return itemPaths;
}

void ItemsDialog::showTicked()
{
    const qsizetype items = ticked().size();
    m_choose->setText(items == 1 ? m_question.one : m_question.several.arg(items));
    m_choose->setEnabled(items > 0);
}

void ItemsDialog::choose()
{
    const QStringList itemPaths = ticked();
    accept();
    Q_EMIT chosen(itemPaths);
}
