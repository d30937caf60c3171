// Every menu entry, button, shortcut and leaving signal of every form does what a person sees.

#include "tests/shell/forms/EveryWayOut.h"

#include <QKeyEvent>
#include <QMetaMethod>
#include <QTimer>

#include <set>

namespace {

class WaysOutOf : public EveryWayOut, public testing::WithParamInterface<const char*>
{
};

} // namespace

TEST_P(WaysOutOf, DoWhatTheySay)
{
    for (const Way& way : ways()) {
        if (std::string(way.form) == GetParam()) {
            expectChange(way);
        }
    }
}

TEST_P(WaysOutOf, FollowTheirFields)
{
    for (const Way& field : fields()) {
        if (std::string(field.form) == GetParam()) {
            expectChange(field);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, WaysOutOf,
                         testing::Values("frmMain", "frmMap", "frmChizu", "frmData", "frmDataInput",
                                         "frmSetHanko", "frmCalc", "frmCalExec", "frmRankData",
                                         "frmTotalHanko"),
                         [](const auto& form) { return std::string(form.param); });

TEST_F(EveryWayOut, HasARow)
{
    open();
    std::set<QString> rows = {QStringLiteral("frmMain cmdExit")};
    for (const Way& way : ways()) {
        rows.insert(QStringLiteral("%1 %2").arg(QLatin1String(way.form), QLatin1String(way.name)));
    }
    int forms = 0;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (const auto* form = qobject_cast<VarnForm*>(window)) {
            ++forms;
            for (const auto& [name, way] : waysOut(*form)) {
                const QString row =
                    QStringLiteral("%1 %2").arg(QLatin1String(form->metaObject()->className()), name);
                EXPECT_TRUE(rows.contains(row)) << qPrintable(row) << " has no row";
            }
        }
    }
    EXPECT_EQ(forms, 10);
}

TEST_F(EveryWayOut, EachLeavingSignalBringsAFormToTheFront)
{
    const std::map<QString, QString> fronts = {
        {"frmMap toMain", "frmMain"},
        {"frmChizu toMain", "frmMain"},
        {"frmChizu toDrawMap", "frmMap"},
        {"frmDataInput toMain", "frmMain"},
        {"frmDataInput toAccumulateData", "frmCalc"},
        {"frmData toMain", "frmMain"},
        {"frmSetHanko toMain", "frmMain"},
        {"frmSetHanko toDrawMap", "frmMap"},
        {"frmCalc toMain", "frmMain"},
        {"frmCalc toExecute", "frmCalExec"},
        {"frmCalc toDrawMap", "frmMap"},
        {"frmCalc toContrast", "frmRankData"},
        {"frmCalExec toMain", "frmMain"},
        {"frmCalExec toAccumulateData", "frmCalc"},
        {"frmCalExec toDrawMap", "frmMap"},
        {"frmCalExec toSymbols", "frmTotalHanko"},
        {"frmCalExec toContrast", "frmRankData"},
        {"frmRankData toAnalysis", "frmCalc"},
        {"frmRankData toDrawMap", "frmMap"},
        {"frmTotalHanko toAnalysis", "frmCalExec"},
        {"frmTotalHanko toDrawMap", "frmMap"},
    };
    open();
    std::size_t fired = 0;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const QMetaObject& form = *window->metaObject();
        for (int m = form.methodOffset(); m < form.methodCount(); ++m) {
            const QMetaMethod signal = form.method(m);
            if (signal.methodType() != QMetaMethod::Signal || !signal.name().startsWith("to")) {
                continue;
            }
            const QString name =
                QLatin1String(form.className()) + QLatin1Char(' ') + QString::fromLatin1(signal.name());
            ASSERT_TRUE(fronts.contains(name)) << qPrintable(name);
            showOnly(QLatin1String(form.className()));
            signal.invoke(window);
            QApplication::processEvents();
            EXPECT_TRUE(formNamed(fronts.at(name)).isVisible()) << qPrintable(name);
            ++fired;
        }
    }
    EXPECT_EQ(fired, fronts.size());
}

TEST_F(EveryWayOut, ExitEndsTheProgram)
{
    open();
    QTimer::singleShot(0, [this] { program->click("cmdExit"); });
    QTimer tooLong;
    QObject::connect(&tooLong, &QTimer::timeout, [] { QCoreApplication::exit(1); });
    tooLong.start(5000);
    EXPECT_EQ(QApplication::exec(), 0);
}

TEST_F(EveryWayOut, AFormWithUnsavedWorkStaysOpenOnNo)
{
    const std::pair<const char*, std::function<void()>> works[] = {
        {"frmDataInput",
         [] {
             type<frmDataInput>("txtKind", "hail");
             press<frmDataInput>("cmdSetKind");
         }},
        {"frmSetHanko", [] { type<frmSetHanko>("txtHanrei", "hail"); }},
        {"frmCalc", [] { type<frmCalc>("txtTotalName", "uno"); }},
        {"frmRankData", [] { type<frmRankData>("txtRankTitle", "west"); }},
        {"frmTotalHanko", [] { type<frmTotalHanko>("txtHanrei", "hail"); }},
    };
    for (const auto& [name, work] : works) {
        SCOPED_TRACE(name);
        open();
        VarnForm& form = formNamed(QLatin1String(name));
        showOnly(QLatin1String(name));
        work();
        for (QWidget* closed : {static_cast<QWidget*>(&form), static_cast<QWidget*>(&program->main)}) {
            program->dialogs.yesNo = {false};
            EXPECT_FALSE(closed->close());
            EXPECT_TRUE(form.isVisible());
        }
        const bool onlyContrast = name == std::string("frmRankData"); // whose groups are never saved here
        program->dialogs.yesNo = onlyContrast ? std::deque{true} : std::deque{true, true};
        EXPECT_TRUE(program->main.close());
        EXPECT_EQ(visibleWindows(), QStringList()) << "closing the main form closes the others";
    }
}

TEST_F(EveryWayOut, EscapeClosesThePositionPanelOnly)
{
    open();
    showOnly(QStringLiteral("frmMap"));
    trigger<frmMap>("mnuHpos");
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&Program::map(), &escape);
    EXPECT_FALSE(shownOn(Program::map()).contains(QStringLiteral("<fraStyle>")));
    EXPECT_TRUE(Program::map().isVisible());
}

TEST_F(EveryWayOut, AnItemOpenedInTheDataDisplayCanBeDrawn)
{
    program = std::make_unique<Program>(survey);
    start(*program);
    program->load("mnuHankoInput", "rain.han");
    EXPECT_FALSE(Program::menu("mnuMapLing").isEnabled());
    choose("rain.dbs");
    trigger<frmData>("mnuOpen");
    EXPECT_TRUE(Program::menu("mnuMapLing").isEnabled());
}
