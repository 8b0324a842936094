#include "connections/verdict/plate_section.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "connections/check_math.h"
#include "connections/verdict/least_cut.h"

namespace orv3 {
namespace {

// The way of a cut: the gaps between the lines of holes that it meets, and where their holes are.
struct CCutWay {
  double m_dEdges = 0;  // both edge distances, mm
  std::vector<double> m_arrGap = {};
  double m_dAcross = 0;               // from the even lines to the odd ones; 0 in a grid
  std::vector<CHole> m_arrHole = {};  // of each line
};

std::size_t Smallest(std::span<const double> spacings) {
  return static_cast<std::size_t>(std::min_element(spacings.begin(), spacings.end()) -
                                  spacings.begin());
}

double Before(std::span<const double> spacings, std::size_t index) {
  double sum = 0;
  for (std::size_t i = 0; i < index; ++i) sum += spacings[i];
  return sum;
}

// Against Vx the cut runs along y: in a grid through the last column, in a staggered group through
// the two columns that stand closest.
CCutWay WayX(const CPlateHoles& holes) {
  CCutWay way{.m_dEdges = 2 * holes.m_dEy};
  const std::size_t column = holes.m_bStaggered ? Smallest(holes.m_arrCol) : 0;
  double even = Before(holes.m_arrCol, holes.m_bStaggered ? column : holes.m_arrCol.size());
  double odd = holes.m_bStaggered ? even + holes.m_arrCol[column] : even;
  if (column % 2 != 0) std::swap(even, odd);
  way.m_dAcross = std::fabs(odd - even);
  way.m_arrGap.reserve(2 * holes.m_arrRow.size());
  way.m_arrHole.reserve(2 * holes.m_arrRow.size() + 1);
  double y = 0;
  way.m_arrHole.push_back({even, y});
  for (const double space : holes.m_arrRow) {
    if (holes.m_bStaggered) {
      way.m_arrGap.insert(way.m_arrGap.end(), {space / 2, space / 2});
      way.m_arrHole.push_back({odd, y + space / 2});
    } else {
      way.m_arrGap.push_back(space);
    }
    y += space;
    way.m_arrHole.push_back({even, y});
  }
  return way;
}

// Against Vy the cut runs along x: through the first row, in a staggered group of the two rows that
// stand closest.
CCutWay WayY(const CPlateHoles& holes) {
  CCutWay way{.m_dEdges = 2 * holes.m_dEx};
  const std::size_t row = holes.m_bStaggered ? Smallest(holes.m_arrRow) : 0;
  if (holes.m_bStaggered) way.m_dAcross = holes.m_arrRow[row] / 2;
  way.m_arrGap.reserve(holes.m_arrCol.size());
  way.m_arrHole.reserve(holes.m_arrCol.size() + 1);
  const double y = Before(holes.m_arrRow, row);
  double x = 0;
  way.m_arrHole.push_back({x, y});
  for (std::size_t i = 0; i < holes.m_arrCol.size(); ++i) {
    way.m_arrGap.push_back(holes.m_arrCol[i]);
    x += holes.m_arrCol[i];
    way.m_arrHole.push_back({x, i % 2 == 1 ? y : y + way.m_dAcross});
  }
  return way;
}

// The worst of all cuts. Holes apart from one another and from the edges leave something of each.
// With friction-type bolts half of what the holes in the cut carry has been passed on in front of
// them: the stress is (n - 0.5 n1) / (l - n1 d), a quotient whose greatest value is that of the
// least l - n1 (d - 0.5 / q) for q, the greatest value itself.
CPlateSection WorstSection(const CPlateHoles& holes, const CCutWay& way, double shearKN,
                           double hole) {
  CPlateSection section;
  const double shear = 1000 * std::fabs(shearKN);
  double deduct = hole;
  for (int round = 0; round < 50; ++round) {
    const CLeastCut cut = LeastCut(way.m_arrGap, way.m_dAcross, deduct);
    const double length = way.m_dEdges + cut.m_dLength;
    const double left = length - cut.Holes() * hole;
    const double share = holes.m_bFriction ? 1 - 0.5 * cut.Holes() / holes.m_nBolts : 1;
    const double sigma = share * shear / (left * holes.m_dThick);
    if (round > 0 && !(sigma > section.m_dSigma * (1 + 1e-12))) break;
    section.m_dLength = length;
    section.m_dNet = left * holes.m_dThick;
    section.m_dShare = share;
    section.m_dSigma = sigma;
    section.m_arrHole.clear();
    section.m_arrHole.reserve(cut.m_arrLine.size());
    for (const int line : cut.m_arrLine)
      section.m_arrHole.push_back(way.m_arrHole[static_cast<std::size_t>(line)]);
    if (!holes.m_bFriction || way.m_dAcross == 0) break;  // a grid has one cut
    deduct = hole - 0.5 * left / (share * holes.m_nBolts);
  }
  double gross = way.m_dEdges;
  for (const double gap : way.m_arrGap) gross += gap;
  section.m_dGross = gross * holes.m_dThick;
  section.m_dSigmaGross = shear / section.m_dGross;
  return section;
}

}  // namespace

CPlateSection WorstSectionX(const CPlateHoles& holes, double shear, double hole) {
  return IsZero(shear) ? CPlateSection{} : WorstSection(holes, WayX(holes), shear, hole);
}

CPlateSection WorstSectionY(const CPlateHoles& holes, double shear, double hole) {
  return IsZero(shear) ? CPlateSection{} : WorstSection(holes, WayY(holes), shear, hole);
}

}  // namespace orv3
