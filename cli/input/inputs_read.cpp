#include "input/inputs_read.h"

namespace orv3::cli {
namespace {

std::vector<std::filesystem::path> s_arrInput;

}  // namespace

void NoteInput(const std::string& path) {
  s_arrInput.emplace_back(std::u8string(path.begin(), path.end()));
}

void ForgetInputs() noexcept { s_arrInput.clear(); }

const std::vector<std::filesystem::path>& InputsRead() { return s_arrInput; }

}  // namespace orv3::cli
