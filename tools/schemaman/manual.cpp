#include "manual.h"

#include <sstream>

namespace
{

using schemac::attribute;
using schemac::child;
using schemac::xml_node;

// Words with single blanks between them, as troff prints them; hyphens as they are typed, tokens never
// parted.
std::string plain(const std::string &text)
{
    std::istringstream words(text);
    std::string result;
    for (std::string word; words >> word;) {
        result += result.empty() ? "" : " ";
        result += word.find('_') == std::string::npos ? "" : "\\%";
        for (char letter : word)
            result += letter == '\\' ? "\\e" : letter == '-' ? "\\-" : std::string(1, letter);
    }
    return result.starts_with(".") || result.starts_with("'") ? "\\&" + result : result;
}

std::string documentation_of(const xml_node &node)
{
    const xml_node *annotation = child(node, "annotation");
    const xml_node *text = annotation == nullptr ? nullptr : child(*annotation, "documentation");
    return text == nullptr ? "" : plain(text->text);
}

// The schema's own types in the words of people who write documents.
struct simple_name {
    const char *type;
    const char *words;
};

constexpr simple_name simple_names[] = {
    {"xs:string", "text"},
    {"xs:boolean", "true or false"},
    {"xs:decimal", "decimal number"},
    {"xs:hexBinary", "hexadecimal digits"},
    {"xs:byte", "number from -128 to 127"},
    {"xs:unsignedByte", "number from 0 to 255"},
    {"xs:short", "number from -32768 to 32767"},
    {"xs:unsignedShort", "number from 0 to 65535"},
    {"xs:int", "number from -2147483648 to 2147483647"},
    {"xs:unsignedInt", "number from 0 to 4294967295"},
    {"xs:long", "number of 64 bits with its sign"},
};

std::string type_words(const std::string &type)
{
    for (const simple_name &each : simple_names)
        if (type == each.type)
            return plain(each.words);
    std::string name = plain(type);
    return "\\fI" + std::string(name.starts_with("\\%") ? "" : "\\%") + name + "\\fR";
}

// What a restriction says about its values: tokens or lengths.
std::string values_of(const xml_node &simple_type)
{
    const xml_node *restriction = child(simple_type, "restriction");
    if (restriction == nullptr)
        return "";
    std::string tokens, bounds;
    for (const xml_node &facet : restriction->children) {
        std::string value = plain(attribute(facet, "value"));
        if (facet.name == "enumeration")
            tokens += (tokens.empty() ? "" : ",\n") + value;
        else if (facet.name == "length")
            bounds += ", length " + value;
        else if (facet.name == "minLength")
            bounds += ", at least " + value + " long";
        else if (facet.name == "maxLength")
            bounds += ", at most " + value + " long";
    }
    return tokens.empty() ? type_words(attribute(*restriction, "base")) + bounds : "one of\n" + tokens;
}

std::string type_of(const xml_node &item)
{
    if (const xml_node *inner = child(item, "simpleType"))
        return values_of(*inner);
    return type_words(attribute(item, "type"));
}

std::string attribute_text(const xml_node &item)
{
    bool required = attribute(item, "use") == "required";
    std::string initial = attribute(item, "default");
    return ".TP\n\\fB" + plain(attribute(item, "name")) + "\\fR attribute" + (required ? "" : ", optional") +
           (initial.empty() ? "" : ", default " + plain(initial)) + "\n" + documentation_of(item) +
           "\n.br\nValue: " + type_of(item) + ".\n";
}

std::string occurrence_of(const xml_node &item)
{
    bool optional = attribute(item, "minOccurs", "1") == "0";
    std::string most = attribute(item, "maxOccurs", "1");
    if (most == "unbounded")
        return optional ? ", any number" : ", one or more";
    if (most != "1")
        return (optional ? ", at most " : ", " + attribute(item, "minOccurs", "1") + " to ") + most;
    return optional ? ", optional" : "";
}

std::string element_text(const xml_node &item)
{
    std::string words = item.name == "sharedElement" ? plain(item.text) : documentation_of(item);
    return ".TP\n\\fB<" + plain(attribute(item, "name")) + ">\\fR" + occurrence_of(item) + "\n" + words +
           "\n.br\nContent: " + type_of(item) + ".\n";
}

// An element that its base type has as well stands in a note before or behind a declared one.
std::string elements_text(const xml_node &sequence)
{
    std::string text;
    std::vector<const xml_node *> shared;
    for (const xml_node &note : sequence.children)
        for (const xml_node &info : note.children)
            if (info.name == "appinfo")
                for (const xml_node &item : info.children)
                    shared.push_back(&item);
    for (const xml_node &item : sequence.children) {
        if (item.name != "element")
            continue;
        for (const xml_node *each : shared)
            if (attribute(*each, "before") == attribute(item, "name"))
                text += element_text(*each);
        text += element_text(item);
        for (const xml_node *each : shared)
            if (attribute(*each, "after") == attribute(item, "name"))
                text += element_text(*each);
    }
    return text;
}

// Null for a type that extends none.
const xml_node *extension_of(const xml_node &type)
{
    const xml_node *content = child(type, "complexContent");
    return content == nullptr ? nullptr : child(*content, "extension");
}

std::string derived_text(const xml_node &schema, const std::string &name)
{
    std::string derived;
    for (const xml_node &each : schema.children)
        if (const xml_node *extension = extension_of(each); extension != nullptr)
            if (attribute(*extension, "base") == name)
                derived += (derived.empty() ? "" : ",\n") + type_words(attribute(each, "name"));
    return derived.empty() ? "" : ".PP\nExtended by\n" + derived + ".\n";
}

std::string complex_type_text(const xml_node &schema, const xml_node &type)
{
    std::string text = ".SS " + plain(attribute(type, "name")) + "\n" + documentation_of(type) + "\n" +
                       derived_text(schema, attribute(type, "name"));
    const xml_node *body = &type;
    if (const xml_node *extension = extension_of(type)) {
        text += ".PP\nAll that " + type_words(attribute(*extension, "base")) + " has, and:\n";
        body = extension;
    }
    for (const xml_node &item : body->children)
        if (item.name == "attribute")
            text += attribute_text(item);
    if (const xml_node *sequence = child(*body, "sequence"))
        text += elements_text(*sequence);
    return text;
}

std::string simple_type_text(const xml_node &type)
{
    return ".SS " + plain(attribute(type, "name")) + "\n" + documentation_of(type) +
           "\n.PP\nValue: " + values_of(type) + ".\n";
}

std::string documents_text(const xml_node &schema)
{
    std::string text;
    for (const xml_node &root : schema.children)
        if (root.name == "element")
            text += element_text(root);
    return text;
}

constexpr const char *head =
    R"troff(.\" Made from schema/OrvelianInventory.xsd by schemaman; edit the schema, not this file.
.TH INVENTORY 5 "" "inv_parser" "File Formats"
.ad l
.SH NAME
inventory \- hardware inventory documents of a modular router
.SH DESCRIPTION
An inventory document is an XML document about one field\-replaceable unit or chassis: the entities that it
consists of, how each is reached and which tokens software knows it by.
Elements and attributes have no namespace.
Attributes stand in any order; the elements of a type in the order given here, those of the type that it
extends first.
An element whose type is extended may name one of the extending types, or of those that extend them in
turn, in the attribute
.BR xsi:type ,
with xsi standing for http://www.w3.org/2001/XMLSchema\-instance; it then holds what that type holds.
Tokens are written as given here, in capitals.
.SH EXAMPLE
.EX
<fanTray name="Fan tray" type="ORVL_ENTITY_TYPE_MODULE"
         subtype="ORVL_ENTITY_SUBTYPE_MODULE_FANTRAY" instance="0"
         replicationScope="ORVL_REPLICATION_TYPE_NONE" xmlInstance="1"/>
.EE
.SH DOCUMENTS
A document has one of these as its root element.
)troff";

}  // namespace

namespace schemaman
{

std::string page_of(const xml_node &schema)
{
    std::string text = std::string(head) + documents_text(schema) + ".SH ELEMENT TYPES\n";
    std::string values;
    for (const xml_node &node : schema.children) {
        if (node.name == "complexType")
            text += complex_type_text(schema, node);
        else if (node.name == "simpleType")
            values += simple_type_text(node);
    }
    return text + ".SH VALUE TYPES\n" + values + ".SH SEE ALSO\n.BR invctl (1)\n";
}

}  // namespace schemaman
