#include "output/output.h"

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "error.h"
#include "framework/language.h"
#include "framework/number_chars.h"
#include "framework/utf8.h"
#include "input/inputs_read.h"
#include "output/streams.h"
#include "platform/whole_file.h"
#include "tables/file/store_check.h"

namespace orv3::cli {
namespace {

// From here on a number stands for a fibre distance of 0.
constexpr double kInfinite = 1e100;

[[noreturn]] void NotWritten(const std::string& path, const std::string& reason) {
  throw CCommandError(CExit::FileTrouble,
                      Say("{1}: 没有写入，{2}", "{1}: not written, {2}", {path, reason}));
}

// A file that standard output goes to must not be replaced under it.
bool IsStandardOutput(const std::filesystem::path& file) {
  if constexpr (std::filesystem::path::preferred_separator != '/') return false;  // Windows
  std::error_code error;
  return std::filesystem::equivalent("/dev/stdout", file, error);
}

// A device or a pipe, whose place no file must take.
void WriteThrough(const std::filesystem::path& device, const std::string& path,
                  const std::string& bytes) {
  errno = 0;
  std::FILE* out = std::fopen(device.string().c_str(), "wb");
  if (!out)
    NotWritten(path, WriteTrouble(errno == EACCES ? CFileError::Denied : CFileError::Failed));
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), out) == bytes.size();
  const bool closed = std::fclose(out) == 0;
  if (written && closed) return;
  NotWritten(path, WriteTrouble(errno == ENOSPC ? CFileError::Full : CFileError::Failed));
}

// A picture, report or list takes the place neither of what the command reads nor of a store.
void KeepFromLoss(const std::filesystem::path& target, const std::string& path,
                  const std::string& bytes) {
  std::error_code error;
  for (const auto& input : InputsRead()) {
    if (std::filesystem::equivalent(input, target, error))
      Refuse(Say("{1}: 正是所读的文件；请另给名称",
                 "{1}: is the file that is read; right would be another name", {path}));
  }
  CStoreInfo store;
  const bool text = bytes.find('\0') == bytes.npos;
  if (text && std::filesystem::is_regular_file(target, error) &&
      ReadStoreInfo(FromUtf8(path), store)) {
    Refuse(Say("{1}: 是截面库；请另给名称",
               "{1}: is a store of sections; right would be another name", {path}));
  }
}

std::string& Saved() {
  static std::string note;
  return note;
}

}  // namespace

CJson JsonNumber(double value) {
  return std::fabs(value) < kInfinite ? CJson(value) : CJson(nullptr);
}

std::string NumberText(double value) {
  if (std::isnan(value)) return "-";
  if (std::fabs(value) >= kInfinite) return value > 0 ? "∞" : "-∞";
  char text[64];
  const int digits = std::fabs(value) >= 1e6 && std::fabs(value) < 1e15 ? 16 : 7;
  const double shown =
      digits == 16 ? std::round(value) : value;  // large numbers to the last whole unit
  char* end = text + sizeof text;
  return {text, std::fabs(value) >= 1e15 ? WriteScientific(text, end, shown, digits)
                                         : WriteGeneral(text, end, shown, digits)};
}

void Print(const std::string& text) { WriteOutput(Visible(text, true)); }

// JSON has its own escapes for controls, of which the library writes those below U+0020.
void PrintJson(const CJson& json) {
  std::string text;
  for (const char ch : json.dump(2)) {
    const auto byte = static_cast<unsigned char>(ch);
    const bool control = text.ends_with('\xC2') && byte < 0xA0;
    if (control) text.pop_back();
    if (control || byte == 0x7F) {
      char escape[8];
      std::snprintf(escape, sizeof escape, "\\u%04x", unsigned{byte});
      text += escape;
    } else {
      text += ch;
    }
  }
  WriteOutput(text + '\n');
}

void PrintCsv(const std::string& text) {
  WriteOutput(OutputIsWatched() ? Visible(text, true) : text);
}

void WriteFile(const std::string& path, const std::string& bytes) {
  const std::filesystem::path native(std::u8string(path.begin(), path.end()));
  std::error_code ignored;
  const auto status = std::filesystem::status(native, ignored);
  if (std::filesystem::is_directory(status)) NotWritten(path, Say("是文件夹", "it is a folder"));
  if (IsStandardOutput(native)) return WriteOutput(bytes);
  KeepFromLoss(native, path, bytes);
  if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
    return WriteThrough(native, path, bytes);
  }
  const CFileError error = WriteWholeFile(FromUtf8(path), bytes);
  if (error != CFileError::None) NotWritten(path, WriteTrouble(error));
}

std::string WriteTrouble(CFileError error) {
  switch (error) {
    case CFileError::NotFound:
      return Say("文件夹不存在", "its folder is not there");
    case CFileError::Busy:
      return Say("被其他程序打开", "another program has it open");
    case CFileError::Denied:
      return Say("文件只读，或当前用户不能使用其文件夹",
                 "it is write-protected, or its folder is closed to this user");
    case CFileError::Full:
      return Say("磁盘已满", "the disk is full");
    case CFileError::BadPath:
      return Say("名称过长，或链接循环", "its name is too long, or its links lead in a circle");
    case CFileError::None:
    case CFileError::NotAFile:
    case CFileError::Failed:
      break;
  }
  return Say("系统拒绝写入", "the system refused");
}

void NoteSaved(const std::string& what) { Saved() = what; }

const std::string& SavedNote() { return Saved(); }

}  // namespace orv3::cli
