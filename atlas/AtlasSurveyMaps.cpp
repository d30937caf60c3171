#include "atlas/AtlasSurveyMaps.h"

#include "atlas/AtlasDocument.h"
#include "atlas/AtlasItem.h"
#include "render/BlankMap.h"
#include "shell/VarnModule.h"

#include <QPromise>
#include <QtConcurrentRun>

#include <new>
#include <utility>

namespace {

/// Whether localities, their names and the lines are the same.
bool isSameLand(const BaseMap& a, const BaseMap& b)
{
    return a.NLocality == b.NLocality && a.LocXY == b.LocXY && a.localityNames == b.localityNames &&
           a.NLine == b.NLine && a.LinePoints == b.LinePoints && a.LineOffset == b.LineOffset &&
           a.LineXY == b.LineXY;
}

} // namespace

AtlasSurveyMaps::AtlasSurveyMaps(VarnModule& varn, AtlasDocument& document)
    : m_varn(varn), m_document(document)
{
    const auto edited = [this] {
        ++m_edits;
        followFiles();
    };
    connect(&m_document, &AtlasDocument::wordsChanged, this, edited);
    connect(&m_document, &AtlasDocument::symbolsChanged, this, [this, edited] {
        if (m_source.answers.by == AnswersBy::Kinds) {
            edited();
        }
    });
    connect(&m_document, &AtlasDocument::baseMapChanged, this, &AtlasSurveyMaps::followMap);
    connect(&m_work, &QFutureWatcherBase::finished, this, &AtlasSurveyMaps::takeOutcome);
    connect(&m_work, &QFutureWatcherBase::progressValueChanged, this,
            [this](int done) { Q_EMIT progressed(done, m_work.progressMaximum()); });
}

AtlasSurveyMaps::~AtlasSurveyMaps()
{
    m_work.cancel(); // it knows nothing of this, and ends by itself
}

void AtlasSurveyMaps::setKind(AtlasMapKind kind)
{
    m_kind = kind;
    if (const auto map = distanceMap(kind)) {
        m_settings.kind = *map;
    }
    begin();
}

void AtlasSurveyMaps::setSource(const SurveySource& asked)
{
    const SurveySource source = withPossibleMeasure(asked);
    if (source != m_source) {
        m_source = source;
        begin();
    }
}

void AtlasSurveyMaps::setSettings(const DistanceMapSettings& settings)
{
    if (settings == m_settings) {
        return;
    }
    const bool isLookAlone = withLookOf(m_settings, settings) == settings;
    m_settings = settings;
    if (isLookAlone) {
        m_found.settings = withLookOf(m_found.settings, settings);
        Q_EMIT changed();
    } else {
        begin();
    }
}

void AtlasSurveyMaps::setIsoglossStyle(const IsoglossStyle& style)
{
    if (style != m_style) {
        m_style = style;
        Q_EMIT changed();
    }
}

void AtlasSurveyMaps::setWithSymbols(bool with)
{
    if (with != m_withSymbols) {
        m_withSymbols = with;
        Q_EMIT changed();
    }
}

void AtlasSurveyMaps::setWithItemMarks(bool with)
{
    if (with != m_withItemMarks) {
        m_withItemMarks = with;
        begin();
    }
}

void AtlasSurveyMaps::setReference(int i)
{
    DistanceMapSettings settings = m_settings;
    settings.reference = i - 1;
    setSettings(settings);
}

void AtlasSurveyMaps::followFiles()
{
    if (m_cells) {
        followMap();
    }
    if (isOfSurvey(m_kind) && marks() != m_marks) {
        begin();
    }
}

/// Place names and legend may be elsewhere; another map is compared anew, from all of its items.
void AtlasSurveyMaps::followMap()
{
    if (m_cells && m_mapName == m_varn.VarnMapName && isSameLand(m_cells->map, m_varn)) {
        return;
    }
    m_work.cancel();
    m_cells.reset();
    m_found = SurveyMap();
    m_compared.reset();
    m_source.items.clear();
    m_source.distancesFile.clear();
    m_settings.reference = 0;
    begin();
}

const CellMap& AtlasSurveyMaps::cellMap()
{
    if (!m_cells) {
        m_mapName = m_varn.VarnMapName;
        m_cells = std::make_shared<const CellMap>(CellMap{m_varn, localityCells(m_varn, m_varn)});
    }
    return *m_cells;
}

AtlasSurveyMaps::ItemMarks AtlasSurveyMaps::marks() const
{
    if (wanted().distancesFile.isEmpty()) {
        return {atlasItemMarks(m_varn), m_edits};
    }
    return {{{m_source.distancesFile, fileMark(m_varn, m_source.distancesFile)}}, 0};
}

SurveyFiles AtlasSurveyMaps::files()
{
    cellMap();
    SurveyFiles files{m_varn, m_cells, {}};
    for (const AtlasPage* page : m_document.unsavedPages()) {
        files.unsaved.push_back(*page);
    }
    return files;
}

void AtlasSurveyMaps::findOut(QPromise<Outcome>& promise, const SurveyFiles& files, SurveyMap map,
                              const SurveySource& source)
{
    const auto goOn = [&promise](int done, int of) {
        promise.setProgressRange(0, of);
        promise.setProgressValue(done);
        return !promise.isCanceled();
    };
    Outcome outcome{map.survey, std::nullopt, {}};
    try {
        if (!map.survey) {
            outcome.compared = compareSurvey(files, source, goOn);
        } else if (findFor(map, goOn)) {
            outcome.map = std::move(map);
        }
    } catch (const RunTimeError& error) {
        outcome.trouble = error.message();
    } catch (const std::bad_alloc&) {
        outcome.trouble = RunTimeError(ErrorNumber::OutOfMemory).message();
    }
    promise.addResult(std::move(outcome));
}

/// Kinds are marked as on the map that is shown, and isoglosses are of items, not of distances.
SurveySource AtlasSurveyMaps::wanted() const
{
    SurveySource source = m_source;
    source.answers.wholeWordForms = source.answers.by == AnswersBy::Kinds && m_varn.WholeWordForms;
    if (m_kind == AtlasMapKind::Bundles) {
        source.distancesFile.clear();
    }
    return source;
}

/// Whether what is wanted is being compared; the map that is wanted of it may be another one meanwhile.
bool AtlasSurveyMaps::isComparing(const ItemMarks& marks) const
{
    return m_isBusy && m_isComparing && !m_work.isCanceled() && m_comparing == wanted() && m_marks == marks;
}

/// First localities are compared, unless they were; then it is found out what the map shows of it.
void AtlasSurveyMaps::begin()
{
    m_isStopped = false;
    const bool wasTold = !std::exchange(m_trouble, QString()).isEmpty();
    if (!isOfSurvey(m_kind) || m_varn.NLocality == 0) {
        m_work.cancel();
        Q_EMIT changed();
        return;
    }
    ItemMarks now = marks();
    if (isComparing(now)) {
        return;
    }
    m_work.cancel();
    const bool areSame = m_compared && m_compared->source == wanted() && now == m_comparedMarks;
    m_isComparing = !areSame;
    m_comparing = wanted();
    m_marks = std::move(now);
    SurveyFiles source = files();
    SurveyMap next{m_kind,          m_cells, areSame ? m_compared : nullptr, m_settings, DistanceFindings(),
                   m_withItemMarks, {}};
    m_work.setFuture(QtConcurrent::run(findOut, std::move(source), std::move(next), wanted()));
    m_isBusy = true;
    Q_EMIT progressed(0, 0);
    if (wasTold) {
        Q_EMIT changed();
    }
}

void AtlasSurveyMaps::takeOutcome()
{
    m_isBusy = false;
    if (!m_work.isCanceled() && m_work.future().resultCount() > 0) {
        Outcome outcome = m_work.future().takeResult();
        m_isStopped = false; // too late
        m_compared = std::move(outcome.compared);
        m_comparedMarks = m_marks;
        m_trouble = outcome.trouble;
        if (m_compared && !outcome.map && m_trouble.isEmpty()) {
            begin();
            return;
        }
        m_found = std::move(outcome.map).value_or(SurveyMap());
        m_found.settings = withLookOf(m_found.settings, m_settings);
    }
    Q_EMIT progressed(0, 0);
    Q_EMIT changed();
}

void AtlasSurveyMaps::stop()
{
    if (m_isBusy) {
        m_isStopped = true;
        m_trouble = QStringLiteral("Stopped: this is not yet the map that the settings ask for.");
        m_work.cancel();
    }
}

void AtlasSurveyMaps::goOn()
{
    begin();
}

void AtlasSurveyMaps::draw(const AreaMapParts& parts, MapSurfaces surfaces) const
{
    if (m_found.survey) {
        drawSurveyMap(m_found, m_style, parts, surfaces);
    } else {
        DrawBlankMap(parts.base, surfaces);
    }
}

QSizeF AtlasSurveyMaps::size(const FormArea& area) const
{
    return m_found.kind == AtlasMapKind::Bundles ? QSizeF(area.Width, area.Height)
                                                 : distanceMapSize(m_found.settings, area);
}

QString AtlasSurveyMaps::name() const
{
    return m_found.survey ? nameOf(m_found) : QString();
}

QStringList AtlasSurveyMaps::notes() const
{
    return m_found.survey ? notesOf(m_found) : QStringList();
}
