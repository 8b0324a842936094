// The text of a case file, piece by piece, so that a file of any size is read in little memory.
#pragma once

#include <cstdint>
#include <istream>
#include <memory>
#include <string>
#include <string_view>

#include "framework/language.h"
#include "platform/file_system.h"

namespace orv3::cli {

// The longest case that is read, bytes.
inline constexpr std::size_t kLongestCase = std::size_t{16} << 20;

class CCaseBytes {
 public:
  // "-" is standard input; a pipe is read as a file is. A spreadsheet may write text of the code
  // page in place of UTF-8. CCommandError when it cannot be opened.
  CCaseBytes(const std::string& path, bool spreadsheet, CLanguage language);

  // Appends a piece of whole characters in UTF-8; false at the end. CCommandError when it cannot be
  // read or is no such text.
  bool More(std::string& text);
  double Done() const noexcept;  // share of the file that has been read, 0 of a pipe
  CLanguage Language() const noexcept { return m_nLanguage; }
  // CCommandError that names the file.
  [[noreturn]] void Refuse(const CText& what) const;
  [[noreturn]] void RefuseLongCase() const;

 private:
  [[noreturn]] void RefuseFile(const CText& what) const;
  void OpenFile(const std::string& path);
  std::size_t Read(char* data, std::size_t size);
  std::size_t AddCharacters(std::string_view piece, bool last, std::string& text);

  const std::string m_strPath;
  const CLanguage m_nLanguage;
  const bool m_bSpreadsheet;
  bool m_bUtf8 = false;      // what has been read is
  bool m_bCodePage = false;  // or this
  std::unique_ptr<CFile> m_pFile;
  std::unique_ptr<std::istream> m_pStream;  // in place of the file
  std::uint64_t m_nSize = 0;
  std::uint64_t m_nAt = 0;
  std::string m_strPiece;
  std::size_t m_nCut = 0;  // bytes in front of the piece that begin a character
};

}  // namespace orv3::cli
