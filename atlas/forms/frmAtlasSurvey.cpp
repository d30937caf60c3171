// The maps of the survey as a whole in the atlas window: what they are compared from, and their locality.

#include "atlas/forms/ItemsDialog.h"
#include "atlas/forms/SurveyPane.h"
#include "atlas/forms/frmAtlas.h"
#include "dialectometry/DistanceFile.h"
#include "shell/VarnModule.h"

namespace {

const QString DistanceFiles = QStringLiteral("Distances (*.csv)|*.csv");

} // namespace

void frmAtlas::connectSurvey()
{
    connect(&m_survey, &AtlasSurveyMaps::changed, this, [this] {
        run([this] {
            drawKind();
            showLoaded();
        });
    });
    connect(&m_selection, &AtlasSelection::localitiesChanged, this, &frmAtlas::followReference);
    connect(m_surveyPane, &SurveyPane::localityWanted, this,
            [this](int locality) { m_selection.setLocalities({locality}); });
    handle(m_surveyPane, &SurveyPane::itemsWanted, &frmAtlas::chooseItems);
    handle(m_surveyPane, &SurveyPane::openWanted, &frmAtlas::openDistances);
    handle(m_surveyPane, &SurveyPane::saveWanted, &frmAtlas::saveDistances);
}

/// The locality that is chosen on the map becomes the one that distances are shown to.
void frmAtlas::followReference()
{
    if (m_kind == AtlasMapKind::Reference && m_selection.localities().size() == 1) {
        m_survey.setReference(*m_selection.localities().begin());
    }
}

void frmAtlas::chooseItems()
{
    askForItems({QStringLiteral("Items to Compare"),
                 QStringLiteral("Localities are compared by these &items:"),
                 QStringLiteral("&Compare by 1 Item"), QStringLiteral("&Compare by %1 Items"),
                 m_survey.source().items},
                [this](const QStringList& paths) {
                    SurveySource source = m_survey.source();
                    source.items = paths == atlasItemPaths(m_varn) ? QStringList() : paths; // later ones too
                    source.distancesFile.clear();
                    m_survey.setSource(source);
                });
}

void frmAtlas::openDistances()
{
    const auto file = dialogs().openFile(QStringLiteral("Open Distances"),
                                         m_varn.Drive.hostPath(m_varn.dataFolder()), DistanceFiles);
    if (file) {
        SurveySource source = m_survey.source();
        source.distancesFile = m_varn.Drive.varnPath(*file);
        m_survey.setSource(source);
    }
}

void frmAtlas::saveDistances()
{
    const auto survey = m_survey.survey();
    if (!survey) {
        dialogs().message(QStringLiteral("There are no distances yet."), QStringLiteral("Save Distances"));
        return;
    }
    const auto file =
        dialogs().saveFile(QStringLiteral("Save Distances"), m_varn.Drive.hostPath(m_varn.dataFolder()),
                           DistanceFiles, QStringLiteral("distances"));
    if (file) {
        writeSequentialFile(m_varn.Drive, m_varn.Drive.varnPath(*file), [&](SequentialWriter& target) {
            writeDistances(target, m_varn, survey->distances);
        });
    }
}
