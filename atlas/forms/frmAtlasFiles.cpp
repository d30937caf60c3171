// What the atlas window saves, what would be lost when it is closed, and files that change under it.

#include "atlas/AtlasItem.h"
#include "atlas/forms/AtlasItemsPane.h"
#include "atlas/forms/AtlasLocalitiesPane.h"
#include "atlas/forms/frmAtlas.h"
#include "platform/FileName.h"
#include "shell/VarnModule.h"

#include <QCloseEvent>
#include <QStatusBar>

namespace {

const QString Title = QStringLiteral("Atlas");

/// `names` in a sentence; of many only the first ones.
QString listed(QStringList names)
{
    constexpr qsizetype MostListed = 4;
    const qsizetype more = names.size() - MostListed;
    if (more > 0) {
        names = names.mid(0, MostListed) << QStringLiteral("%1 more").arg(more);
    }
    const QString last = names.takeLast();
    return names.isEmpty() ? last : names.join(QStringLiteral(", ")) + QStringLiteral(" and ") + last;
}

QStringList unsavedNames(const AtlasDocument& document)
{
    QStringList names;
    for (const QString& path : document.unsavedItems()) {
        names << stemOf(path);
    }
    if (document.isLegendPlaceUnsaved()) {
        names << QStringLiteral("the place of the legend");
    }
    return names;
}

} // namespace

bool frmAtlas::event(QEvent* event)
{
    const bool done = VarnForm::event(event);
    if (event->type() == QEvent::WindowActivate && m_isPrepared) {
        m_items->refreshItems();
        run([this] { checkFiles(); });
    }
    return done;
}

void frmAtlas::checkFiles()
{
    const QStringList changed = m_document.changedFiles();
    if (changed.isEmpty()) {
        return;
    }
    if (mayReadAgain(changed)) {
        m_document.readChanged();
    } else {
        m_document.keepChanged();
    }
}

/// Where something would be lost, No is the answer at hand.
bool frmAtlas::mayReadAgain(const QStringList& changed)
{
    const QString question =
        QStringLiteral("%1: changed or deleted by another program. Read again?\r\n\r\nNo keeps what is shown "
                       "here; saving replaces the file then.")
            .arg(listed(changed));
    return m_document.isUnsaved()
               ? dialogs().confirmLoss(
                     question + QStringLiteral(" Yes loses what is not saved of it, and all steps to undo."),
                     Title)
               : dialogs().askYesNo(question, Title);
}

void frmAtlas::save()
{
    m_localities->commitEdit();
    checkFiles();
    m_document.save();
    statusBar()->showMessage(QStringLiteral("Saved"), 5000);
}

bool frmAtlas::mayClose()
{
    m_localities->commitEdit();
    followSharedState();
    if (!m_document.isUnsaved()) {
        return true;
    }
    switch (dialogs().askSaveChoice(
        QStringLiteral("Save the changes to %1?").arg(listed(unsavedNames(m_document))), Title)) {
    case SaveChoice::Save:
        return run([this] { save(); });
    case SaveChoice::Discard:
        m_document.discard();
        return true;
    default:
        return false;
    }
}

void frmAtlas::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayClose());
}

void frmAtlas::showNewState()
{
    if (m_isPrepared) {
        m_document.followSharedState();
    }
    if (isVisible()) {
        turnToFirst();
    }
    refresh();
}

void frmAtlas::showItem(const QString& itemPath)
{
    m_isPrepared = true;
    m_document.followSharedState();
    m_document.turnTo(itemPath);
}

void frmAtlas::turnToFirst()
{
    if (!m_document.hasPage()) {
        const QStringList items = atlasItemPaths(m_varn);
        if (!items.isEmpty()) {
            m_document.turnTo(items.first());
        }
    }
}

void frmAtlas::showKept(const UnsavedWork& work)
{
    m_document.restore(work);
    Form_Load();
    bringToFront();
}
