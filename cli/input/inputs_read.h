// The files that the command has read, which it then refuses to replace.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace orv3::cli {

// Notes a file, by its path in UTF-8.
void NoteInput(const std::string& path);
void ForgetInputs() noexcept;
const std::vector<std::filesystem::path>& InputsRead();

}  // namespace orv3::cli
