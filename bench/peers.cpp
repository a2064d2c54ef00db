#include "peers.h"

#include "peer_walk.h"

#include <cstdlib>
#include <expat.h>
#include <fcntl.h>
#include <libxml/parser.h>
#include <memory>
#include <rapidxml/rapidxml.hpp>
#include <sys/stat.h>
#include <unistd.h>

namespace inv_bench
{
namespace
{

struct free_block {
    void operator()(char *block) const
    {
        std::free(block);
    }
};

struct file_text {
    std::unique_ptr<char, free_block> octets;  // a NUL behind the last
    std::size_t size = 0;
};

file_text read_whole(const char *file)
{
    file_text text;
    const int descriptor = open(file, O_RDONLY | O_CLOEXEC);
    struct stat about = {};
    if (descriptor < 0 || fstat(descriptor, &about) != 0)
        return text;
    const auto size = static_cast<std::size_t>(about.st_size);
    text.octets.reset(static_cast<char *>(std::malloc(size + 1)));
    ssize_t got = 1;
    while (text.octets != nullptr && got > 0 && text.size < size) {
        got = read(descriptor, text.octets.get() + text.size, size - text.size);
        text.size += got > 0 ? static_cast<std::size_t>(got) : 0;
    }
    close(descriptor);
    if (text.octets == nullptr || text.size != size)
        return {};
    text.octets.get()[size] = '\0';
    return text;
}

file_text text_in_place;
pugi::xml_document document;
peer_record *records;

struct pugixml_dom {
    using node = pugi::xml_node;
    using attribute = pugi::xml_attribute;

    static attribute first_attribute(node of)
    {
        return of.first_attribute();
    }
    static attribute next_attribute(attribute of)
    {
        return of.next_attribute();
    }
    static node element_from(node from)
    {
        while (from && from.type() != pugi::node_element)
            from = from.next_sibling();
        return from;
    }
    static node first_element(node of)
    {
        return element_from(of.first_child());
    }
    static node next_element(node of)
    {
        return element_from(of.next_sibling());
    }
    template <class Named>
    static std::string_view name(Named of)
    {
        return of.name();
    }
    static std::string_view value(attribute of)
    {
        return of.value();
    }
    static std::string_view text(node of)
    {
        return of.child_value();
    }
};

struct rapidxml_dom {
    using node = rapidxml::xml_node<> *;
    using attribute = rapidxml::xml_attribute<> *;

    static attribute first_attribute(node of)
    {
        return of->first_attribute();
    }
    static attribute next_attribute(attribute of)
    {
        return of->next_attribute();
    }
    static node element_from(node from)
    {
        while (from != nullptr && from->type() != rapidxml::node_element)
            from = from->next_sibling();
        return from;
    }
    static node first_element(node of)
    {
        return element_from(of->first_node());
    }
    static node next_element(node of)
    {
        return element_from(of->next_sibling());
    }
    template <class Named>
    static std::string_view name(Named of)
    {
        return {of->name(), of->name_size()};
    }
    static std::string_view value(attribute of)
    {
        return {of->value(), of->value_size()};
    }
    static std::string_view text(node of)
    {
        return {of->value(), of->value_size()};
    }
};

// Handlers that make the parser report everything a reader of inventories would need.
void saw_start(void *, const xmlChar *, const xmlChar *, const xmlChar *, int, const xmlChar **, int, int,
               const xmlChar **)
{
}

void saw_end(void *, const xmlChar *, const xmlChar *, const xmlChar *) {}

void saw_text(void *, const xmlChar *, int) {}

}  // namespace

bool parse_with_pugixml(const char *file)
{
    text_in_place = read_whole(file);
    return text_in_place.octets != nullptr &&
           document.load_buffer_inplace(text_in_place.octets.get(), text_in_place.size);
}

bool walk_with_pugixml(const char *file)
{
    records = nullptr;
    forget_records();
    if (parse_with_pugixml(file))
        records = walk_document<pugixml_dom>(document.document_element());
    return records != nullptr;
}

bool walk_with_rapidxml(const char *file)
{
    static rapidxml::xml_document<> tree;
    forget_records();
    tree.clear();
    text_in_place = read_whole(file);
    if (text_in_place.octets == nullptr)
        return false;
    try {
        tree.parse<rapidxml::parse_default>(text_in_place.octets.get());
    } catch (const rapidxml::parse_error &) {
        return false;
    }
    return walk_document<rapidxml_dom>(rapidxml_dom::first_element(&tree)) != nullptr;
}

bool scan_with_libxml2(const char *file)
{
    xmlSAXHandler handler = {};
    handler.initialized = XML_SAX2_MAGIC;
    handler.startElementNs = saw_start;
    handler.endElementNs = saw_end;
    handler.characters = saw_text;
    return xmlSAXUserParseFile(&handler, nullptr, file) == 0;
}

bool scan_with_expat(const char *file)
{
    constexpr int window = 64 * 1024;
    XML_Parser parser = XML_ParserCreate(nullptr);
    const int descriptor = open(file, O_RDONLY | O_CLOEXEC);
    if (parser == nullptr || descriptor < 0)
        return false;
    XML_SetElementHandler(
        parser, [](void *, const XML_Char *, const XML_Char **) {}, [](void *, const XML_Char *) {});
    XML_SetCharacterDataHandler(parser, [](void *, const XML_Char *, int) {});
    bool is_good = true;
    ssize_t got = 1;
    while (is_good && got > 0) {
        void *buffer = XML_GetBuffer(parser, window);
        got = buffer != nullptr ? read(descriptor, buffer, window) : -1;
        is_good = got >= 0 && XML_ParseBuffer(parser, static_cast<int>(got), got == 0) == XML_STATUS_OK;
    }
    close(descriptor);
    XML_ParserFree(parser);
    return is_good;
}

const pugi::xml_document &pugixml_document()
{
    return document;
}

const peer_record *pugixml_records()
{
    return records;
}

void forget_pugixml()
{
    records = nullptr;
    forget_records();
    document.reset();
    text_in_place = {};
}

}  // namespace inv_bench
