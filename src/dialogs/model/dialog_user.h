// What a dialog's model asks for: of the person in front of it and of other dialogs. Windows
// answers with real boxes and dialogs, a test with prepared answers.
#pragma once

#include <vector>

#include "framework/cstring.h"
#include "framework/export.h"
#include "framework/message.h"

namespace orv3 {

class CColumnModel;
class CPropertyModel;
class CSignModel;
class CSpacingModel;
class CTableNameModel;

struct CFileFilter {
  CString m_strText;     // as shown
  CString m_strPattern;  // "*.Kvb"
};

class ORV3CAL_API CDialogUser {
 public:
  CDialogUser() = default;
  CDialogUser(const CDialogUser&) = delete;
  CDialogUser& operator=(const CDialogUser&) = delete;
  virtual ~CDialogUser() = default;

  virtual CMessageAnswer Message(const CMessage& message) = 0;
  // One line of text, `text` offered; false when cancelled.
  virtual bool AskText(const CString& title, const CString& label, CString& text) = 0;

  // Existing files, several at once; false when cancelled. The first filter is the one in force.
  virtual bool OpenFiles(const CString& title, const std::vector<CFileFilter>& filters,
                         std::vector<CString>& paths) = 0;
  // A file to write, `path` offered; an existing one has been confirmed. False when cancelled.
  virtual bool SaveFile(const CString& title, const std::vector<CFileFilter>& filters,
                        CString& path) = 0;

  // Runs the dialog of a model; true for OK.
  virtual bool Run(CPropertyModel& model) = 0;
  virtual bool Run(CSignModel& model) = 0;
  virtual bool Run(CSpacingModel& model) = 0;
  virtual bool Run(CColumnModel& model) = 0;
  virtual bool Run(CTableNameModel& model) = 0;

  // A long step: `done` goes from 0 to `total`, which ends it.
  virtual void Progress(const CString& what, int done, int total) = 0;

  // Boxes with OK alone, and a question of which only Yes is true.
  void Tell(const CString& text);  // titled "Orvo提醒您"
  void Tell(const CString& title, const CString& text);
  bool AskYesNo(const CString& title, const CString& text);
};

// While it lives, what the library says through ShowMessage goes to `user`.
class CMessageRoute {
 public:
  explicit CMessageRoute(CDialogUser& user);
  CMessageRoute(const CMessageRoute&) = delete;
  CMessageRoute& operator=(const CMessageRoute&) = delete;
  ~CMessageRoute();

 private:
  CMessageHandler m_previous;
};

// While it lives, what the library says through ShowMessage is kept; ShowTo ends that and shows it.
// Questions are declined.
class CHeldMessages {
 public:
  CHeldMessages();
  CHeldMessages(const CHeldMessages&) = delete;
  CHeldMessages& operator=(const CHeldMessages&) = delete;
  ~CHeldMessages();
  void ShowTo(CDialogUser& user);

 private:
  void GiveBack();

  std::vector<CMessage> m_arrMessage;
  CMessageHandler m_previous;
  bool m_bHolding = true;
};

}  // namespace orv3
