// The keys under which a member check's results are told.
#pragma once

#include <span>

#include "framework/export.h"
#include "members/member_answer.h"

namespace orv3 {

struct CMemberResult {
  const char* m_szKey;
  double CMemberResults::*m_pField;
};
ORV3CAL_API std::span<const CMemberResult> MemberResultKeys() noexcept;

struct CMemberText {
  const char* m_szKey;
  const char* CMemberResults::*m_pField;
};
ORV3CAL_API std::span<const CMemberText> MemberTextKeys() noexcept;

}  // namespace orv3
