#include "dialogs/model/dialog_user.h"

#include "dialogs/model/dialog_texts.h"

namespace orv3 {

void CDialogUser::Tell(const CString& text) { Tell(texts::kReminder, text); }

void CDialogUser::Tell(const CString& title, const CString& text) {
  Message({title, text, CMessageButtons::Ok});
}

bool CDialogUser::AskYesNo(const CString& title, const CString& text) {
  return Message({title, text, CMessageButtons::YesNo}) == CMessageAnswer::Yes;
}

CMessageRoute::CMessageRoute(CDialogUser& user)
    : m_previous(
          SetMessageHandler([&user](const CMessage& message) { return user.Message(message); })) {}

CMessageRoute::~CMessageRoute() { SetMessageHandler(std::move(m_previous)); }

CHeldMessages::CHeldMessages()
    : m_previous(SetMessageHandler([this](const CMessage& message) {
        m_arrMessage.push_back(message);
        return message.m_nButtons == CMessageButtons::Ok ? CMessageAnswer::Ok : CMessageAnswer::No;
      })) {}

CHeldMessages::~CHeldMessages() { GiveBack(); }

void CHeldMessages::GiveBack() {
  if (m_bHolding) SetMessageHandler(std::move(m_previous));
  m_bHolding = false;
}

void CHeldMessages::ShowTo(CDialogUser& user) {
  GiveBack();
  for (const CMessage& message : m_arrMessage) user.Message(message);
  m_arrMessage.clear();
}

}  // namespace orv3
