#include "codes/plasticity.h"

namespace orv3 {
namespace {

// Tables 8.1.1 and 5.2.1, by item.
constexpr CPlasticFactors kFactors[] = {
    {1.05, 1.05, 1.2}, {1.05, 1.05, 1.05}, {1.05, 1.2, 1.2}, {1.05, 1.2, 1.05},
    {1.2, 1.2, 1.2},   {1.15, 1.15, 1.15}, {1.0, 1.0, 1.05}, {1.0, 1.0, 1.0},
};

CTextLiteral PlaceOf(CCodeEdition edition, CPlasticShape shape, CPlasticUse use) {
  if (edition == CCodeEdition::Gb2003) {
    if (use != CPlasticUse::Developed) return {"4.1.1", "4.1.1"};
    return {"表 5.2.1", "Table 5.2.1"};
  }
  if (shape == CPlasticShape::I || shape == CPlasticShape::Box || use != CPlasticUse::Developed)
    return {"6.1.2", "6.1.2"};
  return {"8.1.1 表 8.1.1", "8.1.1, Table 8.1.1"};
}

}  // namespace

CCodeAnswer<CPlasticFactors> PlasticFactors(CCodeEdition edition, CPlasticShape shape,
                                            CPlasticUse use) {
  CPlasticFactors factors = kFactors[static_cast<std::size_t>(shape)];
  const bool bKeepsY = edition == CCodeEdition::Gb2003 && use == CPlasticUse::SlenderFlange;
  if (use != CPlasticUse::Developed) factors = {1, 1, bKeepsY ? factors.m_dY : 1};
  return {factors, {edition, PlaceOf(edition, shape, use)}};
}

}  // namespace orv3
