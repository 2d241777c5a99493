#include "ConstrSupport.h"

#include "AttrConstr.h"
#include "DmaFifoRecord.h"
#include "ShimConstr.h"
#include "StreamFifoRecord.h"
#include "TileConstr.h"
#include "UnspecifiedFifoRecord.h"

#include <memory>

namespace {

using namespace constr_support;
using Constrs = ConstrHandler::Constrs;

TEST(ConstrHandlerTest, SetReplacesTheValueOfOneAttributePerCanonicalName)
{
  ConstrHandler handler;
  handler.setAttrConstr(Base::NODE, "n", "qpe.utilization", 0.5);
  handler.setAttrConstr(Base::NODE, "n", "UTILIZATION", 0.75);
  handler.setAttrConstr(Base::NODE, "n", "Foo", 1);
  handler.setAttrConstr(Base::PORT, "p", "label", "x");
  ASSERT_EQ(handler.size(), 3u);
  EXPECT_EQ(handler.getAttrConstr("n", "Utilization")->getDoubleVal(), 0.75);
  EXPECT_EQ(handler.getAttrConstr("p", "label")->getStringVal(), "x");

  // The lookup ignores case, so "foo" finds "qpe.Foo" and sets it through the
  // setter of the value's kind. Only creation makes a second attribute.
  handler.setAttrConstr(Base::NODE, "n", "foo", 2.9);
  EXPECT_EQ(handler.getAttrConstr("n", "Foo")->getAttrType(), HATAttrTypes::AttrInt);
  EXPECT_EQ(handler.getAttrConstr("n", "Foo")->getIntVal(), 2);
  handler.createAttrConstr(Base::NODE, "n", HATAttrTypes::AttrBool, "foo");
  EXPECT_EQ(handler.getConstrs().back()->getConstrName(), "qpe.foo");

  // Empty names create nothing and report nothing.
  handler.setAttrConstr(Base::NODE, "", "a", 1);
  handler.setAttrConstr(Base::NODE, "n", "", 1);
  EXPECT_EQ(handler.createAttrConstr(Base::NODE, "", HATAttrTypes::AttrInt, "a"), nullptr);
  EXPECT_EQ(handler.createAttrConstr(Base::NODE, "n", HATAttrTypes::AttrInt, ""), nullptr);
  EXPECT_EQ(handler.size(), 4u);

  AttrConstr* made = handler.createAttrConstr(Base::NET, "e", HATAttrTypes::AttrDouble, "runtime");
  EXPECT_EQ(made->getConstrName(), "QPE.RUNTIME");
  EXPECT_FALSE(made->isSet());
  expectRefused([&] { handler.getAttrConstr("n", ""); },
                "ConstrHandler::get() - attrName must be specified when T == AttrConstr");
}

TEST(ConstrHandlerTest, QueriesByObjectAndName)
{
  ConstrHandler handler;
  handler.setAttrConstr(Base::NODE, "n", "fifo_depth", 4);
  handler.setAttrConstr(Base::NODE, "n", "qpe.tile", 1);
  handler.setAttrConstr(Base::NODE, "n", "margin", 2);
  handler.setAttrConstr(Base::PORT, "p", "margin", 3);
  const Constrs all = handler.getConstrs();

  const Constrs sentinel{all[0]};
  Constrs out = sentinel;
  handler.getConstrs("unknown", out);
  handler.getConstrs("unknown", "qpe.margin", out);
  handler.getConstrs("unknown", Base::Attr, out);
  EXPECT_EQ(out, sentinel) << "unknown objects leave the result alone";

  handler.getConstrs("n", out);
  EXPECT_EQ(out, (Constrs{all[0], all[1], all[2]}));
  handler.getConstrs("n", "QPE.Margin", out);
  EXPECT_EQ(out, (Constrs{all[2]}));
  handler.getConstrs("n", "margin", out);
  EXPECT_TRUE(out.empty()) << "no canonical retry here";
  handler.getConstrs("n", Base::Tile, out);
  EXPECT_TRUE(out.empty());
  handler.getConstrs(Base::PORT, out);
  EXPECT_EQ(out, (Constrs{all[3]}));

  EXPECT_EQ(handler.getConstr("n", "qpe.TILE"), all[1]);
  EXPECT_EQ(handler.getConstr("n", "fifo_depth"), all[0]) << "by canonical name";
  EXPECT_EQ(handler.getConstr("n", "nothing"), nullptr);
  EXPECT_EQ(handler.getConstr("p", Base::Attr), all[3]);
  EXPECT_EQ(handler.getConstr("p", Base::Tile), nullptr);
  EXPECT_EQ(handler.getTileConstr("n"), nullptr) << "an attribute of that name is no tile";
}

TEST(ConstrHandlerTest, ConstrainedObjectsInOrderOfFirstAppearance)
{
  ConstrHandler handler;
  for (const char* node : {"b", "a", "b", "c"})
    handler.setAttrConstr(Base::NODE, node, std::string("k") + node, 1);
  handler.setAttrConstr(Base::NODE, "a", "other", 1);
  handler.setAttrConstr(Base::NET, "e", "k", 1);
  Names out{"stale"};
  handler.getAllConstrainedNodes(out);
  EXPECT_EQ(out, (Names{"b", "a", "c"}));
  handler.getAllConstrainedNets(out);
  EXPECT_EQ(out, (Names{"e"}));
  handler.getAllConstrainedPorts(out);
  EXPECT_TRUE(out.empty());
}

TEST(ConstrHandlerTest, UnloadLeavesAnEmptyEntry)
{
  ConstrHandler handler;
  handler.setAttrConstr(Base::NODE, "n", "a", 1);
  handler.setAttrConstr(Base::NODE, "m", "a", 1);
  BaseConstraint* doomed = handler.getConstr("n", "a");
  handler.unload(nullptr);
  ConstrHandler other;
  other.setAttrConstr(Base::NODE, "n", "a", 1);
  handler.unload(other.getConstrs().front());
  EXPECT_EQ(handler.size(), 2u) << "null and foreign constraints are ignored";

  handler.unload(doomed);
  EXPECT_EQ(handler.size(), 1u);
  const Constrs sentinel{handler.getConstrs().front()};
  Constrs out = sentinel;
  handler.getConstrs("n", out);
  EXPECT_EQ(out, sentinel) << "an empty entry answers like an unknown object";
  handler.getConstrs("n", "qpe.a", out);
  EXPECT_TRUE(out.empty()) << "but the object is known";
}

TEST(ConstrHandlerTest, LookupsFindTheFirstThatIsLeftAfterUnload)
{
  ConstrHandler handler;
  handler.setAttrConstr(Base::NODE, "n", "a", 1);
  handler.createAttrConstr(Base::NODE, "n", HATAttrTypes::AttrInt, "B");
  handler.createAttrConstr(Base::NODE, "n", HATAttrTypes::AttrInt, "b");
  handler.setTileConstr("n", 1, 2, PhysicalSpec::Core);
  handler.setTileConstr("m", 3, 4, PhysicalSpec::Core);
  const Constrs all = handler.getConstrs();

  EXPECT_EQ(handler.getConstr("n", "QPE.b"), all[1]);
  EXPECT_EQ(handler.getConstr("n", Base::Attr), all[0]);
  handler.unload(all[1]);
  EXPECT_EQ(handler.getConstr("n", "qpe.B"), all[2]);
  handler.unload(all[0]);
  EXPECT_EQ(handler.getConstr("n", Base::Attr), all[2]);
  EXPECT_EQ(handler.getConstr("n", "a"), nullptr);
  handler.unload(all[2]);
  EXPECT_EQ(handler.getConstr("n", "b"), nullptr);
  EXPECT_EQ(handler.getConstr("n", Base::Attr), nullptr);
  EXPECT_EQ(handler.getConstr("n", Base::Tile), all[3]);

  // Moved entries keep their lookups under the new name.
  handler.renamePorts({{"m", "n"}});
  EXPECT_EQ(handler.getConstr("n", Base::Tile), all[4]);
  EXPECT_EQ(handler.getConstr("n", "qpe.tile"), all[4]);
}

TEST(ConstrHandlerTest, RenamePortsMovesIndexEntries)
{
  ConstrHandler handler;
  handler.setAttrConstr(Base::PORT, "a", "k", 1);
  handler.createAttrConstr(Base::NODE, "a", HATAttrTypes::AttrInt, "k");
  handler.setAttrConstr(Base::PORT, "c", "k", 3);
  const Constrs all = handler.getConstrs();

  handler.renamePorts({{"a", "b"}, {"c", "d"}, {"zz", "y"}});
  EXPECT_EQ(all[0]->getObjName(), "b");
  EXPECT_EQ(all[1]->getObjName(), "a") << "a node keeps its name";
  Constrs out{all[2]};
  handler.getConstrs("a", out);
  EXPECT_EQ(out, Constrs{all[2]});
  handler.getConstrs("b", out);
  EXPECT_EQ(out, (Constrs{all[0], all[1]})) << "the index follows the new names";
  EXPECT_EQ(handler.getAttrConstr("d", "k"), all[2]);

  // The node is filed under "b" now, and unloads cleanly from there.
  handler.unload(all[1]);
  handler.getConstrs("b", out);
  EXPECT_EQ(out, Constrs{all[0]});
  Names ports;
  handler.getAllConstrainedPorts(ports);
  EXPECT_EQ(ports, (Names{"b", "d"}));
}

TEST(ConstrHandlerTest, CreationOfKindsItDoesNotMake)
{
  ConstrHandler handler;
  for (Base::ConstrType type : {Base::Attr, Base::AreaGroup, Base::IsomorphicGraphGroup})
    expectRefused([&] { handler.createConstr(type, Base::NODE, "n"); },
                  "ConstrHandler::createConstr() - this function does not support creating "
                  "constraints of type '" + Base::getConstrTypeAsStr(type) + "'");
  for (Base::ConstrType type : {Base::Buffer, Base::Attr, Base::FifoLocations})
    expectRefused([&] { handler.createGlobalConstr(type, "g"); },
                  "ConstrHandler::createGlobalConstr() - this function does not support "
                  "creating constraints of type '" + Base::getConstrTypeAsStr(type) + "'");
  EXPECT_TRUE(handler.empty());
}

TEST(ConstrHandlerTest, VisitorsAndDumpGoInCreationOrder)
{
  ConstrHandler handler;
  handler.setAttrConstr(Base::NODE, "z", "k", 1);
  handler.setTileConstr("a", 1, 2, PhysicalSpec::Core);
  handler.setShimConstr("m", 3, 0);

  KindRecorder<ConstBaseVisitor, ReadOnly> reader;
  handler.accept(reader);
  EXPECT_EQ(reader.kinds, (Names{"AttrConstr", "TileConstr", "ShimConstr"}));

  KindRecorder<BaseVisitor, Mutable> adding;
  adding.onVisit = [&] { handler.setAttrConstr(Base::NODE, "marker", "m", 0); };
  handler.accept(adding);
  EXPECT_EQ(adding.kinds, (Names{"AttrConstr", "TileConstr", "ShimConstr", "AttrConstr"}))
      << "added, then visited";

  testing::internal::CaptureStdout();
  handler.dump();
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            " attr(z)=(1)\n abs(a,tile)=(1,2)\n abs(m,shim)=(3,0)\n attr(marker)=(0)\n");
}

TEST(ConstrHandlerTest, CopyMergesThroughTheSetOperations)
{
  ConstrHandler from;
  from.setAttrConstr(Base::NODE, "n", "margin", 3);
  from.setAttrConstr(Base::NODE, "gone", "margin", 4);
  from.setAttrConstr(Base::PORT, "p", "label", "x");
  from.getAttrConstr("n", "margin")->getSrcInfo().set(SrcInfo::SourceFile, "f.cc", 7, 8);
  from.addDmaFifoRecord("r", PhysicalSpec::Mem, 1, 2, 3, 4, 5);

  ConstrHandler into;
  into.setAttrConstr(Base::NODE, "top/n", "QPE.MARGIN", 1);
  into.setAttrConstr(Base::NODE, "top/n", "kept", 1);
  into.copy(from, Resolver("top/", {"gone"}));
  EXPECT_EQ(into.size(), 3u) << "merged into the existing margin; the dropped name makes none";
  const AttrConstr* margin = into.getAttrConstr("top/n", "margin");
  EXPECT_EQ(margin->getIntVal(), 3);
  EXPECT_EQ(where(margin->getSrcInfo()), "1 f.cc 7:8");
  EXPECT_EQ(into.getAttrConstr("top/p", "label")->getStringVal(), "x");
  EXPECT_TRUE(into.getRecords().equals(from.getRecords()));

  ConstrHandler plain;
  plain.copy(from);
  plain.copy(plain);
  EXPECT_EQ(plain.size(), 3u) << "a copy onto itself sets what is there";
  EXPECT_NE(plain.getFifoLocationsRecord("r"), nullptr);

  plain.clear();
  EXPECT_TRUE(plain.empty());
  EXPECT_EQ(plain.getFifoLocationsRecord("r"), nullptr);
  Constrs out{nullptr};
  plain.getConstrs("n", "qpe.margin", out);
  EXPECT_EQ(out, Constrs{nullptr}) << "the index is gone too";
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

  // The first match is the first in name order.
  for (const char* name : {"b", "B", "a"})
    table.addStreamFifoRecord(name, PhysicalSpec::Core, 1, 2, 3);
  EXPECT_EQ(table.findStreamFifoRecordMatching(PhysicalSpec::Core, 1, 2, 3)->getName(), "B");
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
}

}  // namespace
