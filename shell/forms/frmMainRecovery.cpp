// The unsaved work of all forms: kept while the program runs, offered when it starts.

#include "shell/Recovery.h"
#include "shell/VarnModule.h"
#include "shell/forms/frmMain.h"

#include <QGuiApplication>
#include <QSessionManager>

namespace {

constexpr int KeepingInterval = 60 * 1000;

} // namespace

void frmMain::startKeeping()
{
    m_recovery = std::make_unique<Recovery>(m_varn.Drive);
    connect(&m_keeping, &QTimer::timeout, this, &frmMain::keepWork);
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &frmMain::keepWork, Qt::DirectConnection);
    m_keeping.start(KeepingInterval);
}

void frmMain::keepWork()
{
    if (m_recovery && !run([this] { m_recovery->keep(unsavedWork(m_varn, m_dataInput.unsavedItem())); })) {
        m_keeping.stop(); // told once is enough
    }
}

void frmMain::offerKeptWork()
{
    for (const QString& folder : foldersLeftBehind(m_varn.Drive)) {
        bool opened = false;
        if (!run([&] { opened = openKeptWork(folder); })) {
            dialogs().message(
                QStringLiteral(
                    "Unsaved work that was kept when the program ended cannot be opened. Its files "
                    "are in\r\n") +
                    setAside(m_varn.Drive, folder),
                QStringLiteral("Unsaved Work"));
        }
        if (opened) {
            return; // two sets of work cannot be open at once
        }
    }
}

bool frmMain::openKeptWork(const QString& folder)
{
    const UnsavedWork work = readWork(m_varn.Drive, folder);
    const QString question =
        QStringLiteral("Unsaved work of map %1 was kept when the program ended: %2. Open it?")
            .arg(work.map.VarnMapName.mid(1), describe(work));
    const bool opened = dialogs().askYesNo(question, QStringLiteral("Unsaved Work"));
    if (opened) {
        restoreWork(work, m_varn);
        run([this] { loadLocalityNames(m_varn, m_varn); });
        showNewMap();
        showKept(work);
        m_recovery->keep(work);
    }
    removeLeftBehind(m_varn.Drive, folder);
    return opened;
}

/// Opens the forms that the restored work is edited in; symbols are set with an item, which is not loaded.
void frmMain::showKept(const UnsavedWork& work)
{
    if (work.item) {
        m_dataInput.enterUnsaved(*work.item);
        open(m_dataInput);
    }
    if (work.table) {
        open(m_calc);
    }
}

bool frmMain::mayChangeMap()
{
    UnsavedWork work = unsavedWork(m_varn, m_dataInput.unsavedItem());
    work.symbols.reset(); // they stay
    return work.isEmpty() ||
           dialogs().confirmLoss(QStringLiteral("Unsaved work belongs to map %1 and will be lost: %2. Choose "
                                                "the other map?")
                                     .arg(m_varn.VarnMapName.mid(1), describe(work)),
                                 QStringLiteral("Set Map Name"));
}
