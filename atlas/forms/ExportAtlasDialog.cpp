#include "atlas/forms/ExportAtlasDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

ExportAtlasDialog::ExportAtlasDialog(std::vector<AtlasItem> items, QWidget* parent)
    : QDialog(parent), m_items(std::move(items)), m_list(listItems())
{
    setWindowTitle(QStringLiteral("Export Atlas"));
    auto* label = new QLabel(QStringLiteral("A PDF with a page for each of these &items:"));
    label->setBuddy(m_list);
    auto* answers = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_export = answers->addButton(QString(), QDialogButtonBox::AcceptRole);
    m_export->setObjectName(QStringLiteral("cmdExport"));
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(label);
    rows->addWidget(m_list, 1);
    rows->addLayout(tickButtons());
    rows->addWidget(answers);
    m_export->setDefault(true);
    connect(m_list, &QListWidget::itemChanged, this, &ExportAtlasDialog::showTicked);
    connect(answers, &QDialogButtonBox::accepted, this, &ExportAtlasDialog::choose);
    connect(answers, &QDialogButtonBox::rejected, this, &QDialog::reject);
    showTicked();
    resize(420, 460);
}

/// An item that cannot be read is listed, and cannot be ticked.
QListWidget* ExportAtlasDialog::listItems()
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
        row->setCheckState(canBeRead ? Qt::Checked : Qt::Unchecked);
        if (!canBeRead) {
            row->setFlags(Qt::ItemIsSelectable);
        }
    }
    return list;
}

QHBoxLayout* ExportAtlasDialog::tickButtons()
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

void ExportAtlasDialog::tick(const std::function<bool(const AtlasItem&)>& isWanted)
{
    for (int row = 0; row < m_list->count(); ++row) {
        const AtlasItem& item = m_items[static_cast<std::size_t>(row)];
        m_list->item(row)->setCheckState(item.trouble.isEmpty() && isWanted(item) ? Qt::Checked
                                                                                  : Qt::Unchecked);
    }
}

QStringList ExportAtlasDialog::ticked() const
{
    QStringList itemPaths;
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->checkState() == Qt::Checked) {
            itemPaths << m_items[static_cast<std::size_t>(row)].path;
        }
    }
    return itemPaths;
}

void ExportAtlasDialog::showTicked()
{
    const qsizetype pages = ticked().size();
    m_export->setText(pages == 1 ? QStringLiteral("&Export 1 Page...")
                                 : QStringLiteral("&Export %1 Pages...").arg(pages));
    m_export->setEnabled(pages > 0);
}

void ExportAtlasDialog::choose()
{
    const QStringList itemPaths = ticked();
    accept();
    Q_EMIT chosen(itemPaths);
}
