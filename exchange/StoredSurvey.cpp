#include "exchange/StoredSurvey.h"

#include "lingdata/LinguisticFile.h"
#include "lingdata/LocalityMismatch.h"
#include "mapdata/MapFiles.h"
#include "mapdata/MapSearch.h"
#include "platform/FileName.h"

#include <QDir>

#include <cmath>
#include <memory>

namespace {

/// As exact as the single is in a map's extent, without the digits that it has not.
double mapUnits(float single)
{
    constexpr double Digits = 1e4;
    return std::round(single * Digits) / Digits;
}

/// Map units grow downward, the y of a plane upward.
QPointF placeOnMap(const Localities& map, int i)
{
    return {mapUnits(map.LocXY(i, 0)), 0.0 - mapUnits(map.LocXY(i, 1))};
}

void addLocalities(const BaseMap& map, SourceSurvey& survey)
{
    survey.plane = map.localityNames.empty() || map.plane;
    for (int i = 1; i <= map.NLocality; ++i) {
        const QString number = QString::number(i);
        if (map.localityNames.empty()) {
            survey.localities.push_back({number, number, placeOnMap(map, i)});
        } else {
            const LocalityName& locality = map.localityNames[static_cast<std::size_t>(i - 1)];
            survey.localities.push_back(
                {locality.id, locality.name, {locality.longitude, locality.latitude}});
        }
    }
}

SourceItem itemOf(const ItemAnswers& answers, const QString& fileName)
{
    SourceItem item{answers.Hanrei.trimmed().isEmpty() ? stemOf(fileName) : answers.Hanrei, {}};
    for (int i = 1; i <= answers.NLocate; ++i) {
        QStringList words;
        for (int j = 1; j <= answers.WordCount(i); ++j) {
            words << answers.WordData(i, j);
        }
        words.removeAll(QString());
        item.answers.push_back(words);
    }
    return item;
}

void addItem(const Folders& folders, const QString& fileName, SourceSurvey& survey)
{
    const auto count = static_cast<int>(survey.localities.size());
    try {
        const auto answers = std::make_unique<ItemAnswers>(
            readSequentialFile(folders.Drive, folders.dataFolder() + QLatin1Char('\\') + fileName, readItem));
        if (const QString mismatch = localityMismatch(answers->NLocate, count); !mismatch.isEmpty()) {
            survey.report.leaveOut(QStringLiteral("items of another number of localities"), fileName);
        } else {
            survey.items.push_back(itemOf(*answers, fileName));
        }
    } catch (const RunTimeError& error) {
        survey.report.leaveOut(QStringLiteral("items that cannot be read"),
                               fileName + QStringLiteral(": ") + error.text());
    }
}

} // namespace

std::optional<SourceSurvey> readStoredSurvey(const Folders& folders, const ExchangeProgress& progress)
{
    const auto map = std::make_unique<BaseMap>();
    loadBaseMap(folders.Drive, {folders.VarnPath, folders.VarnMapName}, {}, *map);
    loadLocalityNames(folders, *map);
    SourceSurvey survey;
    survey.title = map->NKanji > 0 ? map->KanjiText(1) : folders.VarnMapName.mid(1);
    addLocalities(*map, survey);

    const QStringList files = QDir(folders.Drive.hostPath(folders.dataFolder()))
                                  .entryList({QStringLiteral("*.dbs")}, QDir::Files, QDir::Name);
    for (int i = 0; i < files.size(); ++i) {
        if (!progress(i, static_cast<int>(files.size()), files[i])) {
            return std::nullopt;
        }
        addItem(folders, files[i], survey);
    }
    survey.report.tell(
        QStringLiteral("%1 localities and %2 items").arg(survey.localities.size()).arg(survey.items.size()));
    return survey;
}
