#pragma once

#include "atlas/AtlasLocalityTable.h"

#include <QWidget>

class AtlasDocument;
class AtlasLocalityDelegate;
class AtlasLocalityFilter;
class AtlasSelection;
class QCheckBox;
class QItemSelection;
class QLabel;
class QLineEdit;
class QTableView;
struct VarnModule;

/// The localities of the map with their word forms of the item shown, which are edited in place. The rows
/// that are selected are the localities that are selected on the map.
class AtlasLocalitiesPane : public QWidget
{
    Q_OBJECT

public:
    AtlasLocalitiesPane(VarnModule& varn, AtlasDocument& document, AtlasSelection& selection);
    ~AtlasLocalitiesPane() override;

    /// Takes over what stands in the editor of a cell.
    void commitEdit();

private:
    void addControls();
    void setUpList();
    void connectSelection();
    void select();
    void takeSelected();
    void showOnly();
    void showPage();
    void showState();
    void seek(const QModelIndex& index);
    void editBelow(int rows);
    QItemSelection rowsSelected() const;

    VarnModule& m_varn;
    AtlasDocument& m_document;
    AtlasSelection& m_selection;
    AtlasLocalityTable m_table;
    AtlasLocalityFilter* m_filter;
    AtlasLocalityDelegate* m_delegate;
    QLineEdit* m_filterBox;
    QCheckBox* m_onlySelected;
    QTableView* m_list;
    QLabel* m_state;
    /// Whether list and selection are being made the same.
    bool m_isFollowing = false;
};
