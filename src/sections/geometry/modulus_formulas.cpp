// What follows from the inertia of a row without a column for it.
#include "sections/geometry/formulas.h"
#include "sections/load_data_table.h"

namespace orv3 {

std::optional<double> ModulusAtDepth(const CDataItem& row, const CFamily& family,
                                     const CCell& cell) {
  CReader read(row, family);
  const double Ix = read(&CFamily::m_Ix);
  const double depth = read(cell);
  return read.Give(CLoadDataTable::CalDataItemWo(Ix, depth));
}

}  // namespace orv3
