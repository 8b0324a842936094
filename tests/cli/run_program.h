// Runs the command orv3cal as a user does.
#pragma once

#include <string>

struct CRunResult {
  int m_nExit = -1;
  std::string m_strOut;
  std::string m_strError;
};

// `arguments` as typed, in UTF-8; quote with double quotes.
CRunResult RunProgram(const std::string& arguments);

// The name of a file that no other test uses: tests run side by side in one folder.
std::string OwnFile(const std::string& name);

// A file's bytes; empty when it is not there.
std::string FileBytes(const std::string& path);
