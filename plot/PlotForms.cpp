#include "plot/PlotForms.h"

#include <algorithm>

namespace {

using Command = PlotOptions::Command;

QStringList list(std::initializer_list<const char*> names)
{
    QStringList result;
    for (const char* name : names) {
        result << QLatin1String(name);
    }
    return result;
}

std::vector<CommandForm> makeCommandForms()
{
    const QStringList map = list({"installation", "map", "output"});
    const QStringList size = list({"locality-dots", "height"});
    const QStringList picture = size + list({"dpi"});
    const QStringList answers = list({"items", "compare", "whole-word-forms", "keep-going"});
    const QStringList compared = answers + list({"measure", "vowels-apart"});
    const QStringList distances = compared + list({"distances"});
    const QStringList clusters = list({"method", "clusters"});
    return {
        {"linguistic-map", Command::LinguisticMap,
         "Draws the linguistic map of an item: base map, symbols and legend. An item with another number of "
         "localities than the map is drawn with a warning.",
         map + list({"data", "symbols"}), list({"location", "whole-word-forms"}) + picture},
        {"blank-map", Command::BlankMap, "Draws the base map.", map, picture},
        {"symbols", Command::Symbols, "Draws all symbols with their numbers, page by page.", map, {}},
        {"atlas", Command::Atlas,
         "Draws the map of each item on a page of its own: of the items named, or of all that have a symbol "
         "file of their name. Areas and isoglosses are of whole word forms where the symbols were made for "
         "these.",
         map,
         list({"items", "kind", "location", "whole-word-forms", "hatched", "with-symbols", "smooth"}) + size +
             list({"keep-going", "jobs"})},
        {"accumulate", Command::Accumulate,
         "Adds the items to the table and saves it after each. Items are left out and named that cannot be "
         "read, whose number of localities is not the map's, or that the table holds already.",
         list({"installation", "map", "counts", "characters", "data"}), list({"count-again"})},
        {"statistics", Command::Statistics, "Writes the statistics of a table.", map + list({"counts"}), {}},
        {"diffusion-map", Command::DiffusionMap, "Draws the counts of a table as bars or circles.",
         map + list({"counts", "graph"}), list({"word-form"}) + picture},
        {"symbol-diffusion-map", Command::SymbolDiffusionMap, "Draws the counts of a table as symbols.",
         map + list({"counts", "symbols"}), list({"word-form"}) + picture},
        {"contrast-map", Command::ContrastMap, "Draws the contrast of two groups of word forms.",
         map + list({"counts", "contrast"}), picture},
        {"import", Command::Import,
         "Makes the new map NAME of a whole survey: a table (CSV, TSV, XLSX, ODS), a CLDF data set, or a "
         "layer of points. What is not said is found out. A report tells what came in and what was left out.",
         list({"installation", "map", "source"}),
         list({"localities", "base-map", "projection", "answers", "use", "column"})},
        {"export",
         Command::Export,
         "Writes the localities with a column an item, or a new folder with a CLDF Wordlist. Left out and "
         "named are empty word forms, and items that cannot be read or whose number of localities is not the "
         "map's.",
         map,
         {}},
        {"distances", Command::Distances,
         "Compares every two localities by their answers and writes the table of their distances. Tells how "
         "far the items agree, and the localities with the map.",
         map, compared},
        {"area-map", Command::AreaMap,
         "Draws the areas of an item, each in the colour of its symbol. They are of whole word forms "
         "where the symbols were made for these.",
         map + list({"data", "symbols"}), list({"whole-word-forms", "hatched", "with-symbols"}) + picture},
        {"isogloss-map", Command::IsoglossMap,
         "Draws the isoglosses of an item, or of several each border as strong as the number of items that "
         "change there.",
         map, answers + list({"smooth", "numbers"}) + picture},
        {"reference-map", Command::ReferenceMap, "Draws how far all localities are from one.",
         map + list({"locality"}), distances + list({"classes", "hatched"}) + picture},
        {"beam-map", Command::BeamMap,
         "Draws lines between neighbours, the stronger the more alike they are.", map, distances + picture},
        {"cluster-map", Command::ClusterMap,
         "Draws groups of localities; with noise the borders that stay, the darker the firmer.", map,
         distances + clusters + list({"noise", "seed", "group-symbols", "dendrogram", "hatched"}) + picture},
        {"dendrogram", Command::Dendrogram, "Draws the tree of clusters.", map,
         distances + clusters + list({"hatched"}) + picture},
        {"mds-map", Command::MdsMap,
         "Draws each locality in a colour of its own, the more alike the nearer they are by multidimensional "
         "scaling.",
         map, distances + picture},
        {"mds-plot", Command::MdsPlot,
         "Draws the localities by the first two dimensions of multidimensional scaling, in the colours of "
         "their groups.",
         map, distances + clusters + picture},
        {"distance-plot", Command::DistancePlot, "Draws the distances over the kilometres.", map,
         distances + picture},
        {"group-marks", Command::GroupMarks,
         "Lists what marks each group of localities: its word forms, or the items that part it best.", map,
         compared + list({"distances"}) + clusters + list({"marks"})},
    };
}

std::vector<OptionForm> makeOptionForms()
{
    return {
        {"installation", "DIR", "the folder with VarnData and VarnSymbol", {}},
        {"map", "NAME", "the name of the map, a folder in VarnData", {}},
        {"data", "FILE", "the item", {}, true},
        {"items", "FILE", "the items: of an atlas in the order of its pages; else all of the map", {}, true},
        {"symbols", "FILE", "the symbols of the item, or of the word forms of a table", {}},
        {"counts", "FILE", "the table of counts", {}},
        {"characters", "FILE", "the strings that tell the word forms of the table", {}},
        {"contrast", "FILE", "the two groups of word forms", {}},
        {"graph", "KIND", "how counts are drawn; layered are all word forms on one map",
         list({"bar", "layered-bar", "circle", "layered-circle"})},
        {"source", "PATH", "the table, data set or layer; a file or a folder", {}},
        {"output", "FILE", "what is written; it appears complete or not at all", {}},
        {"word-form", "K", "the word form of the table that is drawn, from 1", {}},
        {"location", "PLACE", "where the second and later word forms of a locality stand",
         list({"center", "right", "left", "top", "bottom"})},
        {"whole-word-forms",
         nullptr,
         "a symbol marks the word forms that equal its kind, not those that contain it",
         {}},
        {"locality-dots", nullptr, "localities are marked with dots", {}},
        {"height", "MM", "height of the drawing area in millimetres", {}},
        {"dpi", "N", "resolution of a PNG (192)", {}},
        {"kind", "KIND", "what the maps of an atlas show (symbols)",
         list({"symbols", "areas", "isoglosses"})},
        {"keep-going", nullptr, "an item that cannot be drawn is named and left out", {}},
        {"jobs", "N", "how many threads draw (as many as there are cores)", {}},
        {"compare", "WHAT", "whether word forms are compared, or the kinds that symbols tell apart",
         list({"forms", "kinds"})},
        {"measure", "NAME", "how distances are counted",
         list({"relative-identity", "weighted-identity", "levenshtein"})},
        {"vowels-apart", nullptr, "vowels are never compared with consonants", {}},
        {"distances", "FILE", "distances that were written before, in place of items", {}},
        {"locality", "NAME", "the locality, by number or name", {}},
        {"method", "NAME", "how clusters are joined (ward)",
         list({"single", "complete", "average", "weighted", "ward"})},
        {"clusters", "N", "how many groups there are (4)", {}},
        {"noise", "SHARE", "the most that is added to a distance, in standard deviations, such as 0.5", {}},
        {"seed", "N", "what the noise begins with (1)", {}},
        {"classes", "RULE", "how distances are parted into classes", list({"around-mean", "equal-widths"})},
        {"hatched", nullptr, "areas have patterns, for print without colours", {}},
        {"with-symbols", nullptr, "the symbols stand on the areas", {}},
        {"group-symbols", nullptr, "each locality has the symbol of its group", {}},
        {"dendrogram", nullptr, "the tree of clusters stands beside the map", {}},
        {"smooth", nullptr, "isoglosses are rounded", {}},
        {"numbers", nullptr, "the strongest borders have their numbers", {}},
        {"marks", "WHAT", "what marks the groups (forms)", list({"forms", "items"})},
        {"count-again", nullptr, "items that the table holds already are counted once more", {}},
        {"localities", "FILE", "the localities where they are apart: a table, a layer or a KML", {}},
        {"base-map", "FILE", "a layer of coasts, borders, rivers or lakes", {}, true},
        {"projection",
         "laea|tmerc|EPSG:N",
         "equal-area (the default), transverse Mercator, or that of a code",
         {}},
        {"answers", "SEPARATOR", "what parts several answers in a cell", {}},
        {"use", "WORDS", "what of a CLDF data set becomes the word forms",
         list({"forms", "cognates", "codes"})},
        {"column",
         "ROLE=NAME",
         "what a column is: id, name, longitude, latitude, x, y, item, answer, or left (out)",
         {},
         true},
    };
}

std::vector<FileEndings> makeFileEndings()
{
    const QStringList picture = list({"svg", "pdf", "png"});
    std::vector<FileEndings> endings = {
        {Command::LinguisticMap, "data", list({"dbs"})},
        {Command::LinguisticMap, "symbols", list({"han"})},
        {Command::LinguisticMap, "output", picture},
        {Command::BlankMap, "output", picture},
        {Command::Symbols, "output", list({"pdf"})},
        {Command::Atlas, "items", list({"dbs"})},
        {Command::Atlas, "output", list({"pdf"})},
        {Command::Accumulate, "counts", list({"ttl"})},
        {Command::Accumulate, "characters", list({"sum"})},
        {Command::Accumulate, "data", list({"dbs"})},
        {Command::Statistics, "counts", list({"ttl"})},
        {Command::Statistics, "output", list({"stt"})},
        {Command::DiffusionMap, "counts", list({"ttl"})},
        {Command::DiffusionMap, "output", picture},
        {Command::SymbolDiffusionMap, "counts", list({"ttl"})},
        {Command::SymbolDiffusionMap, "symbols", list({"htl"})},
        {Command::SymbolDiffusionMap, "output", picture},
        {Command::ContrastMap, "counts", list({"ttl"})},
        {Command::ContrastMap, "contrast", list({"rnk"})},
        {Command::ContrastMap, "output", picture},
        {Command::Export, "output", list({"csv", "geojson", "gpkg", ""})},
        {Command::Distances, "output", list({"csv"})},
        {Command::GroupMarks, "output", list({"csv"})},
        {Command::AreaMap, "data", list({"dbs"})},
        {Command::AreaMap, "symbols", list({"han"})},
    };
    for (const Command command : {Command::Distances, Command::IsoglossMap, Command::ReferenceMap,
                                  Command::BeamMap, Command::ClusterMap, Command::Dendrogram, Command::MdsMap,
                                  Command::MdsPlot, Command::DistancePlot, Command::GroupMarks}) {
        endings.push_back({command, "items", list({"dbs"})});
        endings.push_back({command, "distances", list({"csv"})});
    }
    for (const Command command : {Command::AreaMap, Command::IsoglossMap, Command::ReferenceMap,
                                  Command::BeamMap, Command::ClusterMap, Command::Dendrogram, Command::MdsMap,
                                  Command::MdsPlot, Command::DistancePlot}) {
        endings.push_back({command, "output", picture});
    }
    return endings;
}

} // namespace

const std::vector<CommandForm>& commandForms()
{
    static const std::vector<CommandForm> forms = makeCommandForms();
    return forms;
}

const std::vector<OptionForm>& optionForms()
{
    static const std::vector<OptionForm> forms = makeOptionForms();
    return forms;
}

const OptionForm& optionForm(const QString& name)
{
    return *std::ranges::find_if(optionForms(),
                                 [&](const OptionForm& form) { return name == QLatin1String(form.name); });
}

const std::vector<FileEndings>& fileEndings()
{
    static const std::vector<FileEndings> endings = makeFileEndings();
    return endings;
}
