#include "platform/VarnForm.h"

#include "platform/RunTimeError.h"

#include <QGuiApplication>

#include <new>
#include <optional>

namespace {

/// The error that `handler` ends with; nothing where it ends well.
std::optional<RunTimeError> errorOf(const std::function<void()>& handler)
{
    try {
        handler();
    } catch (const RunTimeError& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return RunTimeError(ErrorNumber::OutOfMemory);
    }
    return std::nullopt;
}

} // namespace

VarnForm::VarnForm(Dialogs& dialogs) : m_dialogs(dialogs) {}

void VarnForm::bringToFront()
{
    if (isMinimized()) {
        setWindowState(windowState() & ~Qt::WindowMinimized);
    }
    show();
    raise();
    activateWindow();
}

void VarnForm::run(const std::function<void()>& handler)
{
    const std::optional<RunTimeError> error = errorOf(handler);
    refresh();
    if (error) {
        m_dialogs.error(error->title(), error->where());
    }
}

WaitCursor::WaitCursor()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

WaitCursor::~WaitCursor()
{
    QGuiApplication::restoreOverrideCursor();
}
