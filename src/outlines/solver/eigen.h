// Eigen without vector instructions: sums are added in the order of the plain loops, so that every
// machine gives the same figures to the last digit.
#pragma once

#ifndef EIGEN_DONT_VECTORIZE
#define EIGEN_DONT_VECTORIZE
#endif
#include <Eigen/Dense>
