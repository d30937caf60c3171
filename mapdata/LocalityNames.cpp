#include "mapdata/LocalityNames.h"

#include "mapdata/MapFiles.h"
#include "platform/SequentialFile.h"

#include <QLocale>
#include <QStringList>

namespace {

constexpr int Columns = 5;

QStringList headings(bool plane)
{
    return {QStringLiteral("id"), QStringLiteral("name"),
            plane ? QStringLiteral("x") : QStringLiteral("longitude"),
            plane ? QStringLiteral("y") : QStringLiteral("latitude"), QStringLiteral("projection")};
}

/// The fields of a line. Raises type mismatch for a line with another number of them.
QStringList readRow(SequentialReader& file)
{
    QStringList row;
    for (int i = 1; i <= Columns; ++i) {
        row << file.readString();
        if (file.field() != i) {
            throw RunTimeError(ErrorNumber::TypeMismatch,
                               QStringLiteral("A line has %1 columns, parted by commas: %2.")
                                   .arg(Columns)
                                   .arg(headings(false).join(QStringLiteral(", "))));
        }
    }
    return row;
}

double toCoordinate(const QString& text)
{
    bool isNumber = false;
    const double number = QLocale::c().toDouble(text, &isNumber);
    if (!isNumber) {
        throw RunTimeError(ErrorNumber::TypeMismatch, QStringLiteral("\"%1\" is not a number.").arg(text));
    }
    return number;
}

} // namespace

LocalityNames readLocalityNames(SequentialReader& file, int count)
{
    LocalityNames names;
    names.plane = readRow(file) == headings(true);
    while (file.hasMore()) {
        const QStringList row = readRow(file);
        names.localityNames.push_back({row[0], row[1], toCoordinate(row[2]), toCoordinate(row[3])});
        names.projection = row[4];
    }
    if (std::ssize(names.localityNames) != count) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("It names %1 localities, and the map has %2. Their numbers are "
                                          "shown without names.")
                               .arg(names.localityNames.size())
                               .arg(count));
    }
    return names;
}

void writeLocalityNames(SequentialWriter& file, const LocalityNames& names)
{
    for (const QString& heading : headings(names.plane)) {
        file.writeField(heading);
    }
    file.endStatement();
    for (const LocalityName& locality : names.localityNames) {
        file.write(locality.id, locality.name, locality.longitude, locality.latitude, names.projection);
    }
}

QString localityNamesFile(const QString& varnPath, const QString& mapName)
{
    return mapFolder(varnPath, mapName) + QStringLiteral("\\Localities.csv");
}

QString localityName(const LocalityNames& names, int i)
{
    const bool named = i >= 1 && i <= std::ssize(names.localityNames);
    return named ? names.localityNames[static_cast<size_t>(i - 1)].name : QString();
}

QString localityTitle(const LocalityNames& names, int i)
{
    const QString name = localityName(names, i);
    return name.isEmpty() ? QString::number(i) : QStringLiteral("%1 ").arg(i) + name;
}
