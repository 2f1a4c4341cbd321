#include "Utils/Public/Archive/JSONArchives.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <type_traits>

namespace QN::JSONArchivesTest {

namespace {

/// A class as a program that knows cereal writes it: one template for both archives.
struct Person {
    template <class Archive>
    void serialize(Archive& archive)
    {
        archive(CEREAL_NVP(name), cereal::make_nvp("years", age), isKnown);
    }

    std::string name;
    int age = 0;
    bool isKnown = false;
};

TEST(JSONArchivesTest, ClassOfAProgramsOwnIsSavedAndLoaded)
{
    Person ada{"Ada", 36, true};
    std::stringstream stream;
    {
        cereal::JSONOutputArchive archive(stream);
        ada.serialize(archive);
    }
    EXPECT_EQ(stream.str(), R"({"name":"Ada","years":36,"value0":true})");
    cereal::JSONInputArchive archive(stream);
    Person loaded;
    loaded.serialize(archive);
    EXPECT_EQ(loaded.name, "Ada");
    EXPECT_EQ(loaded.age, 36);
    EXPECT_TRUE(loaded.isKnown);
}

TEST(JSONArchivesTest, ArchivesAreNeitherCopiedNorMoved)
{
    static_assert(!std::is_copy_constructible_v<cereal::JSONOutputArchive>);
    static_assert(!std::is_move_constructible_v<cereal::JSONOutputArchive>);
    static_assert(!std::is_copy_constructible_v<cereal::JSONInputArchive>);
    static_assert(!std::is_move_constructible_v<cereal::JSONInputArchive>);
}

} // namespace

} // namespace QN::JSONArchivesTest
