#include "sections/row_check.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "framework/message.h"
#include "framework/number_text.h"
#include "sections/geometry/row_values.h"
#include "sections/load_data_table.h"
#include "sections/section_check.h"
#include "sections/section_style.h"
#include "tables/data_item.h"
#include "tables/file/table_text.h"

namespace orv3 {
namespace {

using CFault = std::optional<CRowFault>;

// A cell as people know it: its title and sign.
CString Caption(const CDataItem& item, int cell) {
  return item.GetCellName(cell) + L" " + item.GetCellSign(cell);
}

const CString& Value(const CDataItem& item, int cell) {
  return item.m_arrCell.GetAt(cell).m_strValue;
}

CRowFault Fault(const CDataItem& item, int cell, const CSentence& what) {
  return {cell,
          {Caption(item, cell) + L"：" + what.m_strChinese,
           item.GetCellSign(cell) + L": " + what.m_strEnglish}};
}

bool IsControl(wchar_t ch) { return ch < L' ' || ch == L'\x7f'; }

// --- What a table file holds -------------------------------------------------------------------

CFault CheckStored(const CDataItem& item, int cell) {
  const CString& value = Value(item, cell);
  if (value.GetLength() > kMaxStoredValue) {
    return Fault(item, cell,
                 Both(L"共{1}个字符，最多{2}个，请缩短。", L"has {1} characters; give at most {2}",
                      {FormatInt(value.GetLength()), FormatInt(kMaxStoredValue)}));
  }
  const std::wstring_view text = value.View();
  if (std::any_of(text.begin(), text.end(), IsControl)) {
    return Fault(
        item, cell,
        Both(L"含有换行或控制字符，请删去。", L"has a line end or control character; take it out"));
  }
  if (text.find(L',') != std::wstring_view::npos) {
    return Fault(
        item, cell,
        Both(L"“{1}”含有逗号，逗号用于分隔数据，请改用其他字符。",
             L"\"{1}\" has a comma, which separates values; use another character", {value}));
  }
  bool missing = false;
  EncodeText(text, &missing);
  if (missing)
    return Fault(
        item, cell,
        Both(L"“{1}”含有系统字符集以外的字符，请改写。",
             L"\"{1}\" has a character that the code page lacks; write it otherwise", {value}));
  return {};
}

CFault CheckNo(const CDataItem& item) {
  const CString& no = Value(item, 0);
  if (CString(no).Trim().IsEmpty()) {
    return Fault(item, 0,
                 Both(L"不能为空，请输入型号，例如“H400X300”。",
                      L"is empty; give a number such as H400X300"));
  }
  if (CString(no).Trim() != no)
    return Fault(item, 0, Both(L"首尾不能有空格，请删去。", L"has a space at an end; take it out"));
  return CheckStored(item, 0);
}

// --- Numbers ------------------------------------------------------------------------------------

CFault CheckNumber(const CDataItem& item, int cell) {
  const CString& value = Value(item, cell);
  if (CString(value).Trim().IsEmpty())
    return Fault(item, cell, Both(L"不能为空，请输入数值。", L"is empty; give a number"));
  if (!IsNumber(value)) {
    return Fault(item, cell,
                 Both(L"“{1}”不是数值，请输入数字，例如“300”或“12.5”。",
                      L"\"{1}\" is no number; give one such as 300 or 12.5", {value}));
  }
  return CheckStored(item, cell);
}

CFault CheckPositive(const CDataItem& item, int cell) {
  if (auto fault = CheckNumber(item, cell)) return fault;
  if (ToDouble(Value(item, cell)) > 0) return {};
  return Fault(
      item, cell,
      Both(L"{1}不可用，应大于0。", L"{1} is not possible; give more than 0", {Value(item, cell)}));
}

// --- Sections of plates -------------------------------------------------------------------------

CSentence Wanted(const CSectionFault& fault) {
  switch (fault.m_nRule) {
    case CSizeRule::Positive:
      return Both(L"应大于0。", L"; give more than 0");
    case CSizeRule::NotNegative:
      return Both(L"不应小于0。", L"; give 0 or more");
    case CSizeRule::Below:
      return Both(L"与其他尺寸不符，应小于{1}。",
                  L" does not go with the other sizes; give less than {1}",
                  {FormatShortest(fault.m_dBound)});
    case CSizeRule::AtMost:
      return Both(L"与其他尺寸不符，不应大于{1}。",
                  L" does not go with the other sizes; give at most {1}",
                  {FormatShortest(fault.m_dBound)});
    case CSizeRule::Finite:
      break;
  }
  return Both(L"应为有限的数值。", L"; give a finite number");
}

CFault CheckSection(const CDataItem& item, const CSectionStyle& style) {
  std::vector<double> sizes;
  for (int cell = 1; cell <= style.m_nSizes; ++cell) {
    if (auto fault = CheckNumber(item, cell)) return fault;
    sizes.push_back(ToDouble(Value(item, cell)));
  }
  if (const auto fault = CheckSectionSizes(style, sizes)) {
    const int cell = fault->m_nSize + 1;
    const CSentence wanted = Wanted(*fault);
    return Fault(
        item, cell,
        {Value(item, cell) + wanted.m_strChinese, Value(item, cell) + wanted.m_strEnglish});
  }
  for (int cell = style.m_nSizes + 1; cell <= style.m_nSizes + 2; ++cell) {  // the base point
    if (auto fault = CheckNumber(item, cell)) return fault;
  }
  return {};
}

// --- Lattice columns ----------------------------------------------------------------------------

CString LimbSign(int limb, const wchar_t* what) { return L"P" + FormatInt(limb) + what; }

CFault CheckAngle(const CDataItem& item, int cell) {
  if (auto fault = CheckNumber(item, cell)) return fault;
  const double quarters = ToDouble(Value(item, cell)) / 90;
  if (quarters >= 0 && quarters < 4 && quarters == std::floor(quarters)) return {};
  return Fault(item, cell,
               Both(L"{1}不可用，应为0、90、180或270。",
                    L"{1} is not possible; give 0, 90, 180 or 270", {Value(item, cell)}));
}

CFault CheckLimb(const CDataItem& item, int limb) {
  const int type = item.GetSignIndex(LimbSign(limb, L"Type"));
  const int number = item.GetSignIndex(LimbSign(limb, L"No."));
  const int angle = item.GetSignIndex(LimbSign(limb, L"θ°"));
  if (number < 0 || angle < 0)
    return CRowFault{-1, Both(L"本行缺少第{1}肢的数据。", L"the row lacks the cells of limb {1}",
                              {FormatInt(limb)})};
  for (const int cell : {type, number}) {
    if (auto fault = CheckStored(item, cell)) return fault;
  }
  if (!CLoadDataTable::IsTableNameType(Value(item, type), kCatalogueTables)) {
    return Fault(item, type,
                 Both(L"“{1}”不是标准型钢表名，应为例如“热轧普通槽钢”。",
                      L"\"{1}\" is no table of rolled sections; give one such as 热轧普通槽钢",
                      {Value(item, type)}));
  }
  if (ComponentRow(Value(item, type), Value(item, number)).IsEmpty()) {
    return Fault(item, number,
                 Both(L"系统库的“{1}”中没有“{2}”，请选择库中已有的型号。",
                      L"the catalogue's {1} has no \"{2}\"; choose a number that it has",
                      {Value(item, type), Value(item, number)}));
  }
  return CheckAngle(item, angle);
}

CFault CheckLattice(const CDataItem& item) {
  for (const wchar_t* sign : {L"k(mm)", L"kx(mm)", L"ky(mm)"}) {
    const int cell = item.GetSignIndex(sign);
    if (cell < 0) continue;
    if (auto fault = CheckPositive(item, cell)) return fault;
  }
  for (int limb = 1; item.GetSignIndex(LimbSign(limb, L"Type")) >= 0; ++limb) {
    if (auto fault = CheckLimb(item, limb)) return fault;
  }
  return {};
}

// --- Rows of any other table --------------------------------------------------------------------

// Where a pair's spacing stands: its parts may touch.
bool IsSpacing(const CDataItem& item, int cell) {
  constexpr long kPairs = TABLE_ROLLED | TABLE_FAMILY_ANGLE_PAIR | TABLE_FAMILY_CHANNEL_PAIR;
  return cell == 1 && CLoadDataTable::IsTableNameType(item.m_strTableName, kPairs) != 0;
}

// A figure of the catalogue: what a rolled section measures and what follows from it. A size is
// above 0, a radius, a weld or a property may be 0. No section is wider than a kilometre.
CFault CheckFigure(const CDataItem& item, int cell) {
  constexpr double kMostLength = 1e6, kMost = 1e15;
  const CString sign = item.GetCellSign(cell);
  const bool length = sign.Right(4) == L"(mm)";
  const bool size = length && sign.Left(1) != L"r" && sign != L"hf(mm)" && !IsSpacing(item, cell);
  const double value = ToDouble(Value(item, cell));
  const double most = length ? kMostLength : kMost;
  if (value > most) {
    return Fault(item, cell,
                 Both(L"{1}不可用，不应大于{2}。", L"{1} is not possible; give at most {2}",
                      {Value(item, cell), FormatG(most)}));
  }
  if (value > 0 || (value == 0 && !size)) return {};
  return Fault(item, cell,
               size ? Both(L"{1}不可用，应大于0。", L"{1} is not possible; give more than 0",
                           {Value(item, cell)})
                    : Both(L"{1}不可用，不应小于0。", L"{1} is not possible; give 0 or more",
                           {Value(item, cell)}));
}

CFault CheckCells(const CDataItem& item) {
  const bool rolled = CLoadDataTable::IsTableNameType(item.m_strTableName, kCatalogueTables) != 0;
  for (int cell = 1; cell < item.GetItemLength(); ++cell) {
    const bool number = ValueClassOf(item.m_arrCell.GetAt(cell).m_nType) != CValueClass::Text;
    const bool empty = CString(Value(item, cell)).Trim().IsEmpty();
    if (auto fault = number && !empty ? CheckNumber(item, cell) : CheckStored(item, cell)) {
      return fault;
    }
    const bool figure = rolled && IsNumber(Value(item, cell));  // a T's height is kept as text
    if (auto fault = figure ? CheckFigure(item, cell) : CFault()) return fault;
  }
  return {};
}

}  // namespace

std::optional<CRowFault> CheckRow(const CDataItem& item) {
  const CSectionStyle* style = FindSectionStyle(item.m_strTableName.View());
  if (item.GetItemLength() < (style ? style->m_nSizes + 3 : 2)) {
    return CRowFault{
        -1, Both(L"本行数据不完整，应先按“{1}”的列填写。",
                 L"the row is incomplete; fill in the columns of \"{1}\"", {item.m_strTableName})};
  }
  if (auto fault = CheckNo(item)) return fault;
  if (style) return CheckSection(item, *style);
  const CSectionTable* table = FindSectionTable(item.m_strTableName);
  return table && table->m_nLimbs > 0 ? CheckLattice(item) : CheckCells(item);
}

}  // namespace orv3

int CLoadDataTable::CheckCustomDataItem(const CDataItem& item) {
  const auto fault = orv3::CheckRow(item);
  if (fault) orv3::ShowMessage(L"Orvo提醒您", fault->m_text.m_strChinese);
  return fault ? 0 : 1;
}
