// The limbs of one lattice column: what its row says about each and where each stands.
#pragma once

#include <string_view>
#include <vector>

#include "catalogue/lattice/lattice_properties.h"
#include "catalogue/lattice/steel_ge_gou.h"
#include "framework/export.h"
#include "sections/geometry/lattice_placement.h"

namespace orv3 {

inline constexpr int kMaxLimbs = 4;

// Signs of the columns that describe limbs 1 to 4.
struct CLimbColumns {
  const wchar_t* m_szType;
  const wchar_t* m_szNo;
  const wchar_t* m_szAngle;
};
inline constexpr CLimbColumns kLimbColumns[kMaxLimbs] = {{L"P1Type", L"P1No.", L"P1θ°"},
                                                         {L"P2Type", L"P2No.", L"P2θ°"},
                                                         {L"P3Type", L"P3No.", L"P3θ°"},
                                                         {L"P4Type", L"P4No.", L"P4θ°"}};

// The name of the table of columns with 2 to 4 limbs, and the number of limbs that a table's name
// tells; empty and 0 for anything else.
ORV3CAL_API std::wstring_view LatticeTableName(int limbs) noexcept;
ORV3CAL_API int LatticeLimbCount(std::wstring_view tableName) noexcept;

struct CLatticeLimb {
  CDataItem m_row;      // of the system store
  double m_dArea = 0;   // mm^2
  double m_dAngle = 0;  // degrees, counter-clockwise
  CLimbBox m_box;       // as it is turned
  double m_dIx = 0;     // about its own centroid as it is turned, mm^4
  double m_dIy = 0;
  CLimbPlace m_at;  // centroid in the frame of lattice_placement.h
};

struct ORV3CAL_API CLatticeLimbs {
  std::vector<CLatticeLimb> m_arrLimb;
  double m_dKx = 0;  // 0 with two limbs
  double m_dKy = 0;  // k with two limbs
  bool m_bTrue = false;

  // Rows and areas of the limbs that the row's table has; false when one is not in the store.
  bool Fetch(const CSteelItemGeGou& column);
  // Everything else, after Fetch, as the rows of lattice tables are computed: by the facade's
  // members, which have a T's centroid at mid-height, and with RowLatticeReach. False without an
  // angle or spacing.
  bool Place(const CSteelItemGeGou& column);
  // The same as the limbs truly are and stand; false for a limb whose row lacks a figure too.
  bool PlaceTruly(const CSteelItemGeGou& column);
  double Area() const noexcept;
  CLatticeReach Reach() const;  // from the frame's origin
  // Of placed limbs, by the parallel-axis theorem. Without area the centroid is (0, 0); a modulus
  // is 1e100 where its edge lies on the axis.
  CLatticeProperties Properties() const;
};

}  // namespace orv3
