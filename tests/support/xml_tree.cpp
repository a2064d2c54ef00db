#include "support/xml_tree.h"

#include <expat.h>

#include <memory>

namespace inv_testing
{
namespace
{

struct tree_builder {
    xml_element document;  // holds the root as its only child
    std::vector<xml_element> open;
};

void XMLCALL on_start(void *user, const XML_Char *name, const XML_Char **attributes)
{
    auto &builder = *static_cast<tree_builder *>(user);
    xml_element element;
    element.name = name;
    for (; *attributes != nullptr; attributes += 2)
        element.attributes.emplace_back(attributes[0], attributes[1]);
    builder.open.push_back(std::move(element));
}

void XMLCALL on_end(void *user, const XML_Char *)
{
    auto &builder = *static_cast<tree_builder *>(user);
    xml_element element = std::move(builder.open.back());
    builder.open.pop_back();
    if (!element.children.empty())
        element.text.clear();
    xml_element &parent = builder.open.empty() ? builder.document : builder.open.back();
    parent.children.push_back(std::move(element));
}

void XMLCALL on_text(void *user, const XML_Char *text, int length)
{
    auto &builder = *static_cast<tree_builder *>(user);
    builder.open.back().text.append(text, static_cast<std::size_t>(length));
}

void append_escaped(std::string &out, std::string_view text)
{
    for (char c : text) {
        switch (c) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '"':
            out += "&quot;";
            break;
        default:
            out += c;
        }
    }
}

void append_element(std::string &out, const xml_element &element, std::size_t depth)
{
    out.append(2 * depth, ' ');
    out += '<' + element.name;
    for (const auto &[name, value] : element.attributes) {
        out += ' ' + name + "=\"";
        append_escaped(out, value);
        out += '"';
    }
    if (element.children.empty() && element.text.empty()) {
        out += "/>\n";
        return;
    }
    out += '>';
    append_escaped(out, element.text);
    if (!element.children.empty()) {
        out += '\n';
        for (const xml_element &child : element.children)
            append_element(out, child, depth + 1);
        out.append(2 * depth, ' ');
    }
    out += "</" + element.name + ">\n";
}

}  // namespace

std::optional<xml_element> parse_xml(std::string_view document)
{
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate(nullptr),
                                                                              XML_ParserFree);
    tree_builder builder;
    XML_SetUserData(parser.get(), &builder);
    XML_SetElementHandler(parser.get(), on_start, on_end);
    XML_SetCharacterDataHandler(parser.get(), on_text);
    if (XML_Parse(parser.get(), document.data(), static_cast<int>(document.size()), XML_TRUE) !=
        XML_STATUS_OK)
        return std::nullopt;
    return std::move(builder.document.children.front());
}

std::string write_xml(const xml_element &root)
{
    std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    append_element(out, root, 0);
    return out;
}

const std::string *find_attribute(const xml_element &element, std::string_view name)
{
    for (const auto &[own_name, value] : element.attributes)
        if (own_name == name)
            return &value;
    return nullptr;
}

}  // namespace inv_testing
