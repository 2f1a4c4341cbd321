#include "Utils/Public/UUIDable.h"

namespace QN {

UUIDable::UUIDable() : _uuid(UUID::generate()) {}

UUIDable::~UUIDable() = default;

} // namespace QN
