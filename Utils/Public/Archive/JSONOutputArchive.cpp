#include "Utils/Public/Archive/JSONOutputArchive.h"

#include <boost/core/demangle.hpp>
#include <boost/functional/hash.hpp>
#include <boost/unordered/unordered_flat_map.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <ostream>

#include "Utils/Public/Archive/JSONText.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/Archive/RapidJSON.h"

namespace cereal {

/// A dynamic type that occurred in this text.
struct OutputTypeEntry {
    const detail::OutputBinding* binding;
    std::uint32_t id;
    const std::type_info* base;
    detail::CasterChain chain;
};

struct JSONOutputArchive::Tracking {
    using ObjectKey = std::pair<const void*, const std::type_info*>;

    boost::unordered_flat_map<ObjectKey, std::uint32_t, boost::hash<ObjectKey>> sharedIds;
    std::vector<std::shared_ptr<const void>> keptAlive;
    boost::unordered_flat_map<const std::type_info*, OutputTypeEntry> types;
};

namespace {

constexpr std::size_t NumberSize = 32;

/// For each byte below 0x80 what follows the backslash in a string: 0 for nothing to escape, 'u' for a code.
constexpr std::array<char, 128> makeEscapes()
{
    std::array<char, 128> escapes{};
    for (std::size_t code = 0; code < 0x20; ++code) {
        escapes[code] = 'u';
    }
    escapes['\b'] = 'b';
    escapes['\f'] = 'f';
    escapes['\n'] = 'n';
    escapes['\r'] = 'r';
    escapes['\t'] = 't';
    escapes['"'] = '"';
    escapes['\\'] = '\\';
    return escapes;
}

constexpr auto Escapes = makeEscapes();

char* copyEscaped(char* out, const char* in, const char* end)
{
    constexpr std::string_view Digits = "0123456789ABCDEF";
    while (in != end) {
        if (end - in >= 8) {
            std::uint64_t bytes;
            std::memcpy(&bytes, in, 8);
            if (detail::findSpecialBytes(bytes) == 0) {
                std::memcpy(out, in, 8);
                in += 8;
                out += 8;
                continue;
            }
        }
        const auto byte = static_cast<unsigned char>(*in++);
        const char escape = byte < Escapes.size() ? Escapes[byte] : '\0';
        if (escape == '\0') {
            *out++ = static_cast<char>(byte);
            continue;
        }
        *out++ = '\\';
        *out++ = escape;
        if (escape == 'u') {
            *out++ = '0';
            *out++ = '0';
            *out++ = Digits[byte >> 4U];
            *out++ = Digits[byte & 0xFU];
        }
    }
    return out;
}

} // namespace

JSONOutputArchive::JSONOutputArchive(std::ostream& stream) : JSONOutputArchive(stream, Options{}) {}

JSONOutputArchive::JSONOutputArchive(std::ostream& stream, const Options& options)
    : _options(options), _stream(stream), _tracking(std::make_unique<Tracking>())
{
    makeRoom(FlushSize);
    _buffer[_size++] = '{';
    _counters.push_back(0);
}

JSONOutputArchive::~JSONOutputArchive()
{
    // An archive given up because of an exception leaves its text cut off.
    try {
        if (_counters.size() == 1) {
            end('}');
        }
        flush();
        _stream.write(_buffer.get(), static_cast<std::streamsize>(_size));
        _stream.flush();
    } catch (...) {
        // The stream reports its failure through its own state.
    }
}

void JSONOutputArchive::makeRoom(std::size_t count)
{
    if (_size >= FlushSize) {
        flush();
    }
    if (_capacity - _size <= count) {
        const std::size_t capacity = std::max(_capacity * 2, _size + count + FlushSize);
        std::unique_ptr<char[]> buffer(new char[capacity]);
        if (_size != 0) {
            std::memcpy(buffer.get(), _buffer.get(), _size);
        }
        _buffer = std::move(buffer);
        _capacity = capacity;
    }
}

/// Keeps the last byte, which tells whether a comma is due.
void JSONOutputArchive::flush()
{
    _stream.write(_buffer.get(), static_cast<std::streamsize>(_size - 1));
    _buffer[0] = _buffer[_size - 1];
    _size = 1;
}

void JSONOutputArchive::throwNestingLimit() const
{
    throw Exception("Nesting limit of " + std::to_string(_options.nestingLimit) + " reached during save");
}

void JSONOutputArchive::beginUnnamed()
{
    if (isInArray()) {
        separate();
        return;
    }
    std::array<char, 16> name{'v', 'a', 'l', 'u', 'e'};
    const auto end = std::to_chars(name.data() + 5, name.data() + name.size(), _counters.back()++).ptr;
    writeKey({name.data(), static_cast<std::size_t>(end - name.data())});
}

void JSONOutputArchive::writeEscapedKey(std::string_view key)
{
    separate();
    saveValue(key);
    reserve(1);
    _buffer[_size++] = ':';
}

void JSONOutputArchive::saveValue(bool value)
{
    const std::string_view text = value ? "true" : "false";
    reserve(text.size());
    std::memcpy(_buffer.get() + _size, text.data(), text.size());
    _size += text.size();
}

void JSONOutputArchive::saveValue(std::int64_t value)
{
    reserve(NumberSize);
    char* const begin = _buffer.get() + _size;
    _size += static_cast<std::size_t>(rapidjson::internal::i64toa(value, begin) - begin);
}

void JSONOutputArchive::saveValue(std::uint64_t value)
{
    reserve(NumberSize);
    char* const begin = _buffer.get() + _size;
    _size += static_cast<std::size_t>(rapidjson::internal::u64toa(value, begin) - begin);
}

void JSONOutputArchive::saveValue(double value)
{
    if (!std::isfinite(value)) {
        const std::string_view text = std::isnan(value) ? "NaN" : value < 0 ? "-Infinity" : "Infinity";
        reserve(text.size());
        std::memcpy(_buffer.get() + _size, text.data(), text.size());
        _size += text.size();
        return;
    }
    reserve(NumberSize);
    char* const begin = _buffer.get() + _size;
    _size +=
        static_cast<std::size_t>(rapidjson::internal::dtoa(value, begin, _options.decimalPlaces) - begin);
}

void JSONOutputArchive::saveValue(std::string_view value)
{
    constexpr std::size_t LongestEscape = 6;
    constexpr std::size_t Piece = FlushSize / LongestEscape;
    reserve(1);
    _buffer[_size++] = '"';
    for (std::size_t begin = 0; begin < value.size(); begin += Piece) {
        const std::string_view piece = value.substr(begin, Piece);
        reserve(piece.size() * LongestEscape);
        char* const out = copyEscaped(_buffer.get() + _size, piece.data(), piece.data() + piece.size());
        _size = static_cast<std::size_t>(out - _buffer.get());
    }
    reserve(1);
    _buffer[_size++] = '"';
}

JSONOutputArchive::SharedId JSONOutputArchive::findShared(const void* address, const std::type_info& type)
{
    if (address == nullptr) {
        return {0, false};
    }
    const auto number = static_cast<std::uint32_t>(_tracking->sharedIds.size() + 1);
    const auto [entry, isNew] = _tracking->sharedIds.try_emplace({address, &type}, number);
    return {isNew ? entry->second | detail::FirstOccurrence : entry->second, isNew};
}

void JSONOutputArchive::keepAlive(std::shared_ptr<const void> object)
{
    _tracking->keptAlive.push_back(std::move(object));
}

const OutputTypeEntry& JSONOutputArchive::writePolymorphicType(const std::type_info& dynamicType,
                                                               const std::type_info& base)
{
    auto entry = _tracking->types.find(&dynamicType);
    const bool isFirst = entry == _tracking->types.end();
    if (isFirst) {
        const auto& bindings =
            detail::StaticObject<detail::OutputBindingMap<JSONOutputArchive>>::getInstance().map;
        const auto binding = bindings.find(dynamicType);
        if (binding == bindings.end()) {
            throw Exception(
                "Trying to save an unregistered polymorphic type (" +
                boost::core::demangle(dynamicType.name()) +
                ").\nMake sure your type is registered with CEREAL_REGISTER_TYPE and that the archive you "
                "are using was included (and registered with CEREAL_REGISTER_ARCHIVE) prior to calling "
                "CEREAL_REGISTER_TYPE.\nIf your type is already registered and you still see this error, you "
                "may need to use CEREAL_REGISTER_DYNAMIC_INIT.");
        }
        OutputTypeEntry made{
            &binding->second, static_cast<std::uint32_t>(_tracking->types.size() + 1), &base,
            detail::PolymorphicCasters::lookup(base, dynamicType, detail::CastPurpose::Save)};
        entry = _tracking->types.emplace(&dynamicType, std::move(made)).first;
    } else if (entry->second.base != &base) {
        entry->second.chain =
            detail::PolymorphicCasters::lookup(base, dynamicType, detail::CastPurpose::Save);
        entry->second.base = &base;
    }
    const std::uint32_t id = entry->second.id;
    writeKey("polymorphic_id");
    saveValue(static_cast<std::uint64_t>(isFirst ? id | detail::FirstOccurrence : id));
    if (isFirst) {
        writeKey("polymorphic_name");
        saveValue(std::string_view(entry->second.binding->name->getName()));
    }
    return entry->second;
}

void JSONOutputArchive::savePolymorphicData(const OutputTypeEntry& entry, const void* object)
{
    entry.binding->save(*this, detail::PolymorphicCasters::downcastImpl(entry.chain, object));
}

} // namespace cereal
