// Cases of checks with some of their inputs changed, by the keys of a case file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "connections/gb2017/bolt_case.h"
#include "connections/gb2017/weld_case.h"
#include "connections/weld_group/group_case.h"

namespace orv3 {

// The input at one key: its number, or a spacing's numbers.
struct CChange {
  const char* key;
  double number;
  std::vector<double> each = {};
};

inline void Put(int& field, const CChange& change) { field = static_cast<int>(change.number); }
inline void Put(double& field, const CChange& change) { field = change.number; }
inline void Put(CSpacing& field, const CChange& change) { field = {change.number, change.each}; }
inline void Put(std::string&, const CChange&) {}
inline void Put(std::vector<double>& field, const CChange& change) { field = change.each; }

inline auto KeysOf(const CBoltCase&) { return CBoltCheck::InputKeys(); }
inline auto KeysOf(const CBoltCase2017&) { return CBoltCheck2017::InputKeys(); }
inline auto KeysOf(const CFilletCase&) { return CFilletCheck::InputKeys(); }
inline auto KeysOf(const CFilletCase2017&) { return CFilletCheck2017::InputKeys(); }
inline auto KeysOf(const CButtCase&) { return CButtCheck::InputKeys(); }
inline auto KeysOf(const CWeldGroupCase&) { return CWeldGroupCheck::InputKeys(); }

template <class CASE>
CASE With(CASE input, const std::vector<CChange>& changes) {
  for (const CChange& change : changes) {
    for (const auto& key : KeysOf(input)) {
      if (std::string_view(change.key) != key.m_szKey) continue;
      std::visit([&](auto field) { Put(input.*field, change); }, key.m_field);
    }
  }
  return input;
}

// Two columns of three M20 with room between them and to the edges.
inline CBoltCase SixBolts() {
  return With(CBoltCase(), {{"cols", 2},
                            {"rows", 3},
                            {"colSpace", 70},
                            {"rowSpace", 80},
                            {"d", 20},
                            {"ex", 50},
                            {"ey", 50}});
}

}  // namespace orv3
