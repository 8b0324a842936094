// orv3cal styles: the user-defined section styles and their sizes.

#include <string>

#include "commands.h"
#include "framework/language.h"
#include "framework/utf8.h"
#include "output/output.h"
#include "output/section_view.h"
#include "output/text_table.h"
#include "sections/section_style.h"

namespace orv3::cli {
namespace {

CJson StyleJson(const CSectionStyle& style) {
  CJson sizes = CJson::array();
  for (const CSizeColumn& size : style.Sizes()) {
    sizes.push_back({{"sign", ToUtf8(size.m_szSign)},
                     {"title", ToUtf8(size.m_szTitle)},
                     {"meaning", size.m_szMeaning}});
  }
  return {{"style", style.m_nStyle},
          {"alias", style.m_szAlias},
          {"table", ToUtf8(style.TableName())},
          {"shape", style.m_szShape},
          {"sizes", sizes}};
}

// A line for each style, and below it one for each of its sizes in the order of the command line.
void PrintStyles() {
  for (const CSectionStyle& style : SectionStyles()) {
    CTextTable table({CAlign::Right, CAlign::Left, CAlign::Left, CAlign::Left});
    for (const CSizeColumn& size : style.Sizes()) {
      const std::string sign = ToUtf8(size.m_szSign);
      table.AddRow({" ", sign.substr(0, sign.find('(')), ToUtf8(size.m_szTitle),
                    Say({"", size.m_szMeaning})});
    }
    Print(std::to_string(style.m_nStyle) + "  " + style.m_szAlias + "  " +
          ToUtf8(style.TableName()) + Say({"", std::string("  ") + style.m_szShape}) + "\n" +
          table.Text() + "\n");
  }
  Print(Say("尺寸单位均为 mm；orv3cal section ALIAS SIZE... 按此次序给出\n",
            "all sizes in mm; orv3cal section ALIAS SIZE... takes them in this order\n"));
}

// The sample section of each style, in a file named by its alias. The samples' names are those that
// users know and tell other sizes, so the pictures go without.
void WritePictures(const std::string& folder) {
  for (const CSectionStyle& style : SectionStyles()) {
    const CSteelJMData record = SampleSection(style);
    WriteFile(folder + "/" + style.m_szAlias + ".svg",
              SectionSvg(style, record, ExactOf(record), ""));
  }
}

}  // namespace

void AddStylesCommand(CLI::App& program) {
  struct COptions {
    bool json = false;
    std::string folder;
  };
  auto options = std::make_shared<COptions>();
  CLI::App* command = program.add_subcommand(
      "styles",
      Say("列出自定义截面的种类和尺寸", "List the user-defined section styles and their sizes"));
  command->add_flag("--json", options->json,
                    Say("以 JSON 输出，附各尺寸的名称和含义",
                        "As JSON, with the titles and meanings of the sizes"));
  command
      ->add_option("--svg", options->folder,
                   Say("在文件夹中写入各种截面的图例",
                       "Write a picture of a sample of each style into a folder"))
      ->type_name("FOLDER");
  command->callback([options] {
    if (!options->folder.empty()) WritePictures(options->folder);
    if (!options->json) return PrintStyles();
    CJson all = CJson::array();
    for (const CSectionStyle& style : SectionStyles()) all.push_back(StyleJson(style));
    PrintJson(all);
  });
}

}  // namespace orv3::cli
