#include "framework/excerpt.h"

#include "framework/utf8.h"

namespace orv3 {
namespace {

constexpr std::size_t kMostCharacters = 60;

bool StartsCharacter(char ch) noexcept { return (static_cast<unsigned char>(ch) & 0xC0) != 0x80; }

}  // namespace

std::string Excerpt(std::string_view text) {
  std::size_t end = 0;
  for (std::size_t characters = 0; end < text.size(); ++end) {
    if (StartsCharacter(text[end]) && characters++ == kMostCharacters) break;
  }
  return Visible(text.substr(0, end)) + (end < text.size() ? "…" : "");
}

}  // namespace orv3
