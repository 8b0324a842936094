// CSignModel: asks for a new model number when a copied section would repeat one (CSectSignSet).
#pragma once

#include <utility>

#include "framework/cstring.h"

namespace orv3 {

class CSignModel {
 public:
  explicit CSignModel(CString number) : m_strNumber(std::move(number)) {}

  // The number, blanks at its ends removed; the dialog closes with OK.
  void Ok(const CString& text) { m_strNumber = CString(text).Trim(); }
  CString Number() const { return m_strNumber; }

 private:
  CString m_strNumber;
};

}  // namespace orv3
