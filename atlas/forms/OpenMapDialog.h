#pragma once

#include "atlas/InstalledMaps.h"

#include <QDialog>

class QLineEdit;
class QPushButton;
class QSortFilterProxyModel;
class QTreeView;

/// A list of all maps, of which one is chosen; what is typed filters it.
class OpenMapDialog : public QDialog
{
    Q_OBJECT

public:
    /// `current` is the name of the map that is open.
    OpenMapDialog(const std::vector<InstalledMap>& maps, const QString& current, QWidget* parent);

Q_SIGNALS:
    /// The user wants the map of that name.
    void chosen(const QString& mapName);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addControls();
    void filter(const QString& text);
    void goTo(int row);
    void showChoice();
    void choose();

    QSortFilterProxyModel* m_shown;
    QLineEdit* m_text;
    QTreeView* m_maps;
    QPushButton* m_open = nullptr;
};
