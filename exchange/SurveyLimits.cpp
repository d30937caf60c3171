#include "exchange/SurveyLimits.h"

#include "lingdata/LinguisticData.h"
#include "lingdata/PhoneticCode.h"

#include <algorithm>

namespace {

constexpr auto MostLocalities = static_cast<size_t>(decltype(ItemAnswers::WordCount)::last());
constexpr qsizetype MostWords = 5;

/// The degrees (or x) between which localities lie, MostLocalities at a time from west to east.
QString regions(const std::vector<SourceLocality>& localities)
{
    std::vector<double> eastings;
    eastings.reserve(localities.size());
    for (const SourceLocality& locality : localities) {
        eastings.push_back(locality.position.x());
    }
    std::ranges::sort(eastings);
    QStringList regions;
    for (size_t first = 0; first < eastings.size(); first += MostLocalities) {
        const size_t last = std::min(first + MostLocalities, eastings.size()) - 1;
        regions << QStringLiteral("%1 to %2").arg(eastings[first], 0, 'f', 2).arg(eastings[last], 0, 'f', 2);
    }
    return regions.join(QStringLiteral(", "));
}

void limitLocalities(SourceSurvey& survey)
{
    if (survey.localities.size() <= MostLocalities) {
        return;
    }
    survey.report.tell(QStringLiteral("A map holds %1 localities, and the source has %2. To choose a region, "
                                      "give a localities file of its localities alone. From west to east "
                                      "%1 at a time lie at %3.")
                           .arg(MostLocalities)
                           .arg(survey.localities.size())
                           .arg(regions(survey.localities)));
    for (size_t i = MostLocalities; i < survey.localities.size(); ++i) {
        survey.report.leaveOut(QStringLiteral("localities beyond %1").arg(MostLocalities),
                               survey.localities[i].id);
    }
    survey.localities.resize(MostLocalities);
}

QString plainLine(QString word)
{
    std::ranges::replace_if(
        word, [](QChar letter) { return letter.category() == QChar::Other_Control; }, QLatin1Char(' '));
    return word.simplified();
}

/// Tidies the answers of an item and leaves out those that a locality has no room for.
void limitAnswers(SourceSurvey& survey, SourceItem& item)
{
    item.answers.resize(survey.localities.size());
    for (size_t i = 0; i < item.answers.size(); ++i) {
        QStringList& words = item.answers[i];
        std::ranges::transform(words, words.begin(), plainLine);
        words.removeAll(QString());
        for (qsizetype word = MostWords; word < words.size(); ++word) {
            survey.report.leaveOut(
                QStringLiteral("answers beyond five at a locality"),
                QStringLiteral("%1 at %2: %3").arg(item.name, survey.localities[i].id, words[word]));
        }
        words.resize(std::min(words.size(), MostWords));
    }
}

void leaveOutEmptyItems(SourceSurvey& survey)
{
    const auto isEmpty = [](const SourceItem& item) {
        return std::ranges::all_of(item.answers, &QStringList::isEmpty);
    };
    for (const SourceItem& item : survey.items) {
        if (isEmpty(item)) {
            survey.report.leaveOut(QStringLiteral("items without answers"), item.name);
        }
    }
    std::erase_if(survey.items, isEmpty);
}

/// Calls `action` with each word form of the survey.
void forEachWord(SourceSurvey& survey, const auto& action)
{
    for (SourceItem& item : survey.items) {
        for (QStringList& words : item.answers) {
            for (QString& word : words) {
                action(item, word);
            }
        }
    }
}

bool isCoded(QStringView word)
{
    while (!word.isEmpty()) {
        const PhoneticUnit unit = decodePhonetic(word);
        if (unit.kind == PhoneticUnit::Kind::Illegal) {
            return false;
        }
        word = word.mid(unit.consumed);
    }
    return true;
}

/// A survey in which every backslash begins the code of a phonetic letter was written with these codes. In
/// any other they would turn letters of the source into others.
void keepBackslashes(SourceSurvey& survey)
{
    const QLatin1Char backslash('\\');
    const QChar lookalike(0x2216);
    bool allCoded = true;
    forEachWord(survey,
                [&](const SourceItem&, const QString& word) { allCoded = allCoded && isCoded(word); });
    if (allCoded) {
        return;
    }
    forEachWord(survey, [&](const SourceItem& item, QString& word) {
        if (word.contains(backslash)) {
            word.replace(backslash, lookalike);
            survey.report.note(QStringLiteral("Word forms whose backslash, which begins codes of phonetic "
                                              "letters, is written as %1")
                                   .arg(lookalike),
                               QStringLiteral("%1 in %2").arg(word, item.name));
        }
    });
}

} // namespace

void keepToLimits(SourceSurvey& survey)
{
    limitLocalities(survey);
    for (SourceItem& item : survey.items) {
        item.name = plainLine(item.name);
        limitAnswers(survey, item);
    }
    leaveOutEmptyItems(survey);
    keepBackslashes(survey);
}
