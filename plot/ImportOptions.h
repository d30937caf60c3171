#pragma once

#include "plot/PlotOptions.h"

class QCommandLineParser;

/// Reads what is imported, and what is made of it. Raises `UsageError`.
void readImportOptions(const QCommandLineParser& parser, PlotOptions& options);
