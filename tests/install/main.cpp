// Uses the installed library: texts, a section, and an exception that the library throws.
#include <orv3cal.h>

#include <iostream>

int main() {
  const CString text = orv3::FromUtf8("工字钢");
  std::cout << orv3::ToUtf8(text.GetString()) << '\n';
  CArray<double, double> sizes;
  for (const double size : {300, 400, 20, 10}) sizes.Add(size);
  CSteelJMData section;
  section.SetSectSize(0, sizes);
  CSteelJMData::CalSectCharacterStyle(section);
  bool caught = false;
  try {
    orv3::CheckIndex("size", 4, 4);
  } catch (const CInvalidArgException&) {
    caught = true;
  }
  return text.GetLength() == 3 && section.m_dA == 15600 && caught ? 0 : 1;
}
