#pragma once

#include "atlas/AtlasItem.h"

#include <QDialog>

#include <functional>
#include <vector>

class QHBoxLayout;
class QListWidget;
class QPushButton;

/// What items are asked for.
struct ItemsQuestion
{
    QString title;
    /// With the mnemonic of the list.
    QString label;
    /// What the button says for one item, and for %1 items.
    QString one;
    QString several;
    /// The paths of the items that are ticked at first; all where there are none.
    QStringList ticked;
};

/// Asks which items are meant.
class ItemsDialog : public QDialog
{
    Q_OBJECT

public:
    ItemsDialog(std::vector<AtlasItem> items, ItemsQuestion question, QWidget* parent);

Q_SIGNALS:
    /// The user wants these.
    void chosen(const QStringList& itemPaths);

private:
    QListWidget* listItems();
    QHBoxLayout* tickButtons();
    void tick(const std::function<bool(const AtlasItem&)>& isWanted);
    QStringList ticked() const;
    void showTicked();
    void choose();

    std::vector<AtlasItem> m_items;
    ItemsQuestion m_question;
    QListWidget* m_list;
    QPushButton* m_choose = nullptr;
};
