// A section of each style, for what draws and what computes it.
#pragma once

#include <array>

#include "sections/outline.h"

using CStyleSizes = std::array<double, orv3::kSectionSizes>;

// Sizes differ wherever they may.
inline constexpr struct CStyleCase {
  int style;
  CStyleSizes sizes;  // in the order of the columns
} kStyleCases[] = {
    {0, {300, 400, 20, 10}},
    {1, {300, 400, 12}},
    {2, {500, 600, 200, 250, 12, 20}},
    {3, {200, 400}},
    {4, {100}},
    {5, {300, 400}},
    {6, {150}},
    {7, {150, 140}},
    {8, {10, 250, 16, 90, 100}},
    {8, {12, 300, 18, 0, 0}},
    {13, {300, 400, 190, 190, 0, 0}},
    {9, {10, 400, 20, 16, 80, 120, 145, 145}},
    {9, {10, 400, 20, 16, 145, 20, 80, 145}},
    {10, {10, 200, 12, 110}},
    {11, {10, 250, 14, 18, 70, 90}},
    {12, {9, 320, 16, 12, 110, 80}},
    {13, {40, 400, 160, 200, 150, 170}},
    {14, {300, 400, 12, 20, 10, 14}},
};
