#include "dialectometry/DistanceMaps.h"
#include "tests/dialectometry/SmallSurvey.h"
#include "tests/support/TestDrive.h"

#include <gtest/gtest.h>

namespace {

/// Four localities on a line, at 0, 1, 2 and 4.
BaseMap lineMap()
{
    BaseMap map;
    for (const float x : {0.F, 1.F, 2.F, 4.F}) {
        map.LocXY(++map.NLocality, 0) = x;
    }
    return map;
}

DistanceFindings found(const DistanceMapSettings& settings, const DistanceMatrix& distances)
{
    const BaseMap map = lineMap();
    return *findingsFor(settings, distances, map, localityCells(map, map), goOnAlways);
}

DistanceMapSettings settingsOf(DistanceMapKind kind, int groups = 2)
{
    DistanceMapSettings settings;
    settings.kind = kind;
    settings.groups = groups;
    return settings;
}

} // namespace

TEST(DistanceFindings, HoldWhatTheirMapShowsAndNoMore)
{
    const DistanceMatrix distances = matrixOf(4, {1, 2, 4, 1, 3, 2});
    DistanceMapSettings settings = settingsOf(DistanceMapKind::Clusters);
    settings.noise.noise = 0.5;
    const DistanceFindings clusters = found(settings, distances);
    EXPECT_EQ(clusters.groups, std::vector<int>({1, 1, 1, 2}));
    ASSERT_EQ(clusters.shares.size(), 3U) << "three pairs of neighbours";
    EXPECT_GT(clusters.shares[2].share, clusters.shares[0].share);
    EXPECT_TRUE(clusters.scaling.places.empty());

    settings.kind = DistanceMapKind::ScalingPlot;
    const DistanceFindings plot = found(settings, distances);
    EXPECT_EQ(plot.groups, clusters.groups);
    EXPECT_TRUE(plot.shares.empty()) << "no borders on a plot";
    EXPECT_NEAR(plot.scaling.places[3][0], 4 - 7. / 4, 1e-9);

    // y = 2 x - 1 through the places of the line, and one pair without a distance.
    const DistanceFindings ways =
        found(settingsOf(DistanceMapKind::LengthPlot), matrixOf(4, {1, 3, 7, 1, -1, 3}));
    EXPECT_NEAR(ways.line.slope, 2, 1e-12);
    EXPECT_NEAR(ways.line.intercept, -1, 1e-12);
    EXPECT_NEAR(ways.line.correlation, 1, 1e-12);
}

TEST(DistanceFindings, NameWhomTheyLeaveOut)
{
    const DistanceMatrix distances = matrixOf(4, {1, 2, -1, 1, -1, -1});
    for (const auto kind :
         {DistanceMapKind::Clusters, DistanceMapKind::Scaling, DistanceMapKind::ScalingPlot}) {
        const DistanceMapSettings settings = settingsOf(kind);
        EXPECT_EQ(leftOutOfMap(settings, found(settings, distances), lineMap()), QStringList("4"));
    }
    const DistanceMapSettings reference = settingsOf(DistanceMapKind::Reference);
    EXPECT_TRUE(leftOutOfMap(reference, found(reference, distances), lineMap()).isEmpty());
}

TEST(DistanceFindings, WhatCannotBeShownIsTold)
{
    const DistanceMatrix none = matrixOf(4, {-1, -1, -1, -1, -1, -1});
    const DistanceMatrix three = matrixOf(4, {1, 2, -1, 1, -1, -1});
    DistanceMapSettings outside = settingsOf(DistanceMapKind::Reference);
    outside.reference = 4;
    const struct
    {
        DistanceMapSettings settings;
        DistanceMatrix distances;
        const char* text;
    } rows[] = {
        {settingsOf(DistanceMapKind::Clusters, 1), none, "There are no two localities with a distance"},
        {settingsOf(DistanceMapKind::Scaling), none, "There are no two localities with a distance"},
        {settingsOf(DistanceMapKind::Dendrogram, 4), three, "4 groups cannot be made of 3 localities."},
        {settingsOf(DistanceMapKind::ScalingPlot, 0), three, "0 groups cannot be made"},
        {settingsOf(DistanceMapKind::LengthPlot), none, "Fewer than two pairs of localities"},
        {settingsOf(DistanceMapKind::LengthPlot), matrixOf(4, {1, 1, 1, 1, 1, 1}), "are all the same."},
        {outside, three, "There is no locality 5 on the map."},
    };
    for (const auto& row : rows) {
        const RunTimeError error = errorOf([&] { found(row.settings, row.distances); });
        EXPECT_EQ(error.number(), ErrorNumber::InvalidProcedureCall);
        EXPECT_TRUE(error.message().contains(QLatin1String(row.text))) << qPrintable(error.message());
    }
}
