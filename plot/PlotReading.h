#pragma once

#include <QString>

class QCommandLineParser;

/// The number, from 0, of the value among the choices of the option. Raises `UsageError` for another value.
qsizetype readChoice(const QCommandLineParser& parser, const QString& name);

/// A number above 0, at most `largest`. Raises `UsageError` for what is none.
double readPositive(const QCommandLineParser& parser, const QString& name, double largest);
