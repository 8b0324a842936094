// A folder of its own for a test, removed with everything in it at the end.
#pragma once

#include <filesystem>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "framework/cstring.h"
#include "framework/utf8.h"
#include "platform/patient_read.h"
#include "platform/whole_file.h"

class CTempFolder {
 public:
  CTempFolder() {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string("orv3cal-") + test->test_suite_name() + "-" + test->name();
    for (char& c : name) c = c == '/' ? '-' : c;
    name += "-" + std::to_string(std::random_device()());  // other runs of the tests have theirs
    m_path = std::filesystem::temp_directory_path() / name;
    std::filesystem::remove_all(m_path);
    std::filesystem::create_directories(m_path);
  }
  CTempFolder(const CTempFolder&) = delete;
  CTempFolder& operator=(const CTempFolder&) = delete;
  ~CTempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
  }

  // The folder's path with a separator at its end, and the path of a file in it.
  CString Path() const { return CString(m_path.wstring()) + L"/"; }
  CString Path(const wchar_t* name) const { return Path() + name; }

 private:
  std::filesystem::path m_path;
};

inline std::string Bytes(const CString& path) {
  std::string bytes;
  EXPECT_EQ(ReadPatiently(path, bytes), orv3::CFileError::None) << orv3::ToUtf8(path);
  return bytes;
}

inline bool Exists(const CString& path) {
  orv3::CFileStamp stamp;
  return orv3::SystemFiles().Stamp(path, stamp) == orv3::CFileError::None;
}

inline void PutBytes(const CString& path, std::string_view bytes) {
  ASSERT_EQ(orv3::WriteWholeFile(path, bytes), orv3::CFileError::None) << orv3::ToUtf8(path);
}
