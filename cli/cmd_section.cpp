// orv3cal section: a section from plate sizes, with its properties and its picture.
#include <CLI/App.hpp>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <utility>

#include "command.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "section_view.h"
#include "sections/section_check.h"
#include "sections/section_style.h"

namespace orv3 {
namespace {

struct COptions {
  std::string style;
  std::vector<std::string> sizes;
  std::pair<std::string, std::string> base{"0", "0"};
  std::string name;
  bool json = false;
  std::string svg;
};

// By alias, table name or style number.
const CSectionStyle& StyleOf(const std::string& text) {
  if (const CSectionStyle* style = FindSectionAlias(text)) return *style;
  if (const CSectionStyle* style = FindSectionStyle(FromUtf8(text).View())) return *style;
  for (const CSectionStyle& style : SectionStyles()) {
    if (text == std::to_string(style.m_nStyle)) return style;
  }
  std::string aliases;
  for (const CSectionStyle& style : SectionStyles()) {
    aliases += std::string(" ") + style.m_szAlias;
  }
  BadInput("STYLE = \"" + text + "\" is unknown: must be a table name, a number from 0 to " +
           std::to_string(SectionStyles().size() - 1) + " or one of" + aliases);
}

std::vector<double> SizesOf(const CSectionStyle& style, const std::vector<std::string>& texts) {
  std::vector<double> sizes;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const bool known = i < style.Sizes().size();
    sizes.push_back(ParseNumber(texts[i], known ? ToUtf8(style.m_arrSize[i].m_szSign) : "SIZE"));
  }
  if (const auto fault = CheckSectionSizes(style, sizes)) BadInput(fault->m_strText);
  return sizes;
}

CSteelJMData SectionOf(const COptions& options) {
  const CSectionStyle& style = StyleOf(options.style);
  CArray<double, double> sizes;
  for (const double size : SizesOf(style, options.sizes)) sizes.Add(size);
  const CString name = FromUtf8(options.name);
  const std::string nameFault = CheckSectionName(name);
  if (!nameFault.empty()) BadInput("--name \"" + options.name + "\" " + nameFault);

  CSteelJMData section;
  section.SetSectSize(style.m_nStyle, sizes);
  section.SetName(name);
  section.m_dX = ParseNumber(options.base.first, "--base X");
  section.m_dY = ParseNumber(options.base.second, "--base Y");
  CSteelJMData::CalSectCharacterStyle(section);
  return section;
}

}  // namespace

void AddSectionCommand(CLI::App& app, CExit&) {
  const auto options = std::make_shared<COptions>();
  CLI::App* command =
      app.add_subcommand("section", "Show the properties of a section from its plate sizes");
  command->add_option("STYLE", options->style, "Table name, style number or alias")->required();
  command->add_option("SIZE", options->sizes, "Plate sizes, mm, as \"orv3cal styles\" lists them");
  command
      ->add_option("--base", options->base,
                   "Base point of the axes X, Y, mm from the lower left corner [0 0]")
      ->type_name("X Y");
  command->add_option("--name", options->name, "Name of the section")->type_name("NO");
  command->add_flag("--json", options->json, "Print JSON");
  CLI::Option* svg = command->add_option("--svg", options->svg, "Also write a picture there");
  svg->type_name("FILE");
  command->callback([options, svg] {
    const CSteelJMData section = SectionOf(*options);
    if (svg->count() != 0) WriteTextFile(options->svg, SectionSvg(section));
    options->json ? PrintJson(SectionJson(section)) : PrintSection(section);
  });
}

}  // namespace orv3
