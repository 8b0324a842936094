#include "cli/run_program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>

#include "framework/utf8.h"
#include "platform/patient_read.h"

namespace {

std::string OwnPath(const std::string& name) {
  const auto* test = testing::UnitTest::GetInstance()->current_test_info();
  return std::string(test->test_suite_name()) + "." + test->name() + "." + name;
}

std::string ErrorFile() { return OwnPath("stderr.txt"); }

#ifdef _WIN32
std::FILE* Open(const std::string& arguments) {
  std::string program = "Z:" ORV3CAL_PROGRAM;
  for (char& ch : program) ch = ch == '/' ? '\\' : ch;
  const std::string line = "\"\"" + program + "\" " + arguments + " 2>" + ErrorFile() + "\"";
  return _wpopen(orv3::FromUtf8(line).GetString(), L"rb");
}
int Close(std::FILE* pipe) { return _pclose(pipe); }
#else
std::FILE* Open(const std::string& arguments) {
  return popen((ORV3CAL_PROGRAM " " + arguments + " 2>" + ErrorFile()).c_str(), "r");
}
int Close(std::FILE* pipe) { return pclose(pipe) / 256; }  // the exit status is the second byte
#endif

// Whatever the user of this machine reads.
const bool s_bEnglish = [] {
  SetVariable("ORV3CAL_LANG", "en");
  return true;
}();

// Windows programs end their lines with a carriage return too.
std::string WithoutReturns(std::string text) {
  std::erase(text, '\r');
  return text;
}

}  // namespace

COwnFile::COwnFile(const std::string& name) : m_strPath(OwnPath(name)) {}

COwnFile::COwnFile(const std::string& name, const std::string& bytes) : COwnFile(name) {
  orv3::WriteWholeFile(orv3::FromUtf8(m_strPath), bytes);
}

COwnFile::~COwnFile() { orv3::SystemFiles().Remove(orv3::FromUtf8(m_strPath)); }

std::string FileBytes(const std::string& path) {
  std::string bytes;
  ReadPatiently(orv3::FromUtf8(path), bytes);
  return bytes;
}

CRunResult RunProgram(const std::string& arguments) {
  CRunResult result;
  std::FILE* pipe = Open(arguments);
  if (pipe == nullptr) return result;
  std::array<char, 4096> buffer;
  for (std::size_t got = 1; (got = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) {
    result.m_strOut.append(buffer.data(), got);
  }
  result.m_nExit = Close(pipe);
  result.m_strOut = WithoutReturns(result.m_strOut);
  result.m_strError = WithoutReturns(FileBytes(ErrorFile()));
  std::remove(ErrorFile().c_str());
  return result;
}

Json JsonOf(const std::string& arguments, int exit) {
  const CRunResult run = RunProgram(arguments + " --json");
  EXPECT_EQ(run.m_nExit, exit) << arguments << ": " << run.m_strError;
  return run.m_strOut.empty() ? Json() : Json::parse(run.m_strOut);
}

void ExpectRefused(const std::vector<CRefusal>& refusals) {
  for (const CRefusal& refusal : refusals) {
    SCOPED_TRACE(refusal.arguments);
    const CRunResult run = RunProgram(refusal.arguments);
    EXPECT_EQ(run.m_nExit, refusal.exit);
    EXPECT_EQ(run.m_strOut, "");
    EXPECT_TRUE(orv3::IsUtf8(run.m_strError)) << run.m_strError;
    EXPECT_EQ(std::count(run.m_strError.begin(), run.m_strError.end(), '\n'), 1) << run.m_strError;
    ExpectHas(run.m_strError, refusal.names);
  }
}

void ExpectHas(const std::string& text, const std::vector<std::string>& parts) {
  for (const std::string& part : parts)
    EXPECT_NE(text.find(part), std::string::npos) << part << " in " << text;
}

void SetVariable(const char* name, const std::string& value) {
#ifdef _WIN32
  _wputenv_s(orv3::FromUtf8(name).GetString(), orv3::FromUtf8(value).GetString());
#else
  setenv(name, value.c_str(), 1);
#endif
}
