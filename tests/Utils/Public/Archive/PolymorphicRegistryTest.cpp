#include "Utils/Public/Archive/PolymorphicRegistry.h"

#include <gtest/gtest.h>

#include <string>
#include <typeindex>

#include "Support/TestFamily.h"

namespace QN::PolymorphicRegistryTest {

namespace {

using namespace cereal::detail;
using namespace QN::Test;

/// The type that a name stands for.
const std::type_info* findType(const char* name)
{
    const auto& map = StaticObject<TypeNameMap>::getInstance().map;
    const auto entry = map.find(name);
    if (entry == map.end()) {
        return nullptr;
    }
    const auto& bindings = StaticObject<InputBindingMap<cereal::JSONInputArchive>>::getInstance().map;
    return bindings.at(entry->second).type;
}

void expectCastError(const std::type_info& base, const char* baseName, const std::type_info& derived,
                     const char* derivedName)
{
    for (const CastPurpose purpose : {CastPurpose::Save, CastPurpose::Load}) {
        try {
            PolymorphicCasters::lookup(base, derived, purpose);
            ADD_FAILURE() << baseName << ", " << derivedName;
        } catch (const cereal::Exception& error) {
            EXPECT_EQ(error.what(),
                      std::string("Trying to ") + (purpose == CastPurpose::Save ? "save" : "load") +
                          " a registered polymorphic type with an unregistered polymorphic cast.\n"
                          "Could not find a path to a base class (" +
                          baseName + ") for type: " + derivedName);
        }
    }
}

CasterChain lookUp(const std::type_info& base, const std::type_info& derived)
{
    return PolymorphicCasters::lookup(base, derived, CastPurpose::Load);
}

TEST(PolymorphicRegistryTest, NameIsTheOneGivenAtRegistrationAndNotThatOfTheClass)
{
    EXPECT_STREQ(StaticObject<TypeNameProvider<Word>>::getInstance().getName(), "Test::Word");
    EXPECT_STREQ(StaticObject<TypeNameProvider<Ring>>::getInstance().getName(), "Test::Circle");
}

TEST(PolymorphicRegistryTest, ProgramsOwnTypesStandInTheTablesOfTheLibrary)
{
    // The first table is filled by the library's code and the other two by this program's: they must be the same ones.
    ASSERT_NE(findType("Test::Circle"), nullptr);
    EXPECT_EQ(*findType("Test::Circle"), typeid(Ring));
    EXPECT_EQ(*findType("Test::Word"), typeid(Word));
    EXPECT_EQ(*findType("Test::Flat"), typeid(Flat));
    EXPECT_EQ(findType("Test::Ring"), nullptr);
}

TEST(PolymorphicRegistryTest, RegisteredTypesHaveBindingsForBothArchives)
{
    const auto& outputs = StaticObject<OutputBindingMap<cereal::JSONOutputArchive>>::getInstance().map;
    const auto& inputs = StaticObject<InputBindingMap<cereal::JSONInputArchive>>::getInstance().map;
    for (const std::type_info* type :
         {&typeid(Word), &typeid(Group), &typeid(Dot), &typeid(Ring), &typeid(Striped), &typeid(Flat)}) {
        EXPECT_EQ(outputs.count(*type), 1U) << type->name();
        EXPECT_EQ(inputs.count(*type), 1U) << type->name();
    }
    for (const std::type_info* type : {&typeid(Item), &typeid(Mark), &typeid(Stranger), &typeid(Tone)}) {
        EXPECT_EQ(outputs.count(*type), 0U) << type->name();
        EXPECT_EQ(inputs.count(*type), 0U) << type->name();
    }
}

TEST(PolymorphicRegistryTest, OutputBindingKnowsTheName)
{
    const auto& outputs = StaticObject<OutputBindingMap<cereal::JSONOutputArchive>>::getInstance().map;
    EXPECT_STREQ(outputs.at(typeid(Ring)).name->getName(), "Test::Circle");
}

TEST(PolymorphicRegistryTest, ChainLeadsThroughTheClassesBetweenTwoTypes)
{
    EXPECT_EQ(lookUp(typeid(Item), typeid(Item)).size(), 0U);
    EXPECT_EQ(lookUp(typeid(Dot), typeid(Dot)).size(), 0U);
    EXPECT_EQ(lookUp(typeid(Item), typeid(Word)).size(), 1U);
    EXPECT_EQ(lookUp(typeid(Mark), typeid(Dot)).size(), 1U);
    EXPECT_EQ(lookUp(typeid(Item), typeid(Dot)).size(), 2U);
}

TEST(PolymorphicRegistryTest, ChainCastsDownAndUp)
{
    Dot dot;
    ASSERT_NE(static_cast<void*>(static_cast<Item*>(&dot)), static_cast<void*>(&dot));
    const auto chain = lookUp(typeid(Item), typeid(Dot));
    EXPECT_EQ(PolymorphicCasters::downcastImpl(chain, static_cast<const Item*>(&dot)), &dot);
    EXPECT_EQ(PolymorphicCasters::upcastImpl(chain, &dot), static_cast<Item*>(&dot));
}

TEST(PolymorphicRegistryTest, CastToASecondBaseMovesThePointer)
{
    Group group;
    QN::UUIDable* const base = &group;
    ASSERT_NE(static_cast<void*>(base), static_cast<void*>(&group));
    const auto chain = lookUp(typeid(QN::UUIDable), typeid(Group));
    EXPECT_EQ(PolymorphicCasters::upcastImpl(chain, &group), base);
    EXPECT_EQ(PolymorphicCasters::downcastImpl(chain, base), &group);
}

TEST(PolymorphicRegistryTest, MissingRelationIsReportedWithBothNames)
{
    expectCastError(typeid(Tone), "QN::Test::Tone", typeid(Word), "QN::Test::Word");
    expectCastError(typeid(Word), "QN::Test::Word", typeid(Item), "QN::Test::Item");
    expectCastError(typeid(Item), "QN::Test::Item", typeid(Stranger), "QN::Test::Stranger");
    expectCastError(typeid(QN::UUIDable), "QN::UUIDable", typeid(Word), "QN::Test::Word");
    EXPECT_THROW(throwUnregisteredPolymorphicCastException(typeid(Item), typeid(Flat), CastPurpose::Save),
                 cereal::Exception);
}

} // namespace

} // namespace QN::PolymorphicRegistryTest
