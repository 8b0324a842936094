// Reports of members: every line that was computed is true, in both languages and editions.
#include <gtest/gtest.h>

#include "members/cases/member_envelope.h"
#include "members/member_cases.h"
#include "members/report/member_report.h"
#include "report_lines.h"
#include "svg_check.h"

namespace orv3 {
namespace {

using test::Lattice;
using test::Row;
using test::Sizes;

struct CReported {
  const char* m_szWhat;
  CMemberCase m_case;
};

CMemberCase With(CMemberCase c, double N, double Mx, double My = 0, double V = 0,
                 const char* load = "") {
  c.m_dN = N;
  c.m_Mx.m_dUniform = Mx;
  c.m_My.m_dUniform = My;
  c.m_dVy = V;
  c.m_dVx = My == 0 ? 0 : V / 2;
  c.m_strLoad = load;
  return c;
}

CMemberCase Ends(CMemberCase c, double M1, double M2) {
  c.m_Mx.m_arrEach = {M1, M2};
  return c;
}

const CReported kReported[] = {
    {"H",
     With(Sizes("h", {300, 400, 20, 10}, "Q345", 6000, 3000), -800, 150000, 0, 100, "uniform")},
    {"H, ends",
     Ends(With(Sizes("h", {300, 400, 20, 10}, "Q345", 6000, 9000), -500, 0), 90000, -40000)},
    {"H, web of S5", With(Sizes("h", {400, 1200, 20, 8}, "Q345", 9000, 4000), -900, 900000)},
    {"H, tension", With(Sizes("h", {300, 400, 20, 10}, "Q345", 6000, 3000), 800, 50000, 9000)},
    {"box", With(Sizes("box", {300, 400, 12}, "Q345", 6000, 6000), -900, 120000, 60000, 80)},
    {"tube",
     Ends(With(Sizes("tube", {150, 140}, "Q235", 5000, 5000), -300, 0, 20000, 30), 30000, 10000)},
    {"T", With(Row("剖分T型钢", "TW150X305", "Q235", 3000, 3000), -300, 0)},
    {"T, both senses",
     Ends(With(Row("剖分T型钢", "TW150X305", "Q235", 3000, 3000), 0, 0), 20000, -15000)},
    {"box, both shears",
     With(Sizes("box", {300, 400, 12}, "Q345", 6000, 6000), -900, 60000, 60000, 900)},
    {"channel", With(Row("热轧普通槽钢", "[20a", "Q235", 3000, 3000), 0, 20000, 0, 20, "midspan")},
    {"I", With(Row("热轧普通工字钢", "I40a", "Q235", 6000, 3000), 0, 90000, 0, 60, "uniform")},
    {"I, compressed", With(Row("热轧普通工字钢", "I40a", "Q235", 6000, 3000), -300, 0)},
    {"box, compressed", With(Sizes("box", {300, 400, 12}, "Q345", 6000, 6000), -900, 0)},
    {"tube, compressed", With(Sizes("tube", {150, 140}, "Q235", 5000, 5000), -300, 0)},
    {"angle", With(Row("热轧等边角钢", "L100X10", "Q235", 2000, 2000), -100, 0)},
    {"one leg", [] {
       CMemberCase c = With(Row("热轧等边角钢", "L100X6", "Q345", 2000, 2000), -60, 0);
       c.m_strJoined = "leg";
       c.m_dNetA = 0.9;
       return c;
     }()},
    {"plate girder",
     [] {
       CMemberCase c = With(Sizes("h", {300, 1200, 16, 8}, "Q235", 9000, 3000), 0, 500000, 0, 300);
       c.m_dStiffeners = 1000;
       return c;
     }()},
    {"bar", With(Sizes("rect", {60, 30}, "Q235", 1000, 1000), 20, 500, 0, 20)},
    {"bar, both shears", With(Sizes("rect", {30, 30}, "Q235", 1000, 1000), 20, 500, 300, 20)},
    {"laced", With(Lattice("lacing", 2), -600, 20000)},
    {"battens", With(Lattice("battens", 2), -600, 0, 0, 20)},
    {"three limbs", With(Lattice("lacing", 3), -900, 0, 0, 60)},
    {"four limbs", With(Lattice("battens", 4), -900, 0)},
};

class MemberReport : public test::CMembers {};

TEST_F(MemberReport, EveryLineIsTrue) {
  for (const CReported& each : kReported) {
    for (const char* code : {"2017", "2003"}) {
      SCOPED_TRACE(std::string(each.m_szWhat) + ", " + code);
      CMemberCase cases[] = {each.m_case, each.m_case};
      CMemberEnvelope envelope;
      for (CMemberCase& one : cases) {
        one.m_strCode = code;
        one.m_strId = &one == cases ? "<LC1>" : "LC2";
        one.m_dVy *= &one == cases ? 1 : 1.1;
        ASSERT_TRUE(m_check.Run(one)) << m_check.Fault().Line(CLanguage::English);
        envelope.Add(m_check.Answer());
      }
      for (const CLanguage language : {CLanguage::Chinese, CLanguage::English}) {
        const std::string html = CaseReport({"C1", cases, true, m_check, envelope}, language);
        EXPECT_TRUE(IsBalanced("<?xml?><body>" + html + "</body>"));
        EXPECT_EQ(html.find("<LC1>"), std::string::npos);
        EXPECT_NE(html.find("<svg"), std::string::npos);
        const auto parts = static_cast<int>(envelope.Parts().size());
        EXPECT_GE(report_lines::ExpectSteps(html), parts);
        EXPECT_EQ(report_lines::ExpectRelations(html), parts);
      }
    }
  }
}

}  // namespace
}  // namespace orv3
