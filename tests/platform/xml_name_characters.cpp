#include "xml/name_characters.h"

#include "xml/lexer.h"

#include <gtest/gtest.h>
#include <string>

using namespace inv::xml;

namespace
{

bool expat_accepts(XML_Parser parser, const std::string &document)
{
    XML_ParserReset(parser, "UTF-8");
    return XML_Parse(parser, document.data(), static_cast<int>(document.size()), true) == XML_STATUS_OK;
}

std::string utf8(uint32_t character)
{
    char octets[4];
    return std::string(octets, put_character(octets, character));
}

TEST(XmlNameCharacters, are_those_of_expat)
{
    XML_Parser parser = XML_ParserCreate("UTF-8");
    for (uint32_t character = 0x80; character <= 0x10FFFF; ++character) {
        // Beyond the first plane there are none: a sample of the rest will do.
        if (character > 0x10FFF && character % 0x400 > 2)
            continue;
        const std::string octets = utf8(character);
        ASSERT_EQ(is_name_start(character), expat_accepts(parser, "<" + octets + "/>")) << character;
        ASSERT_EQ(is_name_character(character), expat_accepts(parser, "<a" + octets + "/>")) << character;
    }
    XML_ParserFree(parser);
}

TEST(XmlNameCharacters, lie_in_the_first_plane)
{
    for (uint32_t character = 0x10000; character <= 0x10FFFF; ++character)
        ASSERT_FALSE(is_name_start(character) || is_name_character(character)) << character;
}

}  // namespace
