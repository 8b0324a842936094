// DXF files and files of exact properties: whatever the bytes, reading gives a fault or loops,
// which are refused or bound steel; and no properties but from a file that is whole.
//
// The first byte of an input chooses the kind of file; the rest is the file.
#include <string_view>

#include "catalogue/exact/exact_figures.h"
#include "memory_files.h"
#include "outlines/dxf_outline.h"
#include "outlines/loop_nesting.h"

namespace {

void CheckDxf(std::string_view text) {
  std::vector<orv3::CPath> loops;
  if (orv3::ReadDxfOutline(text, "", loops)) {
    Require(loops.empty());
    return;
  }
  if (orv3::CheckLoops(loops)) return;
  const auto places = orv3::NestLoops(loops);
  Require(places.size() == loops.size());
  Require(!orv3::CheckOutline(orv3::Sensed(loops, places)));
}

void CheckExact(std::string_view bytes) {
  const auto records = orv3::ReadExactFile(bytes);
  if (records) Require(orv3::ExactFileBytes(*records).size() == bytes.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view file(reinterpret_cast<const char*>(data + 1), size - 1);
  data[0] % 2 == 0 ? CheckDxf(file) : CheckExact(file);
  return 0;
}
