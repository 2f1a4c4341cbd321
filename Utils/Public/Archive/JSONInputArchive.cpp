#include "Utils/Public/Archive/JSONInputArchive.h"

#include <boost/unordered/unordered_flat_map.hpp>

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <forward_list>
#include <istream>
#include <utility>

#include "Utils/Public/Archive/JSONTape.h"
#include "Utils/Public/Archive/PolymorphicRegistry.h"
#include "Utils/Public/Archive/RapidJSON.h"
#include "Utils/Public/SeededHash.h"

namespace cereal {

namespace detail {

/// A dynamic type that occurred in this text, with its way to each base that a pointer to it was read for. Entries and
/// chains stay where they are while the archive lives.
struct TypeEntry {
    std::string name;
    const InputBinding* binding = nullptr;
    std::forward_list<std::pair<const std::type_info*, CasterChain>> chains;
};

/// A walk over the members of an object or the elements of an array.
struct Frame {
    const TapeNode* begin;
    const TapeNode* end;
    const TapeNode* next;
    std::uint32_t unnamed;
    bool isArray;
};

} // namespace detail

namespace {

constexpr std::uint32_t IsStaticType = 0x40000000U;
constexpr std::uint32_t IdMask = ~detail::FirstOccurrence;

using detail::FirstOccurrence;
using detail::Frame;
using detail::TapeNode;
using detail::TypeEntry;

/// The whole rest of a stream, with room for what the parser puts behind it.
std::string readWhole(std::istream& stream)
{
    constexpr std::size_t FirstPiece = 1U << 16U;
    std::string text;
    std::size_t size = 0;
    std::size_t piece = FirstPiece;
    if (std::streambuf* const source = stream.rdbuf()) {
        if (const std::streamsize available = source->in_avail(); available > 0) {
            piece = std::max(piece, static_cast<std::size_t>(available) + detail::JSONTape::Padding);
        }
        while (true) {
            text.resize(size + piece);
            const auto count = static_cast<std::size_t>(
                source->sgetn(text.data() + size, static_cast<std::streamsize>(piece)));
            size += count;
            if (count < piece) {
                break;
            }
            piece = size;
        }
    }
    text.resize(size);
    return text;
}

/// Raises what a failed check of the parser's own values raises.
void check(bool condition, const char* text)
{
    if (!condition) [[unlikely]] {
        detail::throwFailedCheck(text);
    }
}

Frame makeFrame(const TapeNode& node, bool isArray)
{
    return {&node + 1, node.next(), &node + 1, 0, isArray};
}

Frame makeObjectFrame(const TapeNode& node)
{
    check(node.kind == TapeNode::Kind::Object, "IsObject()");
    return makeFrame(node, false);
}

Frame makeArrayFrame(const TapeNode& node)
{
    check(node.kind == TapeNode::Kind::Array, "IsArray()");
    return makeFrame(node, true);
}

/// The integer of a node if a `T` holds it.
template <class T>
T getInteger(const TapeNode& node, const char* text)
{
    const bool fits =
        (node.kind == TapeNode::Kind::NonNegative && std::in_range<T>(node.payload)) ||
        (node.kind == TapeNode::Kind::Negative && std::in_range<T>(static_cast<std::int64_t>(node.payload)));
    check(fits, text);
    return static_cast<T>(node.payload);
}

} // namespace

struct JSONInputArchive::Impl {
    explicit Impl(std::string text) : tape(std::move(text)) {}

    detail::JSONTape tape;
    std::vector<Frame> frames;
    const TapeNode* current = nullptr;
    boost::unordered_flat_map<std::uint32_t, SharedEntry, QN::SeededHash> shared;
    std::forward_list<TypeEntry> typeEntries;
    boost::unordered_flat_map<std::uint32_t, TypeEntry*, QN::SeededHash> types;
};

JSONInputArchive::JSONInputArchive(std::istream& stream) : JSONInputArchive(stream, Options{}) {}

JSONInputArchive::JSONInputArchive(std::istream& stream, const Options& options)
    : _impl(std::make_unique<Impl>(readWhole(stream))), _nestingLimit(options.nestingLimit)
{
    const TapeNode& root = _impl->tape.root();
    _impl->frames.push_back(root.kind == TapeNode::Kind::Array ? makeArrayFrame(root)
                                                               : makeObjectFrame(root));
}

JSONInputArchive::~JSONInputArchive() = default;

void JSONInputArchive::seek(std::string_view key)
{
    Frame& frame = _impl->frames.back();
    if (frame.isArray) {
        seekUnnamed();
        return;
    }
    if (frame.next != frame.end && frame.next->string() == key) [[likely]] {
        _impl->current = frame.next + 1;
        frame.next = _impl->current->next();
        return;
    }
    for (const TapeNode* name = frame.begin; name != frame.end; name = (name + 1)->next()) {
        if (name->string() == key) {
            _impl->current = name + 1;
            frame.next = _impl->current->next();
            return;
        }
    }
    throw Exception("JSON Parsing failed - provided NVP (" + std::string(key) + ") not found");
}

void JSONInputArchive::seekUnnamed()
{
    Frame& frame = _impl->frames.back();
    if (frame.isArray) {
        if (frame.next == frame.end) {
            throw Exception("Invalid Iterator Type!");
        }
        _impl->current = frame.next;
        frame.next = frame.next->next();
        return;
    }
    std::array<char, 16> name{'v', 'a', 'l', 'u', 'e'};
    const auto end = std::to_chars(name.data() + 5, name.data() + name.size(), frame.unnamed++).ptr;
    seek({name.data(), static_cast<std::size_t>(end - name.data())});
}

void JSONInputArchive::countNesting()
{
    if (++_nesting > _nestingLimit) {
        throw Exception("Nesting limit of " + std::to_string(_nestingLimit) + " reached during load");
    }
}

void JSONInputArchive::enterObject()
{
    countNesting();
    _impl->frames.push_back(makeObjectFrame(*_impl->current));
}

std::size_t JSONInputArchive::enterArray()
{
    countNesting();
    _impl->frames.push_back(makeArrayFrame(*_impl->current));
    return _impl->current->payload;
}

void JSONInputArchive::leave()
{
    --_nesting;
    _impl->frames.pop_back();
}

bool JSONInputArchive::isWideInteger() const
{
    const TapeNode& node = *_impl->current;
    return (node.kind == TapeNode::Kind::NonNegative && !std::in_range<std::int32_t>(node.payload)) ||
           (node.kind == TapeNode::Kind::Negative &&
            !std::in_range<std::int32_t>(static_cast<std::int64_t>(node.payload)));
}

void JSONInputArchive::loadValue(bool& value)
{
    const TapeNode::Kind kind = _impl->current->kind;
    check(kind == TapeNode::Kind::True || kind == TapeNode::Kind::False, "IsBool()");
    value = kind == TapeNode::Kind::True;
}

void JSONInputArchive::loadValue(std::int64_t& value)
{
    value = getInteger<std::int64_t>(*_impl->current, "data_.f.flags & kInt64Flag");
}

void JSONInputArchive::loadValue(std::uint64_t& value)
{
    value = getInteger<std::uint64_t>(*_impl->current, "data_.f.flags & kUint64Flag");
}

void JSONInputArchive::loadValue(std::int32_t& value)
{
    value = getInteger<std::int32_t>(*_impl->current, "data_.f.flags & kIntFlag");
}

void JSONInputArchive::loadValue(std::uint32_t& value)
{
    value = getInteger<std::uint32_t>(*_impl->current, "data_.f.flags & kUintFlag");
}

void JSONInputArchive::loadValue(double& value)
{
    const TapeNode& node = *_impl->current;
    switch (node.kind) {
    case TapeNode::Kind::Double:
        value = std::bit_cast<double>(node.payload);
        break;
    case TapeNode::Kind::NonNegative:
        value = static_cast<double>(node.payload);
        break;
    case TapeNode::Kind::Negative:
        value = static_cast<double>(static_cast<std::int64_t>(node.payload));
        break;
    default:
        detail::throwFailedCheck("IsNumber()");
    }
}

void JSONInputArchive::loadValue(std::string& value)
{
    value.assign(loadString());
}

std::string_view JSONInputArchive::loadString()
{
    check(_impl->current->kind == TapeNode::Kind::String, "IsString()");
    return _impl->current->string();
}

void JSONInputArchive::throwOutOfRange()
{
    detail::throwFailedCheck("value is within the range of its type");
}

const std::shared_ptr<void>& JSONInputArchive::findShared(std::uint32_t id, const std::type_info& type) const
{
    const auto entry = _impl->shared.find(id);
    if (entry == _impl->shared.end() || *entry->second.type != type) {
        throw Exception("Error while trying to deserialize a smart pointer. Could not find id " +
                        std::to_string(id));
    }
    return entry->second.object;
}

void JSONInputArchive::addShared(std::uint32_t id, std::shared_ptr<void> object, const std::type_info& type)
{
    _impl->shared[id & IdMask] = {std::move(object), &type};
}

JSONInputArchive::PolymorphicType JSONInputArchive::readPolymorphicType(const std::type_info& base)
{
    std::uint32_t id = 0;
    seek("polymorphic_id");
    loadValue(id);
    if ((id & IsStaticType) != 0) {
        throw Exception("Cannot load a polymorphic type that is not default constructable and does not have "
                        "a load_and_construct function");
    }
    if (id == 0) {
        return {};
    }
    TypeEntry* entry = nullptr;
    if ((id & FirstOccurrence) != 0) {
        seek("polymorphic_name");
        entry = &_impl->typeEntries.emplace_front();
        loadValue(entry->name);
        _impl->types[id & IdMask] = entry;
    } else {
        const auto known = _impl->types.find(id);
        if (known == _impl->types.end()) {
            throw Exception(
                "Error while trying to deserialize a polymorphic pointer. Could not find type id " +
                std::to_string(id));
        }
        entry = known->second;
    }
    if (entry->binding == nullptr) {
        const auto& types = detail::StaticObject<detail::TypeNameMap>::getInstance().map;
        const auto& bindings =
            detail::StaticObject<detail::InputBindingMap<JSONInputArchive>>::getInstance().map;
        const auto type = types.find(entry->name);
        const auto binding = type == types.end() ? bindings.end() : bindings.find(type->second);
        if (binding == bindings.end()) {
            throw Exception(
                "Trying to load an unregistered polymorphic type (" + entry->name +
                ").\nMake sure your type is registered with CEREAL_REGISTER_TYPE and that the archive you "
                "are using was included (and registered with CEREAL_REGISTER_ARCHIVE) prior to calling "
                "CEREAL_REGISTER_TYPE.\nIf your type is already registered and you still see this error, you "
                "may need to use CEREAL_REGISTER_DYNAMIC_INIT.");
        }
        entry->binding = &binding->second;
    }
    for (const auto& [known, chain] : entry->chains) {
        if (known == &base) {
            return {entry->binding, &chain};
        }
    }
    entry->chains.emplace_front(
        &base, detail::PolymorphicCasters::lookup(base, *entry->binding->type, detail::CastPurpose::Load));
    return {entry->binding, &entry->chains.front().second};
}

void* JSONInputArchive::loadPolymorphic(const std::type_info& base)
{
    struct Destroyer {
        void (*destroy)(void*);
        void operator()(void* object) const { destroy(object); }
    };

    enterObject();
    void* result = nullptr;
    if (const PolymorphicType type = readPolymorphicType(base); type.binding != nullptr) {
        seek("ptr_wrapper");
        enterObject();
        std::uint32_t isValid = 0;
        seek("valid");
        loadValue(isValid);
        if (isValid != 0) {
            std::unique_ptr<void, Destroyer> object(type.binding->create(), {type.binding->destroy});
            seek("data");
            enterObject();
            type.binding->load(*this, object.get());
            leave();
            result = detail::PolymorphicCasters::upcastImpl(*type.chain, object.release());
        }
        leave();
    }
    leave();
    return result;
}

std::shared_ptr<void> JSONInputArchive::loadSharedPolymorphic(const std::type_info& base)
{
    enterObject();
    std::shared_ptr<void> result;
    if (const PolymorphicType type = readPolymorphicType(base); type.binding != nullptr) {
        seek("ptr_wrapper");
        enterObject();
        std::uint32_t id = 0;
        seek("id");
        loadValue(id);
        std::shared_ptr<void> object;
        if ((id & FirstOccurrence) != 0) {
            object = type.binding->createShared();
            seek("data");
            enterObject();
            type.binding->load(*this, object.get());
            leave();
            addShared(id, object, *type.binding->type);
        } else if (id != 0) {
            object = findShared(id, *type.binding->type);
        }
        if (object) {
            void* const atBase = detail::PolymorphicCasters::upcastImpl(*type.chain, object.get());
            result = std::shared_ptr<void>(std::move(object), atBase);
        }
        leave();
    }
    leave();
    return result;
}

} // namespace cereal
