#include "Utils/Public/CallableRef.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace QN::CallableRefTest {

namespace {

using QN::CallableRef;

int triple(int value)
{
    return 3 * value;
}

int countedCalls = 0;

int countCalls(int number)
{
    return countedCalls += number;
}

int callWith(CallableRef<int(int)> callback, int value)
{
    return callback(value);
}

TEST(CallableRefTest, CallsATemporaryForTheTimeOfTheCall)
{
    EXPECT_EQ(callWith([](int value) { return value + 1; }, 5), 6);
}

TEST(CallableRefTest, CallsTheObjectItselfAndNotACopy)
{
    int sum = 0;
    auto add = [&sum, calls = 0](int value) mutable {
        sum += value;
        return ++calls;
    };
    const CallableRef<int(int)> callback(add);
    EXPECT_EQ(callback(5), 1);
    EXPECT_EQ(callback(6), 2);
    EXPECT_EQ(add(7), 3);
    EXPECT_EQ(sum, 18);
}

TEST(CallableRefTest, CopyRefersToTheSameCallable)
{
    int calls = 0;
    auto count = [&calls] { ++calls; };
    const CallableRef<void()> callback(count);
    const CallableRef<void()> copy(callback); // NOLINT(performance-unnecessary-copy-initialization)
    copy();
    callback();
    EXPECT_EQ(calls, 2);
    static_assert(std::is_trivially_copyable_v<CallableRef<void()>>);
}

TEST(CallableRefTest, RefersToAFunctionForGood)
{
    const CallableRef<int(int)> fromFunction(triple);
    const CallableRef<int(int)> fromPointer(&triple);
    EXPECT_EQ(fromFunction(5), 15);
    EXPECT_EQ(fromPointer(5), 15);
}

TEST(CallableRefTest, CallsAConstObject)
{
    struct Functor {
        int operator()(int value) const { return 10 + value; }
    };
    const Functor functor;
    EXPECT_EQ(callWith(functor, 5), 15);
}

TEST(CallableRefTest, HandsOwnedArgumentsThrough)
{
    std::unique_ptr<int> taken;
    auto take = [&taken](std::unique_ptr<int> value) { taken = std::move(value); };
    const CallableRef<void(std::unique_ptr<int>)> callback(take);
    callback(std::make_unique<int>(7));
    ASSERT_TRUE(taken);
    EXPECT_EQ(*taken, 7);
    auto pass = [](std::unique_ptr<int> value) { return value; };
    const CallableRef<std::unique_ptr<int>(std::unique_ptr<int>)> passing(pass);
    EXPECT_EQ(*passing(std::make_unique<int>(8)), 8);
}

TEST(CallableRefTest, HandsReferencesThrough)
{
    int value = 1;
    auto same = [](int& number) -> int& { return number; };
    const CallableRef<int&(int&)> callback(same);
    callback(value) = 2;
    EXPECT_EQ(value, 2);
}

TEST(CallableRefTest, DropsAResultThatNobodyWants)
{
    int calls = 0;
    auto count = [&calls] { return ++calls; };
    const CallableRef<void()> callback(count);
    callback();
    EXPECT_EQ(calls, 1);
}

TEST(CallableRefTest, DropsTheResultOfAFunction)
{
    countedCalls = 0;
    const CallableRef<void(int)> fromFunction(countCalls);
    const CallableRef<void(int)> fromPointer(&countCalls);
    fromFunction(2);
    EXPECT_EQ(countedCalls, 2);
    fromPointer(3);
    EXPECT_EQ(countedCalls, 5);
}

TEST(CallableRefTest, CallsAPointerToAMember)
{
    struct Counter {
        int _count = 0;
        int add(int number) { return _count += number; }
    };
    Counter counter;
    const auto add = &Counter::add;
    const CallableRef<int(Counter&, int)> method(add);
    EXPECT_EQ(method(counter, 4), 4);
    const auto count = &Counter::_count;
    const CallableRef<int&(Counter&)> member(count);
    member(counter) += 3;
    EXPECT_EQ(counter._count, 7);
}

TEST(CallableRefTest, LetsExceptionsThrough)
{
    auto fail = []() -> int { throw std::string("failed"); };
    const CallableRef<int()> callback(fail);
    EXPECT_THROW(callback(), std::string);
}

TEST(CallableRefTest, TakesOnlyWhatCanBeCalledSo)
{
    static_assert(!std::is_constructible_v<CallableRef<int(int)>, int>);
    static_assert(!std::is_constructible_v<CallableRef<int(std::string)>, decltype(triple)&>);
}

TEST(CallableRefTest, TakesNothingWhoseReferenceWouldDangle)
{
    using Value = std::string (*)();
    using Reference = const std::string& (*)();
    using OtherReference = const char* const& (*)();
    static_assert(std::is_constructible_v<CallableRef<std::string()>, Value>);
    static_assert(std::is_constructible_v<CallableRef<const std::string&()>, Reference>);
    static_assert(std::is_constructible_v<CallableRef<const std::string&()>, std::string& (*)()>);
    static_assert(!std::is_constructible_v<CallableRef<const std::string&()>, Value>);
    static_assert(!std::is_constructible_v<CallableRef<std::string && ()>, Value>);
    static_assert(!std::is_constructible_v<CallableRef<const std::string&()>, OtherReference>);
}

} // namespace

} // namespace QN::CallableRefTest
