// The limits of plates (codes/width_limits.h, codes/section_class.h) as formulas of a step, which
// name λmax, λ and α0 of the steps before it.
#pragma once

#include "codes/section_class.h"
#include "codes/width_limits.h"

namespace orv3 {

// Of axial compression; lambda tells the branch of an angle's leg.
const char* AxialWidthForm(CCodeEdition edition, CWidthElement element, double lambda,
                           double epsilonK) noexcept;
// Of S4; null for a web with compression, whose limit has α0 to the power of 1.66.
const char* Class4Form(CClassElement element) noexcept;
// Of an I's web under compression with a moment, 2003: 5.4.2.
const char* WebForm2003(double alpha0) noexcept;

}  // namespace orv3
