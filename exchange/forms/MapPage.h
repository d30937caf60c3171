#pragma once

#include "exchange/forms/DraftPage.h"
#include "platform/DrawSurface.h"

#include <memory>

class Dialogs;

namespace Ui {
class MapPage;
}

/// The base map of the new survey and its projection, with a preview.
class MapPage : public DraftPage
{
    Q_OBJECT

public:
    MapPage(SurveyDraft& draft, Dialogs& dialogs, QWidget* parent);
    ~MapPage() override;

    void initializePage() override;
    bool isComplete() const override;

protected:
    void work() override;

private:
    void cmdAddLayer_Click();
    void cmdRemoveLayer_Click();
    void takeLayers();
    void takeProjection();
    void drawPreview();

    std::unique_ptr<Ui::MapPage> m_ui;
    Dialogs& m_dialogs;
    DrawSurface m_preview;
};
