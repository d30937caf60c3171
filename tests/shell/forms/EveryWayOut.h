#pragma once

#include "tests/shell/forms/WaysOut.h"
#include "tests/support/TestProgram.h"

#include <QClipboard>
#include <QDirIterator>
#include <QFile>
#include <QSettings>

#include <functional>
#include <memory>

/// A started program with an item, its symbols, a table with its strings, statistics and a contrast, each
/// form opened once, none of them shown.
class EveryWayOut : public Forms
{
protected:
    struct Way
    {
        QString form;
        /// What is done on the form; the last step is what the row is about.
        QStringList steps;
        /// What a person sees of the last step: a text that appears; after a minus one that disappears; "*"
        /// where the form looks different, "*name" where that part of it does.
        QString change;
    };

    EveryWayOut()
    {
        survey.write(ling("all.ttl"),
                     "2,5,\"the caption\"\r\n\"one\"\r\n12,9\r\n\"kept\",3\r\n\"two\"\r\n0,15\r\n2.5,0\r\n"
                     "1,2\r\n3,2\r\n5,4\r\n");
        survey.write(ling("all.sum"), "2\r\n2,\"a\",\"am\"\r\n1,\"u\"\r\n");
        const QByteArray record = "\"k\",\"K\"\r\n1\r\n0\r\n0\r\n1\r\n1\r\n1\r\n";
        survey.write(ling("many.han"), "\"\"\r\n30\r\n" + record.repeated(30));
    }

    void open()
    {
        program.reset();
        QSettings(QSettings::IniFormat, QSettings::UserScope, "varn", "atlas")
            .clear(); // all layers are shown
        for (const char* written : {"rain.srt", "west.rnk", "all.stt"}) {
            QFile::remove(survey.drive().hostPath(ling(written)));
        }
        program = std::make_unique<Program>(survey);
        start(*program);
        program->load("mnuInputWord", "rain.dbs");
        program->load("mnuHankoInput", "rain.han");
        for (const char* button :
             {"cmdMap", "cmdInputData", "cmdData", "cmdHanko", "cmdSumUp", "cmdRegMap"}) {
            program->click(button);
        }
        choose("all.ttl");
        program->dialogs.yesNo = {true}; // with its strings
        trigger<frmCalc>("mnuFileOpen");
        trigger<frmCalc>("mnuTotalForm");
        trigger<frmCalExec>("mnuStatsExec");
        trigger<frmCalExec>("mnuStatsSymbols");
        trigger<frmCalc>("mnuRankExe");
        press<frmRankData>("cmdData1");
        control<frmRankData, QListWidget>("lstWordList").setCurrentRow(1);
        press<frmRankData>("cmdData2");
        press<frmRankData>("cmdCalc");
        QApplication::processEvents();
        EXPECT_EQ(program->dialogs.errors, std::vector<Shown>());
        QGuiApplication::clipboard()->setText({});
    }

    static QString ling(const char* file) { return VarnPath + "\\VarnData\\Test\\Ling\\" + file; }
    void choose(const char* file) { program->dialogs.files = {survey.drive().hostPath(ling(file))}; }

    /// Does a step on the form of the row: uses the entry, button or shortcut of that name; "box=text" types
    /// a text into a box or the first cell; "list=n" chooses a row, "list=Enter" the first with the Enter
    /// key; a name in brackets is one of `preparations`.
    void perform(const QString& step);
    std::map<QString, std::function<void()>> preparations();

    /// Hides all windows and brings the form to the front.
    static void showOnly(VarnForm& form)
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            window->setVisible(window == &form);
        }
        QEvent activated(QEvent::WindowActivate);
        QApplication::sendEvent(&form, &activated);
        QApplication::processEvents();
    }

    /// What a person sees: forms in front, questions, what stands on `form`, where typing goes, the map, the
    /// files.
    QString seen(const VarnForm& form) const
    {
        QStringList lines = visibleWindows() + shownOn(form);
        lines << "focus: " + (form.focusWidget() != nullptr ? form.focusWidget()->objectName() : QString());
        for (const Shown& shown : program->dialogs.shown) {
            lines << shown.title << shown.text;
        }
        for (const QString& text : Program::drawing().texts) {
            lines << "map: " + text;
        }
        if (!QGuiApplication::clipboard()->image().isNull()) {
            lines << "clipboard: picture";
        }
        lines << "clipboard: " + QGuiApplication::clipboard()->text().trimmed();
        for (QDirIterator files(survey.root(), QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
            lines << "file: " + QFileInfo(files.next()).fileName();
        }
        return lines.join('\n');
    }

    void expectChange(const Way& way)
    {
        SCOPED_TRACE(qPrintable(way.form + ": " + way.steps.join(", ")));
        open();
        rowForm = &formNamed(way.form);
        showOnly(*rowForm);
        for (const QString& step : way.steps.first(way.steps.size() - 1)) {
            perform(step);
        }
        QApplication::processEvents();
        program->dialogs.shown.clear();
        const QString before = seen(*rowForm);
        const bool looks = way.change.startsWith('*');
        const bool appears = !way.change.startsWith('-');
        const QString what = way.change.mid(looks || !appears ? 1 : 0);
        const auto picture = [&] {
            return (what.isEmpty() ? *rowForm : child<QWidget>(*rowForm, qPrintable(what))).grab().toImage();
        };
        const QImage pictureBefore = looks ? picture() : QImage();
        perform(way.steps.last());
        QApplication::processEvents();
        const QString after = seen(*rowForm);
        if (looks) {
            EXPECT_NE(picture(), pictureBefore) << "nothing looks different";
        } else {
            EXPECT_EQ(before.contains(what), !appears) << qPrintable(before);
            EXPECT_EQ(after.contains(what), appears) << qPrintable(after);
        }
        EXPECT_EQ(program->dialogs.errors, std::vector<Shown>());
    }

    std::unique_ptr<Program> program;
    /// The form that the row is about.
    VarnForm* rowForm = nullptr;
    /// A row for each menu entry, button and shortcut, but for Exit, and for what is typed and chosen.
    static std::vector<Way> ways();
};
