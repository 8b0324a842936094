#include "input/input.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "error.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "input/inputs_read.h"
#include "output/streams.h"
#include "platform/whole_file.h"

namespace orv3::cli {
namespace {

constexpr const char* kStandardInput = "-";

std::filesystem::path NativePath(const std::string& path) {
  return {std::u8string(path.begin(), path.end())};
}

[[noreturn]] void NotRead(const std::string& path, const std::string& why) {
  throw CCommandError(CExit::FileTrouble, path + ": " + why);
}

std::string ReadStream(std::istream& stream, std::uint64_t most) {
  std::string bytes;
  std::string part(std::size_t{1} << 16, '\0');
  while (bytes.size() <= most && stream) {
    stream.read(part.data(), std::ssize(part));
    bytes.append(part, 0, static_cast<std::size_t>(stream.gcount()));
  }
  return bytes;
}

}  // namespace

bool IsStream(const std::string& path) {
  if (path == kStandardInput) return true;
  std::error_code ignored;
  const auto status = std::filesystem::status(NativePath(path), ignored);
  return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status) &&
         !std::filesystem::is_directory(status);
}

std::string ReadInput(const std::string& path, std::uint64_t most) {
  if (path == kStandardInput) {
    std::istream input(InputBuffer());
    return ReadStream(input, most);
  }
  if (IsStream(path)) {
    std::ifstream stream(NativePath(path), std::ios::binary);
    if (!stream) NotRead(path, Say("不能读取", "cannot be read"));
    return ReadStream(stream, most);
  }
  NoteInput(path);
  std::error_code ignored;
  if (std::filesystem::is_directory(NativePath(path), ignored))
    NotRead(path, Say("是文件夹，应为文件", "it is a folder; right would be a file"));
  std::string bytes;
  switch (ReadWholeFile(FromUtf8(path), bytes, most + 1)) {
    case CFileError::None:
      return bytes;
    case CFileError::NotFound:
      NotRead(path, Say("文件不存在", "not found"));
    case CFileError::Busy:
      NotRead(path, Say("被其他程序打开", "another program has it open"));
    case CFileError::Denied:
      NotRead(path, Say("当前用户没有读取权限", "it may not be read by this user"));
    case CFileError::BadPath:
      NotRead(path,
              Say("名称过长，或链接循环", "its name is too long, or its links lead in a circle"));
    default:
      NotRead(path, Say("不能读取", "cannot be read"));
  }
}

}  // namespace orv3::cli
