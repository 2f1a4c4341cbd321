#pragma once

#include <boost/describe/class.hpp>
#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include "DOM/Properties/DOM_PropertiesResolveUtils.h"
#include "DOM/Properties/DOM_RegularLineProps.h"
#include "DOM/Properties/DOM_TabStops.h"
#include "DOM/Properties/DOM_ThemeLineProps.h"

/// A property set with a member of each kind, and the checks of what the operations make of one member.

namespace QN::DOM::AlgebraSample {

inline constexpr auto None = boost::none;

struct Part {
    boost::optional<float> size;
    BoolOpt bold;
};
BOOST_DESCRIBE_STRUCT(Part, (), (size, bold))

/// Has no operations of its own.
struct Label {
    std::string text;
    bool operator==(const Label&) const = default;
};

using Choice = boost::variant<boost::blank, std::string, double>;

struct Sample {
    int plain = 0;
    boost::optional<float> number;
    BoolOpt flag;
    Choice choice;
    std::shared_ptr<const Part> composite;
    std::shared_ptr<const Label> atomic;
    std::shared_ptr<const LineProps> polymorphic;
    std::shared_ptr<const RegularLineProps> underline;
    boost::optional<TabStops> tabs;
};
BOOST_DESCRIBE_STRUCT(Sample, (),
                      (plain, number, flag, choice, composite, atomic, polymorphic, underline, tabs))

template <class T>
concept PropertySet = std::is_same_v<T, Part> || std::is_same_v<T, Sample>;

template <PropertySet T>
bool operator==(const T& left, const T& right)
{
    return areAllMembersEqual(left, right);
}
template <PropertySet T>
void override(T& target, const T& other)
{
    overrideAllMembers(target, other);
}
template <PropertySet T>
void exclude(T& target, const T& other)
{
    excludeAllMembers(target, other);
}
template <PropertySet T>
void intersect(T& target, const T& other)
{
    intersectAllMembers(target, other);
}
template <PropertySet T>
void rebaseProperty(T& target, const T& replacement, const T& left, const T& right)
{
    rebaseAllMembers(target, replacement, left, right);
}

inline std::shared_ptr<const Part> part(boost::optional<float> size = None, BoolOpt bold = None)
{
    return std::make_shared<const Part>(Part{size, bold});
}

inline std::shared_ptr<const Label> label(std::string text)
{
    return std::make_shared<const Label>(Label{std::move(text)});
}

inline std::shared_ptr<const RegularLineProps> line(boost::optional<float> width = None,
                                                    boost::optional<DashStyle> dash = None)
{
    auto props = std::make_shared<RegularLineProps>();
    props->setWidth(width);
    props->setDashStyle(dash);
    return props;
}

inline std::shared_ptr<const LineProps> themeLine()
{
    return std::make_shared<const ThemeLineProps>();
}

inline Choice text(const char* value)
{
    return std::string(value);
}

inline TabStops tabs(std::initializer_list<std::pair<float, TabStopLeader>> stops)
{
    TabStops result;
    for (const auto& [position, leader] : stops) {
        result[position].setLeader(leader);
    }
    return result;
}

inline constexpr auto Dot = TabStopLeader::Dot;
inline constexpr auto Plain = TabStopLeader{};

inline Sample fullSample()
{
    return {3,          1.0F,        true,       text("a"),          part(1.0F, true),
            label("a"), themeLine(), line(1.0F), tabs({{1.0F, Dot}})};
}

/// What the operations without a reference make of one member, all others being absent.
template <class M>
struct Combination {
    M target;
    M other;
    M expected;
};

template <class M>
struct Rebasing {
    M target;
    M replacement;
    M left;
    M right;
    M expected;
};

template <class M>
Sample sampleOf(M Sample::*member, const std::type_identity_t<M>& value, Sample sample = {})
{
    sample.*member = value;
    return sample;
}

template <class Operation, class M>
void expectCombined(Operation operation, M Sample::*member,
                    std::initializer_list<std::type_identity_t<Combination<M>>> rows)
{
    for (const auto& row : rows) {
        Sample target = sampleOf(member, row.target);
        operation(target, sampleOf(member, row.other));
        EXPECT_TRUE(target == sampleOf(member, row.expected)) << "row " << &row - rows.begin();
    }
}

inline const auto Override = [](Sample& target, const Sample& other) { override(target, other); };
inline const auto Exclude = [](Sample& target, const Sample& other) { exclude(target, other); };
inline const auto Intersect = [](Sample& target, const Sample& other) { intersect(target, other); };

/// The pointers that never stay null are expected to hold an empty object.
template <class M>
void expectRebased(M Sample::*member, std::initializer_list<std::type_identity_t<Rebasing<M>>> rows)
{
    Sample rest;
    rest.composite = part();
    rest.underline = line();
    for (const auto& row : rows) {
        Sample target = sampleOf(member, row.target);
        rebaseProperty(target, sampleOf(member, row.replacement), sampleOf(member, row.left),
                       sampleOf(member, row.right));
        EXPECT_TRUE(target == sampleOf(member, row.expected, rest)) << "row " << &row - rows.begin();
    }
}

} // namespace QN::DOM::AlgebraSample
