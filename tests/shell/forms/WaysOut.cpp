#include "tests/shell/forms/WaysOut.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QStatusBar>
#include <QToolButton>

#include <gtest/gtest.h>
#include <stdexcept>

namespace {

QString keysOf(const QShortcut& shortcut)
{
    return shortcut.key().toString();
}

QString textOf(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return label->text();
    }
    if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) {
        return box->text();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return button->text();
    }
    if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
        return list->currentText();
    }
    if (const auto* status = qobject_cast<const QStatusBar*>(&widget)) {
        return status->currentMessage();
    }
    QStringList rows;
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget); view && view->model()) {
        for (int row = 0; row < std::min(view->model()->rowCount(), 20); ++row) {
            rows << view->model()->index(row, 0).data().toString();
        }
    }
    return rows.join(QLatin1Char(','));
}

} // namespace

VarnForm& formNamed(const QString& name)
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* found = qobject_cast<VarnForm*>(window);
            found && name == found->metaObject()->className()) {
            return *found;
        }
    }
    throw std::logic_error("no form " + name.toStdString());
}

std::map<QString, QObject*> waysOut(const VarnForm& form)
{
    std::map<QString, QObject*> found;
    const auto add = [&](QObject* way, const QString& text) {
        const QString name = way->objectName().isEmpty() ? text : way->objectName();
        if (!name.startsWith(QLatin1String("qt_")) && !name.startsWith(QLatin1String("_q_"))) {
            EXPECT_TRUE(found.emplace(name, way).second) << "two are called " << qPrintable(name);
        }
    };
    for (auto* action : form.findChildren<QAction*>()) {
        if (action->menu() == nullptr && !action->isSeparator()) {
            add(action, action->text());
        }
    }
    for (auto* button : form.findChildren<QAbstractButton*>()) {
        const bool isCommand = qobject_cast<QPushButton*>(button) || qobject_cast<QToolButton*>(button);
        if (isCommand && button->window() == &form) {
            add(button, button->text());
        }
    }
    for (auto* shortcut : form.findChildren<QShortcut*>()) {
        if (qobject_cast<QWidget*>(shortcut->parent())->window() == &form) {
            add(shortcut, keysOf(*shortcut));
        }
    }
    return found;
}

void use(QObject& way)
{
    if (auto* action = qobject_cast<QAction*>(&way)) {
        ASSERT_TRUE(action->isEnabled());
        action->trigger();
    } else if (auto* button = qobject_cast<QAbstractButton*>(&way)) {
        ASSERT_TRUE(button->isEnabled());
        button->click();
    } else if (auto* shortcut = qobject_cast<QShortcut*>(&way)) {
        Q_EMIT shortcut->activated();
    }
}

QStringList visibleWindows()
{
    QStringList names;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            names << QStringLiteral("[%1]").arg(QLatin1String(window->metaObject()->className()));
        }
    }
    return names;
}

QStringList shownOn(const VarnForm& form)
{
    QStringList lines = {form.windowTitle()};
    if (form.isWindowModified()) {
        lines << QStringLiteral("<modified>");
    }
    for (const auto* action : form.findChildren<QAction*>()) {
        if (action->isChecked()) {
            lines << QStringLiteral("<%1>").arg(action->objectName());
        }
    }
    for (const auto* widget : form.findChildren<QWidget*>()) {
        if (widget->isVisible()) {
            lines << QStringLiteral("<%1>").arg(widget->objectName())
                  << QStringLiteral("%1=%2").arg(widget->objectName(), textOf(*widget));
        }
    }
    return lines;
}
