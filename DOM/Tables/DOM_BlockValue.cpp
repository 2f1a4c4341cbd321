#include "DOM/Tables/DOM_BlockValue.h"

#include <type_traits>

#include "Utils/Public/Assert.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

template <class T>
void BlockValue<T>::check([[maybe_unused]] const T& value)
{
    if constexpr (std::is_same_v<T, FloatNumber>) {
        QN_ASSERT(isfinite(value));
    }
}

template <class T>
bool BlockValue<T>::operator==(const BlockValue& other) const
{
    if constexpr (std::is_same_v<T, FloatNumber>) {
        return !(_value > other._value) && !(other._value > _value);
    } else {
        return _value == other._value;
    }
}

template <class T>
void BlockValue<T>::serialize(cereal::JSONOutputArchive& archive) const
{
    saveMembers(archive, *this);
}

template <class T>
void BlockValue<T>::serialize(cereal::JSONInputArchive& archive)
{
    loadMembers(archive, *this);
    if constexpr (std::is_same_v<T, FloatNumber>) {
        if (!isfinite(_value)) {
            _value = FloatNumber();
            throw cereal::Exception("The number of a cell is not finite");
        }
    }
}

template class BlockValue<FloatNumber>;
template class BlockValue<FormulaErrorType>;
template class BlockValue<bool>;

} // namespace QN::DOM
