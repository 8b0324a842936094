// The text forms: stored bytes of any kind are read, and what was read is stored as it is.
#include "tables/file/table_text.h"

#include <string>

#include "memory_files.h"
#include "tables/data_table.h"
#include "tables/file/info.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  std::string plain(reinterpret_cast<const char*>(data), size);
  for (char& byte : plain) byte = static_cast<char>(byte - 10);
  const CString text = orv3::DecodeText(plain);
  bool missing = false;
  const std::string stored = orv3::EncodeText(text, &missing);
  const CString again = orv3::DecodeText(stored);
  Require(missing || again == text.View().substr(0, text.View().find(L'\n')));
  for (const std::size_t length : {std::size_t{1}, std::size_t{7}, std::size_t{91}}) {
    const std::string field = orv3::EncodeField(text, length);
    Require(field.size() == length);
    // A cut text is the beginning of the whole one.
    if (!missing) Require(again.View().starts_with(orv3::DecodeText(field)));
  }

  CDataTypeStruct column;
  column.TransToNormal(plain.c_str());
  CDataFileInfo info;
  info.TransToNormal(plain.c_str());
  info.TranToFake();
  CDataTable table;
  table.m_Title.TransToNormal(plain.c_str());
  table.m_Title.TranToFake();
  try {
    if (table.TransItemToNormal(plain.c_str())) table.TransItemToFake(0);
  } catch (const CInvalidArgException&) {
  }
  return 0;
}
