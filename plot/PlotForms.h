#pragma once

#include "plot/PlotOptions.h"

#include <vector>

// The command line of `varnplot` as tables. Reading it, its help, its manual page and its completion are all
// made of these.

/// A command: what it draws or does, the options that it needs, and those that it takes besides.
struct CommandForm
{
    const char* name;
    PlotOptions::Command command;
    const char* help;
    QStringList required;
    QStringList allowed;
};

const std::vector<CommandForm>& commandForms();

/// An option. A switch has no value.
struct OptionForm
{
    const char* name;
    /// What stands for the value in help texts; null for a switch.
    const char* value;
    const char* help;
    /// The only values that there are; empty where there are others.
    QStringList choices;
    /// Whether it can be given several times.
    bool repeats = false;
};

const std::vector<OptionForm>& optionForms();
/// The option of that name, which there must be.
const OptionForm& optionForm(const QString& name);

/// The endings that the file of an option may have in a command; an empty one stands for a folder.
struct FileEndings
{
    PlotOptions::Command command;
    const char* option;
    QStringList endings;
};

const std::vector<FileEndings>& fileEndings();
