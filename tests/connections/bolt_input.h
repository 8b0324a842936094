// One bolt group as a table row, for the tests of NormalBoltData.
#pragma once

#include <vector>

#include "orv3cal.h"

namespace orv3 {

// A moment that satisfies the ordinary and bearing-type checks and changes no digit that counts.
inline constexpr double kNoMoment = 2e-6;

// Units of NormalBoltData. Individual spacings, when given, take the place of the uniform ones.
struct CGridInput {
  int layout = 0, cols = 2, rows = 3;
  double colSpace = 70, rowSpace = 80;
  std::vector<double> colSpaces = {}, rowSpaces = {};
};
struct CBoltInputKind {
  int type = 0, d = 20;
  double sumT = 10;
  int nv = 1, nf = 1, surface = 0, grade = 0, boltClass = 0;
};
struct CLoadInput {
  double N = 0, Vx = 0, Vy = 0, M = kNoMoment, T = 0;
};
struct CPlateInput {
  double ex = 50, ey = 50, t = 10;
  int steel = 0;
};
struct CBoltInput {
  CGridInput grid = {};
  CBoltInputKind bolt = {};
  CLoadInput load = {};
  CPlateInput plate = {};
};

inline CArray<double, double> ToArray(const std::vector<double>& values) {
  CArray<double, double> array;
  for (const double value : values) array.Add(value);
  return array;
}

inline NormalBoltData BoltGroup(const CBoltInput& in) {
  const auto& [grid, bolt, load, plate] = in;
  NormalBoltData group;
  group.m_nLayout = grid.layout;
  group.m_nSpaceMode = grid.colSpaces.empty() && grid.rowSpaces.empty() ? 0 : 1;
  group.m_nCols = grid.cols;
  group.m_nRows = grid.rows;
  group.m_dColSpace = grid.colSpace;
  group.m_dRowSpace = grid.rowSpace;
  group.GetEcArr(ToArray(grid.colSpaces));
  group.GetErArr(ToArray(grid.rowSpaces));
  group.m_nBoltType = bolt.type;
  group.m_nD = bolt.d;
  group.m_dSumT = bolt.sumT;
  group.m_nNv = bolt.nv;
  group.m_nNf = bolt.nf;
  group.m_nSurface = bolt.surface;
  group.m_nGrade = bolt.grade;
  group.m_nBoltClass = bolt.boltClass;
  group.m_dN = load.N;
  group.m_dVx = load.Vx;
  group.m_dVy = load.Vy;
  group.m_dM = load.M;
  group.m_dT = load.T;
  group.m_dEx = plate.ex;
  group.m_dEy = plate.ey;
  group.m_dThick = plate.t;
  group.m_nSteel = plate.steel;
  return group;
}

// A group that has been checked.
inline NormalBoltData Checked(const CBoltInput& in) {
  NormalBoltData group = BoltGroup(in);
  group.BoltYanSuan();
  return group;
}

}  // namespace orv3
