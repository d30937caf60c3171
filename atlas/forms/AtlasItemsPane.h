#pragma once

#include "atlas/AtlasItemTable.h"

#include <QFileSystemWatcher>
#include <QTimer>
#include <QWidget>

class AtlasDocument;
class AtlasItemFilter;
class AtlasSelection;
class QLabel;
class QLineEdit;
class QListView;
struct VarnModule;

/// The list of the map's items, with a filter. The item that is chosen in it is the page.
class AtlasItemsPane : public QWidget
{
    Q_OBJECT

public:
    AtlasItemsPane(VarnModule& varn, AtlasDocument& document, AtlasSelection& selection);
    ~AtlasItemsPane() override;

    /// Lists the items that are there now, and reads those that changed.
    void refreshItems();

    /// Turn to the item below, and above, in the list as it is filtered.
    QAction* nextItem() { return m_next; }
    QAction* previousItem() { return m_previous; }
    /// The box that the list is filtered by.
    QLineEdit* filterBox() { return m_filterBox; }

Q_SIGNALS:
    /// An item was clicked or entered, which may be the page already.
    void itemChosen();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addControls();
    void connectDocument();
    QAction* turning(const char* name, const QString& text, Qt::Key key, int rows);
    void filter(const QString& text);
    void readSome();
    void turnBy(int rows);
    void turnToCurrent();
    void showPage();
    void showUnsaved();
    void showState();
    template <typename Change>
    void changeList(Change change);

    VarnModule& m_varn;
    AtlasDocument& m_document;
    AtlasItemTable m_table;
    AtlasItemFilter* m_filter;
    QLineEdit* m_filterBox;
    QListView* m_list;
    QLabel* m_state;
    QAction* m_next;
    QAction* m_previous;
    QFileSystemWatcher m_folder;
    QTimer m_reading;
    /// Whether the list follows the page, and not the other way round.
    bool m_isFollowing = false;
};
