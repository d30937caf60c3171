#pragma once

#include "exchange/NewSurvey.h"
#include "exchange/SourceDraft.h"
#include "exchange/SurveyChoices.h"
#include "mapdata/Folders.h"

#include <optional>
#include <vector>

/// An item that can be taken into a new survey.
struct DraftItem
{
    QString name;
    /// How many kinds of word forms it has, and at how many localities it was answered.
    int kinds = 0;
    int localities = 0;
    bool isChosen = true;
};

/// A new survey while its user says what it shall be. What was said takes effect with the next `make`.
class SurveyDraft
{
public:
    /// `folders` names the installation that the map is made in.
    explicit SurveyDraft(const Folders& folders) : m_folders(folders) {}

    SourceDraft& source() { return m_source; }
    const SourceDraft& source() const { return m_source; }
    /// Takes over what the source holds now: all its items but those that were left out before, and of a new
    /// source its title and a name that no map has yet.
    void takeSource();

    void setTitle(const QString& title);
    /// Layers of coasts, borders, rivers and lakes, paths of this machine; none for the source's own or those
    /// of the installation.
    void setBaseMap(const QStringList& layers);
    /// "laea", "tmerc", or "EPSG:N".
    void setProjection(const QString& projection);
    /// Takes the item (from 0) or leaves it out.
    void choose(int item, bool isChosen);
    void setMapName(const QString& name) { m_mapName = name; }

    const QString& title() const { return m_title; }
    const SurveyChoices& choices() const { return m_choices; }
    const std::vector<DraftItem>& items() const { return m_items; }
    int chosenItems() const;
    const QString& mapName() const { return m_mapName; }
    /// Why no map can be called so; empty where one can.
    QString mapNameFault() const;

    /// Makes the survey, unless it is made already. Returns false where `progress` stopped it or where it
    /// cannot be made, for which there is a fault then.
    bool make(const ExchangeProgress& progress);
    /// Makes it and writes it as a map. Returns as `make` does.
    bool create(const ExchangeProgress& progress);
    /// The survey, where it was made and nothing was said since.
    const std::optional<NewSurvey>& made() const { return m_made; }
    const QString& fault() const { return m_fault; }
    /// The name of the files, without ending, of the first item that the data display can show; empty where
    /// there is none.
    QString firstItem() const;

private:
    void takeItems();
    QString freeMapName() const;
    SourceSurvey titledSource() const;

    const Folders& m_folders;
    SourceDraft m_source;
    /// The path of the source that title and name are of.
    QString m_taken;
    QString m_title;
    SurveyChoices m_choices;
    std::vector<DraftItem> m_items;
    QString m_mapName;
    std::optional<NewSurvey> m_made;
    QString m_fault;
};
