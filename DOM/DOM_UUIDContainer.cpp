#include "DOM/DOM_UUIDContainer.h"

#include <memory>
#include <utility>

#include "DOM/DOM_Comment.h"
#include "DOM/DOM_HeaderFooterPair.h"
#include "DOM/DOM_Note.h"
#include "DOM/Properties/DOM_NamedShapeStyle.h"
#include "DOM/Properties/DOM_NamedTableStyle.h"
#include "DOM/Properties/DOM_NamedTextStyle.h"
#include "Utils/Public/Assert.h"
#include "Utils/Public/ClassScheme/Define.h"

namespace QN::DOM {

// Written out, since g++ leaves members that are defaulted behind the class out of an explicit instantiation.

template <class T>
UUIDContainer<T>::UUIDContainer() // NOLINT(modernize-use-equals-default)
{
}

template <class T>
UUIDContainer<T>::UUIDContainer(const UUIDContainer& other) : _collection(other._collection)
{
}

template <class T>
UUIDContainer<T>::UUIDContainer(UUIDContainer&& other) noexcept : _collection(std::move(other._collection))
{
}

template <class T>
UUIDContainer<T>& UUIDContainer<T>::operator=(const UUIDContainer& other)
{
    if (this != &other) {
        UUIDContainer copy(other);
        *this = std::move(copy);
    }
    return *this;
}

template <class T>
UUIDContainer<T>& UUIDContainer<T>::operator=(UUIDContainer&& other) noexcept
{
    _collection = std::move(other._collection);
    return *this;
}

template <class T>
UUIDContainer<T>::~UUIDContainer() // NOLINT(modernize-use-equals-default)
{
}

template <class T>
T* UUIDContainer<T>::find(const UUID& uuid)
{
    const auto entry = _collection.find(uuid);
    return entry == _collection.end() ? nullptr : std::addressof(entry->second);
}

template <class T>
const T* UUIDContainer<T>::find(const UUID& uuid) const
{
    const auto entry = _collection.find(uuid);
    return entry == _collection.end() ? nullptr : std::addressof(entry->second);
}

template <class T>
T& UUIDContainer<T>::insert(T element)
{
    const UUID uuid = element.getUUID();
    QN_CONTRACT(_collection.find(uuid) == _collection.end(), "DOM_UUIDContainer", 67,
                "_collection.find(uuid) == _collection.end()");
    return _collection.emplace(uuid, std::move(element)).first->second;
}

template <class T>
bool UUIDContainer<T>::erase(const UUID& uuid)
{
    return _collection.erase(uuid) != 0;
}

template <class T>
void UUIDContainer<T>::clear()
{
    _collection.clear();
}

template <class T>
bool UUIDContainer<T>::operator==(const UUIDContainer& other) const
{
    return areAllMembersEqual(*this, other);
}

template <class T>
void UUIDContainer<T>::serialize(cereal::JSONOutputArchive& archive) const
{
    saveMembers(archive, *this);
}

template <class T>
void UUIDContainer<T>::serialize(cereal::JSONInputArchive& archive)
{
    archive.seek("_collection");
    const std::size_t size = archive.enterArray();
    _collection.clear();
    for (std::size_t index = 0; index < size; ++index) {
        UUID key;
        archive.seekUnnamed();
        archive.enterObject();
        archive.member("key", key);
        if (_collection.find(key) != _collection.end()) {
            throw cereal::Exception("The UUID " + key.toString() + " occurs twice in a collection");
        }
        archive.member("value", _collection.try_emplace(_collection.end(), key)->second);
        archive.leave();
    }
    archive.leave();
}

template class UUIDContainer<HeaderFooterPair>;
template class UUIDContainer<Comment>;
template class UUIDContainer<Note>;
template class UUIDContainer<NamedTextStyle>;
template class UUIDContainer<NamedTableStyle>;
template class UUIDContainer<NamedShapeStyle>;

} // namespace QN::DOM
