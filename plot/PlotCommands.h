#pragma once

#include "plot/PlotOptions.h"

/// Is told what goes on while a command runs.
class PlotListener
{
public:
    PlotListener() = default;
    PlotListener(const PlotListener&) = delete;
    PlotListener& operator=(const PlotListener&) = delete;
    virtual ~PlotListener() = default;

    /// Before each page of an atlas, or each item of an import or export: its number, from 1, how many there
    /// are, and the item's name.
    virtual void page(int page, int pages, const QString& name) = 0;
    /// What became of an import, in lines.
    virtual void report(const QString& text) = 0;
    /// What the user should know, one line.
    virtual void warning(const QString& text) = 0;
};

/// Draws what `options` ask for into their output file, counts or exports what they ask for, or makes a map
/// of it. Returns whether everything was done: false where items were left out of an accumulation or export.
/// Raises the run-time's errors; a file that was drawn into is then as it was.
bool plot(const PlotOptions& options, PlotListener& listener);
