#pragma once

#include "platform/forms/VarnForm.h"

#include <QStringList>

#include <map>

/// All forms of the program that runs.
std::vector<VarnForm*> allForms();
/// The form of that class name; ends the test where there is none.
VarnForm& formNamed(const QString& name);

/// The menu entries, buttons and shortcuts of `form` by name; one without a name by its text or keys.
std::map<QString, QObject*> waysOut(const VarnForm& form);
/// Triggers, clicks or presses one of them; fails the test where it is disabled.
void use(QObject& way);

/// The windows that are shown, as "[frmMap]".
QStringList visibleWindows();
/// What a person reads on `form`: its title, "<modified>", "<name>" of each checked entry and, for each part
/// of it that is shown, "<name>" and "name=text".
QStringList shownOn(const VarnForm& form);
