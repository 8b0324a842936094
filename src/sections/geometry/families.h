// Where the geometry of a row comes from: one description per family of section tables, which names
// for each property the cell that holds it or the formula that gives it.
//
// Everything is in mm. Frame of a row: x to the right, y upwards, origin at the lower-left corner
// of the enclosing rectangle of the unturned section.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "sections/geometry/cells.h"
#include "sections/kind_array.h"

namespace orv3 {

struct CFamily;

// Nothing when the row lacks a cell that the formula needs. `cell` is the source's own.
using CFormulaFunction = std::optional<double>(const CDataItem& row, const CFamily& family,
                                               const CCell& cell);
using CFormula = CFormulaFunction*;

// A cell, or a formula that may work on a cell. An empty source gives nothing.
struct CSource {
  constexpr CSource() = default;
  consteval CSource(const wchar_t* sign) : m_cell(sign) {}
  constexpr CSource(CFormula formula) : m_formula(formula) {}
  constexpr CSource(CFormula formula, CCell cell) : m_cell(cell), m_formula(formula) {}

  CCell m_cell;
  CFormula m_formula = nullptr;
};

struct CFamily {
  static constexpr std::size_t kMostPlates = 4;

  CSectionKind m_kind;
  CSource m_width = {}, m_height = {};  // of the enclosing rectangle
  CSource m_x = {}, m_y = {};           // centroid
  CSource m_Ix = {}, m_Iy = {};         // about the centroidal axes
  CSource m_ix = {}, m_iy = {};         // radii of gyration
  CSource m_Wx1 = {}, m_Wx2 = {};       // top and bottom fibre
  CSource m_WyL = {}, m_WyR = {};       // left and right fibre
  CSource m_Sx = {};                    // of the part on one side of the x axis
  // Thicknesses; one of 0 is no plate. The first is the flange's where there are flange and web.
  std::array<CSource, kMostPlates> m_arrPlate = {};
  CSource m_e0 = {};           // shear centre to centroid; empty: 0
  CSource m_Iw = {};           // warping constant, mm^6; empty: 0
  bool m_bSymmetricX = false;  // whatever the sizes
  bool m_bSymmetricY = false;
  // Where the facade's members answer otherwise for the sake of earlier results; empty: they don't.
  CSource m_trueY = {};    // centroid
  CSource m_trueR = {};    // radius of gyration about the axes of Ix and Iy
  CSource m_leastR = {};   // about the weak principal axis, where that is neither x nor y
  bool m_bAslant = false;  // moments are about axes at 45 degrees to the rectangle's sides
};

const CFamily& FamilyOf(CSectionKind kind) noexcept;
// The family of a table; null for a name of none.
const CFamily* FindFamily(std::wstring_view tableName) noexcept;

std::optional<double> Value(const CDataItem& row, const CFamily& family, const CSource& source);

// The families in the order of their kinds.
std::span<const CFamily> RolledFamilies() noexcept;  // of one part
std::span<const CFamily> PairFamilies() noexcept;
std::span<const CFamily> UserFamilies() noexcept;  // lattice columns too

// Reads what a formula needs and remembers whether anything was missing.
class CReader {
 public:
  CReader(const CDataItem& row, const CFamily& family) : m_row(row), m_family(family) {}

  double operator()(const CCell& cell) { return Keep(Read(m_row, cell)); }
  double operator()(const CSource CFamily::*source) {
    return Keep(Value(m_row, m_family, m_family.*source));
  }
  double Plate(std::size_t i) { return Keep(Value(m_row, m_family, m_family.m_arrPlate[i])); }

  bool Complete() const { return m_bComplete; }
  std::optional<double> Give(double value) const {
    return m_bComplete ? std::optional(value) : std::nullopt;
  }

 private:
  double Keep(std::optional<double> value) {
    if (!value) m_bComplete = false;
    return value.value_or(0);
  }

  const CDataItem& m_row;
  const CFamily& m_family;
  bool m_bComplete = true;
};

}  // namespace orv3
