#pragma once

#include <QString>

/// Is told what goes on while a command runs.
class PlotListener
{
public:
    PlotListener() = default;
    PlotListener(const PlotListener&) = delete;
    PlotListener& operator=(const PlotListener&) = delete;
    virtual ~PlotListener() = default;

    /// Before each page of an atlas, or each item of an import or export: its number, from 1, how many there
    /// are, and the item's name. What it raises ends the command.
    virtual void page(int page, int pages, const QString& name) = 0;
    /// What became of an import, in lines.
    virtual void report(const QString& text) = 0;
    /// What the user should know, one line.
    virtual void warning(const QString& text) = 0;
};
