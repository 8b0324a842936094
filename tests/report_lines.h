// Holds every line of a report that ends in numbers against its own arithmetic: "0.7 × 8"
// beside 5.6, "√(31^2 + 4.2^2) = 31.28 ≤ 215". A printed number stands for all that are printed
// like it, so each is an interval of half a unit of its last digit; a line is true when the
// intervals meet.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <regex>
#include <stdexcept>
#include <string>
#include <string_view>

namespace report_lines {

struct CInterval {
  double low, high;
  bool Meets(const CInterval& other) const { return low <= other.high && other.low <= high; }
};

inline CInterval Bounds(std::initializer_list<double> values) {
  const auto [low, high] = std::minmax(values);
  return {low, high};
}

// A formula with numbers alone; std::invalid_argument for any other text.
class CArithmetic {
 public:
  explicit CArithmetic(std::string_view text) : m_text(text) {}

  CInterval Whole() {
    const CInterval value = Sum();
    if (!Rest().empty()) Fail();
    return value;
  }

 private:
  [[noreturn]] void Fail() const { throw std::invalid_argument(std::string(m_text)); }

  std::string_view Rest() {
    while (m_text.starts_with(' ')) m_text.remove_prefix(1);
    return m_text;
  }
  bool Take(std::string_view sign) {
    if (!Rest().starts_with(sign)) return false;
    m_text.remove_prefix(sign.size());
    return true;
  }
  void Need(std::string_view sign) {
    if (!Take(sign)) Fail();
  }

  CInterval Sum() {
    CInterval sum{0, 0};
    if (!Rest().starts_with("−")) sum = Product();
    while (true) {
      if (Take("+")) {
        const CInterval b = Product();
        sum = {sum.low + b.low, sum.high + b.high};
      } else if (Take("−")) {
        const CInterval b = Product();
        sum = {sum.low - b.high, sum.high - b.low};
      } else {
        return sum;
      }
    }
  }

  CInterval Product() {
    CInterval a = Power();
    while (true) {
      if (Take("×") || Rest().starts_with('(')) {
        const CInterval b = Power();
        a = Bounds({a.low * b.low, a.low * b.high, a.high * b.low, a.high * b.high});
      } else if (Take("/")) {
        const CInterval b = Power();
        a = Bounds({a.low / b.low, a.low / b.high, a.high / b.low, a.high / b.high});
      } else {
        return a;
      }
    }
  }

  CInterval Power() {
    const CInterval a = Factor();
    if (Take("^4")) return {a.low * a.low * a.low * a.low, a.high * a.high * a.high * a.high};
    if (Take("^3")) return {a.low * a.low * a.low, a.high * a.high * a.high};
    if (Take("^1.66")) return {std::pow(a.low, 1.66), std::pow(a.high, 1.66)};
    if (!Take("^2")) return a;
    const CInterval ends = Bounds({a.low * a.low, a.high * a.high});
    return {a.low < 0 && a.high > 0 ? 0 : ends.low, ends.high};
  }

  CInterval Factor() {
    if (Take("√(")) {
      const CInterval a = Closed(")");
      return {std::sqrt(std::max(0.0, a.low)), std::sqrt(a.high)};
    }
    if (Take("⌊")) {
      const CInterval a = Closed("⌋");
      return {std::floor(a.low), std::floor(a.high)};
    }
    if (Take("max(")) {
      CInterval most = Sum();
      while (Take(",")) {
        const CInterval b = Sum();
        most = {std::max(most.low, b.low), std::max(most.high, b.high)};
      }
      Need(")");
      return most;
    }
    if (Take("min(")) {
      const CInterval a = Sum();
      Need(",");
      const CInterval b = Closed(")");
      return {std::min(a.low, b.low), std::min(a.high, b.high)};
    }
    if (Take("|")) {
      const CInterval a = Closed("|");
      const CInterval ends = Bounds({std::fabs(a.low), std::fabs(a.high)});
      return {a.low < 0 && a.high > 0 ? 0 : ends.low, ends.high};
    }
    if (Take("sin(")) {
      const CInterval a = Closed(")");
      return Bounds({std::sin(a.low), std::sin(a.high)});
    }
    if (Take("cos(")) {
      const CInterval a = Closed(")");
      return Bounds({std::cos(a.low), std::cos(a.high)});
    }
    if (Take("(")) return Closed(")");
    if (Take("π")) return {std::numbers::pi, std::numbers::pi};
    return Number();
  }

  CInterval Closed(std::string_view end) {
    const CInterval a = Sum();
    Need(end);
    return a;
  }

  CInterval Number() {
    static const std::regex kNumber("^-?[0-9]+(\\.([0-9]+))?(E[-+][0-9]+)?");
    std::cmatch found;
    const std::string_view rest = Rest();
    if (!std::regex_search(rest.data(), rest.data() + rest.size(), found, kNumber)) Fail();
    const std::string text = found.str();
    m_text.remove_prefix(text.size());
    const double value = std::stod(text);
    const double size = std::fabs(value);
    // Zeros at the end are left out: "0.5" is 0.5000, "12" is 12.00.
    const int printed = size >= 1000 ? 0 : size >= 100 ? 1 : size >= 10 ? 2 : size >= 1 ? 3 : 4;
    const int decimals = std::max(printed, static_cast<int>(found.length(2)));
    const double half = found.length(3) != 0 ? 1e-5 * size : 0.51 * std::pow(10, -decimals);
    const double turn = Take("°") ? std::numbers::pi / 180 : 1;
    return {turn * (value - half), turn * (value + half)};
  }

  std::string_view m_text;
};

// The text of a piece of HTML: powers as ^2, no other marks.
inline std::string TextOf(std::string html) {
  html = std::regex_replace(html, std::regex("<sup>"), "^");
  html = std::regex_replace(html, std::regex("</sup>"), " ");  // no digit after it is of the power
  html = std::regex_replace(html, std::regex("<[^>]*>"), "");
  html = std::regex_replace(html, std::regex("&gt;"), ">");
  return std::regex_replace(html, std::regex("&lt;"), "<");
}

// Whether the text is a formula with numbers alone; its value then.
inline bool IsArithmetic(const std::string& text, CInterval& value) {
  try {
    value = CArithmetic(text).Whole();
    return true;
  } catch (const std::invalid_argument&) {
    return false;
  }
}

// Of a step's equation the last line, and the result beside it. Returns the number of lines held.
inline int ExpectSteps(const std::string& html) {
  static const std::regex kStep(
      "<span class=\"rhs\">= ((?:(?!</span></div>)[^])*)</span></div></td><td class=\"res\">"
      "([^<]*)</td>");
  int held = 0;
  for (std::sregex_iterator step(html.begin(), html.end(), kStep), end; step != end; ++step) {
    std::string line = (*step)[1];
    const std::size_t last = line.rfind("= ");
    if (line.find("<span></span>") != std::string::npos) line = line.substr(last + 2);
    const std::string text = TextOf(line);
    CInterval value{}, result{};
    if (!IsArithmetic(text, value)) {
      EXPECT_TRUE(line == (*step)[1]) << "no numbers: " << text;
      continue;
    }
    ++held;
    EXPECT_TRUE(IsArithmetic((*step)[2], result)) << (*step)[2];
    EXPECT_TRUE(value.Meets(result))
        << text << " = " << (*step)[2] << ", computed " << value.low << " to " << value.high;
  }
  return held;
}

// "a ≤ b", "a = b > c": the signs are true of the numbers beside them. Returns how many were held.
inline int ExpectRelations(const std::string& html) {
  static const std::regex kVerdict(
      "<td><div class=\"m\">((?:(?!</div>)[^])*)</div><div class=\"m\">([^]*?)</div></td>");
  static const std::regex kSigns("(.*?) (?:= ([^=]*) )?(≤|<|>|≮) ([-0-9.E+]+)(?: .*)?");
  int held = 0;
  for (std::sregex_iterator verdict(html.begin(), html.end(), kVerdict), end; verdict != end;
       ++verdict) {
    const std::string text = TextOf((*verdict)[2]);
    std::smatch part;
    if (!std::regex_match(text, part, kSigns)) {
      ADD_FAILURE() << "no comparison: " << text;
      continue;
    }
    CInterval left{}, middle{}, right{};
    EXPECT_TRUE(IsArithmetic(part[1], left) && IsArithmetic(part[4], right)) << text;
    if (part[2].matched) {
      EXPECT_TRUE(IsArithmetic(part[2], middle) && left.Meets(middle)) << text;
      left = middle;
    }
    if (part[3] == "≤" || part[3] == "<") {
      EXPECT_LE(left.low, right.high) << text;
      EXPECT_EQ(part[3] == "<", TextOf((*verdict)[1]).find('<') != std::string::npos) << text;
    } else {
      EXPECT_GE(left.high, right.low) << text;
    }
    ++held;
  }
  return held;
}

}  // namespace report_lines
