#pragma once

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "DOM/Shapes/DOM_PathCommand.h"
#include "DOM/Shapes/DrawingFormulas/ExpressionSamples.h"

/// What every drawing command goes through in its tests.

namespace QN::DOM::DrawingCommands {

using namespace Test;
using DrawingFormulas::firstValueJson;
using DrawingFormulas::laterValueJson;
using DrawingFormulas::numberOf;
using DrawingFormulas::value;

template <class Command>
using OperandGetter = const Expression* (Command::*)() const;

namespace CommandChecksDetails {

template <class Command, std::size_t... Indices>
Command makeCommand(double first, std::index_sequence<Indices...>)
{
    return Command(value(first + static_cast<double>(Indices))...);
}

} // namespace CommandChecksDetails

/// A command of the operands `first`, `first` + 1 and so on.
template <class Command, std::size_t Count>
Command makeCommand(double first)
{
    return CommandChecksDetails::makeCommand<Command>(first, std::make_index_sequence<Count>{});
}

/// The text of a command by its operands' keys and numbers as they are written; an operand without a number is null.
template <std::size_t Count>
std::string makeCommandJson(const std::array<const char*, Count>& keys,
                            const std::array<std::optional<std::string>, Count>& numbers)
{
    std::string json = R"({"value0":{})";
    // The first operand that is not null brings the name of their class.
    bool isNamed = false;
    for (std::size_t index = 0; index < Count; ++index) {
        json += std::string(",\"") + keys[index] + "\":";
        const auto& number = numbers[index];
        json += !number ? NullPolymorphicJson : isNamed ? laterValueJson(*number) : firstValueJson(*number);
        isNamed = isNamed || number;
    }
    return json + "}";
}

/// The command has the operands of the given keys, in this order in its constructor and in its text, and a getter for
/// each.
template <class Command, std::size_t Count>
void expectCommand(const std::string& name, const std::array<const char*, Count>& keys,
                   const std::array<OperandGetter<Command>, Count>& getters)
{
    const auto command = makeCommand<Command, Count>(0.5);
    std::array<std::optional<std::string>, Count> numbers;
    const std::string nulls = makeCommandJson(keys, numbers);
    for (std::size_t index = 0; index < Count; ++index) {
        numbers[index] = std::to_string(index) + ".5";
    }
    const std::string json = makeCommandJson(keys, numbers);
    const std::string persistedName = "QN::DOM::DrawingCommands::" + name;
    expectInFamily<PathCommand>(Command(), persistedName, nulls);
    expectText(command, json);
    expectCopiesAndMoves(command);

    const Command copy(command);
    for (std::size_t index = 0; index < Count; ++index) {
        const auto getter = getters[index];
        EXPECT_EQ(numberOf((command.*getter)()), static_cast<double>(index) + 0.5) << keys[index];
        EXPECT_NE((copy.*getter)(), (command.*getter)()) << keys[index];
        EXPECT_DEATH((Command().*getter)(), "Utils/Public/Ptr/PtrUtils:254: plainPtr") << keys[index];
    }

    EXPECT_TRUE(fromText<Command>(json) == command);
    // Unequal as soon as one operand differs or is null.
    for (std::size_t index = 0; index < Count; ++index) {
        for (const auto& number : {std::optional<std::string>("99.0"), std::optional<std::string>()}) {
            auto changedNumbers = numbers;
            changedNumbers[index] = number;
            const auto changed = fromText<Command>(makeCommandJson(keys, changedNumbers));
            EXPECT_FALSE(changed == command) << keys[index];
            EXPECT_FALSE(command == changed) << keys[index];
            EXPECT_TRUE(changed == Command(changed)) << keys[index];
        }
    }
    EXPECT_FALSE(Command() == command);
    EXPECT_FALSE(command == Command());
    EXPECT_TRUE(Command() == Command());
}

} // namespace QN::DOM::DrawingCommands
