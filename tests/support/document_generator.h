/* Random documents, valid by the schema or with exactly one fault, for comparing readers with each other.
 *
 * Everything is drawn from the schema file itself (schema_model.h), and the same seed always gives the
 * same result. Valid documents use every kind of item: optional ones present and absent, lists, derived
 * types by xsi:type, every way of writing a number, a boolean or an octet string. They stay clear of
 * what readers may rightly see differently; those cases are faults with names of their own. */
#ifndef INV_TESTS_SUPPORT_DOCUMENT_GENERATOR_H
#define INV_TESTS_SUPPORT_DOCUMENT_GENERATOR_H

#include "support/schema_model.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace inv_testing
{

enum class document_kind { module, chassis, power_shelf, pem, fan_tray, optics };
constexpr unsigned document_kind_count = 6;

std::string_view root_element_of(document_kind kind);

/* A valid document of at most a few hundred elements. */
std::string random_document(std::uint64_t seed, document_kind kind);

struct text_place {
    std::size_t line;    // 1-based
    std::size_t column;  // 1-based, in characters
};

struct mutant {
    std::string document;
    std::string fault;  // the class, one of fault_names()
    /* Where the fault stands: a tag's '<', an attribute's name, a value's first character. Of elements in a
     * wrong order either may be called the wrong one; of documents that are not well-formed a reader may
     * point at the token or within it. */
    std::vector<text_place> places;
};

std::vector<std::string_view> fault_names();

/* A valid document with one random fault. */
mutant mutate(const std::string &document, std::uint64_t seed);

/* With a fault of the class asked for; nothing when the document has no place for it. */
std::optional<mutant> mutate_with(const std::string &document, std::uint64_t seed, std::string_view fault);

struct random_source {
    std::uint64_t state;
};

std::uint64_t next_random(random_source &random);
std::size_t draw_below(random_source &random, std::size_t bound);
bool one_in(random_source &random, std::size_t chance);

/* A valid value of a simple type. */
std::string random_value(random_source &random, const schema_type &type);

constexpr std::string_view xsi_namespace = "http://www.w3.org/2001/XMLSchema-instance";

}  // namespace inv_testing

#endif
