#pragma once

#include "exchange/SurveyDraft.h"

#include <QWizard>

class CreatePage;
class Dialogs;
class SourcePage;

/// The wizard that makes a map of a whole survey: a table, a CLDF data set or a layer of points.
class frmNewSurvey : public QWizard
{
    Q_OBJECT

public:
    /// `folders` names the installation that the map is made in.
    frmNewSurvey(const Folders& folders, Dialogs& dialogs, QWidget* parent);

    /// Begins again with the source at `path`, a path of this machine; empty for none yet.
    void begin(const QString& path);
    /// Stops the creation where there is one, and closes the wizard otherwise.
    void reject() override;

Q_SIGNALS:
    /// The map was made and shall be shown, with that item (the name of its files without ending; empty where
    /// it has none that can be shown).
    void surveyMade(const QString& mapName, const QString& item);

private:
    void showCreation();

    SurveyDraft m_draft;
    SourcePage* m_source;
    CreatePage* m_create;
};
