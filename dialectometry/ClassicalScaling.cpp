#include "dialectometry/CompleteDistances.h"
#include "dialectometry/LeadingEigen.h"
#include "dialectometry/Moments.h"
#include "dialectometry/Scaling.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

/// The distances between some localities, squared, halved, and with the mean of each row and column taken
/// away: the products of places around their mean.
Eigen::MatrixXd centredProducts(const DistanceMatrix& distances, const std::vector<int>& localities)
{
    const auto count = static_cast<Eigen::Index>(localities.size());
    Eigen::MatrixXd products(count, count);
    for (Eigen::Index i = 0; i < count; ++i) {
        for (Eigen::Index j = 0; j < count; ++j) {
            const double distance =
                distances(localities[static_cast<std::size_t>(i)], localities[static_cast<std::size_t>(j)]);
            products(i, j) = -distance * distance / 2;
        }
    }
    const Eigen::RowVectorXd means = products.colwise().mean();
    const double mean = means.mean();
    products.rowwise() -= means;
    products.colwise() -= means.transpose();
    products.array() += mean;
    return products;
}

/// Turns a dimension round where the place farthest from the mean is negative.
void fixSign(Eigen::Ref<Eigen::VectorXd> dimension)
{
    constexpr double AlmostMost = 1 - 1e-9; // rounding does not decide between two opposite places
    const double most = dimension.cwiseAbs().maxCoeff() * AlmostMost;
    for (const double place : dimension) {
        if (std::abs(place) >= most) {
            dimension *= place < 0 ? -1 : 1;
            return;
        }
    }
}

/// The places on the dimensions of the greatest eigenvalues, one row a locality.
Eigen::MatrixXd placesOf(const Eigen::MatrixXd& products)
{
    const Eigen::Index count = std::min<Eigen::Index>(Scaling::Dimensions, products.rows());
    const LeadingEigen eigen = leadingEigen(products, count);
    const double least = 1e-12 * eigen.largest; // below it all is rounding
    Eigen::MatrixXd places = Eigen::MatrixXd::Zero(products.rows(), Scaling::Dimensions);
    for (Eigen::Index k = 0; k < count; ++k) {
        if (eigen.values[k] > least) {
            places.col(k) = eigen.vectors.col(k) * std::sqrt(eigen.values[k]);
            fixSign(places.col(k));
        }
    }
    return places;
}

/// The distances on the plot of the first dimensions.
std::vector<double> plotDistances(const Eigen::MatrixXd& places, Eigen::Index dimensions)
{
    std::vector<double> found;
    for (Eigen::Index a = 0; a < places.rows(); ++a) {
        for (Eigen::Index b = a + 1; b < places.rows(); ++b) {
            found.push_back((places.row(a) - places.row(b)).head(dimensions).norm());
        }
    }
    return found;
}

/// The distances between some localities, in the same order.
std::vector<double> wantedDistances(const DistanceMatrix& distances, const std::vector<int>& localities)
{
    std::vector<double> wanted;
    for (std::size_t a = 0; a < localities.size(); ++a) {
        for (std::size_t b = a + 1; b < localities.size(); ++b) {
            wanted.push_back(distances(localities[a], localities[b]));
        }
    }
    return wanted;
}

double sumOfProducts(const std::vector<double>& a, const std::vector<double>& b)
{
    return std::inner_product(a.begin(), a.end(), b.begin(), 0.0);
}

/// 0 where there is no plot to judge.
double stressOf(const std::vector<double>& wanted, const std::vector<double>& shown)
{
    const double squares = sumOfProducts(wanted, wanted) * sumOfProducts(shown, shown);
    const double product = sumOfProducts(wanted, shown);
    return squares > 0 ? std::sqrt(std::max(0.0, 1 - product * product / squares)) : 0;
}

double varianceOf(const std::vector<double>& wanted, const std::vector<double>& shown)
{
    constexpr double Rounding = 1e-9;
    if (const double correlation = correlationOf(wanted, shown); !std::isnan(correlation)) {
        return correlation * correlation;
    }
    const bool isExact = std::ranges::equal(
        wanted, shown, [](double a, double b) { return std::abs(a - b) <= Rounding * std::abs(a); });
    return isExact && !wanted.empty() ? 1 : 0;
}

} // namespace

Scaling classicalScaling(const DistanceMatrix& distances)
{
    Scaling scaling;
    scaling.places.resize(static_cast<std::size_t>(distances.size()));
    const std::vector<int> localities = completeLocalities(distances);
    if (localities.empty()) {
        return scaling;
    }
    const Eigen::MatrixXd places = placesOf(centredProducts(distances, localities));
    for (Eigen::Index i = 0; i < places.rows(); ++i) {
        const auto locality = static_cast<std::size_t>(localities[static_cast<std::size_t>(i)]);
        const auto row = places.row(i);
        scaling.places[locality].assign(row.begin(), row.end());
    }
    const std::vector<double> wanted = wantedDistances(distances, localities);
    for (int dimensions = 1; dimensions <= Scaling::Dimensions; ++dimensions) {
        const std::vector<double> shown = plotDistances(places, dimensions);
        const auto k = static_cast<std::size_t>(dimensions - 1);
        scaling.variance[k] = varianceOf(wanted, shown);
        scaling.stress[k] = stressOf(wanted, shown);
    }
    return scaling;
}
