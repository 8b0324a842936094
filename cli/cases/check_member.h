// orv3cal check member.
#pragma once

#include <string>

#include "error.h"
#include "reports/case_keys.h"
#include "store/store_place.h"

namespace orv3::cli {

struct CMemberOptions {
  std::string file;
  std::string code;
  bool json = false;
  bool csv = false;
  bool sort = false;
  std::string report;
  std::string project;
  CLanguage language = CLanguage::English;
  CStoreOptions store;
};

// Every case of the file, answered as it is read.
CExit CheckMembers(const CMemberOptions& options);

}  // namespace orv3::cli
