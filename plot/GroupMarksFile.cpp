#include "plot/GroupMarksFile.h"

#include "dialectometry/GlyphLetters.h"
#include "platform/SequentialFile.h"

#include <cmath>

namespace {

const ComparedItem& itemOf(const SurveyAnswers& answers, int item)
{
    return answers.items[static_cast<std::size_t>(item)];
}

void writeHeadings(SequentialWriter& file, std::initializer_list<const char*> headings)
{
    for (const char* heading : headings) {
        file.writeField(QString(QLatin1String(heading)));
    }
    file.endStatement();
}

/// As many digits as a reader compares.
double rounded(double value)
{
    constexpr double Digits = 1e4;
    return std::round(value * Digits) / Digits;
}

} // namespace

void writeFormsOfGroups(SequentialWriter& file, const SurveyAnswers& answers, const std::vector<int>& groups)
{
    writeHeadings(file,
                  {"group", "item", "word form", "representativeness", "distinctiveness", "importance"});
    for (int group = 1; group <= groupCount(groups); ++group) {
        for (const FormOfGroup& mark : formsOfGroup(answers, groups, group)) {
            const ComparedItem& item = itemOf(answers, mark.item);
            file.write(group, item.name, inLetters(item.forms[mark.form]), rounded(mark.representativeness),
                       rounded(mark.distinctiveness), rounded(mark.importance()));
        }
    }
}

void writeItemsOfGroups(SequentialWriter& file, const SurveyAnswers& answers,
                        const std::vector<ItemsOfGroup>& marks)
{
    writeHeadings(file, {"group", "item", "within", "between", "score"});
    int group = 0;
    for (const ItemsOfGroup& ofGroup : marks) {
        ++group;
        for (const ItemOfGroup& mark : ofGroup) {
            file.write(group, itemOf(answers, mark.item).name, rounded(mark.within), rounded(mark.between),
                       rounded(mark.score));
        }
    }
}
