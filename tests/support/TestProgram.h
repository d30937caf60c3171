#pragma once

#include "shell/VarnModule.h"
#include "shell/forms/WorkingForms.h"
#include "shell/forms/frmMain.h"
#include "tests/support/Controls.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/TestDrive.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>

#include <stdexcept>

using Shown = ScriptedDialogs::Shown;

inline const QString InstallationFolder = QStringLiteral(INSTALLATION_FOLDER);
inline const QString VarnPath = "C:\\Varn62E\\Varn";
inline const QString DriveFile = "C:\\Varn62E\\Varn\\VarnDriveName.map";
inline const QString MapNameFile = "C:\\Varn62E\\VarnMapName.dat";

/// The form of class `Form`, which the started program has one of.
template <typename Form>
Form& form()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* found = qobject_cast<Form*>(window)) {
            return *found;
        }
    }
    throw std::logic_error(Form::staticMetaObject.className() + std::string(" is not there"));
}

template <typename Form, typename Control>
Control& control(const char* name)
{
    return child<Control>(form<Form>(), name);
}
template <typename Form>
void press(const char* name)
{
    control<Form, QPushButton>(name).click();
}
template <typename Form>
void trigger(const char* name)
{
    control<Form, QAction>(name).trigger();
}

/// Puts a text into a box, as a whole.
template <typename Form>
void type(const char* box, const QString& text)
{
    control<Form, QLineEdit>(box).setText(text);
}
/// Enters a word form in a cell, counted from 0.
inline void enterWord(int row, int column, const QString& word)
{
    auto& words = *control<frmDataInput, QAbstractItemView>("tblWords").model();
    EXPECT_TRUE(words.setData(words.index(row, column), word));
}

/// The program with its forms on a drive of its own.
struct Program
{
    explicit Program(const TestDrive& drive) { varn.Drive = drive.drive(); }

    void start(const QString& installation) { main.Form_Load(installation); }

    static frmMap& map() { return form<frmMap>(); }
    static QAction& menu(const char* name) { return child<QAction>(map(), name); }
    void click(const char* name) const { child<QPushButton>(main, name).click(); }
    static const Drawing& drawing() { return map().surface().drawing(); }

    void load(const char* entry, const char* file)
    {
        dialogs.files = {varn.Drive.hostPath(varn.dataFolder()) + '/' + QLatin1String(file)};
        menu(entry).trigger();
    }

    ScriptedDialogs dialogs;
    VarnModule varn;
    frmMain main{varn, dialogs};
};

/// A program set up for the map of a `TestSurvey`, with one item and its symbols.
class Forms : public testing::Test
{
protected:
    Forms()
    {
        const QString data = VarnPath + "\\VarnData";
        survey.write(DriveFile, "\"C:\\Varn62E\\\"\r\n");
        survey.write(MapNameFile, "\"\\Test\",\"Arial\",12,#TRUE#,#FALSE#,0\r\n");
        survey.write(data + "\\ExpSymbol.txt", "1\r\n\"x\",\"y\",\"z\"\r\n");
        survey.write(data + "\\Test\\Ling\\rain.dbs",
                     "3,\"\",\"Rain\",\"\"\r\n2\r\n\"ame\"\r\n\"uyu\"\r\n0\r\n1\r\n\"uyu\"\r\n");
        survey.write(data + "\\Test\\Ling\\rain.han",
                     "\"\"\r\n2\r\n\"ame\",\"AME\"\r\n1\r\n0\r\n0\r\n1\r\n1\r\n1\r\n"
                     "\"uyu\",\"UYU\"\r\n49\r\n4\r\n0\r\n0\r\n1\r\n1\r\n");
    }

    void start(Program& program) const
    {
        program.dialogs.yesNo = {true};
        program.start(nothing.path());
    }

    TestSurvey survey;
    QTemporaryDir nothing;
};

/// The same, started.
class StartedForms : public Forms
{
protected:
    StartedForms() { start(program); }

    Program program{survey};
};
