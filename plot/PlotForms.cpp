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
    return {
        {"linguistic-map", Command::LinguisticMap,
         "Draws the linguistic map of an item: base map, symbols and legend. An item with another number of "
         "localities than the map is drawn with a warning.",
         map + list({"data", "symbols"}), list({"location", "whole-word-forms"}) + picture},
        {"blank-map", Command::BlankMap, "Draws the base map.", map, picture},
        {"symbols", Command::Symbols, "Draws all symbols with their numbers, page by page.", map, {}},
        {"atlas", Command::Atlas,
         "Draws linguistic maps, a page an item: of the items named, or of all that have a symbol file of "
         "their "
         "name.",
         map, list({"items", "location", "whole-word-forms"}) + size + list({"keep-going", "jobs"})},
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
    };
}

std::vector<OptionForm> makeOptionForms()
{
    return {
        {"installation", "DIR", "the folder with VarnData and VarnSymbol", {}},
        {"map", "NAME", "the name of the map, a folder in VarnData", {}},
        {"data", "FILE", "the item", {}, true},
        {"items", "FILE", "the items of the atlas, in the order of its pages", {}, true},
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
        {"keep-going", nullptr, "an item that cannot be drawn is named and left out", {}},
        {"jobs", "N", "how many threads draw (as many as there are cores)", {}},
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
    return {
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
    };
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
