// The checks of connections by name. What is listed here the command and the C interface know.
#pragma once

#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "connections/cases/bolt_case.h"
#include "connections/cases/weld_case.h"
#include "connections/gb2017/bolt_case.h"
#include "connections/gb2017/weld_case.h"
#include "connections/weld_group/group_case.h"
#include "framework/language.h"

namespace orv3 {

// A check by both editions.
template <class CHECK2003, class CHECK2017>
struct CConnectionKind {
  const char* m_szName;
  CTextLiteral m_title;  // of a report
};

inline constexpr std::tuple kConnectionKinds = {
    CConnectionKind<CBoltCheck, CBoltCheck2017>{"bolt", {"螺栓连接验算", "Bolted connections"}},
    CConnectionKind<CFilletCheck, CFilletCheck2017>{"fillet", {"角焊缝验算", "Fillet welds"}},
    CConnectionKind<CButtCheck, CButtCheck2017>{"butt", {"对接焊缝验算", "Butt welds"}},
    CConnectionKind<CWeldGroupCheck2003, CWeldGroupCheck2017>{
        "weld-group", {"角焊缝群验算", "Groups of fillet welds"}},
};

// Calls `use` with the kind of that name; false when there is none.
template <class USE>
bool WithConnectionKind(std::string_view name, USE use) {
  const auto isNamed = [&](const auto& kind) {
    if (name != kind.m_szName) return false;
    use(kind);
    return true;
  };
  return std::apply([&](const auto&... kind) { return (isNamed(kind) || ...); }, kConnectionKinds);
}

inline std::vector<std::string> ConnectionKindNames() {
  return std::apply([](const auto&... kind) { return std::vector<std::string>{kind.m_szName...}; },
                    kConnectionKinds);
}

}  // namespace orv3
