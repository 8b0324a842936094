#include "catalogue/ifc/ifc_properties.h"

#include <cmath>
#include <initializer_list>

#include "catalogue/exact/row_exact.h"
#include "catalogue/lattice/lattice_limbs.h"
#include "catalogue/outline/row_figures.h"

namespace orv3 {
namespace {

std::string Quoted(std::string_view ascii) { return "'" + std::string(ascii) + "'"; }

// --- Units ---------------------------------------------------------------------------------------

std::string SiUnit(CStepFile& file, std::string_view kind, std::string_view prefix,
                   std::string_view name) {
  return StepRef(
      file.Add("IFCSIUNIT", {"*", std::string(kind), std::string(prefix), std::string(name)}));
}

struct CFactor {
  std::string m_strUnit;
  int m_nExponent;
};

std::string DerivedUnit(CStepFile& file, std::string_view kind,
                        std::initializer_list<CFactor> factors) {
  std::vector<std::string> elements;
  for (const CFactor& factor : factors) {
    elements.push_back(StepRef(
        file.Add("IFCDERIVEDUNITELEMENT", {factor.m_strUnit, std::to_string(factor.m_nExponent)})));
  }
  return StepRef(file.Add("IFCDERIVEDUNIT", {StepList(elements), std::string(kind), kStepUnset}));
}

// A square millimetre by its size: a prefix before SQUARE_METRE is read in two ways.
std::string SquareMillimetre(CStepFile& file) {
  const std::string metre2 = SiUnit(file, ".AREAUNIT.", kStepUnset, ".SQUARE_METRE.");
  const int size =
      file.Add("IFCMEASUREWITHUNIT", {StepTyped("IFCRATIOMEASURE", StepReal(1e-6)), metre2});
  const int exponents = file.Add("IFCDIMENSIONALEXPONENTS", {"2", "0", "0", "0", "0", "0", "0"});
  return StepRef(file.Add("IFCCONVERSIONBASEDUNIT", {StepRef(exponents), ".AREAUNIT.",
                                                     Quoted("SQUARE MILLIMETRE"), StepRef(size)}));
}

// --- Properties ----------------------------------------------------------------------------------

// The properties of one set, those without a value left out.
class CPropertySet {
 public:
  explicit CPropertySet(CStepFile& file) : m_file(file) {}

  void Add(std::string_view name, std::string_view measure, double value) {
    constexpr double kInfinite = 1e100;  // a modulus whose fibre lies on the axis
    if (!(std::fabs(value) < kInfinite)) return;
    m_arrProperty.push_back(StepRef(
        m_file.Add("IFCPROPERTYSINGLEVALUE",
                   {Quoted(name), kStepUnset, StepTyped(measure, StepReal(value)), kStepUnset})));
  }
  // Of an entity that says what the figures belong to.
  void AddTo(std::string_view entity, std::string_view name, int owner) const {
    if (m_arrProperty.empty()) return;
    m_file.Add(entity, {Quoted(name), kStepUnset, StepList(m_arrProperty), StepRef(owner)});
  }

 private:
  CStepFile& m_file;
  std::vector<std::string> m_arrProperty;
};

constexpr double kDensity = 7850;  // kg/m^3

// 0 for what rounding has left of it.
double Settled(double value, double scale) { return std::fabs(value) < 1e-9 * scale ? 0 : value; }

double Either(double told, double computed) { return std::isnan(told) ? computed : told; }

// What belongs to the profile as it is drawn: about axes parallel to the rectangle, where those of
// a cross of angles are aslant.
CRowFigures StraightFigures(const CDataItem& row) {
  CRowFigures f = RowFigures(row);
  if (f.m_bAslant) {
    f.m_dIx = f.m_dIy = CRowFigures::kUnknown;
    f.m_dWTop = f.m_dWBottom = f.m_dWLeft = f.m_dWRight = CRowFigures::kUnknown;
  }
  // A column's edges are told by its limbs' printed centroids, and its limbs are drawn by the true
  // ones, hundredths of a millimetre from these.
  if (LatticeLimbCount(row.GetTableName().View()) > 0) f.m_dXc = f.m_dYc = CRowFigures::kUnknown;
  return f;
}

}  // namespace

int AddIfcUnits(CStepFile& file) {
  const std::string mm = SiUnit(file, ".LENGTHUNIT.", ".MILLI.", ".METRE.");
  const std::string metre = SiUnit(file, ".LENGTHUNIT.", kStepUnset, ".METRE.");
  const std::string kg = SiUnit(file, ".MASSUNIT.", ".KILO.", ".GRAM.");
  const std::string kelvin = SiUnit(file, ".THERMODYNAMICTEMPERATUREUNIT.", kStepUnset, ".KELVIN.");
  const std::string stress = SiUnit(file, ".PRESSUREUNIT.", ".MEGA.", ".PASCAL.");
  const std::string units[] = {
      mm,
      kg,
      kelvin,
      stress,
      SiUnit(file, ".PLANEANGLEUNIT.", kStepUnset, ".RADIAN."),
      SquareMillimetre(file),
      DerivedUnit(file, ".SECTIONMODULUSUNIT.", {{mm, 3}}),
      DerivedUnit(file, ".MOMENTOFINERTIAUNIT.", {{mm, 4}}),
      DerivedUnit(file, ".WARPINGCONSTANTUNIT.", {{mm, 6}}),
      DerivedUnit(file, ".MASSPERLENGTHUNIT.", {{kg, 1}, {metre, -1}}),
      DerivedUnit(file, ".MASSDENSITYUNIT.", {{kg, 1}, {metre, -3}}),
      DerivedUnit(file, ".MODULUSOFELASTICITYUNIT.", {{stress, 1}}),
      DerivedUnit(file, ".THERMALEXPANSIONCOEFFICIENTUNIT.", {{kelvin, -1}})};
  return file.Add("IFCUNITASSIGNMENT", {StepList(units)});
}

int AddIfcSteel(CStepFile& file) {
  const int steel = file.Add("IFCMATERIAL", {Quoted("Steel"), kStepUnset, Quoted("steel")});
  CPropertySet common(file);
  common.Add("MassDensity", "IFCMASSDENSITYMEASURE", kDensity);
  common.AddTo("IFCMATERIALPROPERTIES", "Pset_MaterialCommon", steel);
  CPropertySet mechanical(file);
  mechanical.Add("YoungModulus", "IFCMODULUSOFELASTICITYMEASURE", 206e3);
  mechanical.Add("ShearModulus", "IFCMODULUSOFELASTICITYMEASURE", 79e3);
  mechanical.Add("ThermalExpansionCoefficient", "IFCTHERMALEXPANSIONCOEFFICIENTMEASURE", 12e-6);
  mechanical.AddTo("IFCMATERIALPROPERTIES", "Pset_MaterialMechanical", steel);
  return steel;
}

void AddProfileMechanical(CStepFile& file, const CDataItem& row, const COutline& outline,
                          int profile) {
  const CRowFigures told = StraightFigures(row);
  const CExactProperties exact = ExactProperties(row);
  const double area = Either(told.m_dArea, exact.A);
  const double x = Either(told.m_dXc, exact.xo);
  const double y = Either(told.m_dYc, exact.yo);
  constexpr std::string_view kLength = "IFCLENGTHMEASURE";
  constexpr std::string_view kSize = "IFCPOSITIVELENGTHMEASURE";
  constexpr std::string_view kArea = "IFCAREAMEASURE";
  constexpr std::string_view kInertia = "IFCMOMENTOFINERTIAMEASURE";
  constexpr std::string_view kModulus = "IFCSECTIONMODULUSMEASURE";
  CPropertySet set(file);
  set.Add("MassPerLength", "IFCMASSPERLENGTHMEASURE", 1e-6 * kDensity * area);
  set.Add("CrossSectionArea", kArea, area);
  set.Add("Perimeter", kSize, 1000 * exact.surface);
  set.Add("MinimumPlateThickness", kSize, told.m_dThinnest);
  set.Add("MaximumPlateThickness", kSize, told.m_dThickest);
  set.Add("CentreOfGravityInX", kLength, Settled(x - outline.m_dWidth / 2, 1));
  set.Add("CentreOfGravityInY", kLength, Settled(y - outline.m_dHeight / 2, 1));
  set.Add("ShearCentreZ", kLength, Settled(exact.ys - exact.yo, 1));
  set.Add("ShearCentreY", kLength, Settled(exact.xs - exact.xo, 1));
  set.Add("MomentOfInertiaY", kInertia, Either(told.m_dIx, exact.Ix));
  set.Add("MomentOfInertiaZ", kInertia, Either(told.m_dIy, exact.Iy));
  set.Add("MomentOfInertiaYZ", kInertia, Settled(exact.Ixy, exact.Ix + exact.Iy));
  set.Add("TorsionalConstantX", kInertia, exact.It);
  set.Add("WarpingConstant", "IFCWARPINGCONSTANTMEASURE", exact.Iw);
  set.Add("ShearDeformationAreaZ", kArea, exact.Asy);
  set.Add("ShearDeformationAreaY", kArea, exact.Asx);
  set.Add("MaximumSectionModulusY", kModulus, Either(told.m_dWTop, exact.Wx1));
  set.Add("MinimumSectionModulusY", kModulus, Either(told.m_dWBottom, exact.Wx2));
  set.Add("MaximumSectionModulusZ", kModulus, Either(told.m_dWRight, exact.WyR));
  set.Add("MinimumSectionModulusZ", kModulus, Either(told.m_dWLeft, exact.WyL));
  set.AddTo("IFCPROFILEPROPERTIES", "Pset_ProfileMechanical", profile);
}

}  // namespace orv3
