#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "Support/TestFamily.h"
#include "Support/ValueText.h"
#include "Utils/Public/Archive/JSONArchives.h"
#include "Utils/Public/Archive/PersistPointers.h"
#include "Utils/Public/Archive/PersistStandard.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::PolymorphicPointersTest {

/// Pointers to the classes of a family.

namespace {

using namespace QN::Test;

using ItemPtr = std::unique_ptr<Item>;
using ItemPtrs = std::vector<ItemPtr>;
using TonePtr = std::shared_ptr<const Tone>;

constexpr const char* Advice =
    ").\nMake sure your type is registered with CEREAL_REGISTER_TYPE and that the archive you are using was "
    "included "
    "(and registered with CEREAL_REGISTER_ARCHIVE) prior to calling CEREAL_REGISTER_TYPE.\nIf your type is "
    "already "
    "registered and you still see this error, you may need to use CEREAL_REGISTER_DYNAMIC_INIT.";

const std::string WordText = R"({"polymorphic_id":2147483649,"polymorphic_name":"Test::Word",)"
                             R"("ptr_wrapper":{"valid":1,"data":{"value0":{},"_text":"a","_size":36.0}}})";

template <class... Objects>
ItemPtrs makeItems(Objects... objects)
{
    ItemPtrs items;
    (items.push_back(std::make_unique<Objects>(std::move(objects))), ...);
    return items;
}

Dot makeDot(int weight, int radius)
{
    Dot dot;
    dot._weight = weight;
    dot._radius = radius;
    return dot;
}

template <class T>
std::string saveError(const T& value)
{
    std::ostringstream stream;
    cereal::JSONOutputArchive archive(stream);
    try {
        archive.member("object", value);
    } catch (const cereal::Exception& error) {
        return typeid(error) == typeid(cereal::Exception) ? error.what() : "<another exception>";
    }
    return "<saved>";
}

TEST(PolymorphicPointersTest, NullPointerIsTheTypeNumberZeroAlone)
{
    expectText(ItemPtr(), R"({"polymorphic_id":0})");
    expectText(TonePtr(), R"({"polymorphic_id":0})");
}

TEST(PolymorphicPointersTest, NullPointerInAFileDropsTheFormerObject)
{
    ItemPtr item = std::make_unique<Word>();
    loadText(R"({"polymorphic_id":0})", item);
    EXPECT_EQ(item, nullptr);
    TonePtr tone = std::make_shared<Flat>();
    loadText(R"({"polymorphic_id":0})", tone);
    EXPECT_EQ(tone, nullptr);
}

TEST(PolymorphicPointersTest, FirstObjectOfATypeHasItsName)
{
    expectText(ItemPtr(std::make_unique<Word>("a", 36)), WordText);
}

TEST(PolymorphicPointersTest, LaterObjectsOfATypeHaveItsNumberAlone)
{
    expectText(
        makeItems(Word("a", 1), Word("b", 2)),
        R"([{"polymorphic_id":2147483649,"polymorphic_name":"Test::Word",)"
        R"("ptr_wrapper":{"valid":1,"data":{"value0":{},"_text":"a","_size":1.0}}},)"
        R"({"polymorphic_id":1,"ptr_wrapper":{"valid":1,"data":{"value0":{},"_text":"b","_size":2.0}}}])");
}

TEST(PolymorphicPointersTest, TypesAreNumberedInTheOrderOfTheirFirstOccurrence)
{
    expectText(
        makeItems(Ring(), makeDot(2, 3), Ring(), makeDot(4, 5)),
        R"([{"polymorphic_id":2147483649,"polymorphic_name":"Test::Circle",)"
        R"("ptr_wrapper":{"valid":1,"data":{"value0":{"value0":{},"_weight":1}}}},)"
        R"({"polymorphic_id":2147483650,"polymorphic_name":"Test::Dot",)"
        R"("ptr_wrapper":{"valid":1,"data":{"value0":{"value0":{},"_weight":2},"_radius":3}}},)"
        R"({"polymorphic_id":1,"ptr_wrapper":{"valid":1,"data":{"value0":{"value0":{},"_weight":1}}}},)"
        R"({"polymorphic_id":2,"ptr_wrapper":{"valid":1,"data":{"value0":{"value0":{},"_weight":4},"_radius":5}}}])");
}

TEST(PolymorphicPointersTest, ObjectOfTwoBasesWritesBothFirst)
{
    Group group(QN::UUID("219be34f-66e7-4590-8db5-375443207e49"));
    group._items.push_back(nullptr);
    expectText(
        ItemPtr(std::make_unique<Group>(group)),
        R"({"polymorphic_id":2147483649,"polymorphic_name":"Test::Group","ptr_wrapper":{"valid":1,"data":)"
        R"({"value0":{},"value1":{"_uuid":{"_id":"219be34f-66e7-4590-8db5-375443207e49"}},)"
        R"("_items":[{"polymorphic_id":0}]}}})");
}

TEST(PolymorphicPointersTest, ObjectsInsideAnObjectGoOnWithItsNumbers)
{
    Group group;
    group._items = makeItems(Word(), Group());
    const std::string text = toText(makeItems(Word(), group, Word()));
    const auto loaded = fromText<ItemPtrs>(text);
    EXPECT_EQ(toText(loaded), text);
    EXPECT_NE(text.find(R"("_items":[{"polymorphic_id":1,)"), std::string::npos) << text;
    EXPECT_NE(text.find(R"({"polymorphic_id":2,)"), std::string::npos) << text;
}

TEST(PolymorphicPointersTest, TypesOfAllFamiliesShareOneCounter)
{
    expectText(std::pair<ItemPtr, std::unique_ptr<Tone>>(std::make_unique<Word>("a", 36),
                                                         std::make_unique<Flat>(0.5F, "n")),
               R"({"first":)" + WordText +
                   R"(,"second":{"polymorphic_id":2147483650,"polymorphic_name":"Test::Flat",)"
                   R"("ptr_wrapper":{"valid":1,"data":{"value0":{"_level":0.5},"_name":"n"}}}})");
}

TEST(PolymorphicPointersTest, TypesAndSharedObjectsAreNumberedApart)
{
    const auto flat = std::make_shared<Flat>(0.5F, "n");
    const auto number = std::make_shared<int>(7);
    expectText(std::pair<std::shared_ptr<int>, TonePtr>(number, flat),
               R"({"first":{"ptr_wrapper":{"id":2147483649,"data":7}},)"
               R"("second":{"polymorphic_id":2147483649,"polymorphic_name":"Test::Flat",)"
               R"("ptr_wrapper":{"id":2147483650,"data":{"value0":{"_level":0.5},"_name":"n"}}}})");
}

TEST(PolymorphicPointersTest, PointerToAConcreteClassNamesItToo)
{
    expectText(std::make_unique<Word>("a", 36), WordText);
    expectText(std::pair<std::unique_ptr<Word>, ItemPtr>(nullptr, std::make_unique<Word>("a", 36)),
               R"({"first":{"polymorphic_id":0},"second":)" + WordText + "}");
}

TEST(PolymorphicPointersTest, PointersToRootMiddleAndConcreteClassShareTheNumberOfAType)
{
    using Pointers =
        std::pair<std::pair<ItemPtr, std::unique_ptr<Mark>>, std::pair<std::unique_ptr<Dot>, ItemPtr>>;
    Pointers pointers;
    pointers.first.first = std::make_unique<Dot>(makeDot(1, 2));
    pointers.first.second = std::make_unique<Dot>(makeDot(3, 4));
    pointers.second.first = std::make_unique<Dot>(makeDot(5, 6));
    pointers.second.second = std::make_unique<Dot>(makeDot(7, 8));
    const std::string text = toText(pointers);
    EXPECT_EQ(text.find("Test::Dot"), text.rfind("Test::Dot"));
    const auto loaded = fromText<Pointers>(text);
    EXPECT_EQ(dynamic_cast<const Dot&>(*loaded.first.first), makeDot(1, 2));
    EXPECT_EQ(dynamic_cast<const Dot&>(*loaded.first.second), makeDot(3, 4));
    EXPECT_EQ(*loaded.second.first, makeDot(5, 6));
    EXPECT_EQ(dynamic_cast<const Dot&>(*loaded.second.second), makeDot(7, 8));
    EXPECT_EQ(toText(loaded), text);
}

TEST(PolymorphicPointersTest, LoadedObjectHasAnIdentityOfItsOwn)
{
    const ItemPtr word = std::make_unique<Word>();
    EXPECT_NE(fromText<ItemPtr>(toText(word))->getID(), word->getID());
}

TEST(PolymorphicPointersTest, SharedObjectHasItsTypeAndThenItsNumber)
{
    const TonePtr first = std::make_shared<Flat>(0.5F, "n");
    const TonePtr second = std::make_shared<Flat>(1.0F, "m");
    expectText(
        std::vector<TonePtr>{first, second, first, nullptr},
        R"([{"polymorphic_id":2147483649,"polymorphic_name":"Test::Flat",)"
        R"("ptr_wrapper":{"id":2147483649,"data":{"value0":{"_level":0.5},"_name":"n"}}},)"
        R"({"polymorphic_id":1,"ptr_wrapper":{"id":2147483650,"data":{"value0":{"_level":1.0},"_name":"m"}}},)"
        R"({"polymorphic_id":1,"ptr_wrapper":{"id":1}},{"polymorphic_id":0}])");
}

TEST(PolymorphicPointersTest, SharedObjectStaysOneObject)
{
    const TonePtr tone = std::make_shared<Striped>(0.5F, std::vector<float>{1, 2});
    const auto loaded = fromText<std::vector<TonePtr>>(toText(std::vector<TonePtr>{tone, tone}));
    EXPECT_EQ(loaded[0], loaded[1]);
    EXPECT_EQ(loaded[0].use_count(), 2);
    EXPECT_TRUE(areDeeplyEqual(*loaded[0], *tone));
}

TEST(PolymorphicPointersTest, SharedObjectIsTheSameThroughItsRootAndItsOwnClass)
{
    using Pointers = std::pair<TonePtr, std::shared_ptr<Flat>>;
    const auto flat = std::make_shared<Flat>(0.5F, "n");
    const std::string text = toText(Pointers(flat, flat));
    EXPECT_EQ(text, R"({"first":{"polymorphic_id":2147483649,"polymorphic_name":"Test::Flat",)"
                    R"("ptr_wrapper":{"id":2147483649,"data":{"value0":{"_level":0.5},"_name":"n"}}},)"
                    R"("second":{"polymorphic_id":1,"ptr_wrapper":{"id":1}}})");
    const auto loaded = fromText<Pointers>(text);
    EXPECT_EQ(loaded.first.get(), loaded.second.get());
}

TEST(PolymorphicPointersTest, SharedObjectIsTheSameThroughABaseAtAnotherAddress)
{
    using Pointers = std::pair<std::shared_ptr<Item>, std::shared_ptr<Dot>>;
    const auto dot = std::make_shared<Dot>(makeDot(1, 2));
    ASSERT_NE(static_cast<const void*>(dot.get()),
              static_cast<const void*>(static_cast<const Item*>(dot.get())));
    const std::string text = toText(Pointers(dot, dot));
    EXPECT_EQ(text,
              R"({"first":{"polymorphic_id":2147483649,"polymorphic_name":"Test::Dot",)"
              R"("ptr_wrapper":{"id":2147483649,"data":{"value0":{"value0":{},"_weight":1},"_radius":2}}},)"
              R"("second":{"polymorphic_id":1,"ptr_wrapper":{"id":1}}})");
    const auto loaded = fromText<Pointers>(text);
    EXPECT_EQ(loaded.first, loaded.second);
    EXPECT_EQ(*loaded.second, makeDot(1, 2));
}

TEST(PolymorphicPointersTest, SharedObjectIsKeptAliveForTheTimeOfTheArchive)
{
    std::ostringstream stream;
    {
        cereal::JSONOutputArchive archive(stream);
        for (int number = 0; number < 100; ++number) {
            archive(TonePtr(std::make_shared<Flat>()));
        }
    }
    EXPECT_NE(stream.str().find(R"("value99":{"polymorphic_id":1,"ptr_wrapper":{"id":2147483748,"data":)"),
              std::string::npos);
}

TEST(PolymorphicPointersTest, SharedIdOfAnotherTypeRaises)
{
    EXPECT_EQ(
        textError<std::vector<TonePtr>>(
            R"([{"polymorphic_id":2147483649,"polymorphic_name":"Test::Flat",)"
            R"("ptr_wrapper":{"id":2147483649,"data":{"value0":{"_level":0.5},"_name":"n"}}},)"
            R"({"polymorphic_id":2147483650,"polymorphic_name":"Test::Striped","ptr_wrapper":{"id":1}}])"),
        "Error while trying to deserialize a smart pointer. Could not find id 1");
    EXPECT_EQ(textError<TonePtr>(
                  R"({"polymorphic_id":2147483649,"polymorphic_name":"Test::Flat","ptr_wrapper":{"id":9}})"),
              "Error while trying to deserialize a smart pointer. Could not find id 9");
}

TEST(PolymorphicPointersTest, TypeNumberWithoutAnEarlierNameRaises)
{
    const std::string message =
        "Error while trying to deserialize a polymorphic pointer. Could not find type id ";
    EXPECT_EQ(textError<ItemPtr>(R"({"polymorphic_id":1,"ptr_wrapper":{"valid":0}})"), message + "1");
    EXPECT_EQ(textError<ItemPtr>(R"({"polymorphic_id":1073741823})"), message + "1073741823");
    EXPECT_EQ(textError<TonePtr>(R"({"polymorphic_id":3,"ptr_wrapper":{"id":0}})"), message + "3");
    EXPECT_EQ(textError<ItemPtrs>("[" + WordText + R"(,{"polymorphic_id":2,"ptr_wrapper":{"valid":0}}])"),
              message + "2");
}

TEST(PolymorphicPointersTest, MarkOfTheStaticTypeRaises)
{
    const std::string message =
        "Cannot load a polymorphic type that is not default constructable and does not have a "
        "load_and_construct function";
    for (const char* id : {"1073741824", "1073741825", "3221225472", "3221225473", "4294967295"}) {
        const std::string text = R"({"polymorphic_id":)" + std::string(id) +
                                 R"(,"polymorphic_name":"Test::Word","ptr_wrapper":{"valid":1,"data":{}}})";
        EXPECT_EQ(textError<ItemPtr>(text), message) << id;
        EXPECT_EQ(textError<std::unique_ptr<Word>>(text), message) << id;
        EXPECT_EQ(textError<TonePtr>(text), message) << id;
    }
}

TEST(PolymorphicPointersTest, NameThatIsNotRegisteredRaises)
{
    const auto textOf = [](const std::string& name) {
        return R"({"polymorphic_id":2147483649,"polymorphic_name":")" + name +
               R"(","ptr_wrapper":{"valid":0}})";
    };
    for (const std::string& name :
         {std::string("Test::Ring"), std::string(), std::string("Test::Wor"), std::string("Test::Words")}) {
        EXPECT_EQ(textError<ItemPtr>(textOf(name)),
                  "Trying to load an unregistered polymorphic type (" + name + Advice);
        EXPECT_EQ(textError<TonePtr>(textOf(name)),
                  "Trying to load an unregistered polymorphic type (" + name + Advice);
    }
}

TEST(PolymorphicPointersTest, TypeThatIsNotRegisteredCannotBeSaved)
{
    EXPECT_EQ(saveError(ItemPtr(std::make_unique<Stranger>())),
              std::string("Trying to save an unregistered polymorphic type (QN::Test::Stranger") + Advice);
    EXPECT_EQ(saveError(std::shared_ptr<Item>(std::make_shared<Stranger>())),
              std::string("Trying to save an unregistered polymorphic type (QN::Test::Stranger") + Advice);
}

/// What a missing relation ends with.
std::string noRelation(const std::string& purpose, const std::string& base, const std::string& type)
{
    return "Trying to " + purpose +
           " a registered polymorphic type with an unregistered polymorphic cast.\n" +
           "Could not find a path to a base class (QN::Test::" + base + ") for type: QN::Test::" + type;
}

TEST(PolymorphicPointersTest, RegisteredNameOfAnotherFamilyIsRefusedBeforeTheObjectIsMade)
{
    const int constructions = Word::constructions;
    EXPECT_EQ(textError<std::unique_ptr<Tone>>(WordText), noRelation("load", "Tone", "Word"));
    EXPECT_EQ(textError<TonePtr>(WordText), noRelation("load", "Tone", "Word"));
    EXPECT_EQ(textError<std::unique_ptr<Flat>>(WordText), noRelation("load", "Flat", "Word"));
    EXPECT_EQ(textError<std::unique_ptr<Dot>>(WordText), noRelation("load", "Dot", "Word"));
    EXPECT_EQ(Word::constructions, constructions);
}

TEST(PolymorphicPointersTest, TypeWithoutARelationToTheBaseOfThePointerIsNeitherSavedNorLoaded)
{
    EXPECT_EQ(saveError(ItemPtr(std::make_unique<Stray>())), noRelation("save", "Item", "Stray"));
    EXPECT_EQ(saveError(std::shared_ptr<Item>(std::make_shared<Stray>())),
              noRelation("save", "Item", "Stray"));

    // Through a pointer to its own class it needs no relation; what that told of the type does not help the root.
    const std::string text = R"({"polymorphic_id":2147483649,"polymorphic_name":"Test::Stray",)"
                             R"("ptr_wrapper":{"valid":1,"data":{"value0":{}}}})";
    EXPECT_EQ(toText(std::make_unique<Stray>()), text);
    EXPECT_NE(fromText<std::unique_ptr<Stray>>(text), nullptr);
    EXPECT_EQ(textError<ItemPtr>(text), noRelation("load", "Item", "Stray"));
    EXPECT_EQ(saveError(std::pair<std::unique_ptr<Stray>, ItemPtr>(std::make_unique<Stray>(),
                                                                   std::make_unique<Stray>())),
              noRelation("save", "Item", "Stray"));
    EXPECT_EQ((textError<std::pair<std::unique_ptr<Stray>, ItemPtr>>(
                  R"({"first":)" + text +
                  R"(,"second":{"polymorphic_id":1,"ptr_wrapper":{"valid":1,"data":{"value0":{}}}}})")),
              noRelation("load", "Item", "Stray"));
}

TEST(PolymorphicPointersTest, PointerOfTheWrongFormRaises)
{
    EXPECT_EQ(typeError<ItemPtr>("null"), "IsObject()");
    EXPECT_EQ(typeError<ItemPtr>(R"({"polymorphic_id":"1"})"), "data_.f.flags & kUintFlag");
    EXPECT_EQ(typeError<ItemPtr>(R"({"polymorphic_id":-1})"), "data_.f.flags & kUintFlag");
    EXPECT_EQ(typeError<ItemPtr>(R"({"polymorphic_id":2147483649,"polymorphic_name":1})"), "IsString()");
    EXPECT_EQ(typeError<ItemPtr>(
                  R"({"polymorphic_id":2147483649,"polymorphic_name":"Test::Word","ptr_wrapper":1})"),
              "IsObject()");
    EXPECT_EQ(
        typeError<ItemPtr>(
            R"({"polymorphic_id":2147483649,"polymorphic_name":"Test::Word","ptr_wrapper":{"valid":1,"data":[]}})"),
        "IsObject()");
    EXPECT_EQ(textError<ItemPtr>(R"({"ptr_wrapper":{"valid":0}})"),
              "JSON Parsing failed - provided NVP (polymorphic_id) not found");
}

TEST(PolymorphicPointersTest, FailedLoadReleasesWhatItMade)
{
    const int objects = Word::objects;
    EXPECT_EQ(textError<ItemPtrs>("[" + WordText +
                                  R"(,{"polymorphic_id":1,"ptr_wrapper":{"valid":1,"data":)"
                                  R"({"value0":{},"_text":"half"}}}])"),
              "JSON Parsing failed - provided NVP (_size) not found");
    EXPECT_EQ(Word::objects, objects);
}

TEST(PolymorphicPointersTest, PlainFormOfAFamilyClassIsAvailableWhereAskedFor)
{
    std::vector<std::unique_ptr<Word>> words;
    words.push_back(std::make_unique<Word>("a", 1));
    words.push_back(nullptr);
    const std::string text =
        R"([{"ptr_wrapper":{"valid":1,"data":{"value0":{},"_text":"a","_size":1.0}}},{"ptr_wrapper":{"valid":0}}])";
    EXPECT_EQ(toText(QN::asPlainPointers(std::as_const(words))), text);
    std::vector<std::unique_ptr<Word>> loaded(5);
    auto plain = QN::asPlainPointers(loaded);
    loadText(text, plain);
    ASSERT_EQ(loaded.size(), 2U);
    EXPECT_EQ(*loaded[0], *words[0]);
    EXPECT_EQ(loaded[1], nullptr);
}

} // namespace

} // namespace QN::PolymorphicPointersTest
