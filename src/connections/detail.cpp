#include "connections/detail.h"

#include <string>

#include "framework/plain_number.h"

namespace orv3 {
namespace {

// A formula as plain text: "min(8 d0, 12 t)".
std::string Plain(const char* formula) {
  std::string text;
  for (const char* at = formula; *at != 0; ++at) {
    if (*at != '\\' && *at != '_' && *at != '{' && *at != '}') text += *at;
  }
  return text;
}

}  // namespace

void NoteOfDetails(std::span<const CDetail> details, std::vector<CCaseWarning>& notes) {
  for (const CDetail& detail : details) {
    if (detail.Utilisation() <= 1 + 1e-9) continue;
    const CComparedText text = detail.m_bMost ? Compared(detail.m_dSize, detail.m_dLimit)
                                              : Compared(detail.m_dLimit, detail.m_dSize);
    const std::string size = detail.m_bMost ? text.m_strEffect : text.m_strLimit;
    const std::string limit = detail.m_bMost ? text.m_strLimit : text.m_strEffect;
    const std::string is = Plain(detail.m_szSize) + " = " + size + " mm";
    const std::string rule = Plain(detail.m_szLimit) + " = " + limit + " mm";
    const bool bTable = detail.m_szClause[0] == 'T';
    const std::string clause = bTable ? detail.m_szClause + 2 : detail.m_szClause;
    notes.push_back({detail.m_szKey,
                     {std::string(detail.m_name.m_szChinese) + "：" + is +
                          (detail.m_bMost ? "，大于 " : "，小于 ") + rule +
                          (bTable ? "（表 " + clause + "）。" : "（" + clause + " 条）。"),
                      std::string(detail.m_name.m_szEnglish) + ": " + is +
                          (detail.m_bMost ? " is above " : " is below ") + rule +
                          (bTable ? " (Table " : " (") + clause + ")."}});
  }
}

}  // namespace orv3
