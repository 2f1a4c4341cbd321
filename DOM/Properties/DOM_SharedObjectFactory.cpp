#include "DOM/Properties/DOM_SharedObjectFactory.h"

namespace QN::DOM {

void SharedObjectFactory::serialize(cereal::JSONOutputArchive& /*archive*/) const {}

void SharedObjectFactory::serialize(cereal::JSONInputArchive& /*archive*/)
{
    *this = SharedObjectFactory();
}

} // namespace QN::DOM
