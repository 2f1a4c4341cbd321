#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

#include "Utils/Public/Archive/JSONOutputArchive.h"

namespace cereal {

namespace detail {
class PolymorphicCaster;
struct InputBinding;
} // namespace detail

/// Takes the place of every failed check of the parser below: a malformed or mistyped text raises it.
struct DOM_API RapidJSONException : Exception {
    explicit RapidJSONException(const char* what) : Exception(what) {}
    explicit RapidJSONException(const std::string& what) : Exception(what) {}
};

/// Reads one JSON text, which it takes whole from the stream when it is made. The root is an object or an array.
///
/// A named value is looked for at the place behind the last one read and then in the whole object, so the order of the
/// keys does not matter, the written order is the quick one, and keys that nobody asks for are ignored. A key that is
/// asked for must be there. Failures raise `cereal::Exception` or `RapidJSONException`; what was read until then stays
/// in the target, which is not to be used.
class DOM_API JSONInputArchive {
public:
    struct Options {
        std::size_t nestingLimit = DefaultNestingLimit;
    };

    /// @throws RapidJSONException when the text is not JSON or its root is neither an object nor an array.
    explicit JSONInputArchive(std::istream& stream);
    JSONInputArchive(std::istream& stream, const Options& options);
    JSONInputArchive(const JSONInputArchive&) = delete;
    JSONInputArchive& operator=(const JSONInputArchive&) = delete;
    ~JSONInputArchive();

    /// Reads each value: a `cereal::NameValuePair` by its name, any other value without a name.
    template <class... Ts>
    JSONInputArchive& operator()(Ts&&... values)
    {
        (read(values), ...);
        return *this;
    }

    /// Reads the value under a key of the current object; in an array, the next element.
    template <class T>
    void member(std::string_view key, T& value)
    {
        seek(key);
        QN::Persist<T>::load(*this, value);
    }

    /// Reads the next element of an array, or the next "value" and number of an object.
    template <class T>
    void unnamed(T& value)
    {
        seekUnnamed();
        QN::Persist<T>::load(*this, value);
    }

    // Structure, for the `load` of a type. Each works on the current value, which `seek` and `seekUnnamed` set.

    /// @throws Exception "JSON Parsing failed - provided NVP (" key ") not found" when there is no such member.
    void seek(std::string_view key);
    void seekUnnamed();
    /// @throws RapidJSONException "rapidjson internal assertion failure: IsObject()"
    void enterObject();
    /// @return the number of elements. @throws RapidJSONException "rapidjson internal assertion failure: IsArray()"
    std::size_t enterArray();
    void leave();
    /// Whether the current value is an integer that takes more than 32 bits with a sign.
    bool isWideInteger() const;

    // Values. A number outside the type's range, or of another JSON type, raises RapidJSONException.

    void loadValue(bool& value);
    void loadValue(std::int64_t& value);
    void loadValue(std::uint64_t& value);
    void loadValue(std::int32_t& value);
    void loadValue(std::uint32_t& value);
    void loadValue(double& value);
    void loadValue(std::string& value);
    /// Valid while the archive lives.
    std::string_view loadString();

    [[noreturn]] static void throwOutOfRange();

    // Pointers.

    struct SharedEntry {
        std::shared_ptr<void> object;
        const std::type_info* type = nullptr;
    };
    /// @throws Exception "... Could not find id ..." when no object of that type stands under the number.
    const std::shared_ptr<void>& findShared(std::uint32_t id, const std::type_info& type) const;
    void addShared(std::uint32_t id, std::shared_ptr<void> object, const std::type_info& type);

    /// Reads a polymorphic pointer.
    /// @return a new object as a pointer to `base`, owned by the caller; null for a null pointer.
    void* loadPolymorphic(const std::type_info& base);
    /// The same for a shared pointer.
    std::shared_ptr<void> loadSharedPolymorphic(const std::type_info& base);

    /// How a registered type is made and loaded, and the casters from it up to a base. Both null for a null pointer.
    struct PolymorphicType {
        const detail::InputBinding* binding = nullptr;
        const std::vector<const detail::PolymorphicCaster*>* chain = nullptr;
    };
    /// Reads "polymorphic_id" and "polymorphic_name". The answer is valid while the archive lives.
    PolymorphicType readPolymorphicType(const std::type_info& base);

    // Nesting, as for the output archive.

    std::size_t getNesting() const { return _nesting; }
    void setNesting(std::size_t nesting) { _nesting = nesting; }

private:
    template <class T>
    void read(NameValuePair<T>& pair)
    {
        member(std::string_view(pair.name), pair.value);
    }

    template <class T>
    void read(T& value)
    {
        unnamed(value);
    }

    void countNesting();

    struct Impl;

    std::unique_ptr<Impl> _impl;
    std::size_t _nesting = 0;
    std::size_t _nestingLimit;
};

} // namespace cereal
