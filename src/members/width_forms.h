// The limits of plates (codes/width_limits.h, codes/section_class.h) as formulas of a step, which
// name λmax, λ and α0 of the steps before it.
#pragma once

#include <optional>

#include "codes/section_class.h"
#include "codes/width_limits.h"

namespace orv3 {

// A limit's formula and what it names beside εk.
struct CWidthForm {
  const char* m_szForm = nullptr;
  std::optional<double> m_alpha0 = {}, m_lambda = {}, m_lambdaMax = {};
};

// Of axial compression; lambda tells the branch of an angle's leg.
const char* AxialWidthForm(CCodeEdition edition, CWidthElement element, double lambda,
                           double epsilonK) noexcept;
// Of S4.
const char* Class4Form(CClassElement element) noexcept;
// Of compression with a moment, 2003: an I's web (5.4.2), a box's wall (5.4.3), a T's web (5.4.4).
const char* WebForm2003(double alpha0) noexcept;
const char* BoxWallForm2003(double alpha0) noexcept;
const char* TWebForm2003(CWidthElement element, const CBeamColumnWeb& web) noexcept;

}  // namespace orv3
