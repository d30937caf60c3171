#pragma once

#include "lingdata/forms/DataPages.h"
#include "platform/forms/VarnForm.h"

#include <memory>
#include <optional>

namespace Ui {
class frmData;
}

/// The data display form: shows and prints the word forms of an item and their kinds in pages, and saves the
/// kinds.
class frmData : public VarnForm
{
    Q_OBJECT

public:
    frmData(VarnModule& varn, Dialogs& dialogs);
    ~frmData() override;

    /// Shows the word forms of the loaded item, if there is one.
    void Form_Load();
    void refresh() override;
    QString helpSection() const override { return QStringLiteral("Looking at the data"); }
    /// Shows the item that is loaded now, where it was loaded or dropped since it was shown.
    void followSharedState() override;
    void showNewState() override;

Q_SIGNALS:
    /// The user wants to go back to the main form.
    void toMain();
    /// An item was loaded here: other forms may do more than before.
    void itemLoaded();

private:
    enum class List { Data, Kinds };

    void mnuOpen_Click();
    void mnuSave_Click();
    void mnuPrint_Click();
    void mnuData_Click();
    void mnuKind_Click();
    void mnuNextPage_Click();
    void mnuPreviousPage_Click();
    void mnuPageNo_Click();

    void displayList(List list);
    void displayNothing();
    /// Lays `page` of `pages` on the paper.
    void displayPage(const DataPages& pages, int page);
    void turnTo(int page);
    void enableMenus();
    void showWhatIsShown();

    std::unique_ptr<Ui::frmData> m_ui;
    VarnModule& m_varn;
    DrawSurface m_paper;
    List m_list = List::Data;
    /// What is shown; nothing before an item is.
    std::optional<DataPages> m_pages;
    /// Number of the page shown, from 1; 0 where none is.
    int m_page = 0;
    /// Which loading of an item is shown.
    int m_shownReading = 0;
};
