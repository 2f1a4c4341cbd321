#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasFunctions.h"

#include <gtest/gtest.h>

#include <random>

#include "DOM/Shapes/DrawingFormulas/DOM_DrawingFormulasFormulasMap.h"
#include "DOM/Shapes/DrawingFormulas/ExpressionSamples.h"
#include "Support/SmallStack.h"

namespace QN::DOM::DrawingFormulas::DrawingFormulasFunctionsTest {
namespace {

constexpr const char* PlainPtr = "Utils/Public/Ptr/PtrUtils:254: plainPtr";

TEST(DrawingFormulasFunctions, HaveTypeZeroAndNullOperandsByDefault)
{
    static_assert(sizeof(UnaryFunctionType) == 1 && sizeof(BinaryFunctionType) == 1);
    EXPECT_EQ(UnaryFunction().getType(), UnaryFunctionType{0});
    EXPECT_EQ(BinaryFunction().getType(), BinaryFunctionType{0});
    expectInFamily<Expression>(UnaryFunction(), "QN::DOM::DrawingFormulas::UnaryFunction",
                               R"({"value0":{},"_type":0,"_operand":{"polymorphic_id":0}})");
    expectInFamily<Expression>(
        BinaryFunction(), "QN::DOM::DrawingFormulas::BinaryFunction",
        R"({"value0":{},"_type":0,"_operand1":{"polymorphic_id":0},"_operand2":{"polymorphic_id":0}})");
    expectInFamily<Expression>(
        IfFunction(), "QN::DOM::DrawingFormulas::IfFunction",
        R"({"value0":{},"_condition":{"polymorphic_id":0},"_thenExpression":{"polymorphic_id":0},)"
        R"("_elseExpression":{"polymorphic_id":0}})");
}

TEST(DrawingFormulasFunctions, KeepTheirTypeAndOperandsInOrder)
{
    const UnaryFunction unary(static_cast<UnaryFunctionType>(200), value(1.5));
    EXPECT_EQ(unary.getType(), static_cast<UnaryFunctionType>(200));
    EXPECT_EQ(numberOf(unary.getOperand()), 1.5);
    expectText(unary, R"({"value0":{},"_type":200,"_operand":)" + firstValueJson("1.5") + "}");
    expectCopiesAndMoves(unary);

    const BinaryFunction binary(static_cast<BinaryFunctionType>(3), value(1.5), value(2.5));
    EXPECT_EQ(binary.getType(), BinaryFunctionType::Divide);
    EXPECT_EQ(numberOf(binary.getOperand1()), 1.5);
    EXPECT_EQ(numberOf(binary.getOperand2()), 2.5);
    expectText(binary, R"({"value0":{},"_type":3,"_operand1":)" + firstValueJson("1.5") + R"(,"_operand2":)" +
                           laterValueJson("2.5") + "}");
    expectCopiesAndMoves(binary);

    const IfFunction choice(value(1.5), value(2.5), value(3.5));
    EXPECT_EQ(numberOf(choice.getCondition()), 1.5);
    EXPECT_EQ(numberOf(choice.getThenExpression()), 2.5);
    EXPECT_EQ(numberOf(choice.getElseExpression()), 3.5);
    expectText(choice, R"({"value0":{},"_condition":)" + firstValueJson("1.5") + R"(,"_thenExpression":)" +
                           laterValueJson("2.5") + R"(,"_elseExpression":)" + laterValueJson("3.5") + "}");
    expectCopiesAndMoves(choice);
}

TEST(DrawingFormulasFunctions, CompareTypeAndOperands)
{
    const auto unary = [](int type, std::unique_ptr<Expression> operand) {
        return UnaryFunction(static_cast<UnaryFunctionType>(type), std::move(operand));
    };
    EXPECT_EQ(unary(1, value(1)), unary(1, value(1)));
    EXPECT_NE(unary(1, value(1)), unary(2, value(1)));
    EXPECT_NE(unary(1, value(1)), unary(1, value(2)));
    EXPECT_NE(unary(1, value(1)), unary(1, nullptr));
    EXPECT_NE(unary(1, nullptr), unary(1, value(1)));
    EXPECT_EQ(unary(1, nullptr), unary(1, nullptr));
    EXPECT_NE(unary(1, std::make_unique<FormulaReference>(1)),
              unary(1, std::make_unique<AdjustValueReference>(1)));

    const auto binary = [](int type, double first, double second) {
        return BinaryFunction(static_cast<BinaryFunctionType>(type), value(first), value(second));
    };
    EXPECT_EQ(binary(1, 1, 2), binary(1, 1, 2));
    EXPECT_NE(binary(1, 1, 2), binary(2, 1, 2));
    EXPECT_NE(binary(1, 1, 2), binary(1, 3, 2));
    EXPECT_NE(binary(1, 1, 2), binary(1, 1, 3));

    const auto choice = [](double condition, double first, double second) {
        return IfFunction(value(condition), value(first), value(second));
    };
    EXPECT_EQ(choice(1, 2, 3), choice(1, 2, 3));
    EXPECT_NE(choice(1, 2, 3), choice(0, 2, 3));
    EXPECT_NE(choice(1, 2, 3), choice(1, 0, 3));
    EXPECT_NE(choice(1, 2, 3), choice(1, 2, 0));
}

TEST(DrawingFormulasFunctions, CopyTheirOperands)
{
    const BinaryFunction source(BinaryFunctionType::Plus, value(1), value(2));
    const BinaryFunction copy(source);
    EXPECT_EQ(copy, source);
    EXPECT_NE(copy.getOperand1(), source.getOperand1());
    EXPECT_NE(copy.getOperand2(), source.getOperand2());
}

TEST(DrawingFormulasFunctions, MayBeAssignedFromTheirOwnOperands)
{
    const UnaryFunction innerUnary(UnaryFunctionType::Abs, value(1));
    UnaryFunction unary(UnaryFunctionType::Sin, std::make_unique<UnaryFunction>(innerUnary));
    unary = dynamic_cast<const UnaryFunction&>(*unary.getOperand());
    EXPECT_EQ(unary, innerUnary);

    const BinaryFunction innerBinary(BinaryFunctionType::Min, value(1), value(2));
    BinaryFunction first(BinaryFunctionType::Plus, std::make_unique<BinaryFunction>(innerBinary), value(3));
    first = dynamic_cast<const BinaryFunction&>(*first.getOperand1());
    EXPECT_EQ(first, innerBinary);
    BinaryFunction second(BinaryFunctionType::Plus, value(3), std::make_unique<BinaryFunction>(innerBinary));
    second = dynamic_cast<const BinaryFunction&>(*second.getOperand2());
    EXPECT_EQ(second, innerBinary);

    const IfFunction innerChoice(value(1), value(2), value(3));
    const auto nested = [&innerChoice] { return std::make_unique<IfFunction>(innerChoice); };
    IfFunction choice(nested(), value(4), value(5));
    choice = dynamic_cast<const IfFunction&>(*choice.getCondition());
    EXPECT_EQ(choice, innerChoice);
    choice = IfFunction(value(4), nested(), value(5));
    choice = dynamic_cast<const IfFunction&>(*choice.getThenExpression());
    EXPECT_EQ(choice, innerChoice);
    choice = IfFunction(value(4), value(5), nested());
    choice = dynamic_cast<const IfFunction&>(*choice.getElseExpression());
    EXPECT_EQ(choice, innerChoice);
}

TEST(DrawingFormulasFunctionsDeathTest, ReadingANullOperandFailsTheContract)
{
    const UnaryFunction unary;
    EXPECT_DEATH(unary.getOperand(), PlainPtr);
    const BinaryFunction binary;
    EXPECT_DEATH(binary.getOperand1(), PlainPtr);
    EXPECT_DEATH(binary.getOperand2(), PlainPtr);
    const IfFunction choice;
    EXPECT_DEATH(choice.getCondition(), PlainPtr);
    EXPECT_DEATH(choice.getThenExpression(), PlainPtr);
    EXPECT_DEATH(choice.getElseExpression(), PlainPtr);
}

std::unique_ptr<Expression> makeUnaryChain(std::size_t length)
{
    auto chain = value(0);
    for (std::size_t link = 1; link < length; ++link) {
        chain = std::make_unique<UnaryFunction>(UnaryFunctionType::Negate, std::move(chain));
    }
    return chain;
}

TEST(DrawingFormulasFunctions, LoadAndDestroyAtTheNestingLimitOnASmallStack)
{
    // The map, its list, and three nested values for each node but the last, a leaf whose base is one more.
    constexpr std::size_t Nodes = (cereal::DefaultNestingLimit - 2 - 1) / 3;
    FormulasMap map;
    map.add("chain", makeUnaryChain(Nodes));
    const std::string json = toJson(map);
    auto loaded = std::make_unique<FormulasMap>(fromJson<FormulasMap>(json));
    EXPECT_TRUE(*loaded == map);
    runOnSmallStack([&loaded] { loaded.reset(); });
    EXPECT_EQ(loaded, nullptr);

    FormulasMap deeper;
    deeper.add("chain", makeUnaryChain(Nodes + 1));
    EXPECT_THROW(toJson(deeper), cereal::Exception);
}

TEST(DrawingFormulasFunctions, DestroyTreesOfAnyDepthOnASmallStack)
{
    constexpr std::size_t Nodes = 30000;
    auto unary = makeUnaryChain(Nodes);
    auto left = value(0);
    auto right = value(0);
    auto condition = value(0);
    auto middle = value(0);
    auto zigzag = value(0);
    for (std::size_t node = 0; node < Nodes; ++node) {
        left = std::make_unique<BinaryFunction>(BinaryFunctionType::Plus, std::move(left), value(1));
        right = std::make_unique<BinaryFunction>(BinaryFunctionType::Plus, value(1), std::move(right));
        condition =
            std::make_unique<IfFunction>(std::move(condition), value(1), std::make_unique<UnaryFunction>());
        middle = std::make_unique<IfFunction>(nullptr, std::move(middle), value(1));
        zigzag = node % 2 == 0
                     ? std::unique_ptr<Expression>(std::make_unique<IfFunction>(
                           std::make_unique<UnaryFunction>(UnaryFunctionType::Sin, value(1)),
                           std::move(zigzag), nullptr))
                     : std::make_unique<BinaryFunction>(BinaryFunctionType::Max, std::move(zigzag), value(1));
    }
    runOnSmallStack([&] {
        unary.reset();
        left.reset();
        right.reset();
        condition.reset();
        middle.reset();
        zigzag.reset();
    });
}

/// Grows a tree of random shape at random places; every node counts in the leak check of the sanitizers.
TEST(DrawingFormulasFunctions, DestroyTreesOfAnyShape)
{
    for (unsigned seed = 1; seed <= 50; ++seed) {
        std::mt19937 random(seed);
        std::vector<std::unique_ptr<Expression>> pieces;
        for (int step = 0; step < 400; ++step) {
            const auto take = [&]() -> std::unique_ptr<Expression> {
                if (pieces.empty() || random() % 3 == 0) {
                    return random() % 2 == 0 ? nullptr : value(step);
                }
                std::swap(pieces[random() % pieces.size()], pieces.back());
                auto piece = std::move(pieces.back());
                pieces.pop_back();
                return piece;
            };
            switch (random() % 3) {
            case 0:
                pieces.push_back(std::make_unique<UnaryFunction>(UnaryFunctionType::Abs, take()));
                break;
            case 1: {
                auto first = take();
                pieces.push_back(
                    std::make_unique<BinaryFunction>(BinaryFunctionType::Min, std::move(first), take()));
                break;
            }
            default: {
                auto condition = take();
                auto thenExpression = take();
                pieces.push_back(
                    std::make_unique<IfFunction>(std::move(condition), std::move(thenExpression), take()));
                break;
            }
            }
        }
    }
}

} // namespace
} // namespace QN::DOM::DrawingFormulas::DrawingFormulasFunctionsTest
