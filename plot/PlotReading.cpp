#include "plot/PlotReading.h"

#include "plot/PlotForms.h"

#include <QCommandLineParser>

qsizetype readChoice(const QCommandLineParser& parser, const QString& name)
{
    const QStringList& choices = optionForm(name).choices;
    const qsizetype choice = choices.indexOf(parser.value(name));
    if (choice < 0) {
        throw UsageError(QStringLiteral("--%1 is one of %2").arg(name, choices.join(QStringLiteral(", "))));
    }
    return choice;
}

int readCount(const QCommandLineParser& parser, const QString& name, int largest)
{
    bool isNumber = false;
    const int value = parser.value(name).toInt(&isNumber);
    if (!isNumber || value < 1 || value > largest) {
        throw UsageError(QStringLiteral("--%1 is a whole number from 1 to %2").arg(name).arg(largest));
    }
    return value;
}

double readPositive(const QCommandLineParser& parser, const QString& name, double largest)
{
    bool isNumber = false;
    const double value = parser.value(name).toDouble(&isNumber);
    if (!isNumber || !(value > 0) || value > largest) {
        throw UsageError(QStringLiteral("--%1 is a number above 0, at most %2").arg(name).arg(largest));
    }
    return value;
}
