#include "Utils/Public/ClassScheme/DefineTemplates.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "Support/ValueText.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/Visitor.h"

namespace QN::DefineTemplatesTest {

template <int first, bool isLast>
class Step;

/// A family whose concrete classes are instances of one template.
class Move : public Clonable<Move>, public Reflectable<> {
public:
    using Types = TypeList<Step<1, false>, Step<2, true>>;
    QN_FAMILY_ROOT(Move)
    QN_EQUALITY(Move)
    QN_SERIALIZE(Move)

    int _speed = 3;

    BOOST_DESCRIBE_CLASS(Move, (), (_speed), (), ())
};

template <int first, bool isLast>
class Step final : public Reflectable<Move> {
public:
    Step() = default;
    QN_DEEP_COPY(Step)
    QN_VALUE(Step)
    QN_CONCRETE(Move)

    std::vector<std::unique_ptr<std::string>> _names;

    BOOST_DESCRIBE_CLASS(Step, (Move), (_names), (), ())
};

QN_DEFINE_EQUALITY(Move)
QN_DEFINE_SERIALIZE(Move)

QN_DEFINE_VALUE_TEMPLATE((template <int first, bool isLast>), (Step<first, isLast>))
QN_DEFINE_CONCRETE_TEMPLATE((template <int first, bool isLast>), (Step<first, isLast>), Move)
QN_DEFINE_DEEP_COPY_TEMPLATE((template <int first, bool isLast>), (Step<first, isLast>), Step,
                             Reflectable<Move>)

template class Step<1, false>;
template class Step<2, true>;

namespace {

using namespace QN::Test;

using Middle = Step<1, false>;
using End = Step<2, true>;

template <class T>
T makeStep()
{
    T step;
    step._speed = 5;
    step._names.push_back(std::make_unique<std::string>("a"));
    step._names.push_back(nullptr);
    return step;
}

TEST(DefineTemplatesTest, InstancesPersistWithTheirBase)
{
    expectText(makeStep<Middle>(),
               R"({"value0":{"_speed":5},"_names":[{"ptr_wrapper":{"valid":1,"data":"a"}},)"
               R"({"ptr_wrapper":{"valid":0}}]})");
}

TEST(DefineTemplatesTest, InstancesCompareTheirBaseAndTheirMembers)
{
    EXPECT_EQ(makeStep<End>(), makeStep<End>());
    End slower = makeStep<End>();
    slower._speed = 1;
    EXPECT_NE(slower, makeStep<End>());
    End nameless = makeStep<End>();
    nameless._names.clear();
    EXPECT_NE(nameless, makeStep<End>());
}

TEST(DefineTemplatesTest, CopiesShareNothingAndHaveTheBaseOfTheirSource)
{
    const Middle source = makeStep<Middle>();
    Middle copy(source);
    EXPECT_EQ(copy, source);
    EXPECT_NE(copy._names[0], source._names[0]);
    Middle assigned;
    assigned = source;
    EXPECT_EQ(assigned, source);
    EXPECT_NE(assigned._names[0], source._names[0]);
    const std::string* const name = copy._names[0].get();
    const Middle& same = copy;
    copy = same;
    EXPECT_EQ(copy._names[0].get(), name);
    const Middle moved = std::move(copy);
    EXPECT_EQ(moved._names[0].get(), name);
}

TEST(DefineTemplatesTest, ClonesHaveTheTypeOfTheirSourceAndAreVisitedAsIt)
{
    const End source = makeStep<End>();
    std::unique_ptr<Move> owned;
    source.cloneTo(owned);
    std::shared_ptr<Move> shared;
    source.cloneTo(shared);
    for (const Move* const clone : {owned.get(), shared.get()}) {
        const bool isEnd =
            visit<bool>(*clone, [](auto& visited) { return std::is_same_v<decltype(visited), const End&>; });
        ASSERT_TRUE(isEnd);
        EXPECT_EQ(dynamic_cast<const End&>(*clone), source);
    }
    const bool isEnd =
        visit<bool>(*owned, [](auto& visited) { return std::is_same_v<decltype(visited), End&>; });
    EXPECT_TRUE(isEnd);
}

} // namespace

} // namespace QN::DefineTemplatesTest
