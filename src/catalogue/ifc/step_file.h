// A file in the clear text encoding of ISO 10303-21, entity by entity.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orv3 {

// Values of an entity as they stand in the file.
inline const std::string kStepUnset = "$";
// Characters beyond ASCII as \X2\ and \X4\, which every reader takes.
std::string StepText(std::wstring_view text);
std::string StepReal(double value);  // finite; all its digits
std::string StepRef(int id);
std::string StepList(std::span<const std::string> values);
std::string StepTyped(std::string_view type, const std::string& value);

class CStepFile {
 public:
  // The number of the new entity. Values may refer to entities added before.
  int Add(std::string_view entity, std::span<const std::string> values);
  int Add(std::string_view entity, std::initializer_list<std::string> values) {
    return Add(entity, std::span(values.begin(), values.size()));
  }

  // The whole file of an IFC4 model. `description` and `name` are encoded values; `stamp` is the
  // time that the file names, ISO 8601.
  std::string Text(const std::string& description, const std::string& name,
                   std::string_view stamp) const;

 private:
  std::string m_strData;
  int m_nLast = 0;
};

}  // namespace orv3
