#pragma once

#include <QString>

// How `varnplot` is called, in the forms that a user meets; all are made of `PlotForms`.

/// For the terminal.
QString plotUsage();
/// The manual page varnplot(1), as troff.
QString plotManPage();
/// The completion of the command line in bash.
QString plotCompletion();
/// "varnplot" and the version of the program.
QString plotVersion();
