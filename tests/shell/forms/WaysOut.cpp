#include "tests/shell/forms/WaysOut.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QStatusBar>
#include <QTabBar>
#include <QToolButton>

#include <gtest/gtest.h>
#include <stdexcept>

namespace {

QString textOf(const QWidget& widget)
{
    // Labels, boxes, buttons; lists to choose from; status bars.
    for (const char* property : {"text", "currentText"}) {
        if (const QVariant text = widget.property(property); text.isValid()) {
            return text.toString();
        }
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
    return rows.join(',');
}

/// Menus, separators, the parts of other windows and the buttons inside text boxes and of tabs are none.
bool isWayOut(const QObject& object, const VarnForm& form)
{
    if (qobject_cast<const QLineEdit*>(object.parent()) != nullptr ||
        qobject_cast<const QTabBar*>(object.parent()) != nullptr) {
        return false;
    }
    if (const auto* action = qobject_cast<const QAction*>(&object)) {
        return action->menu() == nullptr && !action->isSeparator() &&
               qobject_cast<const QDialog*>(action->parent()) == nullptr;
    }
    const auto* tool = qobject_cast<const QToolButton*>(&object);
    const bool isButton = qobject_cast<const QPushButton*>(&object) || (tool && !tool->defaultAction());
    const QObject* widget = qobject_cast<const QShortcut*>(&object) ? object.parent()
                            : isButton                              ? &object
                                                                    : nullptr;
    return widget != nullptr && qobject_cast<const QWidget*>(widget)->window() == &form;
}

} // namespace

std::vector<VarnForm*> allForms()
{
    std::vector<VarnForm*> forms;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* form = qobject_cast<VarnForm*>(window)) {
            forms.push_back(form);
        }
    }
    return forms;
}

VarnForm& formNamed(const QString& name)
{
    for (VarnForm* form : allForms()) {
        if (name == form->metaObject()->className()) {
            return *form;
        }
    }
    throw std::logic_error("no form " + name.toStdString());
}

std::map<QString, QObject*> waysOut(const VarnForm& form)
{
    std::map<QString, QObject*> found;
    for (QObject* way : form.findChildren<QObject*>()) {
        const QString text = way->property(qobject_cast<QShortcut*>(way) ? "key" : "text").toString();
        const QString name = way->objectName().isEmpty() ? text : way->objectName();
        if (isWayOut(*way, form) && !name.startsWith("qt_") && !name.startsWith("_q_")) {
            EXPECT_TRUE(found.emplace(name, way).second) << "two are called " << qPrintable(name);
        }
    }
    return found;
}

void use(QObject& way)
{
    ASSERT_TRUE(way.property("enabled").toBool());
    for (const char* act : {"trigger", "click", "activated"}) {
        if (way.metaObject()->indexOfMethod((act + QByteArray("()")).constData()) >= 0) {
            QMetaObject::invokeMethod(&way, act);
            return;
        }
    }
}

QStringList visibleWindows()
{
    QStringList names;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            names << '[' + QString(window->metaObject()->className()) + ']';
        }
    }
    return names;
}

QStringList shownOn(const VarnForm& form)
{
    QStringList lines = {form.windowTitle(), form.isWindowModified() ? "<modified>" : ""};
    for (const auto* action : form.findChildren<QAction*>()) {
        lines << (action->isChecked() ? '<' + action->objectName() + '>' : QString());
    }
    for (const auto* widget : form.findChildren<QWidget*>()) {
        if (widget->isVisible()) {
            const QString& name = widget->objectName();
            lines << '<' + name + '>' << name + '=' + textOf(*widget);
        }
    }
    return lines;
}
