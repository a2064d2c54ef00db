/* What the faults of document_mutation.cpp work on: a document with its places found in the schema. */
#ifndef INV_TESTS_SUPPORT_DOCUMENT_DAMAGE_H
#define INV_TESTS_SUPPORT_DOCUMENT_DAMAGE_H

#include "support/document_generator.h"
#include "support/xml_tree.h"

#include <span>

namespace inv_testing
{

struct place {
    xml_element *element = nullptr;
    xml_element *parent = nullptr;  // null for the root
    std::size_t index = 0;          // in the parent
    const schema_type *type = nullptr;
    const schema_item *item = nullptr;
    const schema_type *parent_type = nullptr;
};

struct damage {
    const schema_model &schema;
    random_source random;
    xml_element root;
    std::vector<place> places;
    std::vector<xml_spot> struck;  // what the fault makes wrong, in the tree as it is then
};

struct tree_fault {
    std::string_view name;
    bool (*apply)(damage &);  // false: no place for it in this document
};

std::span<const tree_fault> structure_faults();
std::span<const tree_fault> value_faults();

/* Fills d.places with every element that the schema knows, the root first. */
void find_places(damage &d);

/* The attribute xsi:type under whatever prefix; null when there is none. */
std::pair<std::string, std::string> *derived_type_attribute(xml_element &element);

/* Notes what a fault makes wrong: an element's start tag, its newest attribute, one by name, or a child. */
void strike_tag(damage &d, const xml_element &element);
void strike_last_attribute(damage &d, const xml_element &element);
void strike_attribute(damage &d, const xml_element &element, std::string_view name);
/* A value's first character; the start tag where there is none but white space. */
void strike_text(damage &d, const xml_element &element);
/* What stands at the index of the parent's children now, the parent's end tag behind the last one. */
void strike_child(damage &d, const xml_element &parent, std::size_t index);

std::string_view one_of(damage &d, std::initializer_list<std::string_view> choices);

template <typename Predicate>
place *pick(damage &d, Predicate &&fits)
{
    std::vector<place *> fitting;
    for (place &candidate : d.places)
        if (fits(candidate))
            fitting.push_back(&candidate);
    return fitting.empty() ? nullptr : fitting[draw_below(d.random, fitting.size())];
}

}  // namespace inv_testing

#endif
