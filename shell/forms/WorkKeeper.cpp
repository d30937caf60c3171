#include "shell/forms/WorkKeeper.h"

#include "platform/Dialogs.h"
#include "platform/forms/VarnForm.h"
#include "shell/VarnModule.h"

#include <QGuiApplication>
#include <QSessionManager>

#include <utility>

namespace {

constexpr int KeepingInterval = 60 * 1000; // ms

} // namespace

WorkKeeper::WorkKeeper(VarnModule& varn, Dialogs& dialogs, VarnForm& form, Collect collect)
    : QObject(&form), m_varn(varn), m_dialogs(dialogs), m_form(form), m_collect(std::move(collect))
{}

WorkKeeper::~WorkKeeper() = default;

void WorkKeeper::start()
{
    m_recovery = std::make_unique<Recovery>(m_varn.Drive);
    connect(&m_timer, &QTimer::timeout, this, &WorkKeeper::keep);
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &WorkKeeper::keep, Qt::DirectConnection);
    m_timer.start(KeepingInterval);
}

void WorkKeeper::keep()
{
    if (m_recovery && !m_form.run([this] { m_recovery->keep(m_collect()); })) {
        m_timer.stop(); // told once is enough
    }
}

void WorkKeeper::giveUp()
{
    if (m_recovery) {
        m_form.run([this] { m_recovery->keep({}); });
    }
    m_timer.stop();
}

std::optional<UnsavedWork> WorkKeeper::offer()
{
    for (const QString& folder : foldersLeftBehind(m_varn.Drive)) {
        std::optional<UnsavedWork> opened;
        if (!m_form.run([&] { opened = open(folder); })) {
            m_dialogs.message(
                QStringLiteral(
                    "Unsaved work that was kept when the program ended cannot be opened. Its files "
                    "are in\r\n") +
                    setAside(m_varn.Drive, folder),
                QStringLiteral("Unsaved Work"));
        }
        if (opened) {
            return opened; // two sets of work cannot be open at once
        }
    }
    return std::nullopt;
}

std::optional<UnsavedWork> WorkKeeper::open(const QString& folder)
{
    std::optional<UnsavedWork> work = readWork(m_varn.Drive, folder);
    const QString question =
        QStringLiteral("Unsaved work of map %1 was kept when the program ended: %2. Open it?")
            .arg(work->map.VarnMapName.mid(1), describe(*work));
    if (m_dialogs.askYesNo(question, QStringLiteral("Unsaved Work"))) {
        restoreWork(*work, m_varn);
        m_form.run([this] { loadLocalityNames(m_varn, m_varn); });
        m_recovery->keep(*work);
    } else {
        work.reset();
    }
    removeLeftBehind(m_varn.Drive, folder);
    return work;
}

bool WorkKeeper::mayChangeMap()
{
    UnsavedWork lost = m_collect();
    lost.symbols.reset(); // they stay
    return lost.isEmpty() ||
           m_dialogs.confirmLoss(QStringLiteral("Unsaved work belongs to map %1 and will be lost: %2. Choose "
                                                "the other map?")
                                     .arg(m_varn.VarnMapName.mid(1), describe(lost)),
                                 QStringLiteral("Set Map Name"));
}
