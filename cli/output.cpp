#include "output.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <filesystem>

#include "error.h"
#include "framework/utf8.h"
#include "platform/whole_file.h"

namespace orv3::cli {
namespace {

// From here on a number stands for a fibre distance of 0.
constexpr double kInfinite = 1e100;

const char* Reason(CFileError error) {
  switch (error) {
    case CFileError::NotFound:
      return "its folder is not there";
    case CFileError::Busy:
      return "another program has it open";
    case CFileError::Denied:
      return "it may not be written there";
    case CFileError::Full:
      return "the disk is full";
    case CFileError::None:
    case CFileError::Failed:
      break;
  }
  return "the system refused";
}

// A folder, a device or a pipe, whose place no file must take.
bool IsNoFile(const std::string& path) {
  const std::filesystem::path native(std::u8string(path.begin(), path.end()));
  std::error_code error;
  const auto status = std::filesystem::status(native, error);
  return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
}

[[noreturn]] void NotWritten(const std::string& path, const char* reason) {
  throw CCommandError(CExit::FileTrouble, path + ": not written, " + reason);
}

}  // namespace

CJson JsonNumber(double value) {
  return std::fabs(value) < kInfinite ? CJson(value) : CJson(nullptr);
}

std::string NumberText(double value) {
  if (std::isnan(value)) return "-";
  if (std::fabs(value) >= kInfinite) return value > 0 ? "∞" : "-∞";
  char text[64];
  const auto format =
      std::fabs(value) >= 1e15 ? std::chars_format::scientific : std::chars_format::general;
  const int digits = std::fabs(value) >= 1e6 && std::fabs(value) < 1e15 ? 16 : 7;
  const double shown =
      digits == 16 ? std::round(value) : value;  // large numbers to the last whole unit
  return {text, std::to_chars(text, text + sizeof text, shown, format, digits).ptr};
}

void Print(const std::string& text) { std::fwrite(text.data(), 1, text.size(), stdout); }

void PrintJson(const CJson& json) { Print(json.dump(2) + '\n'); }

void WriteFile(const std::string& path, const std::string& bytes) {
  if (IsNoFile(path)) NotWritten(path, "it is not a file");
  const CFileError error = WriteWholeFile(FromUtf8(path), bytes);
  if (error != CFileError::None) NotWritten(path, Reason(error));
}

}  // namespace orv3::cli
