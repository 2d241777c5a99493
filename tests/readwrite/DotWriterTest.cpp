#include "TestSupport.h"

#include "DotText.h"
#include "LogicalArchDotWriter.h"
#include "TrafficDotWriter.h"
#include "TrafficSpec.h"
#include "ZXLogicalArchModel.h"

namespace {

namespace fw = IPConfig::Frameworks;
namespace Defs = DevHrdIP::Definitions;
using IPConfig::DotText;

std::string drawn(const fw::ZXLogicalArchModel& model)
{
  std::ostringstream out;
  fw::LogicalArchDotWriter(model).write(out);
  return out.str();
}

std::string drawn(const HrdIPToolCntr::TrafficSpec& traffic)
{
  std::ostringstream out;
  NOC::TrafficDotWriter(traffic).write(out);
  return out.str();
}

TEST(DotTextTest, QuotesEscapeWhatWouldEndOrBreakTheString)
{
  EXPECT_EQ(DotText::quoted(""), R"("")");
  EXPECT_EQ(DotText::quoted("top/a b"), R"("top/a b")");
  EXPECT_EQ(DotText::quoted(R"(say "hi")"), R"("say \"hi\"")");
  EXPECT_EQ(DotText::quoted(R"(C:\dir)"), R"("C:\\dir")");
  EXPECT_EQ(DotText::quoted("two\r\nlines"), R"("two\nlines")");
  EXPECT_EQ(DotText::quotedLines({"a", "b\"", ""}), R"("a\nb\"\n")");
}

TEST(LogicalArchDotWriterTest, EmptyModelIsAGraphWithoutClusters)
{
  EXPECT_EQ(drawn(fw::ZXLogicalArchModel()),
            "digraph logical_architecture {\n"
            "  rankdir=LR;\n"
            "  node [shape=box];\n"
            "}\n");
}

TEST(LogicalArchDotWriterTest, NamesAreEscapedAndLooseEndsArePoints)
{
  fw::ZXLogicalArchModel model;
  model.setAppId("app \"1\"");
  fw::ZXLogicalPLIPInstance* kernel = model.addPLIPInstance("k\\1");
  fw::ZXLogicalNOCIPInstance* noc = model.addNOCIPInstance("noc\nx");
  fw::ZXLogicalPort* out = model.addPLPort("o\"ut", kernel);
  fw::ZXLogicalPort* in = model.addNOCPort("in", noc);

  fw::ZXLogicalConnection* whole = model.addLogicalConnection("whole");
  whole->srcPort = out;
  whole->dstPorts = {in, in};
  whole->connectionDirection = fw::ZXLogicalConnection::PL_TO_NOC;
  fw::ZXLogicalConnection* sourceless = model.addLogicalConnection("no \"source\"");
  sourceless->dstPorts = {in};
  fw::ZXLogicalConnection* targetless = model.addLogicalConnection("no target");
  targetless->srcPort = out;
  targetless->connectionDirection = fw::ZXLogicalConnection::PL_TO_PL;
  model.addLogicalConnection("nothing");

  // Node numbers follow the kinds' order (compute array, NoC, PL), not the
  // order of addition.
  EXPECT_EQ(drawn(model), R"(digraph logical_architecture {
  label="app \"1\"";
  rankdir=LR;
  node [shape=box];
  subgraph cluster_noc {
    label="NoC";
    n0 [label="noc\nx"];
  }
  subgraph cluster_pl {
    label="PL";
    n1 [label="k\\1"];
  }
  n1 -> n0 [label="o\"ut -> in\npl_to_noc"];
  n1 -> n0 [label="o\"ut -> in\npl_to_noc"];
  c1 [shape=point, xlabel="no \"source\""];
  c1 -> n0 [label="? -> in"];
  c2 [shape=point, xlabel="no target"];
  n1 -> c2 [label="o\"ut -> ?\npl_to_pl"];
  c3 [shape=point, xlabel="nothing"];
}
)");
}

TEST(TrafficDotWriterTest, MastersAndSlavesInAddedOrderWithPathBandwidths)
{
  HrdIPToolCntr::TrafficSpec traffic;
  HrdIPToolCntr::TrafficLInst* slave = traffic.addLogicalInstance("mem", Defs::AXI_MM, Defs::DDRC, {});
  traffic.addLogicalInstance("switch", Defs::AXI_MM, Defs::NPS, {});
  HrdIPToolCntr::TrafficLInst* master =
      traffic.addLogicalInstance("cpu \"0\"", Defs::AXI_MM, Defs::PL_NMU, {});
  HrdIPToolCntr::TrafficPath* path = traffic.addPath(master, slave);
  path->setReadPerfSpec({Defs::BE, 400, 10});
  path->setWritePerfSpec({Defs::BE, 25, 10});
  traffic.addPath(master, slave);

  EXPECT_EQ(drawn(traffic), R"(digraph traffic {
  rankdir=LR;
  node [shape=box];
  subgraph cluster_masters {
    label="masters";
    n1 [label="cpu \"0\"\nPL_NMU"];
  }
  subgraph cluster_slaves {
    label="slaves";
    n0 [label="mem\nDDRC"];
  }
  n1 -> n0 [label="read 400\nwrite 25"];
  n1 -> n0 [label="read 0\nwrite 0"];
}
)");
  EXPECT_EQ(drawn(HrdIPToolCntr::TrafficSpec()),
            "digraph traffic {\n  rankdir=LR;\n  node [shape=box];\n}\n");
}

}  // namespace
