#pragma once

#include "exchange/forms/DraftPage.h"

#include <memory>

class QComboBox;

namespace Ui {
class ColumnsPage;
}

/// What the columns of the source are, and what of it become word forms.
class ColumnsPage : public DraftPage
{
    Q_OBJECT

public:
    ColumnsPage(SurveyDraft& draft, QWidget* parent);
    ~ColumnsPage() override;

    void initializePage() override;
    bool isComplete() const override;
    bool validatePage() override;

protected:
    void work() override;

private:
    void showAsked(bool isCldf);
    void showRows();
    void showRow(int row, const QStringList& cells);
    QComboBox* roleBox(int column);
    void showRoles();
    void showSeparator();

    std::unique_ptr<Ui::ColumnsPage> m_ui;
};
