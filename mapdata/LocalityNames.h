#pragma once

#include <QString>

#include <vector>

class SequentialReader;
class SequentialWriter;

/// What a locality is called and where on Earth it lies.
struct LocalityName
{
    /// What the survey's source calls it in its tables.
    QString id;
    QString name;
    /// Degrees east and north, WGS 84; x and y of the source where the survey lies in a plane.
    double longitude = 0;
    double latitude = 0;

    bool operator==(const LocalityName&) const = default;
};

/// The names of a map's localities: all of them in their order, or none.
struct LocalityNames
{
    /// What brings degrees (or the x and y of a plane) to map units: a pipeline as PROJ takes it.
    QString projection;
    /// Whether the survey lies in a plane, with no degrees.
    bool plane = false;
    std::vector<LocalityName> localityNames;

    bool operator==(const LocalityNames&) const = default;
};

/// `Localities.csv`: a line of headings (id, name, longitude, latitude, projection; x and y in a plane), then
/// a line for each of the `count` localities. A spreadsheet may have saved it again. Raises subscript out of
/// range where the lines are not as many as the localities, and type mismatch for other columns and for a
/// coordinate that is no number.
LocalityNames readLocalityNames(SequentialReader& file, int count);
void writeLocalityNames(SequentialWriter& file, const LocalityNames& names);

/// The file of the names in the folder of a map. `mapName` begins with a backslash.
QString localityNamesFile(const QString& varnPath, const QString& mapName);

/// The name of locality i (from 1); empty where it has none.
QString localityName(const LocalityNames& names, int i);
/// How locality i (from 1) is named to the user: "12 Amele", or "12" in a map without names.
QString localityTitle(const LocalityNames& names, int i);
