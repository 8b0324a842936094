// Elementary functions that give the same double on every machine, whatever its C library: they use
// nothing but +, -, *, / and sqrt, which IEEE 754 rounds alike everywhere.
//
// Angles in radians. Errors below 0.8 units in the last place; of Tan, Asin and Acos below 2
// (measured).
#pragma once

namespace orv3 {

// Of angles beyond 1e6, which no section has, by the C library.
double Sin(double angle) noexcept;
double Cos(double angle) noexcept;
double Tan(double angle) noexcept;

double Asin(double x) noexcept;  // NaN beyond [-1, 1]
double Acos(double x) noexcept;
double Atan(double x) noexcept;
// In [-pi, pi], with the signs of zero and infinity of C.
double Atan2(double y, double x) noexcept;

// The root of x² + y², without overflow or underflow on the way.
double Hypot(double x, double y) noexcept;

}  // namespace orv3
