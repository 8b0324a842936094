#include "options/output_options.h"

#include "framework/language.h"

namespace orv3::cli {

CLI::Option* AddJsonOption(CLI::App& command, bool& json) {
  return command.add_flag(
      "--json", json,
      Say("以 JSON 输出，数值带全部位数", "As JSON, numbers with all their digits"));
}

void AddSvgOption(CLI::App& command, std::string& file) {
  command.add_option("--svg", file, Say("写入按比例绘制的图形", "Write a picture drawn to scale"))
      ->type_name("FILE");
}

void AddDxfOption(CLI::App& command, std::string& file) {
  command
      .add_option("--dxf", file,
                  Say("为绘图程序写入轮廓：带圆弧的多段线，单位 mm",
                      "Write the outline for a drawing program: polylines with arcs, in mm"))
      ->type_name("FILE");
}

}  // namespace orv3::cli
