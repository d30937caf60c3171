#include "bench/FullSurvey.h"

#include <array>
#include <cmath>

namespace {

constexpr int FullLocalities = 1000;
constexpr int Words = 5;

/// A frame of 1333 x 1000 map units with the localities in a grid.
void fillBaseMap(BaseMap& map)
{
    map.NLine = 1;
    map.LinePoints(1) = 5;
    constexpr std::array<std::array<float, 2>, 5> Frame = {
        {{0, 0}, {1333, 0}, {1333, 1000}, {0, 1000}, {0, 0}}};
    for (int j = 1; j <= 5; ++j) {
        map.LineXY(1, j, 0) = Frame.at(static_cast<std::size_t>(j - 1))[0];
        map.LineXY(1, j, 1) = Frame.at(static_cast<std::size_t>(j - 1))[1];
    }
    map.ScaleDivisions = 1;
    map.NLocality = FullLocalities;
    for (int i = 1; i <= FullLocalities; ++i) {
        const int row = i / 40;
        map.LocXY(i, 0) = 20 + 32.5F * static_cast<float>(i % 40);
        map.LocXY(i, 1) = 20 + 38.5F * static_cast<float>(row);
    }
}

/// A star of eleven vertices.
void fillPolygons(PolygonTable& table)
{
    table.Nsquare = 1;
    table.SquareVertices(1) = 11;
    for (int j = 1; j <= 11; ++j) {
        const float angle = 0.62831853F * static_cast<float>(j - 1);
        const float radius = j % 2 == 0 ? 6 : 13;
        table.SquareXY(1, j, 0) = radius * std::sin(angle);
        table.SquareXY(1, j, 1) = -radius * std::cos(angle);
    }
}

} // namespace

void fillSurvey(VarnModule& varn)
{
    constexpr std::array<qint16, 10> Numbers = {1, 5, 37, 49, 50, 54, 93, 117, 153, 155};
    fillBaseMap(varn);
    fillPolygons(varn);
    varn.NLocate = FullLocalities;
    for (int i = 1; i <= FullLocalities; ++i) {
        varn.WordCount(i) = Words;
        for (int j = 1; j <= Words; ++j) {
            varn.WordData(i, j) = QStringLiteral("word form %1").arg((i * Words + j) % 200);
        }
    }
    varn.NHanrei = 100;
    for (int k = 1; k <= varn.NHanrei; ++k) {
        varn.HankoWord(k) = QStringLiteral("form");
        varn.HankoCaption(k) = QStringLiteral("caption %1").arg(k);
        varn.Hanko(k) = {Numbers.at(static_cast<std::size_t>(k % 10)),
                         static_cast<qint16>(k % 15),
                         static_cast<qint16>((k + 5) % 16),
                         static_cast<qint16>(k / 10 % 2),
                         static_cast<qint16>(k % 3),
                         static_cast<qint16>(k / 3 % 3)};
    }
}

QByteArray fullItemText()
{
    QByteArray text = "1000,\"\",\"caption\",\"comment\"\r\n";
    for (int i = 0; i < FullLocalities; ++i) {
        text += "5\r\n";
        for (int j = 0; j < Words; ++j) {
            text += "\"word form " + QByteArray::number((i * Words + j) * 37 % 200) + "\"\r\n";
        }
    }
    return text;
}
