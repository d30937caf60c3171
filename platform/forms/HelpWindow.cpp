#include "platform/forms/HelpWindow.h"

#include "platform/forms/Manual.h"
#include "platform/forms/ThemeIcon.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStyle>
#include <QToolBar>

#include <algorithm>

namespace {

HelpWindow* openWindow(const QWidget* parent)
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* help = qobject_cast<HelpWindow*>(window);
        if (help != nullptr && help->parentWidget() == parent) {
            return help;
        }
    }
    return nullptr;
}

} // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QMainWindow(parent), m_manual(new Manual), m_contents(new QListWidget), m_text(new QLineEdit),
      m_notFound(new QLabel)
{
    setWindowTitle(QStringLiteral("VARN Manual"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false); // the program ends with its forms
    m_contents->setObjectName(QStringLiteral("lstContents"));
    m_contents->setAccessibleName(QStringLiteral("Contents"));
    m_contents->setWordWrap(true);
    auto* parts = new QSplitter;
    parts->addWidget(m_contents);
    parts->addWidget(m_manual);
    parts->setStretchFactor(1, 1);
    parts->setSizes({250, 700});
    setCentralWidget(parts);
    addTools();
    connect(m_manual, &Manual::sourceChanged, this, &HelpWindow::showPlace);
    connect(m_contents, &QListWidget::currentRowChanged, this, &HelpWindow::goToChapter);
    const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight);
    resize(QSize(950, 680).boundedTo(screen()->availableSize() - QSize(0, title)));
}

void HelpWindow::showFor(QWidget& window, const QString& section)
{
    // A modal window lets no others be used but its own.
    QWidget* parent = window.isModal() ? &window : nullptr;
    HelpWindow* help = openWindow(parent);
    if (help == nullptr) {
        help = new HelpWindow(parent); // it deletes itself when it is closed
    }
    help->m_manual->showSection(section);
    help->show();
    help->raise();
    help->activateWindow();
}

void HelpWindow::addTools()
{
    QToolBar* tools = addToolBar(QStringLiteral("Manual"));
    tools->setMovable(false);
    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const auto add = [&](const char* icon, const char* text, const QKeySequence& key) {
        QAction* action = tools->addAction(themeIcon(QLatin1String(icon)), QLatin1String(text));
        action->setShortcut(key);
        return action;
    };
    QAction* back = add("back", "Back", QKeySequence::Back);
    QAction* forward = add("forward", "Forward", QKeySequence::Forward);
    connect(back, &QAction::triggered, m_manual, &Manual::backward);
    connect(forward, &QAction::triggered, m_manual, &Manual::forward);
    connect(m_manual, &Manual::backwardAvailable, back, &QAction::setEnabled);
    connect(m_manual, &Manual::forwardAvailable, forward, &QAction::setEnabled);
    tools->addSeparator();
    m_text->setObjectName(QStringLiteral("txtFind"));
    m_text->setPlaceholderText(QStringLiteral("Find in the manual"));
    m_text->setAccessibleName(m_text->placeholderText());
    m_text->setClearButtonEnabled(true);
    m_text->setMaximumWidth(280);
    tools->addWidget(m_text);
    QAction* next = add("find", "Find Next", QKeySequence::FindNext);
    tools->addWidget(m_notFound);
    connect(next, &QAction::triggered, this, &HelpWindow::findText);
    connect(m_text, &QLineEdit::returnPressed, this, &HelpWindow::findText);
    auto* find = new QAction(this);
    find->setShortcut(QKeySequence::Find);
    addAction(find);
    connect(find, &QAction::triggered, m_text, [this] {
        m_text->setFocus();
        m_text->selectAll();
    });
    auto* close = new QAction(this);
    close->setShortcuts({Qt::Key_Escape, QKeySequence::Close});
    addAction(close);
    connect(close, &QAction::triggered, this, &HelpWindow::close);
}

void HelpWindow::showContents()
{
    m_contents->clear();
    for (const ManualSection& section : m_manual->sections()) {
        const qsizetype depth = std::max(0, section.level - 2);
        const QString indent(2 * depth, QLatin1Char(' '));
        auto* item = new QListWidgetItem(indent + section.title, m_contents); // the list owns it
        item->setData(Qt::UserRole, section.anchor);
    }
}

/// Shows in the contents where the manual stands.
void HelpWindow::showPlace(const QUrl& place)
{
    const QSignalBlocker quiet(m_contents);
    if (const QUrl page = place.adjusted(QUrl::RemoveFragment); page != m_page) {
        m_page = page;
        showContents();
    }
    for (int row = 0; row < m_contents->count(); ++row) {
        if (m_contents->item(row)->data(Qt::UserRole).toString() == place.fragment()) {
            m_contents->setCurrentRow(row);
        }
    }
}

void HelpWindow::goToChapter(int row)
{
    if (row >= 0) {
        QUrl place = m_page;
        place.setFragment(m_contents->item(row)->data(Qt::UserRole).toString());
        m_manual->setSource(place);
    }
}

void HelpWindow::findText()
{
    const bool found = m_text->text().isEmpty() || m_manual->findNext(m_text->text());
    m_notFound->setText(found ? QString() : QStringLiteral("Not found"));
}

QAction* manualAction(QWidget& window, std::function<QString()> section)
{
    auto* action = new QAction(themeIcon(QStringLiteral("manual")), QStringLiteral("&Manual"), &window);
    action->setObjectName(QStringLiteral("mnuManual"));
    action->setShortcut(QKeySequence(Qt::Key_F1));
    QObject::connect(action, &QAction::triggered, &window,
                     [&window, section = std::move(section)] { HelpWindow::showFor(window, section()); });
    window.addAction(action);
    return action;
}
