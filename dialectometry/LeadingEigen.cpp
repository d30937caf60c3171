#include "dialectometry/LeadingEigen.h"

#include <Eigen/Eigenvalues>
#include <Eigen/QR>
#include <optional>
#include <random>

namespace {

using Eigen::Index;
using Eigen::MatrixXd;
using Solver = Eigen::SelfAdjointEigenSolver<MatrixXd>;

/// Vectors that are multiplied at once: as many equal eigenvalues are found as there are.
constexpr Index Block = 4;

/// The last of the eigenvalues, which are in rising order, turned round.
LeadingEigen leadingOf(const Solver& solver, Index count)
{
    return {solver.eigenvalues().tail(count).reverse(),
            solver.eigenvectors().rightCols(count).rowwise().reverse(),
            solver.eigenvalues().cwiseAbs().maxCoeff()};
}

/// The same numbers on every machine.
MatrixXd randomBlock(Index rows)
{
    std::mt19937 random(1);
    MatrixXd block(rows, Block);
    for (double& number : block.reshaped()) {
        number = static_cast<double>(random()) / 4294967296.0 - 0.5;
    }
    return block;
}

/// Makes the columns of `block` orthonormal, and orthogonal to those of `basis`; done twice, it is exact.
void orthonormalise(MatrixXd& block, const Eigen::Ref<const MatrixXd>& basis)
{
    for (int i = 0; i < 2; ++i) {
        block -= basis * (basis.transpose() * block);
        block =
            Eigen::HouseholderQR<MatrixXd>(block).householderQ() * MatrixXd::Identity(block.rows(), Block);
    }
}

/// By the block Lanczos method: Golub & Underwood (1977), The block Lanczos method for computing eigenvalues.
/// The vectors are sought in the space of a random block, its image, the image of that, and so on. Nothing
/// where they are not exact before that space has too many columns: they do not stand out from the others.
std::optional<LeadingEigen> byLanczos(const MatrixXd& matrix, Index count)
{
    constexpr Index MostColumns = 160;
    constexpr Index BlocksBetweenTests = 4;
    constexpr double Rounding = 1e-13;

    MatrixXd basis(matrix.rows(), MostColumns);
    MatrixXd images(matrix.rows(), MostColumns);
    MatrixXd next = randomBlock(matrix.rows());
    for (Index columns = Block; columns <= MostColumns; columns += Block) {
        orthonormalise(next, basis.leftCols(columns - Block));
        basis.middleCols(columns - Block, Block) = next;
        next = matrix * next;
        images.middleCols(columns - Block, Block) = next;
        if (columns % (BlocksBetweenTests * Block) == 0) {
            LeadingEigen found =
                leadingOf(Solver(basis.leftCols(columns).transpose() * images.leftCols(columns)), count);
            const MatrixXd wanted = images.leftCols(columns) * found.vectors;
            found.vectors = basis.leftCols(columns) * found.vectors;
            const MatrixXd rest = wanted - found.vectors * found.values.asDiagonal();
            if (rest.colwise().norm().maxCoeff() <= Rounding * found.largest) {
                return found;
            }
        }
    }
    return std::nullopt;
}

} // namespace

LeadingEigen leadingEigen(const MatrixXd& matrix, Index count)
{
    constexpr Index FewRows = 200; // all eigenvalues are found as fast

    if (matrix.rows() > FewRows) {
        if (auto found = byLanczos(matrix, count)) {
            return std::move(*found);
        }
    }
    return leadingOf(Solver(matrix), count);
}
