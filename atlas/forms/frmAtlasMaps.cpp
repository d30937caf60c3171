// Which map the atlas window shows: that of the item, one of the open table, and another map altogether.

#include "atlas/AtlasOtherMap.h"
#include "atlas/InstalledMaps.h"
#include "atlas/forms/AtlasMapView.h"
#include "atlas/forms/AtlasRecordsPane.h"
#include "atlas/forms/OpenMapDialog.h"
#include "atlas/forms/SurveyPane.h"
#include "atlas/forms/frmAtlas.h"
#include "shell/VarnModule.h"

#include <QActionGroup>
#include <QMenu>
#include <QSplitter>

#include <algorithm>

void frmAtlas::mnuOpenMap_Click()
{
    auto* maps = new OpenMapDialog(installedMaps(m_varn), m_varn.VarnMapName.mid(1), this);
    maps->setAttribute(Qt::WA_DeleteOnClose);
    connect(maps, &OpenMapDialog::chosen, this, &frmAtlas::mapWanted);
    maps->open();
}

void frmAtlas::showMapOf(AtlasMapKind kind)
{
    m_kind = kind;
    followReference();
    m_survey.setKind(kind);
    showSettingsOf(kind);
    drawKind();
    showMapKinds();
    showLoaded();
}

void frmAtlas::showSettingsOf(AtlasMapKind kind)
{
    const bool hasSettings =
        isOfSurvey(kind) || kind == AtlasMapKind::Areas || kind == AtlasMapKind::Isoglosses;
    const Details details = isOfSurvey(kind) ? Details::Settings
                            : hasSettings    ? Details::RecordsAndSettings
                                             : Details::Records;
    m_surveyPane->showKind(kind);
    if (details != m_shownDetails) {
        m_detailStates[m_shownDetails] = m_details->saveState();
        m_shownDetails = details;
        m_records->setVisible(details != Details::Settings);
        m_surveyPane->setVisible(hasSettings);
        sizeDetails();
    }
}

/// As the user left them. Beside a map of the survey as a whole the settings have most of the room.
void frmAtlas::sizeDetails()
{
    if (const auto known = m_detailStates.find(m_shownDetails); known != m_detailStates.end()) {
        m_details->restoreState(known->second);
        return;
    }
    const int room = m_details->height();
    m_details->setSizes(m_shownDetails == Details::Settings ? QList<int>{0, room * 3 / 4, room / 4}
                                                            : QList<int>{room / 2, room / 4, room / 4});
}

/// The table may be another one meanwhile. Without what the map needs the linguistic map takes its place.
void frmAtlas::followTable()
{
    if (isOfTable(m_kind)) {
        showMapOf(canDraw(m_kind, m_varn) ? m_kind : AtlasMapKind::Linguistic);
    }
}

void frmAtlas::drawKind()
{
    m_wordForm = std::clamp(m_wordForm, 1, std::max(1, m_varn.NumWordforms));
    m_map->setOtherMap(otherMap(m_kind, m_wordForm, m_varn, m_survey));
}

void frmAtlas::showMapKinds()
{
    for (QAction* entry : m_kinds->actions()) {
        const auto kind = static_cast<AtlasMapKind>(entry->data().toInt());
        entry->setEnabled(canDraw(kind, m_varn));
        entry->setToolTip(howToHave(kind, m_varn));
        entry->setChecked(kind == m_kind);
    }
    m_wordForms->setEnabled(showsOneWordForm(m_kind));
}

/// Lists them before they are shown.
void frmAtlas::showWordForms()
{
    m_wordForms->clear();
    auto* group = new QActionGroup(m_wordForms);
    for (int k = 1; k <= m_varn.NumWordforms; ++k) {
        QAction* entry =
            m_wordForms->addAction(QString(m_varn.WordformName(k)).replace(u'&', QStringLiteral("&&")));
        entry->setCheckable(true);
        entry->setChecked(k == m_wordForm);
        group->addAction(entry);
        connect(entry, &QAction::triggered, this, [this, k] {
            m_wordForm = k;
            run([this] { drawKind(); });
        });
    }
}
