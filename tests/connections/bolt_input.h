// One bolt group as a table row, for the tests of NormalBoltData.
#pragma once

#include <vector>

#include "orv3cal.h"

namespace orv3 {

// A moment that satisfies the ordinary and bearing-type checks and changes no digit that counts.
inline constexpr double kNoMoment = 2e-6;

// Units of NormalBoltData. Individual spacings, when given, take the place of the uniform ones.
struct CBoltInput {
  int layout = 0, type = 0, cols = 2, rows = 3;
  double colSpace = 70, rowSpace = 80;
  std::vector<double> colSpaces = {}, rowSpaces = {};
  int d = 20;
  double sumT = 10;
  int nv = 1, nf = 1;
  double N = 0, Vx = 0, Vy = 0, M = kNoMoment, T = 0;
  double ex = 50, ey = 50, t = 10;
  int steel = 0, surface = 0, grade = 0, boltClass = 0;
};

inline CArray<double, double> ToArray(const std::vector<double>& values) {
  CArray<double, double> array;
  for (const double value : values) array.Add(value);
  return array;
}

inline NormalBoltData BoltGroup(const CBoltInput& in) {
  NormalBoltData group;
  group.m_nLayout = in.layout;
  group.m_nSpaceMode = in.colSpaces.empty() && in.rowSpaces.empty() ? 0 : 1;
  group.m_nBoltType = in.type;
  group.m_nCols = in.cols;
  group.m_nRows = in.rows;
  group.m_dColSpace = in.colSpace;
  group.m_dRowSpace = in.rowSpace;
  group.GetEcArr(ToArray(in.colSpaces));
  group.GetErArr(ToArray(in.rowSpaces));
  group.m_nD = in.d;
  group.m_dSumT = in.sumT;
  group.m_nNv = in.nv;
  group.m_nNf = in.nf;
  group.m_dN = in.N;
  group.m_dVx = in.Vx;
  group.m_dVy = in.Vy;
  group.m_dM = in.M;
  group.m_dT = in.T;
  group.m_dEx = in.ex;
  group.m_dEy = in.ey;
  group.m_dThick = in.t;
  group.m_nSteel = in.steel;
  group.m_nSurface = in.surface;
  group.m_nGrade = in.grade;
  group.m_nBoltClass = in.boltClass;
  return group;
}

}  // namespace orv3
