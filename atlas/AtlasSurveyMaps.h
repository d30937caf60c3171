#pragma once

#include "atlas/SurveyMap.h"

#include <QFutureWatcher>
#include <QObject>

class AtlasDocument;
struct VarnModule;

/// The maps of the survey as a whole: what the user asked for, and what was found. Localities are compared in
/// the background, again whenever what they are compared by has changed.
class AtlasSurveyMaps : public QObject
{
    Q_OBJECT

public:
    AtlasSurveyMaps(VarnModule& varn, AtlasDocument& document);
    ~AtlasSurveyMaps() override;

    const SurveySource& source() const { return m_source; }
    const DistanceMapSettings& settings() const { return m_settings; }
    const IsoglossStyle& isoglossStyle() const { return m_style; }
    /// Whether the symbols of the item stand on its areas.
    bool withSymbols() const { return m_withSymbols; }

    /// Which map is shown from now on; of one that is not of the survey nothing is found out.
    void setKind(AtlasMapKind kind);
    /// Takes a measure that is possible where the one that is asked for is not.
    void setSource(const SurveySource& asked);
    void setSettings(const DistanceMapSettings& settings);
    void setIsoglossStyle(const IsoglossStyle& style);
    void setWithSymbols(bool with);
    /// Whether the items that groups are known by are wanted, which takes longer than their word forms.
    void setWithItemMarks(bool with);
    /// Shows the distances to locality i (from 1).
    void setReference(int i);

    /// Finds out again what other forms and files have changed in; nothing where they have not.
    void followFiles();

    /// The cells of the current map.
    const CellMap& cellMap();
    /// Draws the map of the kind that is shown, or nothing but the base map while there is none yet.
    void draw(const AreaMapParts& parts, MapSurfaces surfaces) const;
    /// How large it is on a form of `area`, in twips.
    QSizeF size(const FormArea& area) const;

    /// What is shown; null before the first was found.
    std::shared_ptr<const ComparedSurvey> survey() const { return m_found.survey; }
    /// The kind of the map that is shown, which is another one until that which is wanted was found.
    AtlasMapKind shownKind() const { return m_found.survey ? m_found.kind : m_kind; }
    const DistanceFindings& findings() const { return m_found.findings; }
    /// The items that group 1 and the following are known by; none unless they are wanted.
    const std::vector<ItemsOfGroup>& itemMarks() const { return m_found.itemMarks; }
    /// What the map that is shown is of: "Levenshtein distances over 166 items"; empty before the first was
    /// found.
    QString name() const;
    /// What the user is to know of the map, a line each.
    QStringList notes() const;
    /// Why there is no map, or not the one that is wanted; empty where there is one or will be.
    const QString& trouble() const { return m_trouble; }

    bool isBusy() const { return m_isBusy; }
    /// Whether localities are being compared, and nothing is shown meanwhile that is of the wanted kind.
    bool isAwaited() const
    {
        return m_isBusy && m_isComparing && (!m_found.survey || m_found.kind != m_kind);
    }
    /// Whether the work was stopped and nothing else was asked for since.
    bool isStopped() const { return m_isStopped; }
    /// Ends the work; what was shown stays.
    void stop();
    /// Begins the work that was stopped again.
    void goOn();

Q_SIGNALS:
    /// Another map is to be drawn, or other settings are shown.
    void changed();
    /// Work began, went on, or ended; nothing of it is known where `of` is 0.
    void progressed(int done, int of);

private:
    /// What came of work: localities that were compared, and a map of those that were before; nothing where
    /// it was stopped.
    struct Outcome
    {
        std::shared_ptr<const ComparedSurvey> compared;
        std::optional<SurveyMap> map;
        QString trouble;
    };
    /// What the items hold, as far as it can be told without reading them.
    struct ItemMarks
    {
        std::vector<std::pair<QString, QByteArray>> files;
        int edits = 0;

        bool operator==(const ItemMarks&) const = default;
    };

    static void findOut(QPromise<Outcome>& promise, const SurveyFiles& files, SurveyMap map,
                        const SurveySource& source);
    /// What the map that is shown is compared from.
    SurveySource wanted() const;
    void followMap();
    bool isComparing(const ItemMarks& marks) const;
    void begin();
    void takeOutcome();
    SurveyFiles files();
    ItemMarks marks() const;

    VarnModule& m_varn;
    AtlasDocument& m_document;
    AtlasMapKind m_kind = AtlasMapKind::Linguistic;
    SurveySource m_source;
    DistanceMapSettings m_settings;
    IsoglossStyle m_style;
    bool m_withSymbols = false;
    bool m_withItemMarks = false;
    /// The map that the cells are of, by name.
    QString m_mapName;
    std::shared_ptr<const CellMap> m_cells;
    SurveyMap m_found;
    /// What was compared last, and of what; and of what the work is that was begun last.
    std::shared_ptr<const ComparedSurvey> m_compared;
    ItemMarks m_comparedMarks;
    SurveySource m_comparing;
    ItemMarks m_marks;
    int m_edits = 0;
    QString m_trouble;
    /// Whether there is work whose outcome has not been taken.
    bool m_isBusy = false;
    bool m_isComparing = false;
    bool m_isStopped = false;
    QFutureWatcher<Outcome> m_work;
};
