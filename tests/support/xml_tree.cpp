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

struct writer {
    std::string out;
    std::vector<xml_spot> &spots;
    std::size_t tag_begin = 0;  // of the start tag written last

    void mark(const xml_element &element, xml_part part, std::size_t attribute = 0)
    {
        mark_at(out.size(), element, part, attribute);
    }
    void mark_at(std::size_t offset, const xml_element &element, xml_part part, std::size_t attribute = 0)
    {
        for (xml_spot &spot : spots)
            if (spot.element == &element && spot.part == part && spot.attribute == attribute)
                spot.offset = offset;
    }
};

void append_start_tag(writer &to, const xml_element &element)
{
    to.mark(element, xml_part::start_tag);
    to.tag_begin = to.out.size();
    to.out += '<' + element.name;
    for (std::size_t i = 0; i < element.attributes.size(); ++i) {
        to.out += ' ';
        to.mark(element, xml_part::attribute, i);
        to.out += element.attributes[i].first + "=\"";
        append_escaped(to.out, element.attributes[i].second);
        to.out += '"';
    }
}

void append_element(writer &to, const xml_element &element, std::size_t depth)
{
    std::string &out = to.out;
    out.append(2 * depth, ' ');
    append_start_tag(to, element);
    if (element.children.empty() && element.text.empty()) {
        to.mark_at(to.tag_begin, element, xml_part::end_tag);
        out += "/>\n";
        return;
    }
    out += '>';
    to.mark(element, xml_part::text);
    append_escaped(out, element.text);
    if (!element.children.empty()) {
        out += '\n';
        for (const xml_element &child : element.children)
            append_element(to, child, depth + 1);
        out.append(2 * depth, ' ');
    }
    to.mark(element, xml_part::end_tag);
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
    std::vector<xml_spot> none;
    return write_xml(root, none);
}

std::string write_xml(const xml_element &root, std::vector<xml_spot> &spots)
{
    writer to = {"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n", spots, 0};
    append_element(to, root, 0);
    return std::move(to.out);
}

const std::string *find_attribute(const xml_element &element, std::string_view name)
{
    for (const auto &[own_name, value] : element.attributes)
        if (own_name == name)
            return &value;
    return nullptr;
}

}  // namespace inv_testing
