#include "catalogue/ifc/step_file.h"

#include "framework/number_text.h"
#include "framework/utf16.h"
#include "framework/utf8.h"

namespace orv3 {
namespace {

std::string Hex(char32_t value, int digits) {
  std::string text(static_cast<std::size_t>(digits), '0');
  for (auto digit = text.rbegin(); digit != text.rend(); ++digit, value >>= 4)
    *digit = "0123456789ABCDEF"[value & 15];
  return text;
}

bool IsHigh(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool IsLow(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

bool IsPlain(char16_t unit) { return unit >= ' ' && unit <= '~'; }

// The characters from i on that are not ASCII, up to the next that is; those beyond the basic
// plane, of two units, are told apart from the others.
std::string Coded(std::u16string_view text, std::size_t& i) {
  const auto wide = [&] { return IsHigh(text[i]) && i + 1 < text.size() && IsLow(text[i + 1]); };
  const bool four = wide();
  std::string coded = four ? "\\X4\\" : "\\X2\\";
  for (; i < text.size() && !IsPlain(text[i]) && wide() == four; ++i) {
    if (!four) {
      coded += Hex(text[i], 4);
      continue;
    }
    const char32_t high = text[i++] - 0xD800U;
    coded += Hex(0x10000U + (high << 10) + (text[i] - 0xDC00U), 8);
  }
  return coded + "\\X0\\";
}

}  // namespace

std::string StepText(std::wstring_view text) {
  const std::u16string units = ToUtf16(text);
  std::string coded = "'";
  for (std::size_t i = 0; i < units.size();) {
    if (IsPlain(units[i])) {
      const bool marked = units[i] == '\'' || units[i] == '\\';
      coded.append(marked ? 2 : 1, static_cast<char>(units[i++]));
    } else {
      coded += Coded(units, i);
    }
  }
  return coded + "'";
}

std::string StepReal(double value) {
  std::string text = ToUtf8(FormatShortest(value));
  const std::size_t exponent = text.find_first_of("eE");
  const std::string mantissa = text.substr(0, exponent);
  const std::string point = mantissa.find('.') == std::string::npos ? "." : "";
  return mantissa + point +
         (exponent == std::string::npos ? std::string() : "E" + text.substr(exponent + 1));
}

std::string StepRef(int id) { return "#" + std::to_string(id); }

std::string StepList(std::span<const std::string> values) {
  std::string list = "(";
  for (const std::string& value : values) list += (list.size() > 1 ? "," : "") + value;
  return list + ")";
}

std::string StepTyped(std::string_view type, const std::string& value) {
  return std::string(type) + "(" + value + ")";
}

int CStepFile::Add(std::string_view entity, std::span<const std::string> values) {
  m_strData += StepRef(++m_nLast) + "=";
  m_strData.append(entity) += StepList(values) + ";\n";
  return m_nLast;
}

std::string CStepFile::Text(const std::string& description, const std::string& name,
                            std::string_view stamp) const {
  return "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((" + description + "),'2;1');\nFILE_NAME(" +
         name + ",'" + std::string(stamp) +
         "',(''),(''),'Orv3Cal','Orv3Cal','');\nFILE_SCHEMA(('IFC4'));\nENDSEC;\nDATA;\n" +
         m_strData + "ENDSEC;\nEND-ISO-10303-21;\n";
}

}  // namespace orv3
