#include "connections/verdict/bolt_verdict.h"

#include <algorithm>
#include <cmath>

#include "connections/cases/bolt_case.h"
#include "connections/check_math.h"
#include "connections/verdict/least_cut.h"

namespace orv3 {
namespace {

// The torque adds to both shears at the farthest bolt, whatever their signs.
void Shear(const NormalBoltData& record, CBoltFigures& figures) {
  double sumR2 = 0;
  for (const BoltPoint& bolt : record.m_PointArr) sumR2 += bolt.dx * bolt.dx + bolt.dy * bolt.dy;
  const double turn = IsZero(record.m_dT) || IsZero(sumR2) ? 0 : std::fabs(record.m_dT) / sumR2;
  figures.m_dNvx = std::fabs(record.m_dVx) / record.m_nBoltNum;
  figures.m_dNvy = std::fabs(record.m_dVy) / record.m_nBoltNum;
  figures.m_dNTx = turn * std::fabs(record.m_dYMax);
  figures.m_dNTy = turn * std::fabs(record.m_dXMax);
  figures.m_dNv = std::hypot(figures.m_dNvx + figures.m_dNTx, figures.m_dNvy + figures.m_dNTy);
}

// The tension when the group turns as said; the moment may act in either sense about the centroid
// of a friction-type group, otherwise it presses on the first row.
void Turn(const NormalBoltData& record, CTurn turn, CBoltFigures& figures) {
  const bool bCentroid = turn == CTurn::Centroid;
  const bool bWithN = turn == CTurn::FirstRowWithN;
  double sum = 0;
  double arm = 0;
  for (const BoltPoint& bolt : record.m_PointArr) {
    const double l = bCentroid ? bolt.dy : bolt.y;
    sum += l * l;
    arm = std::max(arm, record.m_nBoltType == kFrictionBolt ? std::fabs(l) : l);
  }
  const double moment = std::fabs(record.m_dM) + (bWithN ? record.m_dN * record.m_dYc : 0);
  const double perMm = IsZero(record.m_dM) || IsZero(sum) ? 0 : moment / sum;
  const double direct = bWithN ? 0 : record.m_dN / record.m_nBoltNum;
  const double tension = std::max(0.0, direct + perMm * arm);
  if (tension <= figures.m_dNt && figures.m_dSumArm2 > 0) return;
  figures.m_nTurn = turn;
  figures.m_dArm = arm;
  figures.m_dSumArm2 = sum;
  figures.m_dNtPerMm = record.m_dM < 0 ? -perMm : perMm;
  figures.m_dNtFirst = direct - (bCentroid ? figures.m_dNtPerMm * record.m_dYc : 0);
  figures.m_dNt = tension < kCheckTolerance ? 0 : tension;
}

// Preloaded bolts keep the plates together: the group turns about its centroid. So does a group of
// ordinary bolts as long as N leaves every bolt in tension; otherwise it turns about the first
// row, and N lifts that row as well. Never less than what the record has.
void Tension(const NormalBoltData& record, CBoltFigures& figures) {
  if (record.m_nBoltType == kFrictionBolt) return Turn(record, CTurn::Centroid, figures);
  Turn(record, CTurn::FirstRow, figures);
  if (IsZero(record.m_dM)) return;
  if (record.m_nBoltType == kBearingBolt) return Turn(record, CTurn::Centroid, figures);
  double sum = 0;
  for (const BoltPoint& bolt : record.m_PointArr) sum += bolt.dy * bolt.dy;
  const double least = record.m_dN / record.m_nBoltNum - record.m_dM * record.m_dYc / sum;
  Turn(record, least >= 0 ? CTurn::Centroid : CTurn::FirstRowWithN, figures);
}

// 7.2.1 to 7.2.4. Bearing-type bolts hold Nv against Ncb / 1.2 only together with tension.
void Interaction(const NormalBoltData& record, CBoltFigures& figures) {
  const double shear = figures.m_dNv / (record.m_dBeta * record.m_dNvb);
  const double tension = figures.m_dNt / record.m_dNtb;
  if (record.m_nBoltType == kFrictionBolt) {
    figures.m_dRatio = shear + tension;
    return;
  }
  figures.m_dRatio = std::hypot(shear, tension);
  const bool bReduced = record.m_nBoltType == kBearingBolt && figures.m_dNt > 0;
  figures.m_dBearing = record.m_dBeta * record.m_dNcb / (bReduced ? 1.2 : 1);
}

// The way of a cut: the gaps between the lines of holes that it meets, and where their holes are.
struct CCutWay {
  double m_dShear = 0;  // kN
  double m_dEdges = 0;  // both edge distances, mm
  std::vector<double> m_arrGap = {};
  double m_dAcross = 0;               // from the even lines to the odd ones; 0 in a grid
  std::vector<CHole> m_arrHole = {};  // of each line
};

int Smallest(const CArray<double, double>& spacings) {
  return static_cast<int>(std::min_element(spacings.begin(), spacings.end()) - spacings.begin());
}

double Before(const CArray<double, double>& spacings, int index) {
  double sum = 0;
  for (int i = 0; i < index; ++i) sum += spacings[i];
  return sum;
}

// Against Vx the cut runs along y: in a grid through the last column, in a staggered group through
// the two columns that stand closest.
CCutWay WayX(const NormalBoltData& record) {
  CCutWay way{.m_dShear = record.m_dVx, .m_dEdges = 2 * record.m_dEy};
  const bool bStaggered = record.m_nLayout == 1;
  const int column = bStaggered ? Smallest(record.m_EcArr) : 0;
  double even = Before(record.m_EcArr, bStaggered ? column : record.m_nCols - 1);
  double odd = bStaggered ? even + record.m_EcArr[column] : even;
  if (column % 2 != 0) std::swap(even, odd);
  way.m_dAcross = std::fabs(odd - even);
  double y = 0;
  way.m_arrHole.push_back({even, y});
  for (const double space : record.m_ErArr) {
    if (bStaggered) {
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
CCutWay WayY(const NormalBoltData& record) {
  CCutWay way{.m_dShear = record.m_dVy, .m_dEdges = 2 * record.m_dEx};
  const bool bStaggered = record.m_nLayout == 1;
  const int row = bStaggered ? Smallest(record.m_ErArr) : 0;
  if (bStaggered) way.m_dAcross = record.m_ErArr[row] / 2;
  const double y = Before(record.m_ErArr, row);
  double x = 0;
  for (int i = 0; i < record.m_nCols; ++i) {
    if (i > 0) {
      way.m_arrGap.push_back(record.m_EcArr[i - 1]);
      x += record.m_EcArr[i - 1];
    }
    way.m_arrHole.push_back({x, i % 2 == 0 ? y : y + way.m_dAcross});
  }
  return way;
}

// The worst of all cuts. Holes apart from one another and from the edges leave something of each.
// With friction-type bolts half of what the holes in the cut carry has been passed on in front of
// them (5.1.1-2): the stress is (n - 0.5 n1) / (l - n1 d0), a quotient whose greatest value is that
// of the least l - n1 (d0 - 0.5 / q) for q, the greatest value itself.
CPlateSection WorstSection(const NormalBoltData& record, const CCutWay& way) {
  CPlateSection section;
  if (IsZero(way.m_dShear)) return section;
  const bool bFriction = record.m_nBoltType == kFrictionBolt;
  const double shear = 1000 * std::fabs(way.m_dShear);
  double deduct = record.m_dD0;
  for (int round = 0; round < 50; ++round) {
    const CLeastCut cut = LeastCut(way.m_arrGap, way.m_dAcross, deduct);
    const double length = way.m_dEdges + cut.m_dLength;
    const double left = length - cut.Holes() * record.m_dD0;
    const double share = bFriction ? 1 - 0.5 * cut.Holes() / record.m_nBoltNum : 1;
    const double sigma = share * shear / (left * record.m_dThick);
    if (round > 0 && !(sigma > section.m_dSigma * (1 + 1e-12))) break;
    section.m_dLength = length;
    section.m_dNet = left * record.m_dThick;
    section.m_dShare = share;
    section.m_dSigma = sigma;
    section.m_arrHole.clear();
    for (const int line : cut.m_arrLine)
      section.m_arrHole.push_back(way.m_arrHole[static_cast<std::size_t>(line)]);
    if (!bFriction) break;
    deduct = record.m_dD0 - 0.5 * left / (share * record.m_nBoltNum);
  }
  double gross = way.m_dEdges;
  for (const double gap : way.m_arrGap) gross += gap;
  section.m_dGross = gross * record.m_dThick;
  if (bFriction) section.m_dSigmaGross = shear / section.m_dGross;
  return section;
}

}  // namespace

CBoltFigures JudgedFigures(const NormalBoltData& record) {
  CBoltFigures figures;
  Shear(record, figures);
  Tension(record, figures);
  Interaction(record, figures);
  figures.m_x = WorstSection(record, WayX(record));
  figures.m_y = WorstSection(record, WayY(record));
  return figures;
}

}  // namespace orv3
