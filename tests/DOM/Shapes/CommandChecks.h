#pragma once

#include <gtest/gtest.h>

#include <array>
#include <memory>
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

/// The command has the operands of the given keys, in this order in its constructor and in its text, and a getter for
/// each.
template <class Command, std::size_t Count>
void expectCommand(const std::string& name, const std::array<const char*, Count>& keys,
                   const std::array<OperandGetter<Command>, Count>& getters)
{
    const auto command = makeCommand<Command, Count>(0.5);
    std::string nulls = R"({"value0":{})";
    std::string values = R"({"value0":{})";
    // The command's own class is the first of the text behind a pointer, and its operands' class the second.
    for (std::size_t index = 0; index < Count; ++index) {
        const std::string key = std::string(",\"") + keys[index] + "\":";
        const std::string number = std::to_string(index) + ".5";
        nulls += key + NullPolymorphicJson;
        values += key + (index == 0 ? firstValueJson(number) : laterValueJson(number));
    }
    const std::string persistedName = "QN::DOM::DrawingCommands::" + name;
    expectInFamily<PathCommand>(Command(), persistedName, nulls + "}");
    expectText(command, values + "}");
    expectCopiesAndMoves(command);

    const Command copy(command);
    for (std::size_t index = 0; index < Count; ++index) {
        const auto getter = getters[index];
        EXPECT_EQ(numberOf((command.*getter)()), static_cast<double>(index) + 0.5) << keys[index];
        EXPECT_NE((copy.*getter)(), (command.*getter)()) << keys[index];
        EXPECT_DEATH((Command().*getter)(), "Utils/Public/Ptr/PtrUtils:254: plainPtr") << keys[index];
    }

    // Unequal as soon as one operand differs or is null.
    for (std::size_t index = 0; index < Count; ++index) {
        const std::string key = std::string("\"") + keys[index] + "\":";
        const std::string number = std::to_string(index) + ".5";
        const std::string own = key + (index == 0 ? firstValueJson(number) : laterValueJson(number));
        const std::string json = values + "}";
        std::string changed = json;
        const std::size_t place = changed.find(own);
        ASSERT_NE(place, std::string::npos) << keys[index];
        changed.replace(place, own.size(),
                        key + (index == 0 ? firstValueJson("99.0") : laterValueJson("99.0")));
        EXPECT_FALSE(fromText<Command>(changed) == command) << keys[index];
        EXPECT_TRUE(fromText<Command>(json) == command);
    }
    EXPECT_FALSE(Command() == command);
    EXPECT_FALSE(command == Command());
    EXPECT_TRUE(Command() == Command());
}

} // namespace QN::DOM::DrawingCommands
