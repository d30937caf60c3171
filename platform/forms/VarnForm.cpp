#include "platform/forms/VarnForm.h"

#include "platform/Drawing.h"
#include "platform/DriveC.h"
#include "platform/RunTimeError.h"
#include "platform/forms/HelpWindow.h"

#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QStyle>

#include <algorithm>
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

QString joined(QStringList parts, const QString& separator)
{
    parts.removeAll(QString());
    return parts.join(separator);
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

VarnForm::VarnForm(Dialogs& dialogs)
    : m_dialogs(dialogs), m_manual(manualAction(*this, [this] { return helpSection(); }))
{}

void VarnForm::bringToFront()
{
    if (isMinimized()) {
        setWindowState(windowState() & ~Qt::WindowMinimized);
    }
    show();
    raise();
    activateWindow();
}

void VarnForm::showNewState()
{
    followSharedState();
    refresh();
}

bool VarnForm::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate) {
        run([this] { followSharedState(); });
    }
    const bool done = QMainWindow::event(event);
    if (event->type() == QEvent::Show && !isMaximized()) {
        resize(size().boundedTo(roomOnScreen()));
    }
    if (event->type() == QEvent::Show || event->type() == QEvent::LayoutRequest) {
        fitScreen();
    }
    return done;
}

QSize VarnForm::roomOnScreen() const
{
    // The system tells how wide its frames are only after the window was shown.
    const QSize frame(2 * style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth),
                      style()->pixelMetric(QStyle::PM_TitleBarHeight));
    return screen()->availableGeometry().size() - frame.expandedTo(frameGeometry().size() - size());
}

FormArea VarnForm::areaOnScreen(float width, float height) const
{
    const QPoint place = pos() - screen()->availableGeometry().topLeft();
    const auto twips = [](int pixels) { return static_cast<float>(std::max(0, pixels) * TwipsPerPixel); };
    return {twips(place.x()), twips(place.y()), width, height};
}

/// Gives the form scroll bars where it cannot be as small as the screen.
void VarnForm::fitScreen()
{
    const QSize room = roomOnScreen();
    const QSize least = minimumSizeHint();
    const bool fits = least.width() <= room.width() && least.height() <= room.height();
    if (fits || !isVisible() || qobject_cast<QScrollArea*>(centralWidget()) != nullptr) {
        return;
    }
    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setAccessibleName(windowTitle());
    scroll->setWidget(takeCentralWidget());
    setCentralWidget(scroll);
    layout()->activate();
    resize(size().boundedTo(room));
}

void VarnForm::showTitle(const QStringList& parts)
{
    setWindowTitle(joined(parts, QStringLiteral(" - ")));
}

void VarnForm::showTitle(const QStringList& parts, bool unsaved)
{
    setWindowTitle(joined(parts, QStringLiteral(" - ")) + QStringLiteral("[*]"));
    setWindowModified(unsaved);
}

void VarnForm::showStatus(const QStringList& parts)
{
    statusLine().setText(joined(parts, QStringLiteral("    |    ")));
}

QLabel& VarnForm::statusLine()
{
    if (m_status == nullptr) {
        m_status = new QLabel(this);
        m_status->setTextFormat(Qt::PlainText);
        m_status->setContentsMargins(8, 0, 8, 0);
        m_status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        statusBar()->addWidget(m_status, 1);
    }
    return *m_status;
}

void VarnForm::frameFocus(QPushButton& flat)
{
    flat.setStyleSheet(
        QStringLiteral("QPushButton { border: 1px solid transparent; border-radius: 3px; padding: 3px 6px; }"
                       "QPushButton:focus { border-color: palette(highlight); }"));
}

bool VarnForm::run(const std::function<void()>& handler)
{
    const std::optional<RunTimeError> error = errorOf(handler);
    refresh();
    if (error) {
        m_dialogs.error(error->title(), detailOf(*error));
    }
    return !error;
}

WaitCursor::WaitCursor()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

WaitCursor::~WaitCursor()
{
    QGuiApplication::restoreOverrideCursor();
}
