#include "framework/message.h"

#include <cstdio>
#include <utility>

#include "framework/utf8.h"

namespace orv3 {
namespace {

// What a program without a handler gets: the text on standard error, every question declined.
CMessageAnswer PrintMessage(const CMessage& message) {
  const std::string title = message.m_strTitle.IsEmpty() ? "" : ToUtf8(message.m_strTitle) + ": ";
  std::fprintf(stderr, "%s%s\n", title.c_str(), ToUtf8(message.m_strText).c_str());
  switch (message.m_nButtons) {
    case CMessageButtons::Ok:
      return CMessageAnswer::Ok;
    case CMessageButtons::YesNo:
      return CMessageAnswer::No;
    case CMessageButtons::OkCancel:
    case CMessageButtons::YesNoCancel:
      break;
  }
  return CMessageAnswer::Cancel;
}

CMessageHandler& Handler() {
  static CMessageHandler handler = PrintMessage;
  return handler;
}

}  // namespace

CMessageHandler SetMessageHandler(CMessageHandler handler) {
  return std::exchange(Handler(), handler ? std::move(handler) : PrintMessage);
}

CMessageAnswer ShowMessage(const CString& title, const CString& text, CMessageButtons buttons) {
  return Handler()({title, text, buttons});
}

}  // namespace orv3
