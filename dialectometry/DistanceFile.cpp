#include "dialectometry/DistanceFile.h"

#include "platform/SequentialFile.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// What trees and scaling can square and add up.
constexpr double MostDistance = 1e30;

QStringList headings(const LocalityNames& names, int localities, bool numbered)
{
    QStringList headings;
    for (int i = 1; i <= localities; ++i) {
        headings << (numbered ? localityTitle(names, i) : localityName(names, i));
    }
    return headings;
}

/// What the map's localities are called in the file.
QStringList headings(const LocalityNames& names, int localities)
{
    QStringList plain = headings(names, localities, false);
    const bool areNames = !plain.contains(QString()) && QStringList(plain).removeDuplicates() == 0;
    return areNames ? plain : headings(names, localities, true);
}

/// The text of the next field, which is number `field` of its line.
QString readCell(SequentialReader& file, int field, int localities)
{
    QString text = file.readString();
    if (file.field() != field) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("A line has the name of a locality and %1 distances, parted by "
                                          "commas: the map has %1 localities.")
                               .arg(localities));
    }
    return text;
}

/// Reads the cells of a file of distances.
class DistanceReader
{
public:
    DistanceReader(SequentialReader& file, const LocalityNames& names, int localities)
        : m_file(file), m_localities(localities), m_cells(localities)
    {
        const QStringList known = headings(names, localities);
        for (int i = 0; i < localities; ++i) {
            m_numbers.insert(known[i], i);
        }
    }

    DistanceMatrix read()
    {
        readHeadings();
        for (int row = 0; row < m_localities; ++row) {
            readRow(row);
        }
        if (m_file.hasMore()) {
            m_file.readString();
            throw RunTimeError(
                ErrorNumber::SubscriptOutOfRange,
                QStringLiteral("There are more lines than the %1 localities of the map.").arg(m_localities));
        }
        return std::move(m_cells);
    }

private:
    void readHeadings()
    {
        readCell(m_file, 1, m_localities);
        std::vector<bool> isThere(static_cast<std::size_t>(m_localities), false);
        for (int i = 0; i < m_localities; ++i) {
            const QString name = readCell(m_file, i + 2, m_localities);
            const auto number = m_numbers.constFind(name);
            if (number == m_numbers.cend()) {
                throw RunTimeError(ErrorNumber::TypeMismatch,
                                   QStringLiteral("The map has no locality \"%1\".").arg(name));
            }
            if (isThere[static_cast<std::size_t>(*number)]) {
                throw RunTimeError(ErrorNumber::TypeMismatch,
                                   QStringLiteral("\"%1\" comes twice.").arg(name));
            }
            isThere[static_cast<std::size_t>(*number)] = true;
            m_order.push_back(*number);
            m_names << name;
        }
    }

    void readRow(int row)
    {
        const QString name = readCell(m_file, 1, m_localities);
        if (name != m_names[row]) {
            throw RunTimeError(ErrorNumber::TypeMismatch,
                               QStringLiteral("The line of \"%1\" should stand here, not \"%2\": the lines "
                                              "are in the order of the columns.")
                                   .arg(m_names[row], name));
        }
        for (int column = 0; column < m_localities; ++column) {
            keep(row, column, toDistance(readCell(m_file, column + 2, m_localities)));
        }
    }

    /// Not a number for an empty cell.
    static double toDistance(const QString& text)
    {
        if (text.isEmpty()) {
            return std::numeric_limits<double>::quiet_NaN();
        }
        bool isNumber = false;
        const double distance = text.toDouble(&isNumber);
        if (!isNumber || !std::isfinite(distance)) {
            throw RunTimeError(ErrorNumber::TypeMismatch,
                               QStringLiteral("\"%1\" is not a number.").arg(text));
        }
        if (distance < 0) {
            throw RunTimeError(ErrorNumber::TypeMismatch,
                               QStringLiteral("A distance of %1 is less than 0.").arg(text));
        }
        if (distance > MostDistance) {
            throw RunTimeError(ErrorNumber::Overflow, QStringLiteral("%1 is too large.").arg(text));
        }
        return distance;
    }

    void keep(int row, int column, double distance)
    {
        const int a = m_order[static_cast<std::size_t>(row)];
        const int b = m_order[static_cast<std::size_t>(column)];
        if (row < column) {
            m_cells.set(a, b, distance);
        } else if (row == column && !(distance == 0 || std::isnan(distance))) {
            throw RunTimeError(
                ErrorNumber::TypeMismatch,
                QStringLiteral("The distance of \"%1\" to itself is not 0.").arg(m_names[row]));
        } else if (row > column && !isSame(m_cells(a, b), distance)) {
            throw RunTimeError(ErrorNumber::TypeMismatch,
                               QStringLiteral("The distances of \"%1\" and \"%2\" are not the same in both "
                                              "directions.")
                                   .arg(m_names[column], m_names[row]));
        }
    }

    static bool isSame(double distance, double back)
    {
        constexpr double Rounding = 1e-9;
        return std::isnan(distance) ? std::isnan(back)
                                    : std::abs(distance - back) <= Rounding * std::max(distance, back);
    }

    SequentialReader& m_file;
    int m_localities;
    /// The numbers (from 0) that the map's names stand for.
    QHash<QString, int> m_numbers;
    /// The localities in the order of the file.
    std::vector<int> m_order;
    QStringList m_names;
    DistanceMatrix m_cells;
};

} // namespace

DistanceMatrix readDistances(SequentialReader& file, const LocalityNames& names, int localities)
{
    return DistanceReader(file, names, localities).read();
}

void writeDistances(SequentialWriter& file, const LocalityNames& names, const DistanceMatrix& distances)
{
    const int localities = distances.size();
    const QStringList titles = headings(names, localities);
    file.writeField(QString());
    for (const QString& title : titles) {
        file.writeField(title);
    }
    file.endStatement();
    for (int i = 0; i < localities; ++i) {
        file.writeField(titles[i]);
        for (int j = 0; j < localities; ++j) {
            distances.has(i, j) ? file.writeField(distances(i, j)) : file.writeField(QString());
        }
        file.endStatement();
    }
}
