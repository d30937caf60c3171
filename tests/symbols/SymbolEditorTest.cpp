#include "symbols/SymbolEditor.h"

#include "tests/support/TestDrive.h"

#include <array>
#include <functional>

namespace {

/// An empty symbol set and its editor.
class SymbolEditing : public testing::Test
{
protected:
    /// Fields of a record with the kind `word` and the symbol `number`, all else as for a new record.
    static HankoFields fieldsOf(const char* word, int number)
    {
        HankoFields made = SymbolEditor::NewData(QString());
        made.word = QLatin1String(word);
        made.number = QString::number(number);
        return made;
    }

    /// Registers `count` records "k" with symbols 1, 2, ... and ends at the last one.
    void fill(int count)
    {
        fields = editor.start();
        for (int k = 1; k <= count; ++k) {
            editor.next(fields);
            fields = editor.registerRecord(fieldsOf("k", k));
        }
    }

    /// "2/3* [1-3] k1 k2=two k3": the counter, a star where the set is not saved, the records that the
    /// preview shows, and each record's kind, symbol and caption.
    std::string state() const
    {
        QString text = editor.counter() + QLatin1String(isSymbolSetUnsaved(set) ? "*" : "");
        text += QStringLiteral(" [%1-%2]").arg(editor.firstShown()).arg(editor.lastShown());
        for (int k = 1; k <= set.NHanrei; ++k) {
            text += QLatin1Char(' ') + set.HankoWord(k) + QString::number(set.Hanko(k).HankoNo);
            text += set.HankoCaption(k).isEmpty() ? QString() : QLatin1Char('=') + set.HankoCaption(k);
        }
        return text.toStdString();
    }

    SymbolSet set;
    SymbolEditor editor{set};
    HankoFields fields;
};

} // namespace

TEST_F(SymbolEditing, RecordsAreEnteredOneAfterTheOther)
{
    fields = editor.start();
    EXPECT_EQ(editor.next(fields), fields);
    editor.registerRecord(fields);
    EXPECT_EQ(state(), "1/New [1-0]") << "a record without a kind does not count";

    fields = fieldsOf(" a\t  ", 0);
    fields.number = QStringLiteral("2.5");
    fields.caption = QStringLiteral("   ");
    fields.Explain = QStringLiteral("a comment");
    editor.registerRecord(fields);
    EXPECT_EQ(state(), "1/1* [1-1]  a\t2") << "blanks are taken from the right end only";
    EXPECT_EQ(set.Hanko(1), (HankoStyle{2, 0, 0, 0, 1, 1}));
    EXPECT_EQ(set.Explain, QStringLiteral("a comment"));

    fields = editor.next(fields).value();
    EXPECT_EQ(editor.counter(), QStringLiteral("2/New"));
    EXPECT_EQ(fields, SymbolEditor::NewData(QStringLiteral("a comment")));
    editor.next(fieldsOf("lost", 1));
    EXPECT_EQ(editor.counter(), QStringLiteral("2/New")) << "a new record must be registered first";
    fields = editor.previous(fields);
    EXPECT_EQ(fields.word, QStringLiteral(" a\t"));
    editor.previous(fields);
    EXPECT_EQ(editor.counter(), QStringLiteral("1/1"));
}

TEST_F(SymbolEditing, ASymbolNumberCarriesOneStyle)
{
    fill(4);
    set.Hanko(1) = {7, 1, 2, 1, 0, 2};
    set.Hanko(2) = {7, 3, 99, 5, 3, -1}; // two styles of one number, as a file may have them
    fields = fieldsOf("k", 7);
    fields.style.LineColor = 12;
    set.CurrentHanko = 3;
    fields = editor.registerRecord(fields);
    EXPECT_EQ(set.Hanko(3), (HankoStyle{7, 3, 0, 1, 0, 0})) << "the last earlier one, as the lists show it";
    EXPECT_EQ(fields.style, set.Hanko(3));

    fields.style = {7, 14, 13, 0, 2, 0};
    set.CurrentHanko = 1;
    editor.registerRecord(fields);
    EXPECT_EQ(set.Hanko(1), fields.style) << "later records do not count";
}

TEST_F(SymbolEditing, RecordsAreInsertedDeletedAndEmptied)
{
    fill(3);
    set.HankoCaption(3) = QStringLiteral("three");
    set.SavedRecords.keep(set);
    set.HankoWord(0) = QStringLiteral("scratch");
    const auto insert = [&](int n) {
        return [&, n] { editor.insertRecord(n, QStringLiteral("a comment")); };
    };
    const auto remove = [&](int n) { return [&, n] { editor.deleteRecord(n); }; };
    const std::pair<std::function<void()>, const char*> steps[] = {
        {insert(4), "3/3 [1-3] k1 k2 k3=three"},
        {remove(4), "3/3 [1-3] k1 k2 k3=three"},
        {remove(0), "3/3 [1-3] k1 k2 k3=three"},
        {insert(2), "2/4* [1-4] k1 0 k2 k3=three"},
        {remove(1), "2/3* [1-3] 0 k2 k3=three"},
        {[&] { editor.goTo(3, QString()); }, "3/3* [1-3] 0 k2 k3=three"},
        {remove(1), "3/New* [1-2] k2 k3=three"},
        {remove(2), "3/New* [1-1] k2"},
        {remove(1), "3/New* [1-0]"},
        {[&] { editor.registerRecord(fieldsOf("new", 9)); },
         "3/New* [1-1] k2"}, // the record that was left at 1
        {[&] { editor.initialize(); }, "0/0 [1-0]"},
        {[&] { editor.registerRecord(editor.GetData()); }, "0/0 [1-0]"}, // record 0 is outside the set
        {[&] { editor.next(editor.GetData()); }, "1/New [1-0]"},
        {insert(0), "0/0* [1-0]"},
        {[&] { editor.next(editor.GetData()); }, "0/0* [1-0]"}, // which has emptied record 0
    };
    for (const auto& [step, expected] : steps) {
        step();
        EXPECT_EQ(state(), expected);
    }
    EXPECT_EQ(set.Hanko(0), (HankoStyle{0, 0, 0, 0, 1, 1}));
    EXPECT_EQ(set.Hanko(1), HankoStyle{});
    EXPECT_EQ(errorOf([&] { editor.previous(fields); }).number(), ErrorNumber::SubscriptOutOfRange);
}

TEST_F(SymbolEditing, WhatCannotBeStoredIsAnErrorThatChangesNothing)
{
    fill(100);
    const std::string before = state();
    EXPECT_TRUE(before.starts_with("100/100* [81-100] k1 k2")) << "a hundred are the most";
    const std::pair<std::function<void()>, ErrorNumber> rows[] = {
        {[&] { editor.registerRecord(fieldsOf("other", 40000)); }, ErrorNumber::Overflow},
        {[&] { editor.insertRecord(50, QString()); }, ErrorNumber::SubscriptOutOfRange},
        {[&] { editor.insertRecord(-1, QString()); }, ErrorNumber::SubscriptOutOfRange},
        {[&] { editor.deleteRecord(-1); }, ErrorNumber::SubscriptOutOfRange},
    };
    for (const auto& [action, expected] : rows) {
        EXPECT_EQ(errorOf(action).number(), expected);
        EXPECT_EQ(state(), before);
    }
    for (const HankoFields& last : {fields, HankoFields()}) {
        EXPECT_EQ(editor.next(last), std::nullopt) << "whatever the kind is";
    }
}

TEST_F(SymbolEditing, PreviewShowsTheLastTwentyAndScrolls)
{
    const std::array<int, 5> rows[] = {
        {19, 1, 1, 1, 19}, {25, 0, 0, 6, 25}, {25, 4, 0, 2, 21}, {25, 6, 0, 1, 20}, {25, 6, 9, 6, 25}};
    for (const auto& [records, ups, downs, first, last] : rows) {
        fill(records);
        for (int i = 0; i < ups; ++i) {
            editor.scrollUp();
        }
        for (int i = 0; i < downs; ++i) {
            editor.scrollDown();
        }
        EXPECT_EQ(std::pair(editor.firstShown(), editor.lastShown()), std::pair(first, last))
            << records << " up " << ups << " down " << downs;
    }
}
