#include "cases/case_bytes.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "error.h"
#include "framework/utf8.h"
#include "input/inputs_read.h"
#include "output/streams.h"
#include "platform/code_page.h"

namespace orv3::cli {
namespace {

constexpr std::size_t kPiece = std::size_t{1} << 16;

// The length of `text` without a character at its end that is not whole yet.
std::size_t WholeCharacters(std::string_view text) noexcept {
  for (std::size_t back = 1; back <= std::min<std::size_t>(3, text.size()); ++back) {
    const auto byte = static_cast<unsigned char>(text[text.size() - back]);
    if (byte < 0x80) break;
    if (byte < 0xC0) continue;
    const std::size_t length = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : 2;
    return text.size() - (length > back ? back : 0);
  }
  return text.size();
}

bool IsPipe(const std::filesystem::path& path) {
  std::error_code error;
  const auto status = std::filesystem::status(path, error);
  return std::filesystem::is_fifo(status) || std::filesystem::is_character_file(status);
}

}  // namespace

CCaseBytes::CCaseBytes(const std::string& path, bool spreadsheet, CLanguage language)
    : m_strPath(path),
      m_nLanguage(language),
      m_bSpreadsheet(spreadsheet),
      m_strPiece(kPiece, '\0') {
  const std::filesystem::path native(std::u8string(path.begin(), path.end()));
  if (path == "-") {
    m_pStream = std::make_unique<std::istream>(InputBuffer());
  } else if (IsPipe(native)) {
    m_pStream = std::make_unique<std::ifstream>(native, std::ios::binary);
  } else {
    OpenFile(path);
  }
}

void CCaseBytes::OpenFile(const std::string& path) {
  CFileError error{};
  m_pFile = Files().Open(FromUtf8(path), CFileMode::ReadShared, error);
  if (error == CFileError::NotFound) {
    RefuseFile({"文件不存在；请给出算例文件", "is not there; give a file of cases"});
  }
  if (Files().IsFolder(FromUtf8(path))) {
    RefuseFile({"是文件夹；请给出算例文件", "is a folder; give a file of cases"});
  }
  NoteInput(path);
  CFileStamp stamp;
  if (!m_pFile || !m_pFile->Stamp(stamp)) {
    RefuseFile({"无法读取；请给出算例文件", "cannot be read; give a file of cases"});
  }
  m_nSize = stamp.m_nSize;
}

// Appends the whole characters of a piece and answers their bytes. The first piece that is more
// than ASCII decides whether a spreadsheet's file is of UTF-8 or of the code page.
std::size_t CCaseBytes::AddCharacters(std::string_view piece, bool last, std::string& text) {
  std::size_t whole = last ? piece.size() : WholeCharacters(piece);
  std::string_view characters = piece.substr(0, whole);
  const bool utf8 = !m_bCodePage && IsUtf8(characters);
  if (characters.find('\0') != characters.npos || (!utf8 && (!m_bSpreadsheet || m_bUtf8))) {
    Refuse({"不是 UTF-8 文本；请另存为 UTF-8", "is no UTF-8 text; save it as UTF-8"});
  }
  if (utf8) {
    const auto isAscii = [](char ch) { return static_cast<unsigned char>(ch) < 0x80; };
    m_bUtf8 = m_bUtf8 || !std::all_of(characters.begin(), characters.end(), isAscii);
    text += characters;
    return whole;
  }
  m_bCodePage = true;
  whole = AnsiCut(piece, piece.size());
  characters = piece.substr(0, whole);
  const CString wide = FromAnsi(characters);
  if (HasMeaningless(wide.View()) || (last && whole < piece.size())) {
    Refuse({"既不是 UTF-8 文本，也不是系统字符集的文本；请另存为 UTF-8",
            "is text neither of UTF-8 nor of the code page; save it as UTF-8"});
  }
  text += ToUtf8(wide);
  return whole;
}

std::size_t CCaseBytes::Read(char* data, std::size_t size) {
  if (m_pFile) return m_pFile->Read(m_nAt, data, size);
  m_pStream->read(data, static_cast<std::streamsize>(size));
  return static_cast<std::size_t>(m_pStream->gcount());
}

bool CCaseBytes::More(std::string& text) {
  const std::size_t got = Read(m_strPiece.data() + m_nCut, m_strPiece.size() - m_nCut);
  m_nAt += got;
  const std::string_view piece(m_strPiece.data(), m_nCut + got);
  if (got == 0 && m_nAt < m_nSize) {
    RefuseFile({"读到一半出错；请检查磁盘", "cannot be read to its end; check the disk"});
  }
  const std::size_t whole = AddCharacters(piece, got == 0, text);
  m_nCut = piece.size() - whole;
  std::copy_n(m_strPiece.data() + whole, m_nCut, m_strPiece.data());
  return got > 0;
}

double CCaseBytes::Done() const noexcept {
  return m_nSize == 0 ? 0 : static_cast<double>(m_nAt) / static_cast<double>(m_nSize);
}

void CCaseBytes::Refuse(const CText& what) const {
  cli::Refuse(m_strPath + ": " + what.In(m_nLanguage));
}

void CCaseBytes::RefuseLongCase() const {
  Refuse(
      {"有一个算例超过 16 MB；请检查引号与括号是否成对",
       "has a case of more than 16 MB; see whether its quotation marks and brackets are closed"});
}

void CCaseBytes::RefuseFile(const CText& what) const {
  throw CCommandError(CExit::FileTrouble, m_strPath + ": " + what.In(m_nLanguage));
}

}  // namespace orv3::cli
