#pragma once

#include <boost/optional/optional.hpp>

#include <initializer_list>
#include <utility>
#include <vector>

#include "DOM/Tables/Properties/CellFormatModel/DOM_FormatModelRule.h"
#include "Utils/Public/ClassScheme/Declare.h"

namespace QN::DOM::CellFormatModel {

/// A format written out: conditional rules in the order in which the format declares them, the rule for numbers that no
/// condition took, and the rule for text.
class DOM_API Expression {
public:
    Expression() = default;
    /// A list of rules, without a default.
    explicit Expression(std::vector<Rule> rules) : _rules(std::move(rules)) {}
    /// The same: `Expression({rule})` is a list of one rule, and so is `Expression{rule}`.
    Expression(std::initializer_list<Rule> rules) : _rules(rules) {}
    /// A format of one rule, as `Expression(rule)`: the rule is the default one for numbers and not a list of one.
    explicit Expression(Rule rule) : _defaultNumberRule(std::move(rule)) {}

    const std::vector<Rule>& getRules() const { return _rules; }
    std::vector<Rule>& getRules() { return _rules; }
    void setRules(std::vector<Rule> rules) { _rules = std::move(rules); }

    const boost::optional<Rule>& getDefaultNumberRule() const { return _defaultNumberRule; }
    boost::optional<Rule>& getDefaultNumberRule() { return _defaultNumberRule; }
    void setDefaultNumberRule(boost::optional<Rule> rule) { _defaultNumberRule = std::move(rule); }

    const boost::optional<Rule>& getDefaultTextRule() const { return _defaultTextRule; }
    boost::optional<Rule>& getDefaultTextRule() { return _defaultTextRule; }
    void setDefaultTextRule(boost::optional<Rule> rule) { _defaultTextRule = std::move(rule); }

    QN_ORDERED_VALUE(Expression)

private:
    std::vector<Rule> _rules;
    boost::optional<Rule> _defaultNumberRule;
    boost::optional<Rule> _defaultTextRule;

    BOOST_DESCRIBE_CLASS(Expression, (), (), (), (_rules, _defaultNumberRule, _defaultTextRule))
};

} // namespace QN::DOM::CellFormatModel
