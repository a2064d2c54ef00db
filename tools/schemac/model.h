// The schema as the writers see it.
#ifndef SCHEMAC_MODEL_H
#define SCHEMAC_MODEL_H

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace schemac
{

enum class value_kind { number, boolean, text, octets, decimal, octet_buffer, enumeration, record, choice };
enum class occurrence { required, optional, repeated, counted };

struct item {
    std::string name;
    std::string type;  // C type of a number, else the name of the schema type
    value_kind kind = value_kind::text;
    occurrence occurs = occurrence::required;
    std::string initial;  // default value as the schema writes it, or empty
};

struct complex_type {
    std::string name;
    std::string base;  // empty: none
    std::string documentation;
    std::vector<item> attributes;
    std::vector<item> elements;  // of the extension when there is a base
};

struct enumeration {
    std::string name;
    std::string documentation;
    std::vector<std::string> tokens;  // in code order
};

struct root {
    std::string element;
    std::string type;
};

struct schema {
    std::vector<enumeration> enumerations;
    std::vector<complex_type> types;                // each behind its base and the types it embeds
    std::vector<std::string> tag_order;             // type names as the schema declares them
    std::map<std::string, uint32_t> octet_buffers;  // name to number of octets
    std::vector<std::string> decimals;
    std::vector<root> roots;
};

const complex_type &type_named(const schema &s, const std::string &name);
const enumeration &enumeration_named(const schema &s, const std::string &name);

// The base and all types derived from it: every type is followed by those derived from it.
std::vector<std::string> family_of(const schema &s, const std::string &base);
bool has_derived(const schema &s, const std::string &name);

// Types that others derive from, in declaration order.
std::vector<std::string> polymorphic_bases(const schema &s);

inline bool has_extension(const complex_type &type)
{
    return !type.base.empty() && !type.elements.empty();
}

inline bool is_list(const item &i)
{
    return i.occurs == occurrence::repeated || i.occurs == occurrence::counted;
}

}  // namespace schemac

#endif
