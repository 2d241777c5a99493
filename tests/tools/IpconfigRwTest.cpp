#include "TestSupport.h"

#include <boost/algorithm/string/replace.hpp>

namespace {

using namespace testing_support;

// One run of the tool in a fresh directory $D that holds `input` as in.json
// when given; $E stands for the examples. The whole output is expected, or
// with `partial` a piece of it.
struct RunCase {
  const char* name;
  const char* input;
  std::string args;
  int exitCode;
  std::string output;
  bool partial = false;
};

void PrintTo(const RunCase& c, std::ostream* out)
{
  *out << c.name;
}

std::string expand(std::string text, const TempDir& dir)
{
  boost::replace_all(text, "$E", IPCONFIG_RW_EXAMPLES_DIR);
  boost::replace_all(text, "$D", dir.path().string());
  return text;
}

class IpconfigRwTest : public ::testing::TestWithParam<RunCase> {};

TEST_P(IpconfigRwTest, ExitCodeAndOutput)
{
  const RunCase& c = GetParam();
  const TempDir dir;
  if (c.input)
    writeFile(dir.file("in.json"), c.input);
  const RunResult result = runTool(expand(c.args, dir));
  EXPECT_EQ(result.exitCode, c.exitCode) << result.output;
  const std::string expected = expand(c.output, dir);
  if (c.partial)
    EXPECT_NE(result.output.find(expected), std::string::npos) << result.output;
  else
    EXPECT_EQ(result.output, expected);
}

const std::string constraintsCounts =
    ": 13 constraints (8 node, 3 port, 2 net, 0 global), 2 FIFO records (1 DMA, 1 stream)\n";
const std::string trafficCounts =
    ": 11 instances (4 master, 3 slave, 4 other), 4 paths, 1 phase groups, 1 DFX paths\n";
// The compiler hand-off inputs: device, logical architecture, traffic.
const std::string handOff = " qpe_demo $E/logical_arch.json $E/traffic.json";
const std::string solutionCounts =
    ": 4 logical instances on 4 channels, 3 of 4 shim ports placed\n";
const std::string logicalArchCounts =
    ": 4 instances (1 QPE, 2 NoC, 1 PL), 9 ports, 5 connections\n";

INSTANTIATE_TEST_SUITE_P(
    Runs, IpconfigRwTest,
    ::testing::Values(
        RunCase{"metadataCheck", nullptr, "metadata check $E/metadata.json", 0,
                "metadata $E/metadata.json: 5 properties: QPE_PL_INTF_ID (int), "
                "QPE_PL_INTF_ID_STR (string), compiler.options (string list), "
                "device.speedGrade (double), project.enableBlockModel (bool)\n"},
        RunCase{"metadataRoundtrip", nullptr, "metadata roundtrip $E/metadata.json $D/out.json", 0,
                "metadata $E/metadata.json -> $D/out.json: 5 properties\n"},
        RunCase{"metadataMalformed", "{", "metadata check $D/in.json", 1,
                "ERROR: [ipconfig @90-2@] $D/in.json Missing a name for object member. "
                "(offset 1)\n"},
        RunCase{"unwritable", nullptr, "metadata roundtrip $E/metadata.json $D/no/out.json", 1,
                "metadata: cannot write $D/no/out.json\n"},
        RunCase{"trafficCheck", nullptr, "traffic check $E/traffic.json", 0,
                "traffic $E/traffic.json" + trafficCounts},
        RunCase{"nocConstraintsCheck", nullptr, "nocconstraints check $E/noc_constraints.json",
                0,
                "nocconstraints $E/noc_constraints.json: 3 placements (1 soft), 6 components\n"},
        RunCase{"nocConstraintsRoundtrip", nullptr,
                "nocconstraints roundtrip $E/noc_constraints.json $D/out.json", 0,
                "nocconstraints $E/noc_constraints.json -> $D/out.json: 3 placements (1 soft), "
                "6 components\n"},
        // Against the traffic example on its shipped device, the names the
        // device lacks are counted; the reader drops them without a word.
        RunCase{"nocConstraintsCheckOnDevice", nullptr,
                "nocconstraints check $E/noc_constraints_on_device.json "
                "--traffic $E/traffic.json",
                0,
                "nocconstraints $E/noc_constraints_on_device.json: 3 placements (1 soft), "
                "4 components\n"},
        RunCase{"nocConstraintsNotOnDevice", nullptr,
                "nocconstraints check $E/noc_constraints.json --traffic=$E/traffic.json", 0,
                "nocconstraints $E/noc_constraints.json: 0 placements (0 soft), 0 components; "
                "not in the design: 0 instances, 6 components\n"},
        RunCase{"nocConstraintsBadValue", R"({"Placement": [{"IsSoft": 1}]})",
                "nocconstraints check $D/in.json", 1,
                "ERROR: [ipconfig @90-2@] $D/in.json /Placement/0/IsSoft\n"},
        RunCase{"nocConstraintsUnwritable", nullptr,
                "nocconstraints roundtrip $E/noc_constraints.json $D/no/out.json", 1,
                "nocconstraints: cannot write $D/no/out.json\n"},
        RunCase{"trafficRoundtrip", nullptr, "traffic roundtrip $E/traffic.json $D/out.json", 0,
                "traffic $E/traffic.json -> $D/out.json" + trafficCounts},
        RunCase{"trafficNothingToWrite", R"({"SystemProperties": {"DeviceName": "d"}})",
                "traffic roundtrip $D/in.json $D/out.json", 1,
                "traffic: $D/in.json has no instance, no user-set frequency and no DFX path; "
                "nothing written\n"},
        RunCase{"solutionCheck", nullptr, "solution check $E/traffic.json $E/solution.json", 0,
                "solution $E/solution.json: OPTIMAL on xq2vp1502, 11 routes (2 locked) over 22 "
                "links, 6 placements (0 locked), 7 destination ids, 3 read and 3 write path "
                "latencies\n"},
        RunCase{"solutionRoundtrip", nullptr,
                "solution roundtrip $E/traffic.json $E/solution_written.json $D/out.json", 0,
                "solution $E/solution_written.json -> $D/out.json: OPTIMAL, 11 routes, 7 "
                "destination ids\n"},
        RunCase{"solutionUnwritable", nullptr,
                "solution roundtrip $E/traffic.json $E/solution.json $D/no/out.json", 1,
                "solution: cannot write $D/no/out.json\n"},
        RunCase{"solutionUnknownComponent", R"({"Components": [{"Name": "NPS_X9Y9"}]})",
                "solution check $E/traffic.json $D/in.json", 0,
                "CRITICAL WARNING: [ipconfig @75-184@] NPS_X9Y9\n", true},
        RunCase{"solutionMissingLink",
                R"({"Paths": [{"From": "top/cpu_cci", "To": "top/ddr_mc", "Port": "PORT0",
                    "Nets": [{"CommType": "READ", "Connections": ["NPS_X0Y1", "OUT0",
                                                                  "NPS_X1Y1", "IN0"]}]}]})",
                "solution check $E/traffic.json $D/in.json", 1,
                "ERROR: No Connection between NPS_X0Y1:OUT0 to NPS_X1Y1:IN0\n"
                "Device Model version mismatch!\n",
                true},
        RunCase{"logicalArchCheck", nullptr, "logicalarch check $E/logical_arch.json", 0,
                "logicalarch $E/logical_arch.json" + logicalArchCounts},
        RunCase{"logicalArchRoundtrip", nullptr,
                "logicalarch roundtrip $E/logical_arch.json $D/out.json", 0,
                "logicalarch $E/logical_arch.json -> $D/out.json" + logicalArchCounts},
        RunCase{"logicalArchEmpty", R"({"appId": "a"})",
                "logicalarch roundtrip $D/in.json $D/out.json", 1,
                "logicalarch: $D/in.json has no instance and no connection; nothing written\n"},
        RunCase{"partitionWholeArray", nullptr,
                "partition write $E/logical_arch.json $D/out.json --array-start 6 "
                "--array-size 10 && cat $D/out.json",
                0,
                "partition $E/logical_arch.json -> $D/out.json: 1 compute arrays\n"
                "{\n  \"QPE\": {\n    \"top/array\": {\n      \"startColumn\": 6,\n"
                "      \"numColumns\": 10,\n      \"partitions\": [\n        {\n"
                "          \"startColumn\": 6,\n          \"numColumns\": 10,\n"
                "          \"uuid\": \"0x\",\n          \"qpe_pl_intf_id\": \"0x00000000\",\n"
                "          \"namespace\": \"\"\n        }\n      ]\n    }\n  }\n}"},
        RunCase{"partitionMissingOption", nullptr,
                "partition write $E/logical_arch.json $D/out.json --array-size 10", 2,
                "ipconfig-rw: partition write needs the option '--array-start'\n", true},
        RunCase{"partitionBadNumber", nullptr,
                "partition write $E/logical_arch.json $D/out.json --array-start 1 "
                "--array-size 10 --intf-id -1",
                2, "option '--intf-id': '-1' is not a number from 0 to 4294967295", true},
        RunCase{"partitionBadUuid", nullptr,
                "partition write $E/logical_arch.json $D/out.json --array-start 1 "
                "--array-size 10 --uuid 123",
                2, "option '--uuid': '123' is not hexadecimal digits in words of eight", true},
        RunCase{"partitionUnknownOption", nullptr,
                "partition write $E/logical_arch.json $D/out.json --array-begin 1", 2,
                "unknown option '--array-begin' for write", true},
        RunCase{"partitionUnwritable", nullptr,
                "partition write $E/logical_arch.json $D/no/out.json --array-start 0 "
                "--array-size 1",
                1, "partition: cannot write $D/no/out.json\n"},
        RunCase{"compilerSolutionCheck", nullptr,
                "compilersolution check" + handOff + " $E/compiler_solution.json", 0,
                "compilersolution $E/compiler_solution.json" + solutionCounts},
        RunCase{"compilerSolutionRoundtrip", nullptr,
                "compilersolution roundtrip" + handOff + " $E/compiler_solution.json $D/out.json",
                0, "compilersolution $E/compiler_solution.json -> $D/out.json" + solutionCounts},
        RunCase{"compilerSolutionNothingPlaced",
                R"({"Placement": [{"LogicalInstance": {"InstanceName": "top/array",
                    "PortName": "done"}, "PhysicalInstance": [{"name": "QPE_SHIM_X0Y0_S_AXIS0"}]}]})",
                "compilersolution roundtrip" + handOff + " $D/in.json $D/out.json", 1,
                "compilersolution: no port of $D/in.json is placed; nothing written\n"},
        RunCase{"compilerSolutionBadValue",
                R"({"Placement": [{"PhysicalInstance": [{"name": 7}]}]})",
                "compilersolution check" + handOff + " $D/in.json", 1,
                "ERROR: [ipconfig @90-2@] $D/in.json /Placement/0/PhysicalInstance/0/name\n"},
        RunCase{"compilerSolutionUnknownDevice", nullptr,
                "compilersolution check no_such_device $E/logical_arch.json $E/traffic.json "
                "$E/compiler_solution.json",
                1, "@90-1@", true},
        RunCase{"shimConstraintsWrite", nullptr,
                "shimconstraints write" + handOff + " $E/compiler_solution.json top/array "
                "$D/out.json",
                0, "shimconstraints top/array -> $D/out.json\n"},
        RunCase{"shimConstraintsUnknownInstance", nullptr,
                "shimconstraints write" + handOff + " $E/compiler_solution.json top/noc "
                "$D/out.json",
                1, "shimconstraints: $E/logical_arch.json has no array instance top/noc\n"},
        RunCase{"shimConstraintsInterfaceId", nullptr,
                "shimconstraints interfaceid" + handOff + " $E/compiler_solution.json top/array",
                0,
                "bufferQPE_ML_SHIM_X4Y0_M_AXIS0reg0"
                "samples_inQPE_SHIM_X1Y0_S_AXIS0QPE_SHIM_X1Y0_S_AXIS1cf312.500dw64reg1"
                "spectrum_outQPE_SHIM_X2Y0_M_AXIS0cf312.500dw128reg0\n"},
        RunCase{"plInterfaceWrite", nullptr,
                "plinterface write" + handOff + " $E/compiler_solution.json $D/out.json", 0,
                "plinterface $E/compiler_solution.json -> $D/out.json: 3 of 4 shim ports "
                "placed\n"},
        RunCase{"plInterfaceWritePartition", nullptr,
                "plinterface write" + handOff +
                    " $E/compiler_solution.json $D/out.json --partition-start 2 "
                    "--array-size=9 && head -4 $D/out.json",
                0,
                "plinterface $E/compiler_solution.json -> $D/out.json: 3 of 4 shim ports "
                "placed\n{\n  \"partition\": {\n    \"startColumn\": 2,\n"
                "    \"numColumns\": -1,\n"},
        RunCase{"plInterfaceWholeArray", nullptr,
                "plinterface write" + handOff +
                    " $E/compiler_solution.json $D/out.json --array-start 0x3 "
                    "--array-size=9 && head -4 $D/out.json",
                0,
                "plinterface $E/compiler_solution.json -> $D/out.json: 3 of 4 shim ports "
                "placed\n{\n  \"partition\": {\n    \"startColumn\": 3,\n"
                "    \"numColumns\": 9,\n"},
        RunCase{"plInterfaceBadColumn", nullptr,
                "plinterface write" + handOff +
                    " $E/compiler_solution.json $D/out.json --partition-start 2x",
                2, "option '--partition-start': '2x' is not a number", true},
        RunCase{"plInterfaceUnwritable", nullptr,
                "plinterface write" + handOff + " $E/compiler_solution.json $D/no/out.json", 1,
                "plinterface: cannot write $D/no/out.json\n"},
        RunCase{"constraintsDraw", nullptr,
                "constraints draw $E/array_placement.json $D/out.svg --device qpe_demo && "
                "cmp $E/array_placement.svg $D/out.svg",
                0,
                "constraints $E/array_placement.json -> $D/out.svg: 6 columns, 5 rows, 2 area "
                "groups, 1 off the grid\n"},
        RunCase{"constraintsDrawUnknownDevice", nullptr,
                "constraints draw $E/array_placement.json $D/out.svg --device nosuch", 1,
                "@90-1@", true},
        RunCase{"constraintsDrawUnwritable", nullptr,
                "constraints draw $E/array_placement.json $D/none/out.svg", 1,
                "constraints: cannot write $D/none/out.svg\n", true},
        RunCase{"constraintsCheck", nullptr, "constraints check $E/constraints.json", 0,
                "constraints $E/constraints.json" + constraintsCounts},
        RunCase{"constraintsRoundtrip", nullptr,
                "constraints roundtrip $E/constraints.json $D/out.json", 0,
                "constraints $E/constraints.json -> $D/out.json: 13 constraints\n", true},
        RunCase{"constraintsToolGenerated",
                R"({"isToolGenerated": true, "isSoft": true, "NetConstraints": {"e": {"w": 1}}})",
                "constraints check $D/in.json", 0,
                "constraints $D/in.json (tool generated, soft): 1 constraints (0 node, 0 port, "
                "1 net, 0 global), 0 FIFO records (0 DMA, 0 stream)\n",
                true},
        RunCase{"constraintsWarning", R"({"NodeConstraints": {"": {"a": 1}}})",
                "constraints check $D/in.json", 0, "CRITICAL WARNING: [ipconfig @75-407@] \n",
                true},
        RunCase{"constraintsDump",
                R"({"NodeConstraints": {"n": {"margin": 2, "label": "x", "tile": {"column": 1,
                    "row": 2}, "mem": [{"bankId": 0, "offset": 64}]}},
                    "PortConstraints": {"p": {"buffers": [{}]}}, "NetConstraints": {"e": {"on": true}},
                    "GlobalConstraints": {"areaGroup": {"name": "g", "nodeGroup": ["n"],
                                                        "shimGroup": [3]}}})",
                "constraints dump $D/in.json", 0,
                " attr(n)=(2)\n attr(n)=(x)\n abs(n,tile)=(1,2)\n"
                " mem(n,shared_buffer)=ping=(-1,-1,0,64)\n buf(p,data_buffer)=\n attr(e)=(true)\n"
                " areaGroup(g)=(n,)(\n  low=shim=(3,-1))\n exclude=(false) isSoft=(false) "
                "contain_routing=(false) exclusive_routing=(false) exclusive_placement=(false)\n"},
        RunCase{"colocationCheck", nullptr, "constraints check $E/colocation.json", 0,
                "constraints $E/colocation.json: 14 constraints (4 node, 10 port, 0 net, 0 "
                "global), 2 FIFO records (1 DMA, 1 stream)\n"},
        RunCase{"groupsDump",
                R"json({"NodeConstraints": {"n": {"relative_nodes": ["a:(Y=2,X=1)", "b:X=3",
                                                                  "c:(X=z)"]}},
                    "GlobalConstraints": {"instGroup": {"name": "i", "nodeGroup": ["n"]},
                      "isomorphicGraphGroup": {"name": "g", "stampedGraphs": ["s"]},
                      "dependentRoutingGroup": {"name": "d"}}})json",
                "constraints dump $D/in.json", 0,
                " rel(n,relative_nodes)=(a:(X=-9999,Y=-9999),b:(X=3,Y=-9999),c:(X=-1,Y=-9999))\n"
                " instGroup(i)=(n,) isIsomorphic=(false)\n isomorphicGraphGroup(g)=( - s,)\n"
                " dependentRoutingGroup(d)=()\n"},
        RunCase{"portKindsDump",
                R"({"PortConstraints": {"p": {"port_loc": {"name": "s", "channel": 1},
                    "stream_channel": {"column": 1, "row": 2, "offset": 3, "direction": "NORTH",
                                       "channel": 4},
                    "colocated_ports": ["q"], "exclusive_colocated_ports": ["r"],
                    "colocated_dma": ["q"], "fifo_locations": ["f"]}}})",
                "constraints dump $D/in.json", 0,
                " abs(p,shim)=(-1,1)\n stream_chan(p)=Absolute:(1,2,4,North)\n"
                " rel(p,colocated_ports)=(q,) rel(p,exclusive_colocated_ports)=(r,)\n"
                " rel(p,colocated_dma)=(q,)\n rel(p,fifo_locations)=(f,)\n"},
        RunCase{"areaGroups", nullptr, "constraints areagroups $E/area_groups.json $D/out.json", 0,
                "constraints $E/area_groups.json -> $D/out.json: 3 groups\n"},
        RunCase{"help", nullptr, "--help", 0, "  metadata: project metadata", true},
        RunCase{"noArguments", nullptr, "", 2, "expected a format and a command", true},
        RunCase{"unknownFormat", nullptr, "nosuchformat check x", 2,
                "unknown format 'nosuchformat'", true},
        RunCase{"unknownCommand", nullptr, "metadata explode x", 2, "unknown command 'explode'",
                true},
        RunCase{"argumentCount", nullptr, "constraints areagroups $E/placement.json", 2,
                "takes 2 argument(s)", true}),
    [](const auto& info) { return info.param.name; });

}  // namespace
