#pragma once

#include "tests/support/Controls.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"

#include <QAction>
#include <QLineEdit>
#include <QPushButton>

/// A form of class `Form` on the map of a `TestSurvey`, without the others.
template <typename Form>
class OneForm : public testing::Test
{
protected:
    /// Path of a file in the folder of the items.
    static QString ling(const char* file)
    {
        return QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\") + QLatin1String(file);
    }

    template <typename Control>
    Control& control(const char* name)
    {
        return child<Control>(form, name);
    }
    QAction& menu(const char* name) { return control<QAction>(name); }
    void click(const char* name) { control<QPushButton>(name).click(); }
    void type(const char* name, const char* text) { control<QLineEdit>(name).setText(QLatin1String(text)); }
    QString text(const char* name) { return control<QLineEdit>(name).text(); }
    QStringList listed(const char* name) { return rowsOf(control<QListWidget>(name)); }

    /// Chooses `entry`, and `file` of that folder where it asks for one.
    void open(const char* entry, const char* file)
    {
        dialogs.files = {survey.drive().hostPath(ling(file))};
        menu(entry).trigger();
    }

    TestSurvey survey;
    VarnModule& varn = survey.varn;
    ScriptedDialogs dialogs;
    Form form{varn, dialogs};
};
