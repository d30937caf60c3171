#pragma once

#include "exchange/forms/DraftPage.h"

#include <memory>

class Dialogs;

namespace Ui {
class SourcePage;
}

/// Where the survey comes from.
class SourcePage : public DraftPage
{
    Q_OBJECT

public:
    SourcePage(SurveyDraft& draft, Dialogs& dialogs, QWidget* parent);
    ~SourcePage() override;

    void setSource(const QString& path);
    bool isComplete() const override;

protected:
    void work() override;

private:
    void cmdSourceFile_Click();
    void cmdSourceFolder_Click();
    void cmdLocalities_Click();
    QString folder() const;

    std::unique_ptr<Ui::SourcePage> m_ui;
    Dialogs& m_dialogs;
};
