#include "ShimHandOffSupport.h"

#include "QPEPLIntfWriter.h"

namespace {

using namespace shim_support;
using namespace testing_support;

// Ports of two array instances: one placed on two channels, three without a
// bel (one of them with values that have no text) and one placed memory
// port of the second instance.
const std::string everyPort = R"({
  "partition": {
    "startColumn": 6,
    "numColumns": 10,
    "qpeshimPorts": {
      "QPE_SHIM_X1Y0_S_AXIS1": {
        "PhysicalInstance": [
          {
            "name": "QPE_SHIM_X1Y0_S_AXIS0",
            "column": 1,
            "channel": 0
          },
          {
            "name": "QPE_SHIM_X1Y0_S_AXIS1",
            "column": 1,
            "channel": 1
          }
        ],
        "type": "stream",
        "direction": "slave",
        "dataWidth": 64,
        "parameterIndex": 0,
        "registeredInterface": true,
        "annotation": [
          "samples_in"
        ]
      },
      "": {
        "type": "event",
        "direction": "master",
        "parameterIndex": 3
      },
      "": {
        "type": "unknown",
        "direction": "unknown",
        "parameterIndex": 2,
        "tracedInterface": true,
        "traceFile": "trace/t.txt"
      },
      "": {
        "parameterIndex": 0
      },
      "QPE_ML_SHIM_X4Y0_M_AXIS0": {
        "PhysicalInstance": [
          {
            "name": "QPE_ML_SHIM_X4Y0_M_AXIS0",
            "column": 4,
            "channel": 4
          }
        ],
        "type": "mem",
        "direction": "master",
        "dataWidth": 128,
        "parameterIndex": 1
      }
    }
  }
})";

class QPEPLIntfWriterTest : public ShimDesign {
protected:
  std::string write(int partitionStart, int partitionSize, int arrayStart, int arraySize)
  {
    const TempDir dir;
    EXPECT_TRUE(QPEPLIntfWriter().writeToJsonFile(dir.file("pl.json"), spec, solution, model,
                                                  demo(), partitionStart, partitionSize,
                                                  arrayStart, arraySize));
    return readFile(dir.file("pl.json"));
  }

  void addEveryPort()
  {
    ZXLogicalZXIPInstance* array = model.addZXIPInstance("top/array");
    ZXLogicalPort* in = addPort(array, "in", {"top/array/in<0>_INST", "top/array/in<1>_INST"});
    in->portType = ZXLogicalPort::STREAM;
    in->direction = ZXLogicalPort::SLAVE;
    in->dataWidth = 64;
    in->busWidth = 64;  // not in this file, nor the clock
    in->clkFreq = 312.5;
    in->registeredInterface = true;
    in->annotation = {"samples_in"};
    in->hw_annotation = "S_AXIS_IN";
    place("top/array/in<0>_INST", "QPE_SHIM_X1Y0/S_AXIS0");
    place("top/array/in<1>_INST", "QPE_SHIM_X1Y0/S_AXIS1");

    ZXLogicalPort* done = addPort(array, "done", {"top/array/done"});  // not placed
    done->portType = ZXLogicalPort::EVENT;
    done->direction = ZXLogicalPort::MASTER;
    done->parameterIndex = 3;

    ZXLogicalPort* odd = model.addShimPort("odd", array);
    odd->portType = static_cast<ZXLogicalPort::PortType>(7);
    odd->direction = static_cast<ZXLogicalPort::Direction>(5);
    odd->parameterIndex = 2;
    odd->tracedInterface = true;
    odd->traceFile = "trace/t.txt";

    model.addShimPort("bare", array);

    ZXLogicalZXIPInstance* second = model.addZXIPInstance("top/array2");
    ZXLogicalPort* buffer = addPort(second, "buffer", {"top/array2/buffer"});
    buffer->portType = ZXLogicalPort::MEM;
    buffer->direction = ZXLogicalPort::MASTER;
    buffer->dataWidth = 128;
    buffer->parameterIndex = 1;
    place("top/array2/buffer", "QPE_ML_SHIM_X4Y0/M_AXIS0");
  }
};

TEST_F(QPEPLIntfWriterTest, EveryPortStandsUnderItsLastBelAndThoseWithoutOneShareTheEmptyKey)
{
  addEveryPort();
  EXPECT_EQ(write(-1, -1, 6, 10), everyPort);
  const TempDir dir;
  EXPECT_FALSE(QPEPLIntfWriter().writeToJsonFile(dir.file("no/dir/pl.json"), spec, solution,
                                                 model, demo(), -1, -1, 0, 6));
  expectSent({});
}

TEST_F(QPEPLIntfWriterTest, ThePartitionColumnsGiveWayToTheArrayOnlyWhenBothAreUnset)
{
  struct Case {
    int partitionStart, partitionSize, arrayStart, arraySize;
    const char* expected;
  };
  const Case cases[] = {
      {2, -1, 6, 10, "\"startColumn\": 2,\n    \"numColumns\": -1\n"},
      {-1, 3, 6, 10, "\"startColumn\": -1,\n    \"numColumns\": 3\n"},
      {2, 4, 6, 10, "\"startColumn\": 2,\n    \"numColumns\": 4\n"},
      {0, 0, 6, 10, "\"startColumn\": 0,\n    \"numColumns\": 0\n"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.expected);
    EXPECT_EQ(write(c.partitionStart, c.partitionSize, c.arrayStart, c.arraySize),
              std::string("{\n  \"partition\": {\n    ") + c.expected + "  }\n}");
  }
}

TEST_F(QPEPLIntfWriterTest, AnArrayInstanceWithoutPortsGivesAnEmptyPortObject)
{
  model.addPLIPInstance("top/dma");
  EXPECT_EQ(write(-1, -1, 0, 6), R"({
  "partition": {
    "startColumn": 0,
    "numColumns": 6
  }
})");
  model.addZXIPInstance("top/array");
  EXPECT_EQ(write(-1, -1, 0, 6), R"({
  "partition": {
    "startColumn": 0,
    "numColumns": 6,
    "qpeshimPorts": {}
  }
})");
}

TEST_F(QPEPLIntfWriterTest, TheBelsOfAPortAreThoseOfItsPlacedLogicalInstancesInOrder)
{
  ZXLogicalZXIPInstance* array = model.addZXIPInstance("top/array");
  ZXLogicalPort* port = addPort(array, "p", {"top/array/b", "top/array/a", "top/array/c"});
  port->logicalInstNames.insert(port->logicalInstNames.begin() + 1, "top/array/unknown");
  place("top/array/b", "QPE_SHIM_X3Y0/S_AXIS1");
  place("top/array/a", "QPE_SHIM_X0Y0/M_AXIS0");
  place("top/array/c", "QPE_SHIM_X2Y0/S_AXIS0");
  solution.placed.at(logical("top/array/c")).first = HDDMBel();
  const std::vector<HDDMBel> bels = getConstraintsForLogicalInstance(port, spec, solution);
  EXPECT_EQ(bels, (std::vector<HDDMBel>{bel("QPE_SHIM_X3Y0/S_AXIS1"),
                                        bel("QPE_SHIM_X0Y0/M_AXIS0")}));
}

}  // namespace
