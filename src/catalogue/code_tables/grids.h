// The arguments at which the effective-length tables give values, as numbers. Each ascends.
#pragma once

namespace orv3 {

// K1 and K2 of frame columns, GB 50017-2003 Tables D-1 and D-2; the last stands for >= 10.
inline constexpr double kFrameK[] = {0, 0.05, 0.1, 0.2, 0.3, 0.4, 0.5, 1, 2, 3, 4, 5, 10};

// Single-stepped columns, Tables D-3 and D-4.
inline constexpr double kSingleEta1[] = {0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1.0, 1.2,
                                         1.4, 1.6, 1.8, 2.0, 2.2, 2.4, 2.6, 2.8, 3.0};
inline constexpr double kSingleK1[] = {0.06, 0.08, 0.10, 0.12, 0.14, 0.16, 0.18, 0.20, 0.22,
                                       0.24, 0.26, 0.28, 0.3,  0.4,  0.5,  0.6,  0.7,  0.8};

// Double-stepped columns, Tables D-5 and D-6; eta1 is printed to 1.4 and continued by the
// equations.
inline constexpr double kDoubleEta1[] = {0.2, 0.4, 0.6, 0.8, 1.0, 1.2, 1.4, 1.6, 1.8};
inline constexpr double kDoubleEta2[] = {0.2, 0.4, 0.6, 0.8, 1.0, 1.2};
inline constexpr double kDoubleK1[] = {0.05, 0.1, 0.2, 0.3};
inline constexpr double kDoubleK2[] = {0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1.0, 1.1, 1.2};

}  // namespace orv3
