#include "DOM/DOM_Block.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>
#include <typeinfo>

#include "DOM/DOM_FieldBlock.h"
#include "DOM/DOM_SectionTag.h"
#include "DOM/Shapes/DOM_Shape.h"
#include "DOM/Tables/DOM_Table.h"
#include "DOM/TextSamples.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::BlockTest {
namespace {

using namespace QN::Test;

using Blocks = std::vector<std::unique_ptr<Block>>;

static_assert(std::is_same_v<Block::Types, TypeList<Paragraph, Table, SectionTag, Shape, FieldBlock>>);

constexpr std::array<const char*, 5> PersistedNames{
    "QN::DOM::Paragraph", "QN::DOM::Table", "QN::DOM::SectionTag", "QN::DOM::Shape", "QN::DOM::FieldBlock",
};

/// A block of each kind, in the order of the family.
Blocks makeOneBlockOfEachKind()
{
    Blocks blocks;
    blocks.push_back(makeParagraph({"text"}));
    blocks.push_back(std::make_unique<Table>());
    blocks.push_back(std::make_unique<SectionTag>());
    blocks.push_back(std::make_unique<Shape>());
    blocks.push_back(std::make_unique<FieldBlock>());
    return blocks;
}

TEST(DOM_Block, BlocksOfTwoKindsAreNeverDeeplyEqual)
{
    const Blocks blocks = makeOneBlockOfEachKind();
    for (const auto& left : blocks) {
        for (const auto& right : blocks) {
            EXPECT_EQ(areDeeplyEqual(*left, *right), left == right);
        }
    }
}

TEST(DOM_Block, ACloneHasTheKindTheContentAndTheTokenOfItsSource)
{
    for (const auto& block : makeOneBlockOfEachKind()) {
        const Block& source = *block;
        const auto copy = cloneUnique(source);
        const Block& unique = *copy;
        EXPECT_EQ(typeid(unique), typeid(source));
        EXPECT_TRUE(areDeeplyEqual(unique, source));
        EXPECT_EQ(unique.getID(), source.getID());

        const auto sharedCopy = cloneShared(source);
        const Block& shared = *sharedCopy;
        EXPECT_EQ(typeid(shared), typeid(source));
        EXPECT_TRUE(areDeeplyEqual(shared, source));
        EXPECT_EQ(shared.getID(), source.getID());
    }
}

TEST(DOM_Block, IsVisitedByItsKind)
{
    struct Position {
        int operator()(const Paragraph&) const { return 0; }
        int operator()(const Table&) const { return 1; }
        int operator()(const SectionTag&) const { return 2; }
        int operator()(const Shape&) const { return 3; }
        int operator()(const FieldBlock&) const { return 4; }
    };
    const Blocks blocks = makeOneBlockOfEachKind();
    for (std::size_t index = 0; index < blocks.size(); ++index) {
        EXPECT_EQ(visit<int>(*blocks[index], Position()), static_cast<int>(index));
        EXPECT_EQ(visit<int>(std::as_const(*blocks[index]), Position()), static_cast<int>(index));
    }
}

TEST(DOM_Block, IsPersistedUnderTheNameOfItsClassWithAnEmptyBase)
{
    const Blocks blocks = makeOneBlockOfEachKind();
    for (std::size_t index = 0; index < blocks.size(); ++index) {
        const std::string start =
            std::string(R"({"object":{"polymorphic_id":2147483649,"polymorphic_name":")") +
            PersistedNames[index] + R"(","ptr_wrapper":{"valid":1,"data":{"value0":{})";
        EXPECT_EQ(toJson(blocks[index]).substr(0, start.size()), start);
    }
}

TEST(DOM_Block, TheNameOfAKindIsWrittenOnce)
{
    Blocks blocks;
    blocks.push_back(std::make_unique<SectionTag>());
    blocks.push_back(nullptr);
    blocks.push_back(std::make_unique<SectionTag>());
    const std::string tag = R"("ptr_wrapper":{"valid":1,"data":)" + toJson(SectionTag()) + "}}";
    EXPECT_EQ(toJson(blocks),
              R"({"object":[{"polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::SectionTag",)" + tag +
                  R"(,{"polymorphic_id":0},{"polymorphic_id":1,)" + tag + "]}");
}

TEST(DOM_Block, PersistsBehindAPointerWithNullsAmongOthers)
{
    Blocks blocks = makeOneBlockOfEachKind();
    blocks.insert(blocks.begin() + 2, nullptr);
    expectRoundTrip(blocks);
    expectOrderDoesNotMatter(blocks);
}

TEST(DOM_Block, ALoadedBlockHasATokenOfItsOwn)
{
    const Blocks blocks = makeOneBlockOfEachKind();
    const auto loaded = fromJson<Blocks>(toJson(blocks));
    for (std::size_t index = 0; index < blocks.size(); ++index) {
        EXPECT_NE(loaded[index]->getID(), blocks[index]->getID());
    }
}

TEST(DOM_Block, ANameOfAnotherFamilyIsRefused)
{
    const std::string message =
        loadError<Blocks>(R"({"object":[{"polymorphic_id":2147483649,"polymorphic_name":"QN::DOM::TabRun",)"
                          R"("ptr_wrapper":{"valid":1,"data":{"value0":{"_style":{"id":0}}}}}]})");
    EXPECT_EQ(message, "Trying to load a registered polymorphic type with an unregistered polymorphic cast.\n"
                       "Could not find a path to a base class (QN::DOM::Block) for type: QN::DOM::TabRun");
}

} // namespace
} // namespace QN::DOM::BlockTest
