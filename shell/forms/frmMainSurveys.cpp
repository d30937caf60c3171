// Whole surveys that come in and go out.

#include "exchange/SurveyExport.h"
#include "exchange/forms/frmNewSurvey.h"
#include "lingdata/LinguisticFile.h"
#include "platform/FileKind.h"
#include "shell/MapChange.h"
#include "shell/MapChoice.h"
#include "shell/forms/WorkKeeper.h"
#include "shell/forms/WorkingForms.h"
#include "shell/forms/frmMain.h"

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QProgressDialog>

namespace {

/// The file or folder of this machine that is dragged; empty where it is none, or several.
QString draggedPath(const QDropEvent& event)
{
    const QList<QUrl> urls = event.mimeData()->urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

} // namespace

void frmMain::dragEnterEvent(QDragEnterEvent* event)
{
    event->setAccepted(!draggedPath(*event).isEmpty());
}

void frmMain::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    openNewSurvey(draggedPath(*event));
}

void frmMain::mnuNewSurvey_Click()
{
    openNewSurvey({});
}

void frmMain::openNewSurvey(const QString& path)
{
    m_newSurvey->begin(path);
}

bool frmMain::mayLoseSymbols(const QString& title)
{
    return !isSymbolSetUnsaved(m_varn) ||
           dialogs().confirmLoss(QStringLiteral("The symbol set is not saved and will be lost. Go on ?"),
                                 title);
}

bool frmMain::takeMap(const QString& mapName, const QString& title)
{
    if (!m_keeper->mayChangeMap() || !mayLoseSymbols(title)) {
        return false;
    }
    changeMap({m_varn.VarnPath, QLatin1Char('\\') + mapName}, m_varn);
    run([this] { loadLocalityNames(m_varn, m_varn); });
    saveMapChoice(m_varn, currentMapChoice(m_varn));
    m_varn.SavedRecords.keep(m_varn); // those that were given up do not come along
    showNewMap();
    return true;
}

void frmMain::showSurvey(const QString& mapName, const QString& item)
{
    if (!takeMap(mapName, QStringLiteral("New Survey"))) {
        return;
    }
    if (!item.isEmpty()) {
        m_varn.WholeWordForms = true;
        m_forms->atlas.showItem(m_varn.dataFolder() + QLatin1Char('\\') + item + ItemFiles.ending);
    }
    open(m_forms->atlas);
}

void frmMain::openAtlas(const QString& mapName)
{
    if (takeMap(mapName, QStringLiteral("Open Map"))) {
        open(m_forms->atlas);
    }
}

void frmMain::mnuExportSurvey_Click()
{
    const QString title = QStringLiteral("Export Survey");
    const auto output = dialogs().saveFile(
        title, QDir::homePath(),
        QStringLiteral("Table (*.csv)|*.csv|GeoJSON (*.geojson)|*.geojson|GeoPackage (*.gpkg)|*.gpkg|"
                       "Folder with CLDF (*)|*"),
        m_varn.VarnMapName.mid(1));
    if (!output) {
        return;
    }
    QProgressDialog progress(title, QStringLiteral("Stop"), 0, 0, this);
    progress.setWindowTitle(title);
    progress.setWindowModality(Qt::ApplicationModal);
    const auto report = exportSurvey(m_varn, *output, [&](int done, int total, const QString& item) {
        progress.setMaximum(total);
        progress.setLabelText(item);
        progress.setValue(done);
        QApplication::processEvents(); // a click on Stop
        return !progress.wasCanceled();
    });
    progress.close();
    if (report) {
        dialogs().message(report->text(), title);
    }
}
