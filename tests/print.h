// How GoogleTest shows the framework's types, and the messages that a test has caught.
#pragma once

#include <ostream>
#include <vector>

#include "framework/array.h"
#include "framework/cstring.h"
#include "framework/message.h"
#include "framework/utf8.h"

inline std::ostream& operator<<(std::ostream& out, const CString& text) {
  return out << '"' << orv3::ToUtf8(text) << '"';
}

// Catches every message while it lives, and answers it with Ok.
class CMessageCatcher {
 public:
  CMessageCatcher()
      : m_previous(orv3::SetMessageHandler([this](const orv3::CMessage& message) {
          m_arrMessage.push_back(message);
          return orv3::CMessageAnswer::Ok;
        })) {}
  ~CMessageCatcher() { orv3::SetMessageHandler(m_previous); }
  CMessageCatcher(const CMessageCatcher&) = delete;
  CMessageCatcher& operator=(const CMessageCatcher&) = delete;

  std::vector<orv3::CMessage> m_arrMessage;

 private:
  orv3::CMessageHandler m_previous;
};
