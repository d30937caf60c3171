#pragma once

#include "atlas/AtlasItem.h"

#include <QDialog>

#include <functional>
#include <vector>

class QHBoxLayout;
class QListWidget;
class QPushButton;

/// Asks which items an atlas is made of: all at first.
class ExportAtlasDialog : public QDialog
{
    Q_OBJECT

public:
    ExportAtlasDialog(std::vector<AtlasItem> items, QWidget* parent);

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
    QListWidget* m_list;
    QPushButton* m_export = nullptr;
};
