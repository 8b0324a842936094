// make_pictures FOLDER: writes the picture resources of the Windows library, the sketches (bitmaps
// 8008 to 8078) and the dialogs' icon (8003), and pictures.rc, which names them.
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "drawing/drawing.h"
#include "module/pictures/icon.h"
#include "sections/section_shapes.h"
#include "sections/sketch/sketch.h"

namespace {

using namespace orv3;

constexpr int kIcon = 8003;

// The resource numbers that have a sketch of their own, first and last of each run.
constexpr int kSketches[][2] = {{8008, 8029}, {8035, 8049}, {8076, 8078}};

bool Write(const std::string& path, const std::vector<std::uint8_t>& bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) std::fprintf(stderr, "make_pictures: %s cannot be written\n", path.c_str());
  return static_cast<bool>(file);
}

// The dialogs' icon: an I section that fills the square.
CBitmap IconPicture(int side) {
  CDrawing drawing(16, 16);
  drawing.AddArea(CLayer::Dimension, {Moved(IShape(12, 14, 2.5, 3), 2, 1)});
  return DrawingBitmap(drawing, side / 16.0);
}

bool WriteAll(const std::string& folder) {
  std::string script = "// Made by make_pictures.\n";
  for (const auto& [first, last] : kSketches) {
    for (int number = first; number <= last; ++number) {
      const std::string name = std::to_string(number) + ".bmp";
      if (!Write(folder + "/" + name, SketchBitmap(number).ToBmp())) return false;
      script += std::to_string(number) + " BITMAP \"" + name + "\"\n";
    }
  }
  const std::vector<CBitmap> icon = {IconPicture(16), IconPicture(24), IconPicture(32),
                                     IconPicture(48)};
  const std::string name = std::to_string(kIcon) + ".ico";
  script += std::to_string(kIcon) + " ICON \"" + name + "\"\n";
  return Write(folder + "/" + name, ToIco(icon)) &&
         Write(folder + "/pictures.rc", {script.begin(), script.end()});
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: make_pictures FOLDER\n");
    return 2;
  }
  return WriteAll(argv[1]) ? 0 : 1;
}
