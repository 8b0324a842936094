// Messages to the user: one replaceable service that every part of the library goes through.
//
// A program installs the handler that suits it (the Windows module shows a message box). Without
// one the text goes to standard error and every question is declined.
#pragma once

#include <functional>

#include "framework/cstring.h"
#include "framework/export.h"

namespace orv3 {

enum class CMessageButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class CMessageAnswer { Ok, Cancel, Yes, No };

// An empty title means a plain box: the program's own title is shown.
struct CMessage {
  CString m_strTitle;
  CString m_strText;
  CMessageButtons m_nButtons = CMessageButtons::Ok;
};

using CMessageHandler = std::function<CMessageAnswer(const CMessage&)>;

// Installs `handler` for the whole process and returns the one it replaces; an empty handler puts
// the first one back. Not for use while another thread shows a message.
ORV3CAL_API CMessageHandler SetMessageHandler(CMessageHandler handler);

ORV3CAL_API CMessageAnswer ShowMessage(const CString& title, const CString& text,
                                       CMessageButtons buttons = CMessageButtons::Ok);

}  // namespace orv3
