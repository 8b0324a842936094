#include "command.h"

#include <filesystem>
#include <iostream>
#include <nlohmann/json.hpp>

#include "framework/number_text.h"
#include "framework/utf8.h"
#include "platform/whole_file.h"

namespace orv3 {
namespace {

const char* Reason(CFileError error) {
  switch (error) {
    case CFileError::NotFound:
      return "its folder is not there";
    case CFileError::Busy:
      return "another program has it open";
    case CFileError::Denied:
      return "writing there is not allowed";
    default:
      return "writing failed; is the disk full?";
  }
}

// A folder, a device or a pipe: a new file must not take its place.
bool IsNoFile(const std::string& path) {
  const std::filesystem::path native(std::u8string(path.begin(), path.end()));
  std::error_code error;
  const auto status = std::filesystem::status(native, error);
  return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
}

}  // namespace

void BadInput(const std::string& what) { throw CCommandError(CExit::BadInput, what); }

double ParseNumber(const std::string& text, const std::string& what) {
  const CString wide = FromUtf8(text);
  if (!IsNumber(wide)) BadInput(what + " = \"" + text + "\": must be a finite number");
  return ToDouble(wide);
}

void WriteTextFile(const std::string& path, const std::string& text) {
  const auto fail = [&path](const char* reason) {
    throw CCommandError(CExit::FileTrouble, "cannot write \"" + path + "\": " + reason);
  };
  if (path.empty()) fail("a file name is missing");
  if (IsNoFile(path)) fail("it is not a file");
  const CFileError error = WriteWholeFile(FromUtf8(path), text);
  if (error != CFileError::None) fail(Reason(error));
}

void PrintJson(const nlohmann::ordered_json& json) { std::cout << json.dump(2) << '\n'; }

}  // namespace orv3
