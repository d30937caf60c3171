#include "plot/SurveyCommands.h"

#include "dialectometry/AreaMap.h"
#include "dialectometry/DistanceFile.h"
#include "dialectometry/IsoglossMap.h"
#include "dialectometry/Reliability.h"
#include "lingdata/ItemFolder.h"
#include "mapdata/MapSearch.h"
#include "platform/FileName.h"
#include "plot/DrawingFile.h"
#include "plot/GroupMarksFile.h"
#include "plot/HostError.h"
#include "shell/MapParts.h"

namespace {

using Command = PlotOptions::Command;

/// Which distances are drawn.
struct NamedDistances
{
    DistanceMatrix distances;
    /// What they are called in titles.
    QString name;
};

/// A command on a survey.
class SurveyPlot
{
public:
    SurveyPlot(MapPlot& map, const PlotOptions& options, PlotListener& listener)
        : m_map(map), m_varn(map.varn()), m_options(options), m_survey(options.survey), m_listener(listener)
    {
        loadLocalityNames(m_varn, m_varn);
    }

    bool run()
    {
        switch (m_options.command) {
        case Command::AreaMap:
            drawAreas();
            break;
        case Command::IsoglossMap:
            drawIsoglosses();
            break;
        case Command::Distances:
            saveDistances();
            break;
        case Command::GroupMarks:
            saveMarks();
            break;
        default:
            drawDistances();
            break;
        }
        return m_isWhole;
    }

private:
    QString path(const QString& hostPath) const { return m_varn.Drive.varnPath(hostPath); }

    QStringList itemPaths() const
    {
        QStringList paths;
        for (const QString& item : m_options.items) {
            paths << path(item);
        }
        return paths.isEmpty() ? itemFiles(m_varn.Drive, m_varn.dataFolder()) : paths;
    }

    void leaveOut(const QString& itemPath, const RunTimeError& error)
    {
        m_listener.warning(
            QStringLiteral("%1 is left out: %2").arg(fileNameOf(itemPath), onThisMachine(error).message()));
        m_isWhole = false;
    }

    SurveyAnswers readAnswers()
    {
        SurveyAnswers answers{m_varn.NLocality, {}};
        for (const QString& item : itemPaths()) {
            try {
                answers.items.push_back(
                    readComparedItem(m_varn.Drive, item, m_survey.answers, m_varn.NLocality));
            } catch (const RunTimeError& error) {
                if (!m_options.keepGoing) {
                    throw;
                }
                leaveOut(item, error);
            }
        }
        if (answers.items.empty()) {
            throw RunTimeError(ErrorNumber::FileNotFound, QStringLiteral("There is no item to compare."))
                .at({m_varn.dataFolder()});
        }
        return answers;
    }

    /// Goes on until the listener ends the command.
    DistanceProgress progress(const QString& what)
    {
        return [this, what](int done, int of) {
            m_listener.page(done, of, what);
            return true;
        };
    }

    NamedDistances compare(const SurveyComparison& comparison)
    {
        return {*comparison.matrix(progress(QStringLiteral("distances"))),
                nameOf(m_survey.measure, static_cast<std::size_t>(comparison.items()))};
    }

    NamedDistances readDistancesFile() const
    {
        const auto read = [this](SequentialReader& file) {
            return readDistances(file, m_varn, m_varn.NLocality);
        };
        return {readSequentialFile(m_varn.Drive, path(m_survey.distances), read),
                stemOf(path(m_survey.distances))};
    }

    NamedDistances distances()
    {
        return m_survey.distances.isEmpty() ? compare({readAnswers(), m_survey.measure})
                                            : readDistancesFile();
    }

    void save(const std::function<void(MapSurfaces)>& draw, QSizeF size)
    {
        saveDrawing(m_map.otherMap(draw), size, m_options.output, m_options.dotsPerInch);
    }

    void saveTable(const std::function<void(SequentialWriter&)>& write) const
    {
        writeSequentialFile(m_varn.Drive, path(m_options.output), write);
    }

    AreaMapParts areaParts(const LocalityCells& cells) const
    {
        return {blankMapParts(m_varn), textParts(m_varn), cells};
    }

    void drawAreas()
    {
        m_map.loadAsMade(path(m_options.data.value(0)), path(m_options.symbols));
        const LocalityCells cells = localityCells(m_varn, m_varn);
        const AreaMapStyle& style = m_survey.items.areas;
        save([&](MapSurfaces on) { drawAreaMap(linguisticMapParts(m_varn), cells, style, on); },
             m_map.size());
    }

    void drawIsoglosses()
    {
        const SurveyAnswers answers = readAnswers();
        const LocalityCells cells = localityCells(m_varn, m_varn);
        BorderChanges changes = borderChanges(cells, answers.items.front().answers);
        for (std::size_t i = 1; i < answers.items.size(); ++i) {
            addChanges(changes, borderChanges(cells, answers.items[i].answers));
        }
        const IsoglossStyle& style = m_survey.items.isoglosses;
        const auto draw = [&](MapSurfaces on) {
            if (answers.items.size() == 1) {
                drawIsoglossMap(areaParts(cells), answers.items.front().caption, changes, style, on);
            } else {
                drawBundleMap(areaParts(cells), isoglossesOf(answers.items.size()), changes, style, on);
            }
        };
        save(draw, m_map.size());
    }

    void saveDistances()
    {
        const SurveyComparison comparison(readAnswers(), m_survey.measure);
        const NamedDistances compared = compare(comparison);
        const QStringList found = agreement(comparison, compared); // can be stopped: nothing is written yet
        saveTable([&](SequentialWriter& file) { writeDistances(file, m_varn, compared.distances); });
        for (const QString& line : found) {
            m_listener.report(line);
        }
    }

    /// How far the items agree, and the distances with the map, in lines.
    QStringList agreement(const SurveyComparison& comparison, const NamedDistances& compared)
    {
        const auto told = [](const char* what, std::optional<double> value) {
            return QStringLiteral("%1: %2").arg(QLatin1String(what), value ? QString::number(*value, 'f', 3)
                                                                           : QStringLiteral("none"));
        };
        const Lengths ways = localityLengths(m_varn, m_varn, m_varn);
        const bool inKilometres = ways.unit == LengthUnit::Kilometres;
        return {QStringLiteral("%1 localities, %2").arg(m_varn.NLocality).arg(compared.name),
                told("Cronbach's alpha", cronbachAlpha(comparison, progress(QStringLiteral("alpha")))),
                told("Local incoherence", localIncoherence(compared.distances, ways.lengths)),
                told(inKilometres ? "Correlation with kilometres" : "Correlation with the ways on the map",
                     lengthCorrelation(compared.distances, ways.lengths))};
    }

    /// The locality (from 0) that is asked for.
    int locality() const
    {
        std::vector<int> named;
        for (int i = 1; i <= m_varn.NLocality; ++i) {
            if (m_survey.locality == QString::number(i)) {
                return i - 1;
            }
            if (m_survey.locality.compare(localityName(m_varn, i), Qt::CaseInsensitive) == 0) {
                named.push_back(i - 1);
            }
        }
        if (named.size() == 1) {
            return named.front();
        }
        const QString text =
            named.empty() ? QStringLiteral("No locality of the map has the number or the name %1.")
                          : QStringLiteral("Several localities of the map have the name %1: give a number.");
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, text.arg(m_survey.locality));
    }

    void drawDistances()
    {
        DistanceMapSettings settings = m_survey.map;
        if (settings.kind == DistanceMapKind::Reference) {
            settings.reference = locality();
        }
        const NamedDistances drawn = distances();
        const LocalityCells cells = localityCells(m_varn, m_varn);
        const DistanceFindings found =
            *findingsFor(settings, drawn.distances, m_varn, cells, progress(QStringLiteral("clusters")));
        warnOfLeftOut(leftOutOfMap(settings, found, m_varn));
        save(
            [&](MapSurfaces on) {
                drawDistanceMap(areaParts(cells), drawn.distances, found, settings, drawn.name, on);
            },
            distanceMapSize(settings, m_map.area()));
    }

    void saveMarks()
    {
        const SurveyAnswers answers = readAnswers();
        const SurveyComparison comparison(answers, m_survey.measure);
        const DistanceMatrix matrix =
            m_survey.distances.isEmpty() ? compare(comparison).distances : readDistancesFile().distances;
        const DistanceFindings found =
            *findingsFor(m_survey.map, matrix, m_varn, {}, progress(QStringLiteral("clusters")));
        warnOfLeftOut(leftOutOfMap(m_survey.map, found, m_varn));
        if (m_survey.itemsOfGroups) {
            const auto marks = *itemsOfGroups(comparison, found.groups, progress(QStringLiteral("items")));
            saveTable([&](SequentialWriter& file) { writeItemsOfGroups(file, answers, marks); });
        } else {
            saveTable([&](SequentialWriter& file) { writeFormsOfGroups(file, answers, found.groups); });
        }
    }

    void warnOfLeftOut(const QStringList& localities)
    {
        if (!localities.isEmpty()) {
            m_listener.warning(QStringLiteral("Left out, for want of a distance to others: %1")
                                   .arg(localities.join(QStringLiteral(", "))));
        }
    }

    MapPlot& m_map;
    VarnModule& m_varn;
    const PlotOptions& m_options;
    const SurveyOptions& m_survey;
    PlotListener& m_listener;
    bool m_isWhole = true;
};

} // namespace

bool plotSurvey(MapPlot& map, const PlotOptions& options, PlotListener& listener)
{
    return SurveyPlot(map, options, listener).run();
}
