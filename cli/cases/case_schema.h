// What a JSON Schema (docs/schema) asks of a case, compiled once and asked case by case.
//
// Of JSON Schema it understands what those files use: closed objects within objects, whose keys
// are "outer.inner" from here on, type, enum, minimum, exclusiveMinimum, maximum, exclusiveMaximum,
// minItems (0 or 1), items (numbers, closed objects of numbers that are all required, or closed
// objects of keys of the case itself: its parts), required, additionalProperties, oneOf lists of
// required keys, and allOf with if (const or minimum of one key) and then (required, and properties
// that are false: keys that must not be there). Anything else is refused at the start, so that a
// schema never promises what is not checked.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "output/output.h"
#include "reports/case_keys.h"

namespace orv3::cli {

// The values of one case, by the position of their keys in the schema; none where a key is left
// out.
using CCaseValues = std::vector<std::optional<CKeyValue>>;

// A value as an error quotes it.
std::string ValueText(const CKeyValue& value);

class CCaseSchema {
 public:
  // std::invalid_argument for a schema outside the subset.
  explicit CCaseSchema(std::string_view json);

  struct CRange {
    std::optional<double> m_minimum, m_above, m_maximum, m_below;
  };
  struct CRule {
    std::string m_strKey;
    bool m_bNumber = false;
    bool m_bInteger = false;
    bool m_bText = false;
    bool m_bArray = false;
    bool m_bBoolean = false;             // 1 or 0 as a value
    std::vector<std::string> m_arrText;  // allowed texts
    std::vector<double> m_arrNumber;     // allowed numbers
    bool m_bListed = false;              // whether another is refused here, not by the check
    CRange m_range;
    CRange m_items;                 // of the numbers of an array
    std::size_t m_nLeastItems = 0;  // of an array: 1 where an empty one says nothing
    // Of an array of objects: their keys and ranges. Its value is the objects' numbers, one object
    // after the other, in this order.
    std::vector<std::string> m_arrMember;
    std::vector<CRange> m_arrMemberRange;
    // Of an array of parts: the keys of the case that a part may give.
    std::vector<int> m_arrPartKey = {};
    CText Right() const;  // what would be right, in words
  };

  const std::vector<CRule>& Rules() const noexcept { return m_arrRule; }
  // The position of a key, -1 for an unknown one.
  int Find(std::string_view key) const noexcept;
  // Whether an object stands at this key, with keys of its own.
  bool IsObject(std::string_view key) const noexcept;
  // The fault of an unknown key, which names the known ones; in a part of a case those of `parts`.
  CCaseFault Unknown(std::string_view key) const;
  CCaseFault Unknown(std::string_view key, const CRule& parts) const;
  // The first thing wrong with a case.
  std::optional<CCaseFault> Check(const CCaseValues& values) const;

 private:
  struct CNeed {
    int m_nIf = -1;  // position of the key that the condition looks at, -1 for none
    std::string m_strConst;
    std::optional<double> m_minimum;
    std::vector<int> m_arrKey;
    std::vector<int> m_arrNever;  // keys that must not be there
  };
  CCaseFault Never(const CNeed& need, int key) const;
  bool Holds(const CNeed& need, const CCaseValues& values) const;
  std::optional<CCaseFault> CheckAlternatives(const CCaseValues& values) const;
  CNeed Condition(const CJson& json) const;
  std::vector<int> Positions(const CJson& keys) const;
  void AddObject(const std::string& key, const CJson& json);
  void AddPartKeys(const CJson& properties);

  std::vector<CRule> m_arrRule;
  std::vector<std::string> m_arrObject;
  std::vector<CNeed> m_arrNeed;
  std::vector<std::vector<int>> m_arrAlternative;
};

}  // namespace orv3::cli
