// Namespace declarations in scope: a stack that finds the innermost binding of a prefix.
#ifndef PLATFORM_XML_NAMESPACES_H
#define PLATFORM_XML_NAMESPACES_H

#include "growing_array.h"

namespace inv::xml
{

constexpr std::string_view xsi_uri = "http://www.w3.org/2001/XMLSchema-instance";
constexpr std::string_view xml_uri = "http://www.w3.org/XML/1998/namespace";

struct namespace_binding {
    std::string_view prefix;  // empty: the default namespace
    std::string_view uri;
    uint32_t hash;
    size_t shadowed;  // index plus 1 of the next older binding in the same bucket
};

// Texts are the owner's and outlive their bindings. Bindings that have been dropped stay
// where they are until others are declared, so that a scope can be entered again.
struct namespace_scope {
    growing_array<namespace_binding> bindings;
    size_t default_count = 0;       // of the bindings in scope that are a default namespace's
    growing_array<size_t> buckets;  // index plus 1 of the newest binding; a power of two of them
};

// False when memory is out.
bool scope_declare(namespace_scope &scope, std::string_view prefix, std::string_view uri);

// Whether any declaration of the default namespace is in scope, one that takes it back included.
inline bool has_default_namespace(const namespace_scope &scope)
{
    return scope.default_count > 0;
}

void scope_leave(namespace_scope &scope, size_t binding_count);
void scope_enter_again(namespace_scope &scope, size_t binding_count);

// True when the prefix is bound, also "" to a default namespace; a binding to "" is none.
bool scope_find(const namespace_scope &scope, std::string_view prefix, std::string_view &uri);

void scope_release(namespace_scope &scope);

struct split_name {
    std::string_view prefix;
    std::string_view local;
};

// A colon at either end is part of the local name, which then fits nothing.
split_name split_qualified_name(std::string_view name);

}  // namespace inv::xml

#endif
