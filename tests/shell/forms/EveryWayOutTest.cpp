// Every menu entry, button and shortcut of every form does what a person sees.

#include "tests/shell/forms/EveryWayOut.h"

#include <set>

namespace {

class WaysOutOf : public EveryWayOut, public testing::WithParamInterface<const char*>
{
};

} // namespace

TEST_P(WaysOutOf, DoWhatTheySay)
{
    for (const Way& way : ways()) {
        if (way.form == GetParam()) {
            expectChange(way);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, WaysOutOf,
                         testing::Values("frmMain", "frmAtlas", "frmMap", "frmChizu", "frmData",
                                         "frmDataInput", "frmSetHanko", "frmCalc", "frmCalExec",
                                         "frmRankData", "frmTotalHanko"),
                         [](const auto& form) { return std::string(form.param); });

TEST_F(EveryWayOut, HasARow)
{
    open();
    // The one ends the program; the others are there while localities are compared, and where that was
    // stopped.
    std::set<QString> rows = {"frmMain cmdExit", "frmAtlas cmdStop", "frmAtlas cmdGoOn"};
    for (const Way& way : ways()) {
        rows.insert(way.form + ' ' + way.steps.last());
    }
    EXPECT_EQ(allForms().size(), 11U);
    for (const VarnForm* form : allForms()) {
        for (const auto& [name, way] : waysOut(*form)) {
            const QString row = form->metaObject()->className() + (' ' + name);
            EXPECT_TRUE(rows.contains(row)) << qPrintable(row) << " has no row";
        }
    }
}

TEST_F(EveryWayOut, AFormWithUnsavedWorkStaysOpenOnNo)
{
    const std::pair<const char*, const char*> works[] = {{"frmDataInput", "tblWords=hail"},
                                                         {"frmSetHanko", "txtHanrei=hail"},
                                                         {"frmCalc", "txtTotalName=uno"},
                                                         {"frmRankData", "txtRankTitle=west"},
                                                         {"frmTotalHanko", "txtHanrei=hail"}};
    for (const auto& [name, work] : works) {
        SCOPED_TRACE(name);
        open();
        rowForm = &formNamed(name);
        showOnly(*rowForm);
        perform(work);
        for (QWidget* closed : {static_cast<QWidget*>(rowForm), static_cast<QWidget*>(&program->main)}) {
            program->dialogs.yesNo = {false};
            EXPECT_FALSE(closed->close());
            EXPECT_TRUE(rowForm->isVisible());
        }
        const bool onlyContrast = name == std::string("frmRankData"); // whose groups are never saved here
        program->dialogs.yesNo = onlyContrast ? std::deque{true} : std::deque{true, true};
        EXPECT_TRUE(program->main.close());
        EXPECT_EQ(visibleWindows(), QStringList()) << "closing the main form closes the others";
    }
}
