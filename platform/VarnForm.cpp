#include "platform/VarnForm.h"

#include "platform/DriveC.h"
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

/// What is known of the error. Its file is named a second time where this machine has another path for it.
QString detailOf(const RunTimeError& error)
{
    const QString& path = error.place().path;
    const QString realPath = DriveC().knownHostPath(path).value_or(path);
    return realPath == path ? error.where()
                            : error.where() + QStringLiteral("\nOn this machine: ") + realPath;
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
        m_dialogs.error(error->title(), detailOf(*error));
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
