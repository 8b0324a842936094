// Ties the keys of a case file to the fields of a check's case and of its report's head.
#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "cases/case_schema.h"
#include "cases/case_source.h"
#include "codes/edition.h"
#include "reports/report_document.h"

namespace orv3::cli {

// The key that names the edition of a case.
inline constexpr const char* kCodeKey = "code";

// The field of the report's head that a key fills; null for any other key.
std::string CReportSheet::*SheetField(std::string_view name) noexcept;

// What the case tells for the head of its report.
CReportSheet SheetOf(const CCaseSchema& schema, const CCaseValues& values);

// A key of the file that the check has only by the other edition.
CCaseFault NotInEdition(const std::string& key, CCodeEdition edition);
// A value that the edition does not have for a key.
CCaseFault NoChoice(const std::string& key, CCodeEdition edition, const CKeyValue& value,
                    std::span<const char* const> choices);

// Whether 2003, asked beside 2017, may leave out a key that it lacks: not where the key makes
// another joint of it, a hole that 2003 does not have or weld metal other than its own.
bool MayLeaveOut(const std::string& key, const CKeyValue& value, const CKeyValue* steel);
CCaseWarning LeftOut(const std::string& key, CCodeEdition edition);

// One check of one edition; a schema has the keys of both.
template <class CHECK>
class CCaseReader {
 public:
  CCaseReader(const CCaseSchema& schema, CCodeEdition edition)
      : m_schema(schema), m_nEdition(edition) {
    for (const auto& rule : schema.Rules()) {
      const auto keys = CHECK::InputKeys();
      const auto key = std::find_if(keys.begin(), keys.end(), [&](const auto& each) {
        return rule.m_strKey == each.m_szKey;
      });
      m_arrKey.push_back(key == keys.end() ? nullptr : &*key);
    }
  }

  // A refused case keeps its name. A key that only the other edition has is refused; with
  // `leftOut`, for both editions side by side, it is named there.
  std::optional<CCaseFault> Read(const CReadCase& read, typename CHECK::CCase& input,
                                 std::vector<CCaseWarning>* leftOut = nullptr) const {
    const CCaseValues& values = read.m_arrValue;
    input = {};
    SetName(values, input);
    if (read.m_fault) return read.m_fault;
    if (auto fault = m_schema.Check(values)) return fault;
    for (std::size_t i = 0; i < values.size(); ++i) {
      if (!values[i]) continue;
      const std::string& name = m_schema.Rules()[i].m_strKey;
      if (leftOut != nullptr && IsForeign(name, m_arrKey[i]) &&
          MayLeaveOut(name, *values[i], ValueOf("steel", values))) {
        leftOut->push_back(LeftOut(name, m_nEdition));
        continue;
      }
      if (auto fault = Set(m_schema.Rules()[i], m_arrKey[i], *values[i], input)) return fault;
    }
    return std::nullopt;
  }

 private:
  using CKey = CInputKey<typename CHECK::CCase>;

  std::optional<CCaseFault> Set(const CCaseSchema::CRule& rule, const CKey* key,
                                const CKeyValue& value, typename CHECK::CCase& input) const {
    if (IsForeign(rule.m_strKey, key)) return NotInEdition(rule.m_strKey, m_nEdition);
    if (key == nullptr) return std::nullopt;
    if (SetInput(input, *key, value)) return std::nullopt;
    if (!key->m_choices.empty()) return NoChoice(rule.m_strKey, m_nEdition, value, key->m_choices);
    return CCaseFault{rule.m_strKey, {"不可用", "is not possible"}, rule.Right()};
  }

  // A key of the check by the other edition alone.
  static bool IsForeign(const std::string& name, const CKey* key) {
    return key == nullptr && name != kCodeKey && SheetField(name) == nullptr;
  }

  const CKeyValue* ValueOf(const char* name, const CCaseValues& values) const {
    const int at = m_schema.Find(name);
    if (at < 0 || !values[static_cast<std::size_t>(at)]) return nullptr;
    return &*values[static_cast<std::size_t>(at)];
  }

  void SetName(const CCaseValues& values, typename CHECK::CCase& input) const {
    const int at = m_schema.Find("id");
    if (at < 0) return;
    const auto key = static_cast<std::size_t>(at);
    if (values[key]) SetInput(input, *m_arrKey[key], *values[key]);
  }

  const CCaseSchema& m_schema;
  const CCodeEdition m_nEdition;
  std::vector<const CKey*> m_arrKey;  // null where the edition has no such key
};

}  // namespace orv3::cli
