#include "framework/excerpt.h"

#include "framework/utf8.h"

namespace orv3 {
namespace {

constexpr std::size_t kMostCharacters = 60;

bool StartsCharacter(char ch) noexcept { return (static_cast<unsigned char>(ch) & 0xC0) != 0x80; }

// The length without a last character that lacks bytes, as where a parser has stopped within one.
std::size_t WholeCharacters(std::string_view text) noexcept {
  for (std::size_t last = text.size(), bytes = 1; last-- > 0 && bytes < 4; ++bytes) {
    const auto lead = static_cast<unsigned char>(text[last]);
    if (!StartsCharacter(text[last])) continue;
    const std::size_t whole = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    return bytes < whole ? last : text.size();
  }
  return text.size();
}

}  // namespace

std::string Excerpt(std::string_view text) {
  std::size_t end = 0;
  for (std::size_t characters = 0; end < text.size(); ++end) {
    if (StartsCharacter(text[end]) && characters++ == kMostCharacters) break;
  }
  if (end == text.size()) end = WholeCharacters(text);
  return Visible(text.substr(0, end)) + (end < text.size() ? "…" : "");
}

}  // namespace orv3
