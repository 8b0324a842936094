// The DXF read back as a drawing program does: groups, sections, handles, polylines.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "drawing/dxf.h"

namespace {

using namespace orv3;

struct CDxfGroup {
  int code;
  std::string value;
};

std::vector<CDxfGroup> Groups(const std::string& dxf) {
  std::vector<CDxfGroup> groups;
  std::istringstream in(dxf);
  for (std::string code, value; std::getline(in, code) && std::getline(in, value);) {
    EXPECT_EQ(code.back(), '\r');
    EXPECT_EQ(value.back(), '\r');
    groups.push_back({std::stoi(code), value.substr(0, value.size() - 1)});
  }
  EXPECT_EQ(groups.back().code, 0);
  EXPECT_EQ(groups.back().value, "EOF");
  return groups;
}

// The paths of the polylines, as their groups say.
std::vector<CPath> Polylines(const std::vector<CDxfGroup>& groups) {
  std::vector<CPath> paths;
  std::size_t count = 0;
  bool inside = false;
  for (const CDxfGroup& group : groups) {
    if (group.code == 0) {
      EXPECT_TRUE(!inside || paths.back().m_arrVertex.size() == count);
      inside = group.value == "LWPOLYLINE";
      if (inside) paths.emplace_back();
    }
    if (!inside) continue;
    auto& vertices = paths.back().m_arrVertex;
    if (group.code == 90) count = std::stoul(group.value);
    if (group.code == 70) paths.back().m_bClosed = group.value == "1";
    if (group.code == 10) vertices.push_back({std::stod(group.value), 0, 0});
    if (group.code == 20) vertices.back().y = std::stod(group.value);
    if (group.code == 42) vertices.back().bulge = std::stod(group.value);
  }
  return paths;
}

std::vector<CPath> Shapes() {
  const CCorner corners[] = {{0, 0, 0}, {100, 0, 0}, {100, 7.1, 4.5}, {10, 30, 9}, {0, 1.0 / 3, 0}};
  return {RoundedPath(corners), Reversed(CirclePath({54, 54}, 51.5)),
          LinePath({-1e-13, 5}, {1e-5, 6})};
}

TEST(Dxf, GivesThePathsBackToTheLastDigit) {
  const std::vector<CPath> shapes = Shapes();
  const std::vector<CPath> read = Polylines(Groups(PathsDxf(shapes)));
  ASSERT_EQ(read.size(), shapes.size());
  for (std::size_t i = 0; i < shapes.size(); ++i) {
    EXPECT_EQ(read[i].m_bClosed, shapes[i].m_bClosed);
    ASSERT_EQ(read[i].m_arrVertex.size(), shapes[i].m_arrVertex.size());
    for (std::size_t j = 0; j < shapes[i].m_arrVertex.size(); ++j) {
      EXPECT_NEAR(read[i].m_arrVertex[j].x, shapes[i].m_arrVertex[j].x, 1e-12);
      EXPECT_EQ(read[i].m_arrVertex[j].y, shapes[i].m_arrVertex[j].y);
      EXPECT_EQ(read[i].m_arrVertex[j].bulge, shapes[i].m_arrVertex[j].bulge);
    }
  }
}

TEST(Dxf, HasTheSectionsAndTablesOfItsRelease) {
  const std::vector<CDxfGroup> groups = Groups(PathsDxf(Shapes()));
  std::vector<std::string> sections, tables;
  std::map<std::string, std::string> variables;
  int depth = 0;
  for (std::size_t i = 0; i + 1 < groups.size(); ++i) {
    const CDxfGroup& next = groups[i + 1];
    if (groups[i].code == 9) variables[groups[i].value] = next.value;
    if (groups[i].code != 0) continue;
    if (groups[i].value == "SECTION") sections.push_back(next.value);
    if (groups[i].value == "TABLE") tables.push_back(next.value);
    depth += (groups[i].value == "SECTION") - (groups[i].value == "ENDSEC");
    EXPECT_TRUE(depth == 0 || depth == 1);
  }
  EXPECT_EQ(depth, 0);
  EXPECT_EQ(sections, (std::vector<std::string>{"HEADER", "CLASSES", "TABLES", "BLOCKS", "ENTITIES",
                                                "OBJECTS"}));
  EXPECT_EQ(tables, (std::vector<std::string>{"VPORT", "LTYPE", "LAYER", "STYLE", "VIEW", "UCS",
                                              "APPID", "DIMSTYLE", "BLOCK_RECORD"}));
  EXPECT_EQ(variables["$ACADVER"], "AC1015");
  EXPECT_EQ(variables["$INSUNITS"], "4") << "millimetres";
}

// Every object has a handle of its own below the seed, and refers to handles that are there.
TEST(Dxf, KeepsItsHandlesInOrder) {
  const std::vector<CDxfGroup> groups = Groups(PathsDxf(Shapes()));
  std::set<unsigned long> handles;
  unsigned long seed = 0;
  bool table = false;
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const CDxfGroup& group = groups[i];
    if (group.code == 0) table = group.value == "DIMSTYLE";
    if (i > 0 && groups[i - 1].value == "$HANDSEED") {
      seed = std::stoul(group.value, nullptr, 16);
    } else if (group.code == (table ? 105 : 5)) {
      EXPECT_TRUE(handles.insert(std::stoul(group.value, nullptr, 16)).second) << group.value;
    }
  }
  EXPECT_LT(*handles.rbegin(), seed);
  for (const CDxfGroup& group : groups) {
    if (group.code != 330 && group.code != 340 && group.code != 350 && group.code != 390) continue;
    const unsigned long to = std::stoul(group.value, nullptr, 16);
    EXPECT_TRUE(to == 0 || handles.count(to) == 1) << group.code << " " << group.value;
  }
}

}  // namespace
