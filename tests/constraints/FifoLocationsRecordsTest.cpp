#include "TestSupport.h"

#include "ConstrHandler.h"
#include "DmaFifoRecord.h"
#include "FifoLocationsRecords.h"
#include "StreamFifoRecord.h"
#include "UnspecifiedFifoRecord.h"

#include <memory>

namespace {

using namespace qpe::constraints;
using testing_support::toText;

std::string written(const FifoLocationsRecords& table)
{
  JDocument doc;
  JValue parent(rapidjson::kObjectType);
  table.write(doc, parent);
  return toText(parent);
}

TEST(FifoLocationsRecordsTest, OneLocationGetsOneGeneratedRecord)
{
  FifoLocationsRecords table;
  const DmaFifoRecord* dma = table.addDmaFifoRecord(PhysicalSpec::Mem, 3, 1, 64, 16, 2);
  ASSERT_NE(dma, nullptr);
  EXPECT_EQ(dma->getName(), "dmsfr0");
  EXPECT_EQ(table.findDmaFifoRecordMatching(PhysicalSpec::Mem, 3, 1, 64, 16, 2), dma);
  EXPECT_EQ(table.findDmaFifoRecordMatching(PhysicalSpec::Mem, 3, 1, 64, 16, 3), nullptr);
  EXPECT_EQ(table.addDmaFifoRecord(PhysicalSpec::Core, 0, 0, 8, 0, 0)->getName(), "dmsfr1");

  const StreamFifoRecord* stream = table.addStreamFifoRecord(PhysicalSpec::Core, 2, 3, 4);
  EXPECT_EQ(stream->getName(), "swfr0");
  EXPECT_EQ(table.findStreamFifoRecordMatching(PhysicalSpec::Core, 2, 3, 4), stream);
  EXPECT_EQ(table.findDmaFifoRecordMatching(PhysicalSpec::Core, 2, 3, 4, -1, -1), nullptr);

  // All fields -1 on both sides match.
  const DmaFifoRecord* unset = table.addDmaFifoRecord("u", PhysicalSpec::Core, -1, -1, -1, -1, -1);
  EXPECT_EQ(table.findDmaFifoRecordMatching(PhysicalSpec::Core, -1, -1, -1, -1, -1), unset);

  table.clear();
  EXPECT_EQ(table.findStreamFifoRecordMatching(PhysicalSpec::Core, 2, 3, 4), nullptr);
  EXPECT_EQ(table.generateStreamFifoRecordName(), "swfr0");
}

TEST(FifoLocationsRecordsTest, ATakenNameKeepsItsRecord)
{
  FifoLocationsRecords table;
  const DmaFifoRecord* first = table.addDmaFifoRecord("f", PhysicalSpec::Mem, 1, 2, 3, 4, 5);
  EXPECT_EQ(table.addDmaFifoRecord("f", PhysicalSpec::Core, 9, 9, 9, 9, 9), first);
  EXPECT_EQ(first->getSpec().getColumn(), 1) << "the new values are dropped";
  EXPECT_EQ(table.addStreamFifoRecord("f", PhysicalSpec::Core, 1, 2, 3), nullptr);
  EXPECT_EQ(table.add(std::make_unique<UnspecifiedFifoRecord>("f")), first);
  EXPECT_EQ(table.add(nullptr), nullptr);

  // A hand-made name can take a generated one; the older record stays.
  table.addStreamFifoRecord("swfr1", PhysicalSpec::Shim, 7, 0, 1);
  EXPECT_EQ(table.addStreamFifoRecord(PhysicalSpec::Core, 1, 1, 1)->getSpec().getColumn(), 7);
}

TEST(FifoLocationsRecordsTest, FirstMatchIsInNameOrder)
{
  FifoLocationsRecords table;
  table.addStreamFifoRecord("b", PhysicalSpec::Core, 1, 2, 3);
  table.addStreamFifoRecord("B", PhysicalSpec::Core, 1, 2, 3);
  table.addStreamFifoRecord("a", PhysicalSpec::Core, 1, 2, 3);
  EXPECT_EQ(table.findStreamFifoRecordMatching(PhysicalSpec::Core, 1, 2, 3)->getName(), "B");
}

TEST(FifoLocationsRecordsTest, WritesDmaThenStreamAndLeavesOutUnspecified)
{
  FifoLocationsRecords table;
  EXPECT_EQ(written(table), "{}");
  table.add(std::make_unique<UnspecifiedFifoRecord>("none"));
  table.addDmaFifoRecord("d1", PhysicalSpec::Mem, 3, 1, 64, 16, 2);
  table.addDmaFifoRecord("d0", PhysicalSpec::Core, 4, -1, -1, -1, -1);
  EXPECT_EQ(written(table),
            R"({"fifo_locations_records":{"dma_fifos":{)"
            R"("d0":{"tile_type":"core","column":4},)"
            R"("d1":{"tile_type":"mem","row":1,"column":3,"size":64,"offset":16,"bankId":2}},)"
            R"("stream_fifos":{}}})");
  table.addStreamFifoRecord("s", PhysicalSpec::Shim, 2, 0, 5);
  table.addStreamFifoRecord("t", PhysicalSpec::Unknown, -1, -1, -1);
  EXPECT_NE(written(table).find(R"("stream_fifos":{)"
                                R"("s":{"tile_type":"shim","row":0,"column":2,"channel":5},)"
                                R"("t":{"tile_type":"unknown-tile-type"}}})"),
            std::string::npos);
}

TEST(FifoLocationsRecordsTest, CopyReplacesByNameAndKeepsTheRest)
{
  ConstrHandler from;
  from.addDmaFifoRecord("shared", PhysicalSpec::Mem, 1, 1, 1, 1, 1);
  from.getRecords().add(std::make_unique<UnspecifiedFifoRecord>("u"));
  from.addStreamFifoRecord("theirs", PhysicalSpec::Core, 2, 2, 2);

  FifoLocationsRecords table;
  table.addStreamFifoRecord("shared", PhysicalSpec::Core, 9, 9, 9);
  table.addStreamFifoRecord("mine", PhysicalSpec::Core, 8, 8, 8);
  table.copy(from);
  EXPECT_EQ(table.getRecords().size(), 4u);
  EXPECT_TRUE(isUnspecifiedFifoRecord(table.get("u")));
  EXPECT_NE(table.get("mine"), nullptr);
  EXPECT_EQ(table.getStreamFifoRecordSize(), 2u);
  EXPECT_EQ(table.findStreamFifoRecordMatching(PhysicalSpec::Core, 9, 9, 9), nullptr);
  EXPECT_EQ(table.findDmaFifoRecordMatching(PhysicalSpec::Mem, 1, 1, 1, 1, 1),
            table.get("shared"));
  EXPECT_FALSE(table.equals(from.getRecords()));

  ConstrHandler again;
  again.getRecords().copy(from);
  EXPECT_TRUE(again.getRecords().equals(from.getRecords()));
  again.getRecords().copy(again);
  EXPECT_TRUE(again.getRecords().equals(from.getRecords())) << "a copy onto itself";
}

TEST(FifoLocationsRecordsTest, RecordsCompareByKindAndContents)
{
  const DmaFifoRecord dma("a", PhysicalSpec::Mem, 1, 2, 3, 4, 5);
  const DmaFifoRecord dmaElsewhere("b", PhysicalSpec::Mem, 1, 2, 3, 4, 6);
  const StreamFifoRecord stream("a", PhysicalSpec::Mem, 1, 2, 3);
  const UnspecifiedFifoRecord unspecifiedA("a");
  const UnspecifiedFifoRecord unspecifiedB("b");
  const auto unspecifiedClone = unspecifiedA.clone();
  const DmaFifoRecord dmaRenamed("other name", PhysicalSpec::Mem, 1, 2, 3, 4, 5);
  const StreamFifoRecord streamOnCore("a", PhysicalSpec::Core, 1, 2, 3);
  struct Case {
    const FifoLocationsRecord& a;
    const FifoLocationsRecord& b;
    bool equal;
  };
  const Case cases[] = {
      {dma, dmaRenamed, true},
      {dma, dmaElsewhere, false},
      {stream, streamOnCore, false},
      {dma, stream, false},
      {unspecifiedA, *unspecifiedClone, true},
      {unspecifiedA, unspecifiedB, false},
      {unspecifiedA, dma, false},
  };
  for (const Case& c : cases)
    EXPECT_EQ(FifoLocationsRecord::equals(c.a, c.b), c.equal) << c.a.getName() << c.b.getName();

  EXPECT_FALSE(isDmaFifoRecord(&stream));
  EXPECT_FALSE(isStreamFifoRecord(nullptr));
}

}  // namespace
