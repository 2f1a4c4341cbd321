#include "Support/TestFamily.h"

#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::Test {

QN_DEFINE_SERIALIZE(Item)
QN_DEFINE_DEEP_EQUALITY(Item)

bool Word::operator==(const Word& other) const
{
    ++comparisons;
    return areAllMembersEqual(*this, other);
}
QN_DEFINE_SERIALIZE(Word)
QN_DEFINE_CONCRETE(Word, Item)

QN_DEFINE_VALUE(Group)
QN_DEFINE_DEEP_COPY_WITH_BASE(Group, Reflectable<Item, UUIDable>)
QN_DEFINE_CONCRETE(Group, Item)

QN_DEFINE_VALUE(Mark)

QN_DEFINE_VALUE(Dot)
QN_DEFINE_CONCRETE(Dot, Item)

QN_DEFINE_VALUE(Ring)
QN_DEFINE_CONCRETE(Ring, Item)

QN_DEFINE_SERIALIZE(Stranger)
QN_DEFINE_SERIALIZE(Stray)

QN_REGISTER_TYPE(Word, "Test::Word")
QN_REGISTER_TYPE(Group, "Test::Group")
QN_REGISTER_TYPE(Dot, "Test::Dot")
QN_REGISTER_TYPE(Ring, "Test::Circle")
QN_REGISTER_TYPE(Stray, "Test::Stray")
QN_REGISTER_RELATION(Item, Word)
QN_REGISTER_RELATION(Item, Group)
QN_REGISTER_RELATION(Item, Mark)
QN_REGISTER_RELATION(Mark, Dot)
QN_REGISTER_RELATION(Mark, Ring)
QN_REGISTER_RELATION(UUIDable, Group)

QN_DEFINE_ORDERED_VALUE(Tone)
QN_DEFINE_DEEP_EQUALITY(Tone)
QN_DEFINE_DEEP_ORDER(Tone)

QN_DEFINE_ORDERED_VALUE(Striped)
QN_DEFINE_CONCRETE(Striped, Tone)

QN_DEFINE_ORDERED_VALUE(Flat)
QN_DEFINE_CONCRETE(Flat, Tone)

QN_REGISTER_TYPE(Striped, "Test::Striped")
QN_REGISTER_TYPE(Flat, "Test::Flat")
QN_REGISTER_RELATION(Tone, Striped)
QN_REGISTER_RELATION(Tone, Flat)

} // namespace QN::Test
