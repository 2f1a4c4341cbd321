#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

#include "DOM/DOM.h"
#include "Support/RandomDocument.h"
#include "Support/ValueText.h"

/// What copies own and what they share, for objects of all classes that are persisted by name and for whole documents: what
/// an object owns is copied with it, and what is immutable and held by a shared pointer is shared.

namespace QN::DOM::CopyTest {
namespace {

using namespace Test;

/// Calls `check` with random objects of each class of each family, as a `std::unique_ptr` to the family.
template <class Check>
void forRandomObjects(std::uint64_t seeds, Check check)
{
    const auto checkFamily = [&]<class Root>(TypeList<Root>) {
        for (std::uint64_t seed = 1; seed <= seeds; ++seed) {
            for (auto& object : makeOneOfEachKind<Root>(seed)) {
                SCOPED_TRACE(typeid(*object).name() + std::string(", seed ") + std::to_string(seed));
                check(object, seed);
            }
        }
    };
    checkFamily(TypeList<Chart>{});
    checkFamily(TypeList<ChartAxis>{});
    checkFamily(TypeList<Series>{});
    checkFamily(TypeList<Block>{});
    checkFamily(TypeList<GraphicalObject>{});
    checkFamily(TypeList<Fill>{});
    checkFamily(TypeList<LineProps>{});
    checkFamily(TypeList<Geometry>{});
    checkFamily(TypeList<TableFilter>{});
    checkFamily(TypeList<DOM::Run>{});
    checkFamily(TypeList<FormulaSyntaxTree::Expr>{});
    checkFamily(TypeList<DrawingCommands::PathCommand>{});
    checkFamily(TypeList<DrawingFormulas::Expression>{});
}

/// How many objects that can be shared a text holds. The images of fills do not count: a copied fill has an image of its own.
int countShareableObjects(const std::string& text)
{
    static const std::string Key = R"("id":2147)"; // with the top bit: the object itself follows
    static const std::string ImageKey = R"("_content":{"ptr_wrapper":{)";
    int count = 0;
    for (std::size_t place = text.find(Key); place != std::string::npos; place = text.find(Key, place + 1)) {
        const bool isImage =
            place >= ImageKey.size() && text.compare(place - ImageKey.size(), ImageKey.size(), ImageKey) == 0;
        count += isImage ? 0 : 1;
    }
    return count;
}

TEST(CopyTest, AChangedCopyOfAnyKindLeavesItsSourceAsItWas)
{
    forRandomObjects(20, []<class Root>(const std::unique_ptr<Root>& object, std::uint64_t seed) {
        const std::string text = toText(object);
        std::unique_ptr<Root> copy;
        object->cloneTo(copy);
        EXPECT_EQ(toText(copy), text);
        changeInPlace(*copy, seed + 1000);
        EXPECT_EQ(toText(object), text);
    });
}

TEST(CopyTest, ACopyOfAnyKindSharesWhatIsImmutable)
{
    int shareable = 0;
    forRandomObjects(20, [&]<class Root>(std::unique_ptr<Root>& object, std::uint64_t) {
        std::vector<std::unique_ptr<Root>> objects;
        objects.push_back(std::move(object));
        const int before = countShareableObjects(toText(objects));
        std::unique_ptr<Root> copy;
        objects[0]->cloneTo(copy);
        objects.push_back(std::move(copy));
        EXPECT_EQ(countShareableObjects(toText(objects)), before) << toText(objects);
        shareable += before;
    });
    EXPECT_GT(shareable, 1000);
}

TEST(CopyTest, ACopyOfADocumentSharesWhatIsImmutable)
{
    int shareable = 0;
    for (std::uint64_t seed = 1; seed <= 100; ++seed) {
        std::vector<Document> documents;
        documents.push_back(makeRandomDocument(seed));
        const int before = countShareableObjects(toText(documents));
        documents.push_back(Document(documents[0]));
        EXPECT_EQ(countShareableObjects(toText(documents)), before) << "seed " << seed;
        shareable += before;
    }
    EXPECT_GT(shareable, 1000);
}

TEST(CopyTest, AnObjectThatIsNotCopiedButMadeAnewSharesNothing)
{
    int shareable = 0;
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        std::vector<std::unique_ptr<Block>> paragraphs;
        paragraphs.push_back(std::move(makeOneOfEachKind<Block>(seed)[0]));
        const int ofOne = countShareableObjects(toText(paragraphs));
        paragraphs.push_back(std::move(makeOneOfEachKind<Block>(seed)[0]));
        ASSERT_TRUE(areDeeplyEqual(*paragraphs[0], *paragraphs[1]));
        EXPECT_EQ(countShareableObjects(toText(paragraphs)), 2 * ofOne) << "seed " << seed;
        shareable += ofOne;
    }
    EXPECT_GT(shareable, 50);
}

} // namespace
} // namespace QN::DOM::CopyTest
