// The section that a case names: a row of a table, of sizes, or of a lattice column.
#include <cmath>

#include "catalogue/lattice/lattice_limbs.h"
#include "catalogue/outline/row_spacing.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "members/cases/member_case.h"
#include "sections/load_data_table.h"
#include "sections/section_kind.h"
#include "sections/section_style.h"
#include "sections/system_tables.h"

namespace orv3 {

CCaseFault NoRowFault(CCaseFault missing) {
  if (!IsStoreUnread()) return missing;
  const std::string what = ToUtf8(UnreadReason());
  return {missing.m_strKey, {what, what}, {"请给出可以读取的库", "give a store that can be read"}};
}

namespace {

CDataItem TableRow(const CMemberCase& input, std::optional<CCaseFault>& fault) {
  const CString table = FromUtf8(input.m_strTable);
  CDataItem row = CLoadDataTable::GetSysTemJMItem(table, FromUtf8(input.m_strNo));
  if (row.IsEmpty()) {
    const std::string named = input.m_strTable + " " + input.m_strNo;
    fault = NoRowFault({"section",
                        {"库中没有 " + named, "the store has no " + named},
                        {"请给出库中的表和型号", "give a table and a number of the store"}});
    return row;
  }
  if (std::isnan(input.m_dGap)) return row;
  if (PairSpacingSign(row.GetTableName()).IsEmpty() || !IsPairGap(input.m_dGap)) {
    fault = PairGapFault();
    return row;
  }
  return WithPairSpacing(row, static_cast<int>(input.m_dGap));
}

CDataItem StyleRow(const CMemberCase& input, std::optional<CCaseFault>& fault) {
  const CSectionStyle* style = StyleNamed(input.m_strStyle);
  if (style == nullptr) {
    fault = CCaseFault{"section.style",
                       {input.m_strStyle + " 不是截面类型", input.m_strStyle + " is no style"},
                       {"请给出类型号 0 至 14、表名或别名",
                        "give a style number 0 to 14, its table or its alias"}};
    return {};
  }
  std::vector<double> sizes = input.m_sizes.m_arrEach;
  if (sizes.empty() && input.m_sizes.m_dUniform != 0) sizes = {input.m_sizes.m_dUniform};
  if (static_cast<int>(sizes.size()) != style->m_nSizes) {
    const std::string count = std::to_string(style->m_nSizes);
    fault = CCaseFault{"section.sizes",
                       {"尺寸个数不对", "has another number of sizes"},
                       {"请给出 " + count + " 个尺寸", "give " + count + " sizes"}};
    return {};
  }
  return SizesRow(*style, sizes, fault);
}

// The row of a lattice column as the case gives it.
CDataItem LatticeRow(const CMemberCase& input, std::optional<CCaseFault>& fault) {
  const int limbs = LatticeLimbCount(FromUtf8(input.m_strLattice).GetString());
  if (limbs == 0) {
    fault = CCaseFault{
        "section.lattice.table",
        {input.m_strLattice + " 不是格构柱表",
         input.m_strLattice + " is no table of lattice columns"},
        {"请给出双肢格构柱、三肢格构柱或四肢格构柱", "give 双肢格构柱, 三肢格构柱 or 四肢格构柱"}};
    return {};
  }
  CSteelItemGeGou row(limbs);
  const auto number = [](double value) {
    return std::isnan(value) ? CString() : FormatShortest(value);
  };
  const auto set = [&row](const wchar_t* sign, const CString& value) {
    const int at = row.GetSignIndex(sign);
    if (at >= 0) row.m_arrCell.Own(at).m_strValue = value;
  };
  set(L"k(mm)", number(input.m_dK));
  set(L"kx(mm)", number(input.m_dKx));
  set(L"ky(mm)", number(input.m_dKy));
  const std::string* types[] = {&input.m_strLimb1, &input.m_strLimb2, &input.m_strLimb3,
                                &input.m_strLimb4};
  const std::string* numbers[] = {&input.m_strNo1, &input.m_strNo2, &input.m_strNo3,
                                  &input.m_strNo4};
  const double turns[] = {input.m_dTurn1, input.m_dTurn2, input.m_dTurn3, input.m_dTurn4};
  for (std::size_t i = 0; i < static_cast<std::size_t>(limbs); ++i) {
    set(kLimbColumns[i].m_szType, FromUtf8(*types[i]));
    set(kLimbColumns[i].m_szNo, FromUtf8(*numbers[i]));
    set(kLimbColumns[i].m_szAngle, number(turns[i]));
  }
  return row;
}

CLacingInput LacingOf(const CMemberCase& input) {
  return {input.m_strBond,      input.m_strBar,       input.m_strBarNo,     input.m_dBarAngle,
          input.m_dBattenWidth, input.m_dBattenThick, input.m_dBattenPitch, input.m_dLimbLength};
}

// What names the section of a case, told apart from every other.
std::string SectionName(const CMemberCase& input) {
  std::string name;
  const auto add = [&name](const std::string& text) { name += text + '\n'; };
  const auto addNumber = [&name](double value) {
    name.append(reinterpret_cast<const char*>(&value), sizeof value);
  };
  add(input.m_strTable);
  add(input.m_strNo);
  addNumber(input.m_dGap);
  add(input.m_strStyle);
  addNumber(input.m_sizes.m_dUniform);
  for (const double size : input.m_sizes.m_arrEach) addNumber(size);
  if (input.m_strLattice.empty() && input.m_strBond.empty()) return name;
  for (const auto& key : MemberInputKeys()) {
    const std::string_view sign = key.m_szKey;
    if (!sign.starts_with("section.la")) continue;
    if (const auto* text = std::get_if<std::string CMemberCase::*>(&key.m_field)) {
      add(input.**text);
    } else if (const auto* number = std::get_if<double CMemberCase::*>(&key.m_field)) {
      addNumber(input.**number);
    }
  }
  return name;
}

}  // namespace

CMemberCheck::CFound* CMemberCheck::Section(const CMemberCase& input) {
  const bool bTable = !input.m_strTable.empty(), bSizes = !input.m_strStyle.empty();
  const bool bLattice = !input.m_strLattice.empty();
  const int ways = int{bTable} + int{bSizes} + int{bLattice};
  if (ways != 1) {
    Refuse("section",
           ways > 1 ? CText{"给了不止一种", "is given in more than one way"}
                    : CText{"缺失", "is missing"},
           {"请给出 table 与 no、style 与 sizes，或 lattice 与 lacing",
            "give table with no, style with sizes, or lattice with lacing"});
    return nullptr;
  }
  auto& found = m_mapSection[SectionName(input)];
  if (!found) {
    found = std::make_unique<CFound>();
    auto& fault = found->m_fault;
    found->m_item = bTable   ? TableRow(input, fault)
                    : bSizes ? StyleRow(input, fault)
                             : LatticeRow(input, fault);
    if (!fault && LatticeLimbCount(found->m_item.GetTableName().GetString()) > 0) {
      found->m_lattice.emplace();
      fault = ReadMemberLattice(found->m_item, LacingOf(input), *found->m_lattice);
    } else if (!fault) {
      fault = ReadMemberRow(found->m_item, found->m_row);
    }
    if (!fault && !found->m_lattice && !input.m_strBond.empty())
      fault = CCaseFault{"section.lacing",
                         {"只用于格构柱", "is for lattice columns alone"},
                         {"请删去", "leave it out"}};
  }
  if (found->m_fault) {
    Refuse(*found->m_fault);
    return nullptr;
  }
  m_pFound = found.get();
  return found.get();
}

}  // namespace orv3
