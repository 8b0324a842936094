// Uses one function of each floor of the installed library.
#include <orv3cal.h>

#include <iostream>

int main() {
  const CString text = orv3::FromUtf8("工字钢");
  std::cout << orv3::ToUtf8(text.GetString()) << '\n';
  return text.GetLength() == 3 ? 0 : 1;
}
