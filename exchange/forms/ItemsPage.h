#pragma once

#include "exchange/forms/DraftPage.h"

#include <memory>

class QTreeWidgetItem;

namespace Ui {
class ItemsPage;
}

/// Which items of the source come into the new survey.
class ItemsPage : public DraftPage
{
    Q_OBJECT

public:
    ItemsPage(SurveyDraft& draft, QWidget* parent);
    ~ItemsPage() override;

    void initializePage() override;
    bool isComplete() const override;

protected:
    void work() override;

private:
    void choose(const QTreeWidgetItem& row);
    void chooseAll(bool isChosen);

    std::unique_ptr<Ui::ItemsPage> m_ui;
};
