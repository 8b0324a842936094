#include "platform/places.h"

#include <cstdlib>
#include <filesystem>
#include <string_view>

#include "platform/posix/native_path.h"

namespace orv3 {

CString ProgramFile() {
  std::error_code error;
  return FromNative(std::filesystem::read_symlink("/proc/self/exe", error).string());
}

CString Environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? FromNative(value) : CString();
}

CString UserDataFolder() {
  const char* data = std::getenv("XDG_DATA_HOME");
  if (data && *data == '/') return FromNative(std::string(data) + "/orv3cal");
  const char* home = std::getenv("HOME");
  return home && *home ? FromNative(std::string(home) + "/.local/share/orv3cal") : CString();
}

CLanguage UserLanguage() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(name);
    if (value && *value)
      return std::string_view(value).starts_with("zh") ? CLanguage::Chinese : CLanguage::English;
  }
  return CLanguage::English;
}

}  // namespace orv3
