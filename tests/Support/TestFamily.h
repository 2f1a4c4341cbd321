#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Clonable.h"
#include "Utils/Public/IDHolder.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/UUIDable.h"
#include "Utils/Public/Visitor.h"

/// Two small polymorphic families for tests of what all families share. They are registered under names of their own.

namespace QN::Test {

class Word;
class Group;
class Dot;
class Ring;

/// A family with equality whose root has an identity but nothing to persist.
class Item : public Clonable<Item>, public Reflectable<IDHolder> {
public:
    using Types = TypeList<Word, Group, Dot, Ring>;
    QN_FAMILY_ROOT(Item)
    QN_SERIALIZE(Item)

    BOOST_DESCRIBE_CLASS(Item, (), (), (), ())
};

bool areDeeplyEqual(const Item& left, const Item& right);

/// Counts its objects and its comparisons. Registered as "Test::Word".
class Word final : public Reflectable<Item> {
public:
    static inline int objects = 0;
    static inline int constructions = 0;
    static inline int comparisons = 0;

    explicit Word(std::string text = {}, double size = 0.0) : _text(std::move(text)), _size(size) { count(); }
    Word(const Word& other) : Reflectable<Item>(other), _text(other._text), _size(other._size) { count(); }
    Word& operator=(const Word&) = default;
    ~Word() override { --objects; }

    QN_VALUE(Word)
    QN_CONCRETE(Item)

    std::string _text;
    double _size;

    BOOST_DESCRIBE_CLASS(Word, (Item), (_text, _size), (), ())

private:
    static void count()
    {
        ++objects;
        ++constructions;
    }
};

/// Two bases, and owned objects of its own family. Registered as "Test::Group".
class Group final : public Reflectable<Item, UUIDable> {
public:
    Group() = default;
    explicit Group(const UUID& uuid)
        : Reflectable(std::piecewise_construct, std::tuple<>(), std::forward_as_tuple(uuid))
    {
    }

    QN_DEEP_COPY(Group)
    QN_VALUE(Group)
    QN_CONCRETE(Item)

    std::vector<std::unique_ptr<Item>> _items;

    BOOST_DESCRIBE_CLASS(Group, (Item, UUIDable), (_items), (), ())
};

/// Stands before the root in an object, so that a pointer to the root has another address than the object.
class Ballast {
public:
    virtual ~Ballast() = default;

    long ballast = 0;
};

/// Stands between the root and the concrete classes.
class Mark : public Reflectable<Ballast, Item> {
public:
    QN_VALUE(Mark)

    int _weight = 1;

    BOOST_DESCRIBE_CLASS(Mark, (Item), (_weight), (), ())
};

/// Registered as "Test::Dot". Allocates nothing.
class Dot final : public Reflectable<Mark> {
public:
    QN_VALUE(Dot)
    QN_CONCRETE(Item)

    int _radius = 0;

    BOOST_DESCRIBE_CLASS(Dot, (Mark), (_radius), (), ())
};

/// Registered as "Test::Circle": the name is not that of the class.
class Ring final : public Reflectable<Mark> {
public:
    QN_VALUE(Ring)
    QN_CONCRETE(Item)

    BOOST_DESCRIBE_CLASS(Ring, (Mark), (), (), ())
};

/// Of the family, but not registered.
class Stranger final : public Reflectable<Item> {
public:
    QN_SERIALIZE(Stranger)
    void cloneTo(std::shared_ptr<Item>& target) const override { target = std::make_shared<Stranger>(*this); }
    void cloneTo(std::unique_ptr<Item>& target) const override { target = std::make_unique<Stranger>(*this); }
    void accept(Visitor&) override {}
    void accept(ConstVisitor&) const override {}

    BOOST_DESCRIBE_CLASS(Stranger, (Item), (), (), ())
};

/// Of the family and registered as "Test::Stray", but not related to the root.
class Stray final : public Reflectable<Item> {
public:
    QN_SERIALIZE(Stray)
    void cloneTo(std::shared_ptr<Item>& target) const override { target = std::make_shared<Stray>(*this); }
    void cloneTo(std::unique_ptr<Item>& target) const override { target = std::make_unique<Stray>(*this); }
    void accept(Visitor&) override {}
    void accept(ConstVisitor&) const override {}

    BOOST_DESCRIBE_CLASS(Stray, (Item), (), (), ())
};

class Striped;
class Flat;

/// A family with an order, whose root has a member.
class Tone : public Clonable<Tone>, public Reflectable<> {
public:
    using Types = TypeList<Striped, Flat>;
    QN_FAMILY_ROOT(Tone)
    QN_ORDERED_VALUE(Tone)

    float _level = 0.0F;

    BOOST_DESCRIBE_CLASS(Tone, (), (_level), (), ())

protected:
    explicit Tone(float level) : _level(level) {}
};

bool areDeeplyEqual(const Tone& left, const Tone& right);
bool areDeeplyLess(const Tone& left, const Tone& right);
std::partial_ordering compareDeeply(const Tone& left, const Tone& right, NanOrder nanOrder);

/// Registered as "Test::Striped".
class Striped final : public Reflectable<Tone> {
public:
    explicit Striped(float level = 0.0F, std::vector<float> widths = {})
        : Reflectable<Tone>(level), _widths(std::move(widths))
    {
    }
    QN_ORDERED_VALUE(Striped)
    QN_CONCRETE(Tone)

    std::vector<float> _widths;

    BOOST_DESCRIBE_CLASS(Striped, (Tone), (_widths), (), ())
};

/// Registered as "Test::Flat".
class Flat final : public Reflectable<Tone> {
public:
    explicit Flat(float level = 0.0F, std::string name = {})
        : Reflectable<Tone>(level), _name(std::move(name))
    {
    }
    QN_ORDERED_VALUE(Flat)
    QN_CONCRETE(Tone)

    std::string _name;

    BOOST_DESCRIBE_CLASS(Flat, (Tone), (_name), (), ())
};

} // namespace QN::Test
