// What a dialog answers to its help button and F1: the topic for the host's help, and the text that
// is shown when the host has none.
#pragma once

namespace orv3 {

struct CDialogHelp {
  int m_nTemplate;
  const wchar_t* m_szTopic;  // the dialog's class
  const wchar_t* m_szText;
};

// Of a dialog's template; empty texts for one that has no help.
const CDialogHelp& HelpOf(int templateId) noexcept;

}  // namespace orv3
