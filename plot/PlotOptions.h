#pragma once

#include "analysis/DiffusionGraphs.h"
#include "exchange/SourceChoices.h"
#include "exchange/SurveyChoices.h"
#include "plot/SurveyOptions.h"
#include "render/MapStyle.h"

#include <QString>
#include <QStringList>

#include <stdexcept>

/// What one call of `varnplot` asks for.
struct PlotOptions
{
    enum class Command {
        LinguisticMap,
        BlankMap,
        Symbols,
        Atlas,
        Accumulate,
        Statistics,
        DiffusionMap,
        SymbolDiffusionMap,
        ContrastMap,
        Import,
        Export,
        Distances,
        AreaMap,
        IsoglossMap,
        ReferenceMap,
        BeamMap,
        ClusterMap,
        Dendrogram,
        MdsMap,
        MdsPlot,
        DistancePlot,
        GroupMarks,
        /// Tells how the program is called.
        Help,
        Version,
    };

    Command command = Command::BlankMap;
    QString installation;
    QString map;
    /// Items; more than one only to accumulate.
    QStringList data;
    QString symbols;
    /// The items of an atlas, all that have symbols where there are none; or of a survey, all where there are
    /// none.
    QStringList items;
    /// How many threads draw an atlas; 0 for as many as the machine has cores.
    int jobs = 0;
    /// Whether an item of an atlas that cannot be drawn is left out.
    bool keepGoing = false;
    /// Cumulative file, identifying strings, and contrast file.
    QString counts;
    QString characters;
    QString contrast;
    DiffusionGraph graph = DiffusionGraph::Bar;
    /// Whether all word forms are drawn on one map.
    bool layered = false;
    /// The word form to draw; 0 for the first, or for all where symbols mark them.
    int wordForm = 0;
    QString output;
    qint16 location = HankoCenter;
    bool localityDots = false;
    bool wholeWordForms = false;
    /// Whether items that the table holds already are counted again.
    bool countAgain = false;
    /// Height of the map in millimetres; 0 for the map form's first size.
    double height = 0;
    double dotsPerInch = 192;
    /// What is imported, and what is made of it.
    SourceChoices source;
    SurveyChoices newSurvey;
    SurveyOptions survey;
};

/// A command line that is not understood; `what()` says why.
class UsageError : public std::runtime_error
{
public:
    explicit UsageError(const QString& why) : std::runtime_error(why.toStdString()) {}
};

/// Reads the command line without the program's name. Raises `UsageError`.
PlotOptions readPlotOptions(const QStringList& arguments);
