// Runs the command orv3cal as a user does.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

using Json = nlohmann::json;

struct CRunResult {
  int m_nExit = -1;
  std::string m_strOut;
  std::string m_strError;
};

// `arguments` as typed, in UTF-8; quote with double quotes.
CRunResult RunProgram(const std::string& arguments);

// The option that takes the catalogue of the build, whatever the machine's user keeps.
inline const std::string kData = " --data \"" ORV3CAL_CATALOGUE "\"";

// What a command prints with --json; an exit other than expected fails the test.
Json JsonOf(const std::string& arguments, int exit = 0);

// A variable of this process and of the programs that it runs.
void SetVariable(const char* name, const std::string& value);

struct CRefusal {
  std::string arguments;
  std::vector<std::string> names;  // what the message must name
  int exit = 2;
};
// Each command prints nothing and says its fault in one line.
void ExpectRefused(const std::vector<CRefusal>& refusals);

// Every part stands in the text.
void ExpectHas(const std::string& text, const std::vector<std::string>& parts);

// A file's bytes; empty when it is not there.
std::string FileBytes(const std::string& path);

// A file under a name that no other test uses, since tests run side by side in one folder; removed
// in the end.
class COwnFile {
 public:
  explicit COwnFile(const std::string& name);  // not there yet
  COwnFile(const std::string& name, const std::string& bytes);
  COwnFile(const COwnFile&) = delete;
  COwnFile& operator=(const COwnFile&) = delete;
  ~COwnFile();
  std::string Bytes() const { return FileBytes(m_strPath); }

  const std::string m_strPath;
};
