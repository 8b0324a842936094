#include "outlines/exact_properties.h"

#include "outlines/section_solver.h"

namespace orv3 {

CExactProperties ExactProperties(std::span<const CPath> loops) {
  return CSectionSolver(loops).Properties();
}

}  // namespace orv3
