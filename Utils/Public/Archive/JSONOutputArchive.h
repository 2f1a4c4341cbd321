#pragma once

#ifdef CEREAL_ARCHIVES_JSON_HPP_
#error                                                                                                       \
    "libDOM has JSON archives of its own in namespace cereal: do not include <cereal/archives/json.hpp> beside them"
#endif
#define CEREAL_ARCHIVES_JSON_HPP_

#include <cereal/details/helpers.hpp>

#include <concepts>
#include <cstdint>
#include <cstring>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <typeinfo>
#include <vector>

#include "Utils/Public/Export.h"

namespace QN {
template <class T>
struct Persist;
}

namespace cereal {

struct OutputTypeEntry;

namespace detail {

/// Set in the number of an object or a type where it occurs for the first time, and is written out.
inline constexpr std::uint32_t FirstOccurrence = 0x80000000U;

} // namespace detail

/// The most JSON values that may stand inside each other where saving or loading follows them by recursion. Formula
/// trees are followed without recursion and are not limited.
inline constexpr std::size_t DefaultNestingLimit = 4096;

/// Writes one compact JSON text to a stream. The root of the text is an object; what is written without a name takes the
/// names "value0", "value1" and so on. The text is complete once the archive is destroyed.
///
/// Shared objects are written once and kept alive until the archive is destroyed. One archive belongs to one thread at
/// a time. Failures raise `cereal::Exception`; the text is then not to be used.
class DOM_API JSONOutputArchive {
public:
    struct Options {
        /// The most digits behind the decimal point, at least 1; by default as many as it takes to read the same
        /// number back. Further ones are cut off and not rounded. A number with an exponent keeps all its digits.
        int decimalPlaces = 324;
        std::size_t nestingLimit = DefaultNestingLimit;
    };

    explicit JSONOutputArchive(std::ostream& stream);
    JSONOutputArchive(std::ostream& stream, const Options& options);
    JSONOutputArchive(const JSONOutputArchive&) = delete;
    JSONOutputArchive& operator=(const JSONOutputArchive&) = delete;
    ~JSONOutputArchive();

    /// Writes each value: a `cereal::NameValuePair` under its name, any other value without a name.
    template <class... Ts>
    JSONOutputArchive& operator()(const Ts&... values)
    {
        (write(values), ...);
        return *this;
    }

    /// Writes a value under a key of the current object. The key is written as it stands: it must need no escaping.
    template <class T>
    void member(std::string_view key, const T& value)
    {
        writeKey(key);
        QN::Persist<T>::save(*this, value);
    }

    /// Writes a value without a name: the next element of an array, or the next "value" and number of an object.
    template <class T>
    void unnamed(const T& value)
    {
        beginUnnamed();
        QN::Persist<T>::save(*this, value);
    }

    // Structure, for the `save` of a type. A value follows each key and each `separate` of an array's element.

    void startObject() { start('{', 0); }
    void endObject() { end('}'); }
    void startArray() { start('[', InArray); }
    void endArray() { end(']'); }

    /// Goes before an element of an array and before a key: writes the comma between two of them.
    void separate()
    {
        reserve(1);
        const char last = _buffer[_size - 1];
        _buffer[_size] = ',';
        _size += static_cast<std::size_t>(last != '{' && last != '[');
    }

    void writeKey(std::string_view key)
    {
        reserve(key.size() + 4);
        separate();
        char* out = _buffer.get() + _size;
        *out++ = '"';
        std::memcpy(out, key.data(), key.size());
        out += key.size();
        *out++ = '"';
        *out++ = ':';
        _size += key.size() + 3;
    }

    // Values.

    void saveValue(bool value);
    void saveValue(std::int64_t value);
    void saveValue(std::uint64_t value);
    void saveValue(double value);
    /// Any bytes: what JSON does not allow in a string is escaped, all else is copied.
    void saveValue(std::string_view value);

    // Pointers.

    /// The number under which a shared object stands in this text, and whether this is its first occurrence. The object
    /// is told by its address and type.
    struct SharedId {
        std::uint32_t id;
        bool isNew;
    };
    SharedId findShared(const void* address, const std::type_info& type);
    /// Keeps an object alive, so that its address stays its own while the archive lives.
    void keepAlive(std::shared_ptr<const void> object);

    /// Writes "polymorphic_id" and, the first time, "polymorphic_name" of a registered type.
    /// @return what saves the members of an object of that type.
    const OutputTypeEntry& writePolymorphicType(const std::type_info& dynamicType,
                                                const std::type_info& base);
    /// Writes the keys of an object, given by a pointer to the base for which `writePolymorphicType` found the entry.
    void savePolymorphicData(const OutputTypeEntry& entry, const void* object);

    // Nesting.

    std::size_t getNesting() const { return _nesting; }
    /// For savers that walk deep trees without recursion: what they open does not count.
    void setNesting(std::size_t nesting) { _nesting = nesting; }

private:
    static constexpr std::uint32_t InArray = 0x80000000U;
    static constexpr std::size_t FlushSize = 1U << 16U;

    template <class T>
    void write(const NameValuePair<T>& pair)
    {
        if (isInArray()) {
            unnamed(pair.value);
        } else {
            writeEscapedKey(pair.name);
            QN::Persist<std::remove_cvref_t<T>>::save(*this, pair.value);
        }
    }

    template <class T>
    void write(const T& value)
    {
        unnamed(value);
    }

    bool isInArray() const { return (_counters.back() & InArray) != 0; }

    void start(char bracket, std::uint32_t counter)
    {
        if (++_nesting > _options.nestingLimit) {
            throwNestingLimit();
        }
        reserve(1);
        _buffer[_size++] = bracket;
        _counters.push_back(counter);
    }

    void end(char bracket)
    {
        reserve(1);
        _buffer[_size++] = bracket;
        _counters.pop_back();
        --_nesting;
    }

    void reserve(std::size_t count)
    {
        if (_capacity - _size <= count) {
            makeRoom(count);
        }
    }

    void makeRoom(std::size_t count);
    void flush();
    void writeEscapedKey(std::string_view key);
    void beginUnnamed();
    [[noreturn]] void throwNestingLimit() const;

    struct Tracking;

    std::unique_ptr<char[]> _buffer;
    std::size_t _size = 0;
    std::size_t _capacity = 0;
    std::size_t _nesting = 0;
    std::vector<std::uint32_t> _counters;
    Options _options;
    std::ostream& _stream;
    std::unique_ptr<Tracking> _tracking;
};

} // namespace cereal
