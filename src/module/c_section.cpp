// The C interface: sections from their sizes.
#include <cmath>

#include "catalogue/exact/row_exact.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "module/c_support.h"
#include "sections/outline.h"
#include "sections/section_check.h"
#include "sections/section_property.h"
#include "sections/section_style.h"
#include "sections/steel_jm_data.h"

namespace orv3::c_interface {
namespace {

constexpr double kMaxLength = 1e6;     // mm: no section is a kilometre wide
constexpr std::size_t kBasePoint = 2;  // SectionProperties begins with x and y of the base point

const CSectionStyle& StyleOf(const orv3_char* argument) {
  const CString text = TextOf(argument, "style");
  const CSectionStyle* style = FindSectionStyle(text.View());
  if (style == nullptr) style = FindSectionAlias(ToUtf8(text));
  if (style == nullptr && FormatInt(ToInt(text)) == text) style = FindSectionStyle(ToInt(text));
  if (style == nullptr) {
    throw CFailure("style: \"" + ToUtf8(text) +
                   "\" is no section style; give a number 0 to 14, a table name or an alias");
  }
  return *style;
}

void CheckLength(const char* argument, double value) {
  if (!std::isfinite(value) || std::fabs(value) > kMaxLength)
    throw CFailure(std::string(argument) + ": must be a number within 1000000 mm");
}

CSteelJMData RecordOf(const CSectionStyle& style, const double* values, int count) {
  if (values == nullptr) throw CFailure("sizes: is null; give an array");
  if (count != style.m_nSizes) {
    throw CFailure("count: " + ToUtf8(style.TableName()) + " takes " +
                   std::to_string(style.m_nSizes) + " sizes, " + std::to_string(count) +
                   " were given; orv3_list_sizes names them");
  }
  CArray<double, double> sizes;
  for (int i = 0; i < count; ++i) {
    CheckLength("sizes", values[i]);
    sizes.Add(values[i]);
  }
  const std::span<const double> given(sizes.GetData(), static_cast<std::size_t>(count));
  if (const auto fault = CheckSectionSizes(style, given)) throw CFailure(fault->m_strText);
  CSteelJMData record;
  record.SetSectSize(style.m_nStyle, sizes);
  return record;
}

}  // namespace
}  // namespace orv3::c_interface

using namespace orv3;
using namespace orv3::c_interface;

int ORV3_CALL orv3_list_styles(orv3_char* text, int size) {
  return Guarded([&] {
    std::vector<CString> lines;
    for (const CSectionStyle& style : SectionStyles()) lines.emplace_back(style.TableName());
    return GiveText(JoinLines(lines), text, size);
  });
}

int ORV3_CALL orv3_list_sizes(const orv3_char* style, orv3_char* text, int size) {
  return Guarded([&] {
    std::vector<CString> lines;
    for (const CSizeColumn& column : StyleOf(style).Sizes()) lines.emplace_back(column.m_szSign);
    return GiveText(JoinLines(lines), text, size);
  });
}

int ORV3_CALL orv3_section(const orv3_char* style, const double* sizes, int count, double x,
                           double y, double* properties, int room) {
  return Guarded([&] {
    CSteelJMData record = RecordOf(StyleOf(style), sizes, count);
    CheckLength("x", x);
    CheckLength("y", y);
    record.m_dX = x;
    record.m_dY = y;
    CSteelJMData::CalSectCharacterStyle(record);
    std::vector<double> values;
    for (const CSectionProperty& property : SectionProperties().subspan(kBasePoint))
      values.push_back(record.*property.m_pField);
    return GiveValues(values, properties, room);
  });
}

int ORV3_CALL orv3_section_exact(const orv3_char* style, const double* sizes, int count,
                                 double* values, int room) {
  return Guarded([&] {
    const CSteelJMData record = RecordOf(StyleOf(style), sizes, count);
    const COutline outline = SectionOutline(record.m_nStyle, record.m_dSize);
    return GiveExact(ExactProperties(outline), values, room);
  });
}
