// Strengths of steel by grade and thickness, N/mm2: GB 50017-2017, Tables 4.4.1 (plates), 4.4.2
// (Q345GJ) and 4.4.3 (tubes); GB 50017-2003, Table 3.4.1-1.
#pragma once

#include <optional>

#include "codes/steel_grade.h"

namespace orv3 {

// The tables of 2017 part plates from tubes; that of 2003 holds for both.
enum class CSteelProduct { Plate, Tube };

struct CSteelStrengths {
  double m_dF;    // tension, compression, bending
  double m_dFv;   // shear
  double m_dFce;  // end bearing, planed and close-fitted
  double m_dFy;   // yield of the band; the nominal figure in 2003, whose table has none
  std::optional<double> m_dFu;  // 2003: none
};

// Of a plate or of a tube with a wall of `t` mm, above 0. A thickness on a limit belongs to the
// thinner band. Refused: a grade that the edition lacks, a thickness beyond its table.
ORV3CAL_API CCodeAnswer<CSteelStrengths> SteelStrengths(
    CCodeEdition edition, CSteelGrade grade, double t,
    CSteelProduct product = CSteelProduct::Plate);

enum class CSteelStrength { F, Fv, Fce, Fy, Fu };

// One of them; fy and fu are refused by 2003.
ORV3CAL_API CCodeAnswer<double> SteelStrength(CCodeEdition edition, CSteelGrade grade, double t,
                                              CSteelStrength strength,
                                              CSteelProduct product = CSteelProduct::Plate);

}  // namespace orv3
