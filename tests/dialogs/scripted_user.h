// A user whose answers a test has prepared. What is asked without an answer being ready fails the
// test and is declined.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "dialogs/model/column_model.h"
#include "dialogs/model/dialog_user.h"
#include "dialogs/model/property_model.h"
#include "dialogs/model/sign_model.h"
#include "dialogs/model/spacing_model.h"
#include "dialogs/model/table_name_model.h"
#include "print.h"

class CScriptedUser : public orv3::CDialogUser {
 public:
  ~CScriptedUser() override {
    EXPECT_TRUE(m_arrAnswer.empty()) << m_arrAnswer.size() << " answers were not asked for";
  }

  // Boxes with OK alone need no answer.
  orv3::CMessageAnswer Message(const orv3::CMessage& message) override {
    m_arrMessage.push_back(message);
    if (message.m_nButtons == orv3::CMessageButtons::Ok) return orv3::CMessageAnswer::Ok;
    return Next<orv3::CMessageAnswer>(m_arrAnswer, orv3::CMessageAnswer::No,
                                      orv3::ToUtf8(message.m_strText));
  }
  bool AskText(const CString& title, const CString&, CString& text) override {
    const auto answer = Next<CString>(m_arrText, CString(), orv3::ToUtf8(title));
    if (!answer.IsEmpty()) text = answer;
    return !answer.IsEmpty();
  }
  bool OpenFiles(const CString& title, const std::vector<orv3::CFileFilter>& filters,
                 std::vector<CString>& paths) override {
    m_arrAsked.push_back({title, filters});
    paths = m_arrOpen;
    return !paths.empty();
  }
  bool SaveFile(const CString& title, const std::vector<orv3::CFileFilter>& filters,
                CString& path) override {
    m_arrAsked.push_back({title, filters});
    path = m_strSave;
    return !path.IsEmpty();
  }

  bool Run(orv3::CPropertyModel& model) override { return Call(m_fnProperty, model, "property"); }
  bool Run(orv3::CSignModel& model) override { return Call(m_fnSign, model, "sign"); }
  bool Run(orv3::CSpacingModel& model) override { return Call(m_fnSpacing, model, "spacing"); }
  bool Run(orv3::CColumnModel& model) override { return Call(m_fnColumn, model, "column"); }
  bool Run(orv3::CTableNameModel& model) override {
    return Call(m_fnTableName, model, "table name");
  }
  void Progress(const CString&, int done, int total) override {
    m_arrProgress.push_back({done, total});
  }

  // The texts of the messages so far, which are forgotten.
  std::vector<std::string> TakeMessages() {
    std::vector<std::string> texts;
    for (const orv3::CMessage& message : std::exchange(m_arrMessage, {})) {
      texts.push_back(orv3::ToUtf8(message.m_strText));
    }
    return texts;
  }

  std::vector<orv3::CMessage> m_arrMessage;
  std::deque<orv3::CMessageAnswer> m_arrAnswer;
  std::deque<CString> m_arrText;  // an empty one cancels
  std::vector<CString> m_arrOpen;
  CString m_strSave;
  std::vector<std::pair<CString, std::vector<orv3::CFileFilter>>> m_arrAsked;
  std::vector<std::pair<int, int>> m_arrProgress;
  // What is done in a sub-dialog; true for OK.
  std::function<bool(orv3::CPropertyModel&)> m_fnProperty;
  std::function<bool(orv3::CSignModel&)> m_fnSign;
  std::function<bool(orv3::CSpacingModel&)> m_fnSpacing;
  std::function<bool(orv3::CColumnModel&)> m_fnColumn;
  std::function<bool(orv3::CTableNameModel&)> m_fnTableName;

 private:
  template <class ANSWER>
  static ANSWER Next(std::deque<ANSWER>& answers, ANSWER none, const std::string& asked) {
    if (answers.empty()) {
      ADD_FAILURE() << "no answer ready for: " << asked;
      return none;
    }
    ANSWER answer = answers.front();
    answers.pop_front();
    return answer;
  }
  template <class MODEL>
  static bool Call(const std::function<bool(MODEL&)>& dialog, MODEL& model, const char* name) {
    if (!dialog) ADD_FAILURE() << "the " << name << " dialog was not expected";
    return dialog && dialog(model);
  }
};
