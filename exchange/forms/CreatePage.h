#pragma once

#include "exchange/forms/DraftPage.h"

#include <memory>

namespace Ui {
class CreatePage;
}

/// Names the map, makes it, and shows what came in.
class CreatePage : public DraftPage
{
    Q_OBJECT

public:
    CreatePage(SurveyDraft& draft, QWidget* parent);
    ~CreatePage() override;

    void initializePage() override;
    bool isComplete() const override { return m_state == State::Created; }
    bool isCreating() const { return m_state == State::Creating; }
    /// Stops the creation; nothing of the map is left behind.
    void stop() { m_isStopped = true; }

Q_SIGNALS:
    /// The creation began or ended.
    void stateChanged();

protected:
    void work() override;

private:
    enum class State { Describing, Creating, Created };

    void cmdCreate_Click();
    void enter(State state);
    bool showProgress(int done, int total, const QString& item);

    std::unique_ptr<Ui::CreatePage> m_ui;
    State m_state = State::Describing;
    bool m_isStopped = false;
};
