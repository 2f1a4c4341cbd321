#pragma once

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <cstdint>
#include <memory>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

#include "Utils/Public/Archive/Persist.h"
#include "Utils/Public/Archive/PersistStandard.h"
#include "Utils/Public/Clonable.h"
#include "Utils/Public/Ptr/PropagateConstPtr.h"
#include "Utils/Public/Ptr/SharedConstPtr.h"

/// Smart pointers. A class of a polymorphic family stands under its registered name, any other class in the plain form;
/// a shared object stands in a text once and is shared again when it is loaded.

namespace QN {

template <class T>
concept FamilyMember = std::is_base_of_v<ClonableBase, T>;

namespace PersistDetails {

/// "ptr_wrapper" with "valid" and "data".
template <class T>
void savePlainPointer(cereal::JSONOutputArchive& archive, const T* object)
{
    archive.startObject();
    archive.writeKey("ptr_wrapper");
    archive.startObject();
    archive.member("valid", object != nullptr ? 1 : 0);
    if (object != nullptr) {
        archive.member("data", *object);
    }
    archive.endObject();
    archive.endObject();
}

/// Any number but 0 under "valid" stands for an object.
template <class T>
std::unique_ptr<T> loadPlainPointer(cereal::JSONInputArchive& archive)
{
    std::unique_ptr<T> object;
    std::uint32_t isValid = 0;
    archive.enterObject();
    archive.seek("ptr_wrapper");
    archive.enterObject();
    archive.member("valid", isValid);
    if (isValid != 0) {
        object = std::make_unique<T>();
        archive.member("data", *object);
    }
    archive.leave();
    archive.leave();
    return object;
}

/// "polymorphic_id" and "polymorphic_name" of an object's dynamic type.
template <class T>
const cereal::OutputTypeEntry& savePolymorphicType(cereal::JSONOutputArchive& archive, const T& object)
{
    return archive.writePolymorphicType(typeid(object), typeid(T));
}

inline void saveNullPolymorphic(cereal::JSONOutputArchive& archive)
{
    archive.member("polymorphic_id", 0U);
}

} // namespace PersistDetails

template <class T>
struct Persist<std::unique_ptr<T>> {
    static void save(cereal::JSONOutputArchive& archive, const std::unique_ptr<T>& value)
    {
        PersistDetails::savePlainPointer(archive, value.get());
    }

    static void load(cereal::JSONInputArchive& archive, std::unique_ptr<T>& value)
    {
        value = PersistDetails::loadPlainPointer<T>(archive);
    }
};

template <FamilyMember T>
struct Persist<std::unique_ptr<T>> {
    static void save(cereal::JSONOutputArchive& archive, const std::unique_ptr<T>& value)
    {
        archive.startObject();
        if (value) {
            const auto& type = PersistDetails::savePolymorphicType(archive, *value);
            archive.writeKey("ptr_wrapper");
            archive.startObject();
            archive.member("valid", 1);
            archive.writeKey("data");
            archive.startObject();
            archive.savePolymorphicData(type, value.get());
            archive.endObject();
            archive.endObject();
        } else {
            PersistDetails::saveNullPolymorphic(archive);
        }
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, std::unique_ptr<T>& value)
    {
        value.reset(static_cast<T*>(archive.loadPolymorphic(typeid(T))));
    }
};

/// "ptr_wrapper" with "id" and, the first time, "data".
template <class T>
struct Persist<std::shared_ptr<T>> {
    using Object = std::remove_const_t<T>;

    static void save(cereal::JSONOutputArchive& archive, const std::shared_ptr<T>& value)
    {
        const auto [id, isNew] = archive.findShared(value.get(), typeid(Object));
        archive.startObject();
        archive.writeKey("ptr_wrapper");
        archive.startObject();
        archive.member("id", id);
        if (isNew) {
            archive.keepAlive(value);
            archive.member("data", *value);
        }
        archive.endObject();
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, std::shared_ptr<T>& value)
    {
        std::uint32_t id = 0;
        archive.enterObject();
        archive.seek("ptr_wrapper");
        archive.enterObject();
        archive.member("id", id);
        if ((id & cereal::detail::FirstOccurrence) != 0) {
            auto object = std::make_shared<Object>();
            archive.member("data", *object);
            archive.addShared(id, object, typeid(Object));
            value = std::move(object);
        } else if (id == 0) {
            value.reset();
        } else {
            value = std::static_pointer_cast<Object>(archive.findShared(id, typeid(Object)));
        }
        archive.leave();
        archive.leave();
    }
};

/// The polymorphic type, then "ptr_wrapper" with "id" and "data".
template <class T>
requires FamilyMember<std::remove_const_t<T>>
struct Persist<std::shared_ptr<T>> {
    using Object = std::remove_const_t<T>;

    static void save(cereal::JSONOutputArchive& archive, const std::shared_ptr<T>& value)
    {
        archive.startObject();
        if (value) {
            const Object& object = *value;
            const auto& type = PersistDetails::savePolymorphicType(archive, object);
            // The compiler asks for null once more.
            const void* const whole = dynamic_cast<const void*>(&object); // GCOVR_EXCL_LINE
            const auto [id, isNew] = archive.findShared(whole, typeid(object));
            archive.writeKey("ptr_wrapper");
            archive.startObject();
            archive.member("id", id);
            if (isNew) {
                archive.keepAlive(value);
                archive.writeKey("data");
                archive.startObject();
                archive.savePolymorphicData(type, &object);
                archive.endObject();
            }
            archive.endObject();
        } else {
            PersistDetails::saveNullPolymorphic(archive);
        }
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, std::shared_ptr<T>& value)
    {
        value = std::static_pointer_cast<Object>(archive.loadSharedPolymorphic(typeid(Object)));
    }
};

/// "id", numbered as a shared pointer's, and, the first time, "value0": a plain pointer to the object. A pointer that is
/// not valid in there loads as null.
template <class T>
struct Persist<boost::intrusive_ptr<T>> {
    using Object = std::remove_const_t<T>;

    static void save(cereal::JSONOutputArchive& archive, const boost::intrusive_ptr<T>& value)
    {
        const auto [id, isNew] = archive.findShared(value.get(), typeid(Object));
        archive.startObject();
        archive.member("id", id);
        if (isNew) {
            archive.keepAlive(std::shared_ptr<const void>(value.get(), [value](const void*) {}));
            archive.writeKey("value0");
            PersistDetails::savePlainPointer<Object>(archive, value.get());
        }
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, boost::intrusive_ptr<T>& value)
    {
        std::uint32_t id = 0;
        archive.enterObject();
        archive.member("id", id);
        if ((id & cereal::detail::FirstOccurrence) != 0) {
            archive.seek("value0");
            const boost::intrusive_ptr<Object> object(
                PersistDetails::loadPlainPointer<Object>(archive).release());
            archive.addShared(id, std::shared_ptr<void>(object.get(), [object](void*) {}), typeid(Object));
            value = object;
        } else if (id == 0) {
            value.reset();
        } else {
            value.reset(static_cast<Object*>(archive.findShared(id, typeid(Object)).get()));
        }
        archive.leave();
    }
};

/// An object whose one key is the text of the expression that names the wrapped pointer.
template <class P>
struct Persist<PropagateConstPtr<P>> {
    static void save(cereal::JSONOutputArchive& archive, const PropagateConstPtr<P>& value)
    {
        archive.startObject();
        archive.member("this->getPtr()", value.getPtr());
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, PropagateConstPtr<P>& value)
    {
        archive.enterObject();
        archive.member("this->getPtr()", value.getPtr());
        archive.leave();
    }
};

/// An object with the one key "_value".
template <class T>
struct Persist<SharedConstPtr<T>> {
    static void save(cereal::JSONOutputArchive& archive, const SharedConstPtr<T>& value)
    {
        archive.startObject();
        archive.member("_value", value.getPtr());
        archive.endObject();
    }

    static void load(cereal::JSONInputArchive& archive, SharedConstPtr<T>& value)
    {
        std::shared_ptr<const T> object;
        archive.enterObject();
        archive.member("_value", object);
        archive.leave();
        value = SharedConstPtr<T>(std::move(object));
    }
};

/// A vector of owning pointers to one class of a family, to be written in the plain form.
template <class T>
struct PlainPointers {
    std::vector<std::unique_ptr<T>>& pointers;
};

template <class T>
PlainPointers<T> asPlainPointers(std::vector<std::unique_ptr<T>>& pointers)
{
    return {pointers};
}

template <class T>
PlainPointers<T> asPlainPointers(const std::vector<std::unique_ptr<T>>& pointers)
{
    return {const_cast<std::vector<std::unique_ptr<T>>&>(pointers)};
}

template <class T>
struct Persist<PlainPointers<T>> {
    static void save(cereal::JSONOutputArchive& archive, const PlainPointers<T>& value)
    {
        archive.startArray();
        for (const auto& pointer : value.pointers) {
            archive.separate();
            PersistDetails::savePlainPointer(archive, pointer.get());
        }
        archive.endArray();
    }

    static void load(cereal::JSONInputArchive& archive, PlainPointers<T>& value)
    {
        const std::size_t size = archive.enterArray();
        value.pointers.clear();
        PersistDetails::reserveForLoad(value.pointers, size);
        for (std::size_t index = 0; index < size; ++index) {
            archive.seekUnnamed();
            value.pointers.push_back(PersistDetails::loadPlainPointer<T>(archive));
        }
        archive.leave();
    }
};

} // namespace QN
