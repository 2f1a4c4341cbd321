#pragma once

#include "Utils/Public/ClassScheme/Declare.h"
#include "Utils/Public/Clonable.h"
#include "Utils/Public/IDHolder.h"
#include "Utils/Public/Reflectable.h"
#include "Utils/Public/Visitor.h"

namespace QN::DOM {

class Paragraph;
class Table;
class SectionTag;
class Shape;
class FieldBlock;

/// The base of what stands at block level. It has a token of `IDHolder` for the run of the process, which a copy shares
/// with its source and which takes no part in equality; it persists nothing of its own.
class DOM_API Block : public Clonable<Block>, public Reflectable<IDHolder> {
public:
    using Types = TypeList<Paragraph, Table, SectionTag, Shape, FieldBlock>;
    QN_FAMILY_ROOT(Block)
    QN_SERIALIZE(Block)

private:
    BOOST_DESCRIBE_CLASS(Block, (), (), (), ())
};

DOM_API bool areDeeplyEqual(const Block& left, const Block& right);

} // namespace QN::DOM
