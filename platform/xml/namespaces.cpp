#include "namespaces.h"

#include <algorithm>
#include <bit>

namespace inv::xml
{

namespace
{

// Places are twice an index and a little more, or a bucket's number with this bit.
constexpr uint32_t bucket_bit = uint32_t{1} << 31;
constexpr size_t most_bindings = size_t{1} << 30;

uint32_t hash_of(std::string_view prefix)
{
    uint32_t hash = 2166136261U;
    for (char c : prefix)
        hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
    return hash ^ (hash >> 15);
}

constexpr scope_link leaf_of(size_t index)
{
    return static_cast<scope_link>(index * 2 + 1);
}

constexpr scope_link node_of(size_t index)
{
    return static_cast<scope_link>(index * 2 + 2);
}

constexpr bool is_node(scope_link link)
{
    return link != 0 && link % 2 == 0;
}

const namespace_binding &binding_at(const namespace_scope &scope, scope_link link)
{
    return scope.bindings.items[(link - 1) / 2];
}

scope_link &link_at(namespace_scope &scope, uint32_t place)
{
    return (place & bucket_bit) != 0 ? scope.buckets.items[place & ~bucket_bit]
                                     : scope.bindings.items[place / 2].ways[place % 2];
}

struct binding_key {
    uint32_t hash;
    std::string_view prefix;
};

binding_key key_of(const namespace_binding &binding)
{
    return {binding.hash, binding.prefix};
}

bool is_same(const binding_key &a, const binding_key &b)
{
    return a.hash == b.hash && a.prefix == b.prefix;
}

constexpr size_t hash_bits = 32;

// Behind a prefix come octets of 0, which no name has.
unsigned octet_of(std::string_view prefix, size_t at)
{
    return at < prefix.size() ? static_cast<unsigned char>(prefix[at]) : 0U;
}

// Bits are counted from the hash's highest on, then from the first octet's.
unsigned bit_of(const binding_key &key, size_t bit)
{
    if (bit < hash_bits)
        return key.hash >> (hash_bits - 1 - bit) & 1U;
    bit -= hash_bits;
    return octet_of(key.prefix, bit / 8) >> (7 - bit % 8) & 1U;
}

// With one octet of 0 behind the prefix: keys that agree so far are the same.
size_t bits_of(const binding_key &key)
{
    return hash_bits + key.prefix.size() * 8 + 8;
}

// Of two keys that are not the same.
size_t first_difference(const binding_key &a, const binding_key &b)
{
    if (a.hash != b.hash)
        return static_cast<size_t>(std::countl_zero(a.hash ^ b.hash));
    size_t at = 0;
    while (octet_of(a.prefix, at) == octet_of(b.prefix, at))
        ++at;
    const auto octets = static_cast<uint8_t>(octet_of(a.prefix, at) ^ octet_of(b.prefix, at));
    return hash_bits + at * 8 + static_cast<size_t>(std::countl_zero(octets));
}

struct tree_place {
    scope_link link;
    uint32_t place;
};

// From the bucket's top down to a leaf or to the first node from `bit` on.
tree_place descend(const namespace_scope &scope, const binding_key &key, size_t bit)
{
    const uint32_t bucket = key.hash & static_cast<uint32_t>(scope.buckets.count - 1);
    tree_place at = {scope.buckets.items[bucket], bucket | bucket_bit};
    while (is_node(at.link)) {
        const namespace_binding &node = binding_at(scope, at.link);
        if (node.bit >= bit)
            break;
        const unsigned way = bit_of(key, node.bit);
        at = {node.ways[way], (at.link - 2) + way};
    }
    return at;
}

// Finds the place of a new binding and hangs it there.
void link_binding(namespace_scope &scope, size_t index)
{
    namespace_binding &binding = scope.bindings.items[index];
    const binding_key key = key_of(binding);
    tree_place at = descend(scope, key, bits_of(key));
    binding.since = leaf_of(index);
    // A node's own key is one of those below it.
    if (at.link != 0 && !is_same(key_of(binding_at(scope, at.link)), key)) {
        binding.bit = first_difference(key_of(binding_at(scope, at.link)), key);
        at = descend(scope, key, binding.bit);
        const unsigned way = bit_of(key, binding.bit);
        binding.ways[way] = leaf_of(index);
        binding.ways[1 - way] = at.link;
        binding.since = node_of(index);
    }
    binding.place = at.place;
    binding.before = at.link;
    link_at(scope, at.place) = binding.since;
}

// Keeps twice as many buckets as bindings at least, so that a lookup costs the same however many there are.
bool grow_buckets(namespace_scope &scope)
{
    const size_t wanted = scope.buckets.count == 0 ? 16 : scope.buckets.count * 4;
    if (wanted > most_bindings || !make_room(scope.buckets, wanted - scope.buckets.count))
        return false;
    scope.buckets.count = wanted;
    std::fill_n(scope.buckets.items, wanted, scope_link{0});
    for (size_t i = 0; i < scope.bindings.count; ++i)
        link_binding(scope, i);
    return true;
}

}  // namespace

bool scope_declare(namespace_scope &scope, std::string_view prefix, std::string_view uri)
{
    namespace_binding binding = {};
    binding.prefix = prefix;
    binding.uri = uri;
    binding.hash = hash_of(prefix);
    if (scope.bindings.count * 2 >= scope.buckets.count && !grow_buckets(scope))
        return false;
    if (!append(scope.bindings, binding))
        return false;
    link_binding(scope, scope.bindings.count - 1);
    scope.default_count += prefix.empty();
    return true;
}

void scope_leave(namespace_scope &scope, size_t binding_count)
{
    while (scope.bindings.count > binding_count) {
        const namespace_binding &binding = scope.bindings.items[--scope.bindings.count];
        link_at(scope, binding.place) = binding.before;
        scope.default_count -= binding.prefix.empty();
    }
}

void scope_enter_again(namespace_scope &scope, size_t binding_count)
{
    while (scope.bindings.count < binding_count) {
        const namespace_binding &binding = scope.bindings.items[scope.bindings.count++];
        link_at(scope, binding.place) = binding.since;
        scope.default_count += binding.prefix.empty();
    }
}

bool scope_find(const namespace_scope &scope, std::string_view prefix, std::string_view &uri)
{
    if (prefix == "xml") {
        uri = xml_uri;
        return true;
    }
    if (scope.bindings.count == 0)
        return false;
    const binding_key key = {hash_of(prefix), prefix};
    const scope_link found = descend(scope, key, bits_of(key)).link;
    if (found == 0 || is_node(found) || !is_same(key_of(binding_at(scope, found)), key))
        return false;
    uri = binding_at(scope, found).uri;
    return !uri.empty();
}

void scope_release(namespace_scope &scope)
{
    release_array(scope.bindings);
    release_array(scope.buckets);
    scope.default_count = 0;
}

split_name split_qualified_name(std::string_view name)
{
    size_t colon = name.find(':');
    if (colon == std::string_view::npos || colon == 0 || colon + 1 == name.size())
        return {{}, name};
    return {name.substr(0, colon), name.substr(colon + 1)};
}

}  // namespace inv::xml
