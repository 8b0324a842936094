#include "cases/member_reader.h"

#include <algorithm>
#include <stdexcept>

#include "cases/case_reader.h"
#include "cases/schemas.h"
#include "framework/excerpt.h"

namespace orv3::cli {
namespace {

// What a combination may share with the others, of the keys that it may give.
bool IsShared(std::string_view key) { return key == "id" || key == "load" || key == "loadFlange"; }

}  // namespace

CMemberReader::CMemberReader() : m_schema(SchemaOf("member")) {
  for (const auto& rule : m_schema.Rules()) {
    const auto keys = MemberInputKeys();
    const auto key = std::find_if(keys.begin(), keys.end(),
                                  [&](const auto& each) { return rule.m_strKey == each.m_szKey; });
    if (!rule.m_arrPartKey.empty()) m_pParts = &rule;
    if (key == keys.end() && rule.m_arrPartKey.empty() && SheetField(rule.m_strKey) == nullptr)
      throw std::logic_error("schema: no field for " + rule.m_strKey);
    m_arrKey.push_back(key == keys.end() ? nullptr : &*key);
  }
}

std::string CMemberReader::TextAt(const CCaseValues& values, std::string_view key) const {
  const auto& value = values[static_cast<std::size_t>(m_schema.Find(key))];
  const auto* text = value ? std::get_if<std::string_view>(&*value) : nullptr;
  return text != nullptr ? std::string(*text) : "";
}

std::optional<CCaseFault> CMemberReader::Read(const CReadCase& read, CReadMember& member) const {
  const CCaseValues& values = read.m_arrValue;
  member.m_strId = TextAt(values, "id");
  member.m_strCode = TextAt(values, kCodeKey);
  member.m_sheet = SheetOf(m_schema, values);
  member.m_arrCase.clear();
  member.m_bEnvelope =
      values[static_cast<std::size_t>(m_schema.Find(m_pParts->m_strKey))].has_value();
  if (read.m_fault) return read.m_fault;
  if (auto fault = m_schema.Check(values)) return fault;
  if (member.m_bEnvelope) return ReadCombinations(read, member);
  return ReadCase(values, member.m_arrCase.emplace_back());
}

std::optional<CCaseFault> CMemberReader::ReadCombinations(const CReadCase& read,
                                                          CReadMember& member) const {
  const std::string& cases = m_pParts->m_strKey;
  if (read.m_arrPart.empty())
    return CCaseFault{
        cases, {"没有组合", "holds no combination"}, {"请至少给一个", "give one at least"}};
  for (const int key : m_pParts->m_arrPartKey) {
    const std::string& name = m_schema.Rules()[static_cast<std::size_t>(key)].m_strKey;
    if (read.m_arrValue[static_cast<std::size_t>(key)] && !IsShared(name)) {
      return CCaseFault{name,
                        {"与 cases 同给", "stands beside cases"},
                        {"请在 cases 的各组合中给出", "give it in each of the cases"}};
    }
  }
  for (const CCaseValues& part : read.m_arrPart) {
    CCaseValues values = read.m_arrValue;
    for (const int key : m_pParts->m_arrPartKey) {
      const auto at = static_cast<std::size_t>(key);
      if (part[at]) values[at] = part[at];
    }
    std::string name = TextAt(part, "id");
    if (name.empty()) name = std::to_string(member.m_arrCase.size() + 1);
    if (std::any_of(member.m_arrCase.begin(), member.m_arrCase.end(),
                    [&](const CMemberCase& each) { return each.m_strId == name; })) {
      return OfCombination(name, {"id",
                                  {"出现两次", "stands twice"},
                                  {"请给各组合不同的编号", "give each combination its own"}});
    }
    auto fault = m_schema.Check(values);
    CMemberCase& input = member.m_arrCase.emplace_back();
    if (!fault) fault = ReadCase(values, input);
    if (fault) return OfCombination(name, std::move(*fault));
    input.m_strId = name;
  }
  return std::nullopt;
}

std::optional<CCaseFault> CMemberReader::ReadCase(const CCaseValues& values,
                                                  CMemberCase& input) const {
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (!values[i] || m_arrKey[i] == nullptr || SetInput(input, *m_arrKey[i], *values[i])) continue;
    const auto& rule = m_schema.Rules()[i];
    return CCaseFault{rule.m_strKey, {"不可用", "is not possible"}, rule.Right()};
  }
  return std::nullopt;
}

CCaseFault OfCombination(const std::string& name, CCaseFault fault) {
  fault.m_strKey = "cases[" + Excerpt(name) + "]." + fault.m_strKey;
  return fault;
}

}  // namespace orv3::cli
