#include "catalogue/ifc/ifc_library.h"

#include <cstdint>
#include <map>

#include "catalogue/ifc/ifc_profile.h"
#include "catalogue/ifc/ifc_properties.h"
#include "catalogue/outline/row_outline.h"

namespace orv3 {
namespace {

// The project's identifier, of what the file holds (FNV-1a, 64 bits twice): 128 bits as 22 digits
// of IFC's own 64, the first of which has 2 bits.
class CIdentifier {
 public:
  void Add(std::string_view text) {
    for (const char ch : text) {
      m_low = (m_low ^ static_cast<unsigned char>(ch)) * kPrime;
      m_high = (m_high ^ static_cast<unsigned char>(~ch)) * kPrime;
    }
  }
  std::string Text() const {
    constexpr std::string_view kDigits =
        "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_$";
    std::string text(22, '0');
    std::uint64_t low = m_low;
    std::uint64_t high = m_high;
    for (auto digit = text.rbegin(); digit != text.rend(); ++digit) {
      *digit = kDigits[low & 63];
      low = low >> 6 | high << 58;
      high >>= 6;
    }
    return text;
  }

 private:
  static constexpr std::uint64_t kPrime = 0x100000001B3;
  std::uint64_t m_low = 0xCBF29CE484222325;
  std::uint64_t m_high = 0x84222325CBF29CE4;
};

CString NoOf(const CDataItem& row) { return row.IsEmpty() ? CString() : row[0].m_strValue; }

// What a profile is called: numbers that several tables use have the table behind them, and so has
// a number that reads like one of those.
class CProfileNames {
 public:
  explicit CProfileNames(std::span<const CDataItem> rows) {
    for (const CDataItem& row : rows) {
      const auto [known, first] = m_mapTable.try_emplace(ToKey(NoOf(row)), row.GetTableName());
      if (!first && known->second != row.GetTableName()) known->second = CString();
    }
    for (const CDataItem& row : rows) {
      const auto alike = m_mapTable.find(ToKey(WithTable(row)));
      if (alike != m_mapTable.end()) alike->second = CString();
    }
  }
  std::string Of(const CDataItem& row) const {
    const bool bAlone = !m_mapTable.at(ToKey(NoOf(row))).IsEmpty();
    return StepText(bAlone ? NoOf(row) : WithTable(row));
  }

 private:
  static std::wstring ToKey(const CString& name) { return std::wstring(name.View()); }
  static CString WithTable(const CDataItem& row) {
    return NoOf(row) + L" (" + row.GetTableName() + L")";
  }
  std::map<std::wstring, CString> m_mapTable;  // empty for a number that is not told alone
};

void AddProject(CStepFile& file, const std::string& name, const std::string& identifier) {
  const int units = AddIfcUnits(file);
  file.Add("IFCPROJECT", {"'" + identifier + "'", kStepUnset, name, kStepUnset, kStepUnset,
                          kStepUnset, kStepUnset, kStepUnset, StepRef(units)});
}

void AddSection(CStepFile& file, const CDataItem& row, const COutline& outline,
                const std::string& name, int steel) {
  const std::string table = StepText(row.GetTableName());
  const int profile = AddIfcProfile(file, row, outline, name);
  AddProfileMechanical(file, row, outline, profile);
  const std::string members[] = {
      StepRef(file.Add("IFCMATERIALPROFILE",
                       {name, table, StepRef(steel), StepRef(profile), kStepUnset, kStepUnset}))};
  file.Add("IFCMATERIALPROFILESET", {name, table, StepList(members), kStepUnset});
}

std::string IdentifierOf(std::span<const CDataItem> rows, const std::string& name) {
  CIdentifier identifier;
  identifier.Add(name);
  for (const CDataItem& row : rows) {
    identifier.Add(StepText(row.GetTableName()));
    for (int i = 0; i < row.GetItemLength(); ++i) identifier.Add(StepText(row[i].m_strValue));
  }
  return identifier.Text();
}

}  // namespace

CIfcLibrary IfcLibrary(std::span<const CDataItem> rows, const CString& name) {
  const std::string project = StepText(name);
  CIfcLibrary library;
  CStepFile file;
  AddProject(file, project, IdentifierOf(rows, project));
  const int steel = AddIfcSteel(file);
  const CProfileNames names(rows);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const COutline outline = RowOutline(rows[i]);
    if (outline.m_arrLoop.empty()) {
      library.m_arrLeftOut.push_back(i);
    } else {
      AddSection(file, rows[i], outline, names.Of(rows[i]), steel);
    }
  }
  library.m_strText = file.Text(StepText(L"Steel profiles, mm"), project, "1970-01-01T00:00:00");
  return library;
}

}  // namespace orv3
