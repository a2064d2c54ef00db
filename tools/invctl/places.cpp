#include "places.h"

#include <expat.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace
{

struct search {
    XML_Parser parser;
    uint16_t xml_instance;
    unsigned long line = 0;
    unsigned long column = 0;
};

// The record builders keep 16 bits of the number, so do we.
void on_start_tag(void *user, const XML_Char *, const XML_Char **attributes)
{
    auto *wanted = static_cast<search *>(user);
    for (; *attributes != nullptr; attributes += 2) {
        if (strcmp(attributes[0], "xmlInstance") != 0)
            continue;
        if (static_cast<uint16_t>(strtol(attributes[1], nullptr, 10)) != wanted->xml_instance)
            continue;
        wanted->line = XML_GetCurrentLineNumber(wanted->parser);
        wanted->column = XML_GetCurrentColumnNumber(wanted->parser) + 1;
    }
}

}  // namespace

namespace invctl
{

// The library keeps no places, so the document is read once more. It has been opened before: whatever
// goes wrong now only costs the place.
std::string place_of_instance(const std::string &path, uint16_t xml_instance)
{
    std::unique_ptr<FILE, int (*)(FILE *)> file(fopen(path.c_str(), "rb"), fclose);
    std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser(XML_ParserCreate(nullptr), XML_ParserFree);
    if (file == nullptr || parser == nullptr)
        return path;
    search wanted = {parser.get(), xml_instance};
    XML_SetUserData(parser.get(), &wanted);
    XML_SetStartElementHandler(parser.get(), on_start_tag);
    char block[1 << 14];
    for (size_t size = sizeof block; size == sizeof block;) {
        size = fread(block, 1, sizeof block, file.get());
        if (XML_Parse(parser.get(), block, static_cast<int>(size), size < sizeof block) != XML_STATUS_OK)
            break;
    }
    if (wanted.line == 0)
        return path;
    return path + ":" + std::to_string(wanted.line) + ":" + std::to_string(wanted.column);
}

}  // namespace invctl
