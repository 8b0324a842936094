#include "connections/gb2017/bolt_distances.h"

#include <algorithm>

#include "framework/elementary.h"

namespace orv3::gb2017 {
namespace {

constexpr const char* kTable = "T 11.5.2";
constexpr const char* kMostPitch = "\\min(8 d_0, 12 t)";

// Neighbours of a staggered group stand half a row apart, those of one line two columns.
double Nearest(const CDistances& distances, double column, double row) {
  double nearest = Hypot(column, row / 2);
  for (std::size_t i = 1; i < distances.m_arrCol.size(); ++i)
    nearest = std::min(nearest, distances.m_arrCol[i - 1] + distances.m_arrCol[i]);
  return nearest;
}

// The outer lines of a staggered group have the bolts of the first column and of every second one
// after it.
double LargestPair(std::span<const double> spacings) {
  double largest = 0;
  for (std::size_t i = 1; i < spacings.size(); i += 2)
    largest = std::max(largest, spacings[i - 1] + spacings[i]);
  return largest;
}

void Pitches(const CDistances& distances, const CBoltSpacing& limits,
             std::vector<CDetail>& details) {
  const auto least = [](std::span<const double> each) {
    return *std::min_element(each.begin(), each.end());
  };
  const auto largest = [](std::span<const double> each) {
    return *std::max_element(each.begin(), each.end());
  };
  const bool bColumns = !distances.m_arrCol.empty();
  const bool bRows = !distances.m_arrRow.empty();
  if (bRows) {
    const double row = least(distances.m_arrRow);
    details.push_back({{"最小行距", "row spacing, least"},
                       "rowSpace",
                       kTable,
                       "s_r",
                       "3 d_0",
                       row,
                       limits.m_dLeastPitch,
                       false});
    details.push_back({{"最大行距", "row spacing, most"},
                       "rowSpace",
                       kTable,
                       "s_r",
                       kMostPitch,
                       largest(distances.m_arrRow),
                       limits.m_dMostPitch,
                       true});
  }
  if (bColumns && !distances.m_bStaggered) {
    details.push_back({{"最小列距", "column spacing, least"},
                       "colSpace",
                       kTable,
                       "s_c",
                       "3 d_0",
                       least(distances.m_arrCol),
                       limits.m_dLeastPitch,
                       false});
    details.push_back({{"最大列距", "column spacing, most"},
                       "colSpace",
                       kTable,
                       "s_c",
                       kMostPitch,
                       largest(distances.m_arrCol),
                       limits.m_dMostPitch,
                       true});
  }
  if (bColumns && distances.m_bStaggered) {
    const double nearest = Nearest(distances, least(distances.m_arrCol), least(distances.m_arrRow));
    details.push_back({{"错列最小孔距", "staggered holes, least"},
                       "colSpace",
                       kTable,
                       "s",
                       "3 d_0",
                       nearest,
                       limits.m_dLeastPitch,
                       false});
    const double pair = LargestPair(distances.m_arrCol);
    if (pair > 0)
      details.push_back({{"外排最大孔距", "outer row, most"},
                         "colSpace",
                         kTable,
                         "s",
                         kMostPitch,
                         pair,
                         limits.m_dMostPitch,
                         true});
  }
}

void Edge(const CTextLiteral& least, const CTextLiteral& most, const char* key, const char* symbol,
          double distance, bool bForce, const CBoltSpacing& limits, bool bRolled,
          std::vector<CDetail>& details) {
  details.push_back({least, key, kTable, symbol,
                     bForce    ? "2 d_0"
                     : bRolled ? "1.2 d_0"
                               : "1.5 d_0",
                     distance, bForce ? limits.m_dLeastEnd : limits.m_dLeastSide, false});
  details.push_back(
      {most, key, kTable, symbol, "\\min(4 d_0, 8 t)", distance, limits.m_dMostEdge, true});
}

}  // namespace

void BoltDistances(const CDistances& distances, const CBoltSpacing& limits, bool bRolled,
                   std::vector<CDetail>& details) {
  Pitches(distances, limits, details);
  Edge({"x 向最小边距", "edge along x, least"}, {"x 向最大边距", "edge along x, most"}, "ex", "e_x",
       distances.m_dEx, distances.m_bForceX, limits, bRolled, details);
  Edge({"y 向最小边距", "edge along y, least"}, {"y 向最大边距", "edge along y, most"}, "ey", "e_y",
       distances.m_dEy, distances.m_bForceY, limits, bRolled, details);
}

}  // namespace orv3::gb2017
