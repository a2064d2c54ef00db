// Namespace declarations in scope: a stack that finds the innermost binding of a prefix.
#ifndef PLATFORM_XML_NAMESPACES_H
#define PLATFORM_XML_NAMESPACES_H

#include "growing_array.h"

namespace inv::xml
{

constexpr std::string_view xsi_uri = "http://www.w3.org/2001/XMLSchema-instance";
constexpr std::string_view xml_uri = "http://www.w3.org/XML/1998/namespace";

// What a link of a tree leads to: 0 to nothing, else twice the index of a binding plus 1, and 1 more where
// it is the node that the binding has made.
using scope_link = uint32_t;

struct namespace_binding {
    std::string_view prefix;  // empty: the default namespace
    std::string_view uri;
    // The node that the binding has made in its tree, if it has made one: below it all keys agree up to
    // `bit`, and that bit tells which way they go.
    size_t bit;
    scope_link ways[2];
    // Where the binding hangs in the tree, what did so before, and what does since.
    uint32_t place;
    scope_link before;
    scope_link since;
    uint32_t hash;
};

// A hash table with at least twice as many buckets as bindings. The few bindings of a bucket form a tree over
// the bits of their keys, hashes with the prefixes behind them: a document may choose prefixes of one hash,
// and a search then takes no more steps than the key has bits. A tree has one form for each set of keys, so a
// binding that is dropped just puts back what hung in its place.
//
// Texts are the owner's and outlive their bindings. Bindings that have been dropped stay
// where they are until others are declared, so that a scope can be entered again.
struct namespace_scope {
    growing_array<namespace_binding> bindings;
    size_t default_count = 0;           // of the bindings in scope that are a default namespace's
    growing_array<scope_link> buckets;  // the tops of their trees; a power of two of them
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
