#include "connections/cases/bolt_case.h"

#include <cmath>

#include "connections/cases/case_rules.h"
#include "connections/check_math.h"

namespace orv3 {
namespace {

// Ordinary and bearing-type checks need a moment; this one changes no digit that counts.
constexpr double kNoMoment = 2e-6;

constexpr const char* kLayouts[] = {"grid", "staggered"};
constexpr const char* kTypes[] = {"ordinary", "friction", "bearing"};
constexpr const char* kThreads[] = {"in", "out"};
constexpr const char* kClasses[] = {"A", "B", "C"};

constexpr unsigned kOrdinary = 1U << kOrdinaryBolt;
constexpr unsigned kFriction = 1U << kFrictionBolt;
constexpr unsigned kBearing = 1U << kBearingBolt;

void FillSpacings(CArray<double, double>& spacings, const CSpacing& input, int count) {
  spacings.SetSize(count);
  for (int i = 0; i < count; ++i) {
    const bool bEach = !input.m_arrEach.empty();
    spacings[i] = bEach ? input.m_arrEach[static_cast<std::size_t>(i)] : input.m_dUniform;
  }
}

int RecordGrade(const CBoltCase& input) noexcept {
  return input.m_nType == kOrdinaryBolt ? input.m_nGrade : input.m_nGrade - 3;
}

double RecordMoment(const CBoltCase& input) noexcept {
  return input.m_nType != kFrictionBolt && IsZero(input.m_dM) ? kNoMoment : input.m_dM;
}

}  // namespace

const char* const kBoltGrades[5] = {"4.6", "4.8", "5.6", "8.8", "10.9"};

const CTextLiteral kBoltTypeNames[3] = {
    {"普通螺栓", "ordinary"},
    {"高强度摩擦型", "friction type"},
    {"高强度承压型", "bearing type"},
};

std::span<const CInputKey<CBoltCase>> CBoltCheck::InputKeys() {
  using C = CBoltCase;
  static const CInputKey<C> kKeys[] = {
      {"id", &C::m_strId, "", {"编号", "name of the case"}},
      {"layout", &C::m_nLayout, "", {"排列方式", "layout"}, kLayouts},
      {"type", &C::m_nType, "", {"螺栓类型", "bolt type"}, kTypes},
      {"cols", &C::m_nCols, "", {"螺栓列数", "columns of bolts"}},
      {"rows", &C::m_nRows, "", {"螺栓行数", "rows of bolts"}},
      {"colSpace", &C::m_colSpace, "mm", {"列距", "column spacing"}},
      {"rowSpace", &C::m_rowSpace, "mm", {"行距", "row spacing"}},
      {"d", &C::m_nD, "mm", {"螺栓公称直径 d", "nominal diameter d"}},
      {"sumT", &C::m_dSumT, "mm", {"承压板件总厚度 Σt", "total bearing thickness Σt"}},
      {"nv", &C::m_nNv, "", {"受剪面数 nv", "shear planes nv"}},
      {"nf", &C::m_nNf, "", {"传力摩擦面数 nf", "friction surfaces nf"}},
      {"N", &C::m_dN, "kN", {"轴心拉力 N", "axial tension N"}},
      {"Vx", &C::m_dVx, "kN", {"x 向剪力 Vx", "shear along x, Vx"}},
      {"Vy", &C::m_dVy, "kN", {"y 向剪力 Vy", "shear along y, Vy"}},
      {"M", &C::m_dM, "kN·mm", {"弯矩 M", "bending moment M"}},
      {"T", &C::m_dT, "kN·mm", {"扭矩 T", "torque T"}},
      {"ex", &C::m_dEx, "mm", {"x 向边距 ex", "edge distance along x, ex"}},
      {"ey", &C::m_dEy, "mm", {"y 向边距 ey", "edge distance along y, ey"}},
      {"t", &C::m_dThick, "mm", {"板件厚度 t", "plate thickness t"}},
      {"steel", &C::m_nSteel, "", {"板件钢材", "plate steel"}, kSteels},
      {"surface", &C::m_nSurface, "", {"摩擦面处理方法", "surface treatment"}},
      {"grade", &C::m_nGrade, "", {"螺栓性能等级", "bolt property class"}, kBoltGrades},
      {"class", &C::m_nClass, "", {"螺栓精度等级", "bolt product grade"}, kClasses},
      {"threads", &C::m_nThreads, "", {"剪切面处螺纹", "threads in the shear plane"}, kThreads},
  };
  return kKeys;
}

std::span<const CResultKey<CBoltResults>> CBoltCheck::ResultKeys() {
  using R = CBoltResults;
  static constexpr unsigned kShank = kOrdinary | kBearing;
  static const CResultKey<R> kKeys[] = {
      {"n", &R::m_nBolts, "", {"螺栓数 n", "bolts n"}},
      {"d0", &R::m_dD0, "mm", {"孔径 d0", "hole diameter d0"}},
      {"de", &R::m_dDe, "mm", {"有效直径 de", "effective diameter de"}, kShank},
      {"f", &R::m_dF, "N/mm²", {"钢材强度 f", "steel strength f"}},
      {"ft", &R::m_dFt, "N/mm²", {"螺栓抗拉强度", "bolt tensile strength"}, kShank},
      {"fv", &R::m_dFv, "N/mm²", {"螺栓抗剪强度", "bolt shear strength"}, kShank},
      {"fc", &R::m_dFc, "N/mm²", {"承压强度", "bearing strength"}, kShank},
      {"mu", &R::m_dMu, "", {"抗滑移系数 μ", "slip factor μ"}, kFriction},
      {"P", &R::m_nP, "kN", {"预拉力 P", "preload P"}, kFriction | kBearing},
      {"Nvb", &R::m_dNvb, "kN", {"受剪承载力", "shear resistance"}},
      {"Ncb", &R::m_dNcb, "kN", {"承压承载力", "bearing resistance"}, kShank},
      {"Ntb", &R::m_dNtb, "kN", {"受拉承载力", "tensile resistance"}},
      {"Nv", &R::m_dNv, "kN", {"最大剪力 Nv", "greatest shear Nv"}},
      {"Nt", &R::m_dNt, "kN", {"最大拉力 Nt", "greatest tension Nt"}},
      {"l1", &R::m_dL1, "mm", {"连接长度 l1", "joint length l1"}},
      {"beta", &R::m_dBeta, "", {"长连接折减系数 β", "long-joint factor β"}},
      {"ratio", &R::m_dRatio, "", {"螺栓受力相关公式之值", "interaction ratio"}},
      {"sigmaX", &R::m_dSigmaX, "N/mm²", {"板件截面应力 σx（Vx）", "section stress from Vx"}},
      {"sigmaY", &R::m_dSigmaY, "N/mm²", {"板件截面应力 σy（Vy）", "section stress from Vy"}},
      {"passForces", &R::m_bForces, "", {"螺栓受力", "bolt forces"}},
      {"passX", &R::m_bX, "", {"板件截面（Vx）", "section for Vx"}},
      {"passY", &R::m_bY, "", {"板件截面（Vy）", "section for Vy"}},
  };
  return kKeys;
}

bool CBoltCheck::Run(const CBoltCase& input) {
  if (Refused(BoltFaults(input))) return false;
  FillRecord(input);
  m_record.BoltYanSuan();
  ReadResults(input);
  m_figures = JudgedFigures(m_record, HasThreadsInShear(input.m_nType, input.m_nThreads));
  JudgeParts();
  Warn(BoltWarnings(m_record, m_figures, input.m_nThreads));
  return true;
}

void CBoltCheck::FillRecord(const CBoltCase& input) {
  m_record.m_nLayout = input.m_nLayout;
  m_record.m_nSpaceMode = 1;
  m_record.m_nBoltType = input.m_nType;
  m_record.m_nCols = input.m_nCols;
  m_record.m_nRows = input.m_nRows;
  FillSpacings(m_record.m_EcArr, input.m_colSpace, input.m_nCols - 1);
  FillSpacings(m_record.m_ErArr, input.m_rowSpace, input.m_nRows - 1);
  m_record.m_nD = input.m_nD;
  m_record.m_dSumT = input.m_dSumT;
  m_record.m_nNv = input.m_nNv;
  m_record.m_nNf = input.m_nNf;
  m_record.m_dN = input.m_dN;
  m_record.m_dVx = input.m_dVx;
  m_record.m_dVy = input.m_dVy;
  m_record.m_dM = RecordMoment(input);
  m_record.m_dT = input.m_dT;
  m_record.m_dEx = input.m_dEx;
  m_record.m_dEy = input.m_dEy;
  m_record.m_dThick = input.m_dThick;
  m_record.m_nSteel = input.m_nSteel;
  m_record.m_nSurface = input.m_nSurface;
  m_record.m_nGrade = RecordGrade(input);
  m_record.m_nBoltClass = input.m_nClass == 2 ? 0 : input.m_nClass + 1;
}

void CBoltCheck::ReadResults(const CBoltCase& input) {
  // The moment that the record was given in the place of none is no result.
  if (m_record.m_dM != input.m_dM) {
    m_record.m_dM = 0;
    m_record.CalBoltLaLi();
  }
  m_results = {.m_nBolts = m_record.m_nBoltNum,
               .m_dD0 = m_record.m_dD0,
               .m_dDe = m_record.m_dDe,
               .m_dF = 1000 * m_record.m_dF,
               .m_dFt = 1000 * m_record.m_dFt,
               .m_dFv = 1000 * m_record.m_dFv,
               .m_dFc = 1000 * m_record.m_dFc,
               .m_dMu = m_record.m_dMu,
               .m_nP = m_record.m_nP,
               .m_dNvb = m_record.m_dNvb,
               .m_dNcb = m_record.m_dNcb,
               .m_dNtb = m_record.m_dNtb,
               .m_dNv = m_record.m_dNv,
               .m_dNt = m_record.m_dNt,
               .m_dL1 = m_record.m_dL1,
               .m_dBeta = m_record.m_dBeta,
               .m_dSigmaX = m_record.m_dSigmaX[0],
               .m_dSigmaY = m_record.m_dSigmaY[0],
               .m_bX = m_record.m_bJieMianX == 1,
               .m_bY = m_record.m_bJieMianY == 1};
  m_results.m_bForces = m_record.JugeYingLi() == 1;
  m_results.m_dRatio = m_record.m_dRatio;
}

void CBoltCheck::JudgeParts() {
  const CBoltFigures& j = m_figures;
  Judge({"螺栓受力相关公式", "bolt interaction"}, "interaction", j.m_dRatio);
  if (m_record.m_nBoltType != kFrictionBolt)
    Judge({"孔壁承压", "bearing"}, "bearing", j.m_dNv / j.m_dBearing);
  Judge({"板件截面（Vx）", "section for Vx"}, "section-x", j.m_x.Worst() / m_results.m_dF);
  Judge({"板件截面（Vy）", "section for Vy"}, "section-y", j.m_y.Worst() / m_results.m_dF);
}

}  // namespace orv3
