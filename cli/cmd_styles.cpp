// orv3cal styles: the styles of user-defined sections, their names and sizes.
#include <CLI/App.hpp>
#include <filesystem>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>

#include "command.h"
#include "framework/utf8.h"
#include "section_view.h"
#include "sections/section_style.h"
#include "text_table.h"

namespace orv3 {
namespace {

void PrintTable() {
  CTextTable table({CAlign::Left, CAlign::Left, CAlign::Left, CAlign::Left, CAlign::Left});
  table.SetHeading({"Style", "Alias", "Table", "Sizes, mm", "Shape"});
  for (const CSectionStyle& style : SectionStyles()) {
    std::string sizes;
    for (const CSizeColumn& size : style.Sizes()) {
      if (!sizes.empty()) sizes += ' ';
      sizes += SizeSymbol(size);
    }
    table.AddRow({std::to_string(style.m_nStyle), style.m_szAlias, ToUtf8(style.m_szTable), sizes,
                  style.m_szShape});
  }
  table.Print(std::cout);
}

nlohmann::ordered_json ToJson(const CSectionStyle& style) {
  nlohmann::ordered_json sizes = nlohmann::ordered_json::array();
  for (const CSizeColumn& size : style.Sizes()) {
    sizes.push_back({{"sign", ToUtf8(size.m_szSign)},
                     {"title", ToUtf8(size.m_szTitle)},
                     {"meaning", size.m_szMeaning}});
  }
  return {{"style", style.m_nStyle},
          {"alias", style.m_szAlias},
          {"table", ToUtf8(style.m_szTable)},
          {"shape", style.m_szShape},
          {"sizes", sizes}};
}

void PrintStylesJson() {
  nlohmann::ordered_json styles = nlohmann::ordered_json::array();
  for (const CSectionStyle& style : SectionStyles()) styles.push_back(ToJson(style));
  PrintJson({{"styles", styles}});
}

void WritePictures(const std::string& folder) {
  const std::filesystem::path path(std::u8string(folder.begin(), folder.end()));
  std::error_code error;
  std::filesystem::create_directories(path, error);
  for (const CSectionStyle& style : SectionStyles()) {
    const std::string file = folder + "/" + style.m_szAlias + ".svg";
    WriteTextFile(file, SectionSvg(SampleSection(style)));
  }
}

}  // namespace

void AddStylesCommand(CLI::App& app, CExit&) {
  struct COptions {
    bool json = false;
    std::string folder;
  };
  const auto options = std::make_shared<COptions>();
  CLI::App* command = app.add_subcommand("styles", "List the section styles and their sizes");
  command->add_flag("--json", options->json, "Print JSON");
  CLI::Option* svg =
      command->add_option("--svg", options->folder, "Also write a picture of each style there");
  svg->type_name("FOLDER");
  command->callback([options, svg] {
    if (svg->count() != 0) WritePictures(options->folder);
    options->json ? PrintStylesJson() : PrintTable();
  });
}

}  // namespace orv3
