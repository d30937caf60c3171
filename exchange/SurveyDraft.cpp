#include "exchange/SurveyDraft.h"

#include "exchange/DraftFault.h"
#include "exchange/MakeSurvey.h"
#include "exchange/WriteSurvey.h"
#include "render/MadeSymbols.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace {

DraftItem draftOf(const SourceItem& item)
{
    const auto isAnswered = [](const QStringList& answers) { return !answers.isEmpty(); };
    return {item.name, static_cast<int>(kindsByFrequency(item.answers).size()),
            static_cast<int>(std::ranges::count_if(item.answers, isAnswered))};
}

/// What a map of the source may be called: as its file, or its folder where the file is called as in all such
/// folders.
QString nameOfSource(const SourceDraft& source)
{
    const QFileInfo file(source.choices().path);
    if (file.isDir()) {
        return file.fileName();
    }
    const bool isMetadata = source.isCldf() && file.suffix() == QLatin1String("json");
    return isMetadata ? file.dir().dirName() : file.completeBaseName();
}

} // namespace

void SurveyDraft::takeSource()
{
    m_made.reset();
    takeItems();
    if (m_taken != m_source.choices().path) {
        m_taken = m_source.choices().path;
        m_mapName = freeMapName();
        m_title = m_source.survey()->title.isEmpty() ? m_mapName : m_source.survey()->title;
    }
}

void SurveyDraft::takeItems()
{
    QSet<QString> leftOut;
    for (const DraftItem& item : m_items) {
        if (!item.isChosen) {
            leftOut.insert(item.name);
        }
    }
    m_items.clear();
    for (const SourceItem& item : m_source.survey()->items) {
        m_items.push_back(draftOf(item));
        m_items.back().isChosen = !leftOut.contains(item.name);
    }
}

QString SurveyDraft::freeMapName() const
{
    const QString name = nameOfSource(m_source);
    QString free = name;
    for (int number = 2; number < 100 && !faultOf([&] { requireNewMap(m_folders, free); }).isEmpty();
         ++number) {
        free = QStringLiteral("%1 %2").arg(name).arg(number);
    }
    return free;
}

void SurveyDraft::setTitle(const QString& title)
{
    m_title = title;
    m_made.reset();
}

void SurveyDraft::setBaseMap(const QStringList& layers)
{
    m_choices.baseMap = layers;
    m_made.reset();
}

void SurveyDraft::setProjection(const QString& projection)
{
    m_choices.projection = projection;
    m_made.reset();
}

void SurveyDraft::choose(int item, bool isChosen)
{
    m_items[static_cast<std::size_t>(item)].isChosen = isChosen;
    m_made.reset();
}

int SurveyDraft::chosenItems() const
{
    return static_cast<int>(std::ranges::count_if(m_items, &DraftItem::isChosen));
}

QString SurveyDraft::mapNameFault() const
{
    return faultOf([this] { requireNewMap(m_folders, m_mapName); });
}

/// The survey of the source, with the title and the items that were chosen.
SourceSurvey SurveyDraft::titledSource() const
{
    SourceSurvey survey = *m_source.survey();
    survey.title = m_title;
    std::size_t number = 0;
    std::erase_if(survey.items, [&](const SourceItem&) { return !m_items[number++].isChosen; });
    return survey;
}

bool SurveyDraft::make(const ExchangeProgress& progress)
{
    if (!m_made) {
        m_fault = faultOf([&] { m_made = makeSurvey(titledSource(), m_choices, m_folders, progress); });
    }
    return m_made.has_value();
}

bool SurveyDraft::create(const ExchangeProgress& progress)
{
    bool isWritten = false;
    if (make(progress)) {
        m_fault = faultOf([&] { isWritten = writeSurvey(*m_made, m_folders, m_mapName, progress); });
    }
    return isWritten;
}

QString SurveyDraft::firstItem() const
{
    constexpr auto MostKinds = static_cast<std::size_t>(decltype(WordKinds::KindWord)::last());
    const auto canBeShown = [](const NewItem& item) {
        return kindsByFrequency(item.source.answers).size() <= MostKinds;
    };
    const auto first = std::ranges::find_if(m_made->items, canBeShown);
    return first == m_made->items.end() ? QString() : first->fileName;
}
