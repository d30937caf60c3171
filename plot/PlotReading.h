#pragma once

#include <QString>

class QCommandLineParser;

/// The number, from 0, of the value among the choices of the option. Raises `UsageError` for another value.
qsizetype readChoice(const QCommandLineParser& parser, const QString& name);

/// A whole number from 1 to `largest`. Raises `UsageError` for what is none.
int readCount(const QCommandLineParser& parser, const QString& name, int largest);

/// A number above 0, at most `largest`. Raises `UsageError` for what is none.
double readPositive(const QCommandLineParser& parser, const QString& name, double largest);
