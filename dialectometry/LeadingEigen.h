#pragma once

#include <Eigen/Core>

/// The greatest eigenvalues of a symmetric matrix, and their vectors.
struct LeadingEigen
{
    /// The greatest first.
    Eigen::VectorXd values;
    /// A column for each.
    Eigen::MatrixXd vectors;
    /// The greatest of all absolute eigenvalues.
    double largest = 0;
};

/// Finds `count` of them, at most as many as there are rows and four.
LeadingEigen leadingEigen(const Eigen::MatrixXd& matrix, Eigen::Index count);
