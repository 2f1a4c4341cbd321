#include "DOM/DOM_TrackedObject.h"

#include <gtest/gtest.h>

#include "DOM/Properties/DOM_FontProps.h"
#include "DOM/Properties/DOM_ParaProps.h"
#include "DOM/Properties/DOM_RegularLineProps.h"
#include "DOM/Properties/DOM_RunProps.h"
#include "DOM/TextSamples.h"
#include "DOM/ValueChecks.h"
#include "Support/RoundTrip.h"

namespace QN::DOM::TrackedObjectTest {
namespace {

using namespace QN::Test;

using TrackedAction = TrackedObject<TrackChangesType>;
using TrackedParent = TrackedObject<UUID>;
using TrackedRunProps = TrackedObject<std::shared_ptr<const RunProps>>;
using TrackedParaProps = TrackedObject<std::shared_ptr<const ParaProps>>;

TrackChangesInfo makeInfo(const std::string& name)
{
    return TrackChangesInfo(UserInfo(name, ""), boost::none);
}

std::shared_ptr<const RunProps> makeRunProps(boost::optional<float> spacing, BoolOpt caps = {})
{
    RunProps props;
    props.setSpacing(spacing);
    props.setCaps(caps);
    return std::make_shared<const RunProps>(props);
}

TrackedRunProps makeTracked(boost::optional<float> spacing, BoolOpt caps = {})
{
    return TrackedRunProps(makeInfo("a"), makeRunProps(spacing, caps));
}

TEST(DOM_TrackedObject, HasNeitherRecordNorValueByDefault)
{
    EXPECT_FALSE(TrackedParent().getInfo());
    EXPECT_EQ(TrackedAction().getValue(), static_cast<TrackChangesType>(0));
    EXPECT_EQ(TrackedParent().getValue(), UUID());
    EXPECT_EQ(TrackedRunProps().getValue(), nullptr);
    EXPECT_EQ(TrackedParaProps().getValue(), nullptr);
}

TEST(DOM_TrackedObject, WritesRecordAndValue)
{
    EXPECT_EQ(toJson(TrackedAction()), R"({"_info":{"hasValue":false},"_value":0})");
    EXPECT_EQ(toJson(TrackedParent()), R"({"_info":{"hasValue":false},"_value":)" + makeUUIDJson('0') + "}");
    EXPECT_EQ(toJson(TrackedRunProps()), R"({"_info":{"hasValue":false},"_value":{"ptr_wrapper":{"id":0}}})");
    EXPECT_EQ(toJson(TrackedParaProps(makeInfo("a"), nullptr)),
              R"({"_info":{"hasValue":true,"value":)" + toJson(makeInfo("a")) +
                  R"(},"_value":{"ptr_wrapper":{"id":0}}})");
    EXPECT_EQ(toJson(TrackedRunProps(boost::none, makeRunProps(boost::none))),
              R"({"_info":{"hasValue":false},"_value":{"ptr_wrapper":{"id":2147483649,"data":)" +
                  toJson(RunProps()) + "}}}");
}

TEST(DOM_TrackedObject, PersistsWithEachValue)
{
    expectPersists(TrackedAction());
    expectPersists(TrackedAction(makeInfo("a"), static_cast<TrackChangesType>(77)));
    expectPersists(TrackedParent());
    expectPersists(TrackedParent(makeInfo("a"), makeUUID('1')));
    expectPersists(TrackedRunProps());
    expectPersists(makeTracked(1.5F));
    expectPersists(TrackedParaProps());
    expectPersists(TrackedParaProps(makeInfo("a"), std::make_shared<const ParaProps>()));
}

TEST(DOM_TrackedObject, CopiesAndMoves)
{
    expectCopiesAndMoves(TrackedAction(makeInfo("a"), TrackChangesType::Deletion));
    expectCopiesAndMoves(TrackedParent(makeInfo("a"), makeUUID('1')));
    expectCopiesAndMoves(makeTracked(1.5F));
}

TEST(DOM_TrackedObject, ComparesRecordAndThenValue)
{
    expectAscending({TrackedParent(), TrackedParent(boost::none, makeUUID('1')),
                     TrackedParent(makeInfo("a"), UUID()), TrackedParent(makeInfo("a"), makeUUID('1')),
                     TrackedParent(makeInfo("b"), UUID())});
    expectAscending({TrackedAction(boost::none, TrackChangesType::Insertion),
                     TrackedAction(boost::none, TrackChangesType::Deletion)});
}

TEST(DOM_TrackedObject, ComparesPropertiesByValue)
{
    EXPECT_EQ(makeTracked(1.5F), makeTracked(1.5F));
    expectAscending({TrackedRunProps(makeInfo("a"), nullptr), makeTracked(boost::none), makeTracked(1.5F),
                     makeTracked(2.5F)});
}

TEST(DOM_TrackedObject, CanBeChangedInPlace)
{
    TrackedParent parent;
    parent.setInfo(makeInfo("a"));
    parent.setValue(makeUUID('1'));
    EXPECT_EQ(parent, TrackedParent(makeInfo("a"), makeUUID('1')));
    parent.getValue() = makeUUID('2');
    EXPECT_EQ(std::as_const(parent).getValue(), makeUUID('2'));
}

TEST(DOM_TrackedObject, OverridingTakesAPlainValueAlwaysAndTheRecordNever)
{
    TrackedParent parent(makeInfo("a"), makeUUID('1'));
    override(parent, TrackedParent(makeInfo("b"), UUID()));
    EXPECT_EQ(parent, TrackedParent(makeInfo("a"), UUID()));

    TrackedAction action(boost::none, TrackChangesType::Deletion);
    override(action, TrackedAction(makeInfo("b"), TrackChangesType::Insertion));
    EXPECT_EQ(action, TrackedAction(boost::none, TrackChangesType::Insertion));
}

TEST(DOM_TrackedObject, OverridingMergesProperties)
{
    TrackedRunProps props = makeTracked(1.5F, true);
    const std::shared_ptr<const RunProps> before = props.getValue();
    override(props, TrackedRunProps(makeInfo("b"), makeRunProps(2.5F)));
    EXPECT_EQ(props, makeTracked(2.5F, true));
    EXPECT_EQ(*before, *makeRunProps(1.5F, true));

    override(props, TrackedRunProps());
    EXPECT_EQ(props, makeTracked(2.5F, true));

    const auto other = makeTracked(1.5F);
    TrackedRunProps empty;
    override(empty, other);
    EXPECT_EQ(empty.getValue(), other.getValue());
    EXPECT_FALSE(empty.getInfo());
}

TEST(DOM_TrackedObject, ExcludingLeavesAPlainValueAlone)
{
    TrackedParent parent(makeInfo("a"), makeUUID('1'));
    exclude(parent, parent);
    EXPECT_EQ(parent, TrackedParent(makeInfo("a"), makeUUID('1')));
    TrackedAction action(makeInfo("a"), TrackChangesType::Deletion);
    exclude(action, action);
    EXPECT_EQ(action.getValue(), TrackChangesType::Deletion);
}

TEST(DOM_TrackedObject, ExcludingRemovesWhatThePropertiesHaveInCommon)
{
    TrackedRunProps props = makeTracked(1.5F, true);
    exclude(props, TrackedRunProps(makeInfo("b"), makeRunProps(1.5F)));
    EXPECT_EQ(props, makeTracked(boost::none, true));
    exclude(props, makeTracked(boost::none, true));
    EXPECT_EQ(props, TrackedRunProps(makeInfo("a"), nullptr));
}

TEST(DOM_TrackedObject, IntersectingKeepsWhatThePropertiesHaveInCommon)
{
    TrackedRunProps props = makeTracked(1.5F, true);
    intersect(props, TrackedRunProps(makeInfo("b"), makeRunProps(1.5F, false)));
    EXPECT_EQ(props, makeTracked(1.5F));
    intersect(props, TrackedRunProps());
    EXPECT_EQ(props, TrackedRunProps(makeInfo("a"), nullptr));
}

TEST(DOM_TrackedObject, IntersectingEqualPlainValuesChangesNothing)
{
    TrackedParent parent(makeInfo("a"), makeUUID('1'));
    intersect(parent, TrackedParent(makeInfo("b"), makeUUID('1')));
    EXPECT_EQ(parent, TrackedParent(makeInfo("a"), makeUUID('1')));
    TrackedAction action(makeInfo("a"), TrackChangesType::Deletion);
    intersect(action, TrackedAction(boost::none, TrackChangesType::Deletion));
    EXPECT_EQ(action, TrackedAction(makeInfo("a"), TrackChangesType::Deletion));
}

TEST(DOM_TrackedObjectDeathTest, IntersectingUnequalPlainValuesFailsTheContract)
{
    constexpr const char* Message =
        R"(DOM/Properties/DOM_PropertiesResolveUtils:403: areDeeplyEqual\(target, other\))";
    TrackedParent parent(boost::none, makeUUID('1'));
    EXPECT_DEATH(intersect(parent, TrackedParent()), Message);
    TrackedAction action(boost::none, TrackChangesType::Deletion);
    EXPECT_DEATH(intersect(action, TrackedAction()), Message);
}

/// What rebasing leaves where nothing is said: empty objects in place of null pointers.
std::shared_ptr<const RunProps> makeRebasedProps(boost::optional<float> spacing, BoolOpt caps)
{
    RunProps props = *makeRunProps(spacing, caps);
    props.setFontProps(std::make_shared<const FontProps>());
    props.setUnderline(std::make_shared<const RegularLineProps>());
    return std::make_shared<const RunProps>(props);
}

TEST(DOM_TrackedObject, RebasingPropertiesTakesTheReplacementWhereTheReferencesAgree)
{
    TrackedRunProps props = makeTracked(1.0F, true);
    rebaseProperty(props, TrackedRunProps(makeInfo("b"), makeRunProps(2.0F, false)), makeTracked(3.0F, true),
                   makeTracked(3.0F, false));
    EXPECT_EQ(props, TrackedRunProps(makeInfo("a"), makeRebasedProps(2.0F, true)));
}

TEST(DOM_TrackedObject, RebasingPropertiesThatAreNotThereLeavesAnEmptyObject)
{
    TrackedRunProps props;
    rebaseProperty(props, TrackedRunProps(), TrackedRunProps(), TrackedRunProps());
    EXPECT_EQ(props, TrackedRunProps(boost::none, makeRebasedProps(boost::none, BoolOpt())));
}

TEST(DOM_TrackedObject, APointerToAPlainValueIsRebasedWhole)
{
    using Pointer = std::shared_ptr<const TrackedParent>;
    const auto makePointer = [](const std::string& name, char digit) {
        return std::make_shared<const TrackedParent>(makeInfo(name), makeUUID(digit));
    };
    const Pointer before = makePointer("a", '1');
    const Pointer replacement = makePointer("b", '2');

    Pointer target = before;
    rebaseProperty(target, replacement, makePointer("c", '3'), makePointer("c", '3'));
    EXPECT_EQ(*target, *replacement);
    EXPECT_NE(target, replacement);

    target = before;
    rebaseProperty(target, replacement, makePointer("c", '3'), makePointer("d", '3'));
    EXPECT_EQ(target, before);
    rebaseProperty(target, replacement, makePointer("c", '3'), nullptr);
    EXPECT_EQ(target, before);

    rebaseProperty(target, nullptr, nullptr, nullptr);
    EXPECT_EQ(target, nullptr);

    auto action = std::make_shared<const TrackedAction>(boost::none, TrackChangesType::Deletion);
    rebaseProperty(action, std::make_shared<const TrackedAction>(), nullptr, nullptr);
    EXPECT_EQ(*action, TrackedAction());
}

TEST(DOM_TrackedObject, ATrackedParentHoldsTheRecordAndTheStyle)
{
    const std::shared_ptr<TrackedParent> parent = makeTrackedParent(makeInfo("a"), makeUUID('1'));
    EXPECT_EQ(*parent, TrackedParent(makeInfo("a"), makeUUID('1')));
}

} // namespace
} // namespace QN::DOM::TrackedObjectTest
