/* The document schema as tests see it: read from the XSD itself, so that it cannot drift from it.
 *
 * Understands what the inventory schema uses: named and inline simple types with enumerations, ranges
 * and lengths, complex types with extension, sequences, groups and attribute groups. */
#ifndef INV_TESTS_SUPPORT_SCHEMA_MODEL_H
#define INV_TESTS_SUPPORT_SCHEMA_MODEL_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace inv_testing
{

enum class value_kind { text, token, boolean, decimal, integer, hexadecimal, enumeration };

struct schema_item {
    std::string name;
    std::size_t type = 0;
    bool required = false;
    bool repeated = false;
    unsigned optional_group = 0;  // items of one optional sequence share a number; 0: none
};

struct schema_type {
    std::string name;  // empty for an inline type
    bool is_complex = false;
    bool is_abstract = false;
    // simple types
    value_kind kind = value_kind::text;
    std::int64_t lowest = 0, highest = 0;
    bool is_unsigned = false;
    bool is_short = false;  // 16 bits, signed
    std::vector<std::string> tokens;
    std::optional<std::size_t> shortest, longest;  // characters, or octets of hexadecimal values
    // complex types: inherited items first
    std::optional<std::size_t> base;
    std::vector<schema_item> attributes, elements;
    std::size_t inherited_elements = 0;
    std::vector<std::size_t> derived;  // named types that extend this one, at any distance
};

struct schema_model {
    std::vector<schema_type> types;
    std::vector<schema_item> roots;
};

/* Nothing, with `problem` saying why, when the file cannot be read or uses what is not understood. */
std::optional<schema_model> read_schema(const std::string &path, std::string &problem);

/* The schema of this source tree, read once; ends the process with a message when it is unusable. */
const schema_model &product_schema();

const schema_item *find_item(const std::vector<schema_item> &items, std::string_view name);
std::optional<std::size_t> find_type(const schema_model &schema, std::string_view name);

}  // namespace inv_testing

#endif
