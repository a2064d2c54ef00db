/* A document as a tree of elements, for tests that read, build or damage documents. */
#ifndef INV_TESTS_SUPPORT_XML_TREE_H
#define INV_TESTS_SUPPORT_XML_TREE_H

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace inv_testing
{

struct xml_element {
    std::string name;  // as written, prefix included
    std::vector<std::pair<std::string, std::string>> attributes;
    std::string text;  // of elements without children; the layout between children is not kept
    std::vector<xml_element> children;
};

/* Nothing when the text is not well-formed. */
std::optional<xml_element> parse_xml(std::string_view document);

/* With declaration and indentation; texts and values are escaped. */
std::string write_xml(const xml_element &root);

/* A spot of a document whose place in the written text is asked for. */
enum class xml_part { start_tag, end_tag, attribute, text };
struct xml_spot {
    const xml_element *element; /* in the tree that is written */
    xml_part part;
    std::size_t attribute = 0; /* its number */
    std::size_t offset = 0;    /* filled: of the tag's '<', the attribute's name, the text */
};
std::string write_xml(const xml_element &root, std::vector<xml_spot> &spots);

const std::string *find_attribute(const xml_element &element, std::string_view name);

}  // namespace inv_testing

#endif
