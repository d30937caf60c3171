#pragma once

#include "exchange/SourceSurvey.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// A file of a data set.
struct NamedBytes
{
    QString name;
    QByteArray bytes;
};

/// The files of a CLDF Wordlist with the survey: the metadata, and tables of its localities, items and word
/// forms. Localities keep their ids where all of them are ids as CLDF has them (letters, digits, "_", "-"),
/// and are numbered else. A plane survey has columns x and y, which no other program knows.
std::vector<NamedBytes> writtenCldf(const SourceSurvey& survey);
