#pragma once

#include "tests/shell/forms/WaysOut.h"
#include "tests/support/TestProgram.h"

#include <QClipboard>
#include <QDirIterator>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>

#include <functional>
#include <memory>

/// A started program with an item, its symbols, a table with its strings, statistics and a contrast, each
/// form opened once, none of them shown.
class EveryWayOut : public Forms
{
protected:
    struct Way
    {
        const char* form;
        const char* name;
        /// What a person sees of it: a text that appears; after a minus one that disappears; "*" where the
        /// form looks different, "*name" where that part of it does.
        const char* change;
        /// What is done before, answers included.
        std::function<void(EveryWayOut&)> before = [](EveryWayOut&) {};
        /// What is done; where there is none, the entry, button or shortcut of that name is used.
        std::function<void(EveryWayOut&)> act = {};
    };

    EveryWayOut()
    {
        survey.write(ling("all.ttl"),
                     "2,5,\"the caption\"\r\n\"one\"\r\n12,9\r\n\"kept\",3\r\n\"two\"\r\n0,15\r\n2.5,0\r\n"
                     "1,2\r\n3,2\r\n5,4\r\n");
        survey.write(ling("all.sum"), "2\r\n2,\"a\",\"am\"\r\n1,\"u\"\r\n");
        survey.write(ling("many.han"),
                     "\"\"\r\n30\r\n" +
                         QByteArray("\"k\",\"K\"\r\n1\r\n0\r\n0\r\n1\r\n1\r\n1\r\n").repeated(30));
    }

    void open()
    {
        program.reset();
        for (const char* written : {"rain.srt", "west.rnk", "all.stt"}) {
            QFile::remove(survey.drive().hostPath(ling(written)));
        }
        program = std::make_unique<Program>(survey);
        start(*program);
        program->load("mnuInputWord", "rain.dbs");
        program->load("mnuHankoInput", "rain.han");
        for (const char* button : {"cmdMap", "cmdInputData", "cmdData", "cmdHanko", "cmdSumUp"}) {
            program->click(button);
        }
        control<frmMain, QPushButton>("cmdRegMap").click();
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

    static QString ling(const char* file)
    {
        return VarnPath + QStringLiteral("\\VarnData\\Test\\Ling\\") + QLatin1String(file);
    }
    void choose(const char* file) { program->dialogs.files = {survey.drive().hostPath(ling(file))}; }
    template <typename Form>
    static void type(const char* box, const char* text)
    {
        control<Form, QLineEdit>(box).setText(QLatin1String(text));
    }

    static void showOnly(const QString& form)
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible()) {
                window->hide();
            }
        }
        formNamed(form).show();
        QApplication::processEvents();
    }

    /// What a person sees: forms in front, questions, what stands on `form`, the map, the files.
    QStringList seen(const VarnForm& form) const
    {
        QStringList lines = visibleWindows() + shownOn(form);
        for (const Shown& shown : program->dialogs.shown) {
            lines << shown.title << shown.text;
        }
        for (const QString& text : Program::drawing().texts) {
            lines << QStringLiteral("map: ") + text;
        }
        if (!QGuiApplication::clipboard()->image().isNull()) {
            lines << QStringLiteral("clipboard: picture");
        }
        lines << QStringLiteral("clipboard: ") + QGuiApplication::clipboard()->text().trimmed();
        for (QDirIterator files(survey.root(), QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
            lines << QStringLiteral("file: ") + QFileInfo(files.next()).fileName();
        }
        return lines;
    }

    void act(const Way& way, const VarnForm& form)
    {
        if (way.act) {
            way.act(*this);
            return;
        }
        const auto ways = waysOut(form);
        const auto found = ways.find(QLatin1String(way.name));
        ASSERT_NE(found, ways.end()) << "there is no such thing";
        use(*found->second);
    }

    void expectChange(const Way& way)
    {
        SCOPED_TRACE(std::string(way.form) + " " + way.name);
        open();
        VarnForm& form = formNamed(QLatin1String(way.form));
        showOnly(QLatin1String(way.form));
        way.before(*this);
        QApplication::processEvents();
        program->dialogs.shown.clear();
        const QString before = seen(form).join(QLatin1Char('\n'));
        const bool looks = way.change[0] == '*';
        const auto picture = [&] {
            return (way.change[1] == 0 ? form : child<QWidget>(form, way.change + 1)).grab().toImage();
        };
        const QImage pictureBefore = looks ? picture() : QImage();
        act(way, form);
        QApplication::processEvents();
        const QString after = seen(form).join(QLatin1Char('\n'));
        const bool appears = way.change[0] != '-';
        const QString text = QString::fromUtf8(way.change + (appears ? 0 : 1));
        if (looks) {
            EXPECT_NE(picture(), pictureBefore) << "nothing looks different";
        } else {
            EXPECT_EQ(before.contains(text), !appears) << qPrintable(before);
            EXPECT_EQ(after.contains(text), appears) << qPrintable(after);
        }
        EXPECT_EQ(program->dialogs.errors, std::vector<Shown>());
    }

    std::unique_ptr<Program> program;
    /// A row for each menu entry, button and shortcut, but for Exit.
    static std::vector<Way> ways();
    /// What a form shows at once of what is typed and chosen on it.
    static std::vector<Way> fields();
};
