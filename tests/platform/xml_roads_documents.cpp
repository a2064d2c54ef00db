#include "platform/xml_roads_documents.h"

#include <span>

using inv_testing::draw_below;
using inv_testing::one_in;
using inv_testing::random_source;

namespace
{

using choices = std::span<const std::string_view>;

constexpr std::string_view element_names[] = {
    "a",         "b",   "port", "module", "long-name.with_marks", "_",
    "p:e",       "q:e", ":c",   "e:",     "\xC3\xA9t\xC3\xA9",    "\xE6\x97\xA5\xE6\x9C\xAC",
    "x\xCC\x80",
};
constexpr std::string_view attribute_names[] = {
    "a",
    "b",
    "name",
    "xsi:type",
    "xsi:nil",
    "p:a",
    "xml:lang",
    "xmlnsa",
    "a.b-c_d",
    "p:a:b",
    "\xC3\xBC",
    "\xE6\x97\xA5\xC2\xB7",
    "undeclared:a",
    "a1",
};
constexpr std::string_view declarations[] = {
    "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"",
    "xmlns:p='urn:p'",
    "xmlns:q = \"urn:&#x71;\"",
    "xmlns='urn:d'",
    "xmlns=''",
    "xmlns:p=\"http://www.w3.org/2001/XMLSchema-instance\"",
};
constexpr std::string_view references[] = {
    "&amp;", "&lt;",  "&gt;", "&quot;", "&apos;",   "&#65;",     "&#x41;",           "&#32;",
    "&#10;", "&#13;", "&#9;", "&#xE9;", "&#x20AC;", "&#128512;", "&#0000000000065;",
};
constexpr std::string_view entities[] = {"&e;", "&f;", "&amp;"};
constexpr std::string_view white[] = {" ", "\n", "\t", "\r\n", "\r", "  ", "\n    ", "\r\r\n\n", " \t "};
constexpr std::string_view plain[] = {
    "text",
    "1",
    "0x1F",
    "a.b",
    "Slice 0 inlet temperature",
    "]",
    "]]",
    ">",
    "->",
    "--",
    "?",
    "?>",
    "=",
    "!",
    "xml",
    "/",
    "\"",
    "'",
    "0123456789abcdef0123456789abcdef0123456789",
};
constexpr std::string_view beyond_ascii[] = {
    "\xC2\x80",     "\xC3\xBC",         "\xE2\x82\xAC",     "\xED\x9F\xBF",
    "\xEF\xBF\xBD", "\xF0\x9F\x98\x80", "\xF4\x8F\xBF\xBF", "\xEF\xBB\xBF",
};
constexpr std::string_view asides[] = {
    "<!---->",          "<!-- comment -->", "<!-- - \r\n\xC3\xBC > -->", "<?pi?>",
    "<?pi data ? > ?>", "<?xml-like\r\n?>", "<?p:i \xC3\xBC?\?>",
};
constexpr std::string_view sections[] = {
    "<![CDATA[]]>",   "<![CDATA[ ]]>",          "<![CDATA[<a>&amp;]]>", "<![CDATA[\r\n ]]]>",
    "<![CDATA[]]]]>", "<![CDATA[\xC3\xBC\r]]>", "<![CDATA[ \n\tx]]>",
};
constexpr std::string_view headings[] = {
    "<?xml version='1.0'?>",
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n",
    "<?xml  version = '1.0'\r\nencoding='utf-8' standalone='yes' ?>\r\n",
    "<?xml version='1.0' encoding='ISO-8859-1'?>",
    "<?xml version='1.1'?>",
    "<?xml version='1.0' ?>\r",
};
constexpr std::string_view doctypes[] = {
    "<!DOCTYPE a>",
    "<!DOCTYPE a [<!ENTITY e 'x'><!ENTITY f '<b>y</b>'>]>\n",
    "<!DOCTYPE a [<!ENTITY e 'x&#10;'><!ENTITY f 'z'><!ATTLIST a b CDATA 'd' a NMTOKEN #IMPLIED>]>",
};
// What markup is made of, and what it must not be made of.
constexpr std::string_view splinters[] = {
    "<",
    ">",
    "&",
    ";",
    "'",
    "\"",
    "=",
    "/",
    "?",
    "!",
    "-",
    "--",
    "]",
    "]]>",
    "[",
    "#",
    "x",
    ":",
    " ",
    "\n",
    "\r",
    "\r\n",
    "\t",
    "<!--",
    "-->",
    "<![CDATA[",
    "<?",
    "?>",
    "</",
    "/>",
    "<a>",
    "</a>",
    "<a ",
    " a='1'",
    "&#",
    "&#x",
    "&amp;",
    "&#0;",
    "&#xD800;",
    "&#x110000;",
    "&#99999999999;",
    "&unknown;",
    "xmlns",
    "xml",
    "<?xml ",
    "<!DOCTYPE a>",
    "\xC3",
    "\xE2\x82",
    "\xED\xA0\x80",
    "\xEF\xBF\xBF",
    "\xEF\xBF\xBE",
    "\xF8",
    "\xC0\xAF",
    "\x80",
    "\xFF",
    "\xC3\xBC",
    "\xC2\xB7",
    "\xC3\x97",
    "\x7F",
    "\x01",
    "\x1F",
    "1",
    "é",
    "\xF0\x9F\x98\x80",
    "\xF4\x90\x80\x80",
    "\xEF\xBB\xBF",
};

std::string_view draw(random_source &random, choices from)
{
    return from[draw_below(random, from.size())];
}

struct writer {
    random_source &random;
    std::string text;
    bool has_entities = false;
    int budget = 0;  // of elements
};

std::string_view any_reference(writer &w)
{
    return w.has_entities && one_in(w.random, 2) ? draw(w.random, entities) : draw(w.random, references);
}

void put_space(writer &w, bool required)
{
    if (required || one_in(w.random, 4))
        w.text += one_in(w.random, 4) ? draw(w.random, white) : " ";
}

void put_value(writer &w)
{
    const char quote = one_in(w.random, 2) ? '"' : '\'';
    w.text += quote;
    for (size_t parts = draw_below(w.random, 4); parts > 0; --parts) {
        size_t kind = draw_below(w.random, 8);
        std::string_view part = kind < 4    ? draw(w.random, plain)
                                : kind == 4 ? draw(w.random, white)
                                : kind == 5 ? draw(w.random, beyond_ascii)
                                            : any_reference(w);
        if (part.find(quote) == std::string_view::npos)
            w.text += part;
    }
    w.text += quote;
}

// Names of the tag's attributes differ in all but a few tags.
void put_attributes(writer &w)
{
    size_t count = one_in(w.random, 60) ? 80 : draw_below(w.random, 6);
    const size_t first = draw_below(w.random, std::size(attribute_names));
    for (size_t i = 0; i < count; ++i) {
        put_space(w, true);
        if (one_in(w.random, 12)) {
            w.text += draw(w.random, declarations);
            continue;
        }
        std::string_view name = attribute_names[(first + i) % std::size(attribute_names)];
        w.text += name.starts_with("undeclared") && !one_in(w.random, 8) ? "a2" : name;
        if (i >= std::size(attribute_names))
            w.text += std::to_string(i);
        put_space(w, false);
        w.text += '=';
        put_space(w, false);
        put_value(w);
    }
}

void put_element(writer &w, int depth);

void put_content(writer &w, int depth)
{
    for (size_t parts = draw_below(w.random, 7); parts > 0; --parts) {
        switch (draw_below(w.random, 12)) {
        case 0:
        case 1:
        case 2:
        case 3:
            if (depth < 12 && --w.budget > 0)
                put_element(w, depth + 1);
            break;
        case 4:
            w.text += any_reference(w);
            break;
        case 5:
            w.text += draw(w.random, sections);
            break;
        case 6:
            w.text += draw(w.random, asides);
            break;
        case 7:
            w.text += draw(w.random, beyond_ascii);
            break;
        case 8:
        case 9:
            w.text += draw(w.random, plain);
            break;
        default:
            w.text += draw(w.random, white);
            break;
        }
    }
}

void put_element(writer &w, int depth)
{
    const std::string name(depth == 0 ? "a" : draw(w.random, element_names));
    w.text += '<' + name;
    if (depth == 0) {
        for (std::string_view declaration : {declarations[0], declarations[1], declarations[2]})
            w.text.append(" ").append(declaration);
    } else {
        put_attributes(w);
    }
    put_space(w, false);
    if (depth > 0 && one_in(w.random, 4)) {
        w.text += "/>";
        return;
    }
    w.text += '>';
    put_content(w, depth);
    w.text += "</" + name;
    put_space(w, false);
    w.text += '>';
}

void put_asides(writer &w)
{
    while (one_in(w.random, 3))
        w.text += one_in(w.random, 2) ? draw(w.random, asides) : draw(w.random, white);
}

using damage = void (*)(std::string &text, size_t at, random_source &random);

constexpr damage damages[] = {
    [](std::string &text, size_t at, random_source &random) { text.insert(at, draw(random, splinters)); },
    [](std::string &text, size_t at, random_source &random) { text.replace(at, 1, draw(random, splinters)); },
    [](std::string &text, size_t at, random_source &random) {
        text.replace(at, 1, 1, static_cast<char>(draw_below(random, 256)));
    },
    [](std::string &text, size_t at, random_source &random) { text.erase(at, 1 + draw_below(random, 4)); },
    [](std::string &text, size_t at, random_source &random) {
        text.insert(at, text.substr(at, 1 + draw_below(random, 30)));
    },
    [](std::string &text, size_t at, random_source &random) {
        const std::string piece = text.substr(at, 1 + draw_below(random, 30));
        text.insert(draw_below(random, text.size()), piece);
    },
    [](std::string &text, size_t at, random_source &random) {
        if (one_in(random, 3))
            text.resize(at);
    },
};

// Markup is where documents go wrong.
size_t draw_place(const std::string &text, random_source &random)
{
    const size_t at = draw_below(random, text.size());
    if (one_in(random, 2))
        return at;
    const size_t markup = text.find_first_of("<>&;'\"=/?!-]:\r\n", at);
    return markup == std::string::npos ? at : markup;
}

}  // namespace

std::string random_markup(random_source &random)
{
    writer w{random, {}};
    w.budget = static_cast<int>(1 + draw_below(random, 12));
    if (one_in(random, 8))
        w.text += "\xEF\xBB\xBF";
    if (one_in(random, 3))
        w.text += draw(random, headings);
    put_asides(w);
    if (one_in(random, 10)) {
        const size_t index = draw_below(random, std::size(doctypes));
        w.text += doctypes[index];
        w.has_entities = index > 0;
    }
    put_asides(w);
    put_element(w, 0);
    put_asides(w);
    return w.text;
}

std::string damaged(const std::string &document, random_source &random)
{
    std::string text = document;
    for (size_t changes = 1 + (one_in(random, 3) ? draw_below(random, 4) : 0); changes > 0 && !text.empty();
         --changes)
        damages[draw_below(random, std::size(damages))](text, draw_place(text, random), random);
    return text;
}
