#include "cases/case_reader.h"

#include "codes/slip.h"
#include "codes/weld_strength.h"
#include "framework/excerpt.h"

namespace orv3::cli {
namespace {

std::string Name(CCodeEdition edition) { return EditionFacts(edition).m_szName; }

}  // namespace

std::string CReportSheet::*SheetField(std::string_view name) noexcept {
  for (const CSheetKey& key : kSheetKeys) {
    if (name == key.m_szKey) return key.m_pField;
  }
  return nullptr;
}

CReportSheet SheetOf(const CCaseSchema& schema, const CCaseValues& values) {
  CReportSheet sheet;
  for (std::size_t i = 0; i < values.size(); ++i) {
    const auto* text = values[i] ? std::get_if<std::string_view>(&*values[i]) : nullptr;
    const auto field = SheetField(schema.Rules()[i].m_strKey);
    if (field != nullptr && text != nullptr) sheet.*field = *text;
  }
  return sheet;
}

bool MayLeaveOut(const std::string& key, const CKeyValue& value, const CKeyValue* steel) {
  const auto* text = std::get_if<std::string_view>(&value);
  if (key == "hole") return text != nullptr && *text == HoleName(CHoleKind::Standard);
  if (key != "electrode") return true;
  const auto* name = steel == nullptr ? nullptr : std::get_if<std::string_view>(steel);
  if (text == nullptr || name == nullptr) return false;
  const auto grade = GradeByName(CCodeEdition::Gb2003, *name);
  if (!grade) return true;  // which is refused by name
  const auto electrodes = ElectrodesOf(CCodeEdition::Gb2003, *grade);
  return std::any_of(electrodes.begin(), electrodes.end(),
                     [&](CElectrode each) { return *text == ElectrodeName(each); });
}

CCaseWarning LeftOut(const std::string& key, CCodeEdition edition) {
  const std::string name = Name(edition);
  return {key, {name + " 没有此项，计算中未用。", "Left out: " + name + " does not have it."}};
}

CCaseFault NotInEdition(const std::string& key, CCodeEdition edition) {
  const std::string name = Name(edition);
  const std::string other =
      EditionFacts(edition == CCodeEdition::Gb2003 ? CCodeEdition::Gb2017 : CCodeEdition::Gb2003)
          .m_szYear;
  return {key,
          {"按 " + name + " 不用", "has no place by " + name},
          {"请删去，或用 " + other + " 版", "leave it out, or take the " + other + " edition"}};
}

CCaseFault NoChoice(const std::string& key, CCodeEdition edition, const CKeyValue& value,
                    std::span<const char* const> choices) {
  const std::string name = Name(edition);
  const std::string is = ValueText(value);
  const auto* text = std::get_if<std::string_view>(&value);
  CText right;
  for (const char* choice : choices) {
    const bool bFirst = right.m_strEnglish.empty();
    right.m_strChinese += std::string(bFirst ? "“" : "、“") + choice + "”";
    right.m_strEnglish += std::string(bFirst ? "\"" : ", \"") + choice + "\"";
  }
  return {key,
          {name + (text != nullptr ? " 无“" + Excerpt(*text) + "”" : " 无 " + is),
           name + " has no " + is},
          {"请给出下列之一：" + right.m_strChinese, "give one of " + right.m_strEnglish}};
}

}  // namespace orv3::cli
