// A document as a tree, read through the XML runtime.
#ifndef SCHEMAC_XML_TREE_H
#define SCHEMAC_XML_TREE_H

#include <string>
#include <utility>
#include <vector>

namespace schemac
{

struct xml_node {
    std::string name;
    std::string text;  // of documentation
    std::vector<std::pair<std::string, std::string>> attributes;
    std::vector<xml_node> children;
};

// Reads a schema document. False with a message when it cannot be read.
bool read_tree(const std::string &file, xml_node &root, std::string &message);

// Value of an attribute, or the fallback.
std::string attribute(const xml_node &node, const char *name, const std::string &fallback = "");
const xml_node *child(const xml_node &node, const char *name);

}  // namespace schemac

#endif
