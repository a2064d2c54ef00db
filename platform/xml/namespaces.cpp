#include "namespaces.h"

namespace inv::xml
{

namespace
{

uint32_t hash_of(std::string_view prefix)
{
    uint32_t hash = 2166136261U;
    for (char c : prefix)
        hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
    return hash ^ (hash >> 15);
}

void link_binding(namespace_scope &scope, size_t index)
{
    namespace_binding &binding = scope.bindings.items[index];
    size_t &newest = scope.buckets.items[binding.hash & (scope.buckets.count - 1)];
    binding.shadowed = newest;
    newest = index + 1;
}

// Keeps as many buckets as bindings, so that a lookup costs the same however many there are.
bool grow_buckets(namespace_scope &scope)
{
    size_t wanted = scope.buckets.count == 0 ? 16 : scope.buckets.count * 2;
    if (!make_room(scope.buckets, wanted - scope.buckets.count))
        return false;
    scope.buckets.count = wanted;
    std::fill_n(scope.buckets.items, wanted, size_t{0});
    for (size_t i = 0; i < scope.bindings.count; ++i)
        link_binding(scope, i);
    return true;
}

}  // namespace

bool scope_declare(namespace_scope &scope, std::string_view prefix, std::string_view uri)
{
    if (scope.bindings.count == scope.buckets.count && !grow_buckets(scope))
        return false;
    if (!append(scope.bindings, namespace_binding{prefix, uri, hash_of(prefix), 0}))
        return false;
    link_binding(scope, scope.bindings.count - 1);
    scope.default_count += prefix.empty();
    return true;
}

void scope_leave(namespace_scope &scope, size_t binding_count)
{
    while (scope.bindings.count > binding_count) {
        const namespace_binding &binding = scope.bindings.items[--scope.bindings.count];
        scope.buckets.items[binding.hash & (scope.buckets.count - 1)] = binding.shadowed;
        scope.default_count -= binding.prefix.empty();
    }
}

void scope_enter_again(namespace_scope &scope, size_t binding_count)
{
    while (scope.bindings.count < binding_count) {
        scope.default_count += scope.bindings.items[scope.bindings.count].prefix.empty();
        link_binding(scope, scope.bindings.count++);
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
    uint32_t hash = hash_of(prefix);
    size_t next = scope.buckets.items[hash & (scope.buckets.count - 1)];
    while (next != 0) {
        const namespace_binding &binding = scope.bindings.items[next - 1];
        if (binding.hash == hash && binding.prefix == prefix) {
            uri = binding.uri;
            return !uri.empty();
        }
        next = binding.shadowed;
    }
    return false;
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
