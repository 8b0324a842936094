#include "section_view.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <iterator>
#include <nlohmann/json.hpp>

#include "framework/number_text.h"
#include "framework/utf8.h"
#include "sections/section_picture.h"
#include "sections/section_property.h"
#include "text_table.h"

namespace orv3 {
namespace {

constexpr double kNoFibre = 1e100;  // a modulus whose fibre lies on the axis

const char* Unit(int power) {
  constexpr const char* kUnits[] = {"", "mm", "mm²", "mm³", "mm⁴"};
  return kUnits[power];
}

// Three decimals for lengths, two for the rest, more for small values until six digits count.
std::string Value(double value, int power) {
  if (value == kNoFibre) return "∞";
  const double size = std::fabs(value);
  if (!std::isfinite(value) || size >= 1e15) return ToUtf8(FormatG(value));
  int decimals = power == 1 ? 3 : 2;
  if (size > 0 && size < 1) decimals = std::max(decimals, 5 - static_cast<int>(std::log10(size)));
  if (decimals > 15) return ToUtf8(FormatG(value));
  std::string text = ToUtf8(FormatFixed(value, decimals));
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

std::string Title(const char* english, const wchar_t* chinese) {
  return std::string(english) + " (" + ToUtf8(chinese) + ")";
}

void AddProperty(CTextTable& table, const CSectionProperty& p, const CSteelJMData& section) {
  const double value = section.*p.m_pField;
  std::vector<std::string> row = {Title(p.m_szMeaning, p.m_szTitle), p.m_szKey,
                                  Value(value, p.m_nPower), Unit(p.m_nPower)};
  if (value == kNoFibre) row.emplace_back("base point on the edge");
  table.AddRow(std::move(row));
}

}  // namespace

std::string SizeSymbol(const CSizeColumn& size) {
  const std::wstring_view sign(size.m_szSign);
  return ToUtf8(sign.substr(0, sign.find(L'(')));
}

CSteelJMData SampleSection(const CSectionStyle& style) {
  CSteelJMData section;
  section.m_nStyle = style.m_nStyle;
  std::copy(std::begin(style.m_sample.m_arrSize), std::end(style.m_sample.m_arrSize),
            section.m_dSize);
  section.m_dX = section.m_dY = style.m_sample.m_dBase;
  CSteelJMData::CalSectCharacterStyle(section);
  return section;
}

void PrintSection(const CSteelJMData& section) {
  const CSectionStyle& style = *FindSectionStyle(section.m_nStyle);
  std::cout << ToUtf8(style.m_szTable) << ": " << style.m_szShape;
  if (section.m_szName[0]) std::cout << ", No. " << ToUtf8(section.m_szName);
  std::cout << "\n\n";
  CTextTable table({CAlign::Left, CAlign::Left, CAlign::Point, CAlign::Left, CAlign::Left});
  table.SetHeading({"Title", "Sign", "Value", "Unit"});
  int i = 0;
  for (const CSizeColumn& size : style.Sizes()) {
    table.AddRow({Title(size.m_szMeaning, size.m_szTitle), SizeSymbol(size),
                  ToUtf8(FormatShortest(section.m_dSize[i++])), Unit(1)});
  }
  for (const CSectionProperty& p : SectionProperties()) {
    if (!p.m_bFirstMoment || style.m_bFirstMoments) AddProperty(table, p, section);
  }
  table.Print(std::cout);
}

nlohmann::ordered_json SectionJson(const CSteelJMData& section) {
  const CSectionStyle& style = *FindSectionStyle(section.m_nStyle);
  nlohmann::ordered_json properties;
  for (const CSectionProperty& p : SectionProperties().subspan(2)) {
    properties[p.m_szKey] = section.*p.m_pField;
  }
  return {{"style", section.m_nStyle},
          {"table", ToUtf8(style.m_szTable)},
          {"name", ToUtf8(section.m_szName)},
          {"sizes", std::vector<double>(section.m_dSize, section.m_dSize + style.m_nSizes)},
          {"base", {section.m_dX, section.m_dY}},
          {"properties", properties}};
}

std::string SectionSvg(const CSteelJMData& section) {
  const CSectionStyle& style = *FindSectionStyle(section.m_nStyle);
  CSectionPicture picture;
  picture.m_nStyle = section.m_nStyle;
  std::copy_n(section.m_dSize, style.m_nSizes, picture.m_arrSize.begin());
  picture.m_base = {section.m_dX, section.m_dY};
  picture.m_centroid = {section.m_dXo, section.m_dYo};
  picture.m_strTitle = style.m_szTable;
  picture.m_strName = section.m_szName;
  return SectionPictureSvg(picture);
}

}  // namespace orv3
