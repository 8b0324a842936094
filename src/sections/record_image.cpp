#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <string>

#include "framework/double_bits.h"
#include "framework/utf16.h"
#include "sections/record_store.h"
#include "tables/edit_state.h"

namespace orv3 {
namespace {

constexpr std::size_t kNameAt = 8;
constexpr std::size_t kNameUnits = CSteelJMData::kNameLength;
constexpr std::size_t kDeletedMark = 47;
constexpr std::size_t kStyleMark = 48;
constexpr std::size_t kStateAt = 108;
constexpr std::size_t kStyleAt = 112;
constexpr std::size_t kDoublesAt = 120;
constexpr std::size_t kSizesAt = 336;
constexpr std::size_t kNameKept = 47;  // characters before the marks
static_assert(kSizesAt + std::size_t{CSteelJMData::kSizeCount} * 8 == kRecordImage);

// The base point and the properties as they follow each other in an image.
using JM = CSteelJMData;
constexpr double JM::*kDoubles[] = {
    &JM::m_dX,    &JM::m_dY,    &JM::m_dXo,  &JM::m_dYo,  &JM::m_dA,   &JM::m_dIx,   &JM::m_dIy,
    &JM::m_dWx1,  &JM::m_dWx2,  &JM::m_dWyL, &JM::m_dWyR, &JM::m_dSx1, &JM::m_dSx2,  &JM::m_dSyL,
    &JM::m_dSyR,  &JM::m_dix,   &JM::m_diy,  &JM::m_dIxo, &JM::m_dIyo, &JM::m_dWxo1, &JM::m_dWxo2,
    &JM::m_dWyoL, &JM::m_dWyoR, &JM::m_dSxo, &JM::m_dSyo, &JM::m_dixo, &JM::m_diyo};
static_assert(kDoublesAt + std::size(kDoubles) * 8 == kSizesAt);

template <std::size_t BYTES>
void Put(CRecordImage& image, std::size_t at, std::uint64_t value) {
  for (std::size_t i = 0; i < BYTES; ++i)
    image[at + i] = static_cast<unsigned char>(value >> 8 * i);
}

template <std::size_t BYTES>
std::uint64_t Take(const CRecordImage& image, std::size_t at) {
  std::uint64_t value = 0;
  for (std::size_t i = BYTES; i-- > 0;) value = value << 8 | image[at + i];
  return value;
}

std::u16string MarkedName(const CSteelJMData& record, bool singleGroup) {
  const auto* const end = std::find(record.m_szName, std::end(record.m_szName), L'\0');
  std::u16string name = ToUtf16({record.m_szName, end});
  name.resize(kNameUnits - 1, u' ');
  name[kDeletedMark] = record.m_nState == kDeleted ? u'(' : u'\x01';
  if (singleGroup) name[kStyleMark] = static_cast<char16_t>(record.m_nStyle + 20);
  name += u'\0';
  return name;
}

// The name of an image without marks and padding.
std::wstring PlainName(const CRecordImage& image) {
  std::u16string units;
  for (std::size_t i = 0; i < kNameKept; ++i) {
    const auto unit = static_cast<char16_t>(Take<2>(image, kNameAt + 2 * i));
    if (unit == 0) break;
    units += unit;
  }
  const std::wstring name = FromUtf16(units);
  const std::size_t first = name.find_first_not_of(L' ');
  return first == std::wstring::npos ? std::wstring()
                                     : name.substr(first, name.find_last_not_of(L' ') + 1 - first);
}

double Double(const CRecordImage& image, std::size_t at) { return DoubleOf(Take<8>(image, at)); }

}  // namespace

CRecordImage EncodeRecord(const CSteelJMData& record, bool singleGroup) {
  CRecordImage image{};
  const std::u16string name = MarkedName(record, singleGroup);
  for (std::size_t i = 0; i < kNameUnits; ++i) Put<2>(image, kNameAt + 2 * i, name[i]);
  Put<4>(image, kStateAt, 0);
  Put<4>(image, kStyleAt, static_cast<std::uint32_t>(record.m_nStyle));
  std::size_t at = kDoublesAt;
  for (const auto field : kDoubles) {
    Put<8>(image, at, BitsOf(record.*field));
    at += 8;
  }
  for (const double size : record.m_dSize) {
    Put<8>(image, at, BitsOf(size));
    at += 8;
  }
  return image;
}

bool DecodeRecord(const CRecordImage& image, CSteelJMData& record) {
  if (!(Double(image, kSizesAt) > 0)) return false;
  const std::wstring name = PlainName(image);
  std::fill(std::begin(record.m_szName), std::end(record.m_szName), L'\0');
  std::copy(name.begin(), name.end(), record.m_szName);
  record.m_nState = Take<2>(image, kNameAt + 2 * kDeletedMark) == u'(' ? kDeleted : kUnchanged;
  record.m_nStyle = static_cast<std::int32_t>(Take<4>(image, kStyleAt));
  std::size_t at = kDoublesAt;
  for (const auto field : kDoubles) {
    record.*field = Double(image, at);
    at += 8;
  }
  for (double& size : record.m_dSize) {
    size = Double(image, at);
    at += 8;
  }
  return true;
}

}  // namespace orv3
