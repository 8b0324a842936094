#include "reports/fault_list.h"

#include "framework/plain_number.h"

namespace orv3 {

void CFaultList::Positive(const char* key, double value, const char* unit) {
  if (!std::isfinite(value)) {
    Finite(key, value);
  } else if (value <= 0) {
    NotPossible(
        key, PlainNumber(value),
        {std::string("请给出大于 0 的数值 ") + unit, std::string("give more than 0 ") + unit});
  }
}

void CFaultList::Within(const char* key, int value, int first, int last) {
  if (value >= first && value <= last) return;
  const std::string from = std::to_string(first);
  const std::string to = std::to_string(last);
  NotPossible(key, std::to_string(value),
              {"请给出 " + from + " 至 " + to + " 的整数",
               "give a whole number from " + from + " to " + to});
}

}  // namespace orv3
