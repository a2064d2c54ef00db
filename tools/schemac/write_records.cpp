#include <algorithm>

#include "names.h"
#include "text.h"
#include "writers.h"

namespace schemac
{
namespace
{

constexpr const char *guard = "ORVELIANINVENTORYSCHEMA_H";

std::string field(const item &i)
{
    std::string line = "    " + field_type(i) + i.name + ";";
    const std::string note = field_note(i);
    return line + (note.empty() ? "" : " /* " + note + " */") + "\n";
}

std::string presence(const std::vector<std::string> &bits)
{
    if (bits.empty())
        return "";
    std::string text = "    struct {\n";
    for (const std::string &bit : bits)
        text += "        uint8_t " + bit + " : 1;\n";
    return text + "    } has;\n";
}

std::string structure(const std::string &name, const std::string &body)
{
    return "typedef struct " + name + " {\n" + body + "} " + name + ";\n\n";
}

std::string fields(const std::vector<item> &items)
{
    std::string text;
    for (const item &i : items)
        text += field(i);
    return text;
}

std::string record(const complex_type &type)
{
    std::string text;
    std::string body;
    if (type.base.empty()) {
        body = presence(presence_bits(type)) + "    xb_data_list xmlns;\n" + fields(type.attributes) +
               fields(type.elements);
    } else {
        if (has_extension(type)) {
            const std::string extension = presence(presence_bits(type.elements)) + fields(type.elements);
            text +=
                "/* Extension content of " + type.name + ". */\n" + structure(type.name + "_2", extension);
        }
        body = "    " + type.base + " base;\n" + presence(presence_bits(type));
        if (has_extension(type))
            body += "    " + type.name + "_2 ext;\n";
        body += fields(type.attributes);
    }
    return text + comment(type.documentation) + structure(type.name, body);
}

std::string enum_rows(const enumeration &e)
{
    std::vector<size_t> order(e.tokens.size());  // codes, sorted by token
    for (size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::sort(order.begin(), order.end(), [&](size_t a, size_t b) { return e.tokens[a] < e.tokens[b]; });
    std::vector<size_t> position(order.size());
    for (size_t i = 0; i < order.size(); ++i)
        position[order[i]] = i;
    std::string text = "constexpr xb_enum_row " + e.name + "_rows[] = {\n";
    for (size_t i = 0; i < order.size(); ++i) {
        const std::string &token = e.tokens[order[i]];
        text += table_row({".token = " + quoted(token), ".code = " + std::to_string(order[i]),
                           ".token_length = " + std::to_string(token.size()),
                           ".inverse_index = " + std::to_string(position[i])});
    }
    return text + "};\n" +
           wrapped("", "    ", "constexpr auto " + e.name + "_links = token_links(" + e.name + "_rows);") +
           "}  // namespace\n\n" +
           wrapped("", "    ",
                   "constexpr enumeration inv::decode::tokens::" + e.name + " = {.rows = " + e.name +
                       "_rows, .links = " + e.name +
                       "_links.data(), .count = " + std::to_string(order.size()) + "};") +
           "\nnamespace\n{\n\n";
}

std::string converters(const enumeration &e)
{
    return function("int32_t " + e.name + "_ToEnum(const char *text, int32_t length, uint32_t *code)",
                    {"return find_code(tokens::" + e.name + ", text, length, code);"}) +
           function("const char *" + e.name + "_ToString(uint32_t code)",
                    {"return find_token(tokens::" + e.name + ", code);"});
}

std::string initial_value(const schema &s, const item &i)
{
    if (i.kind == value_kind::boolean)
        return i.initial == "true" || i.initial == "1" ? "1" : "0";
    if (i.kind != value_kind::enumeration)
        return i.initial;
    const std::vector<std::string> &tokens = enumeration_named(s, i.type).tokens;
    auto found = std::find(tokens.begin(), tokens.end(), i.initial);
    return std::to_string(found - tokens.begin());
}

// Embedded records that are more than cleared.
std::vector<std::string> initialise_embedded(const schema &s, const std::vector<item> &elements)
{
    std::vector<std::string> lines;
    for (const item &i : elements) {
        if (i.kind == value_kind::record && !is_list(i) && has_initial_values(s, type_named(s, i.type)))
            lines.push_back("Init_" + i.type + "(&record->" + i.name + ");");
    }
    return lines;
}

std::vector<std::string> clear_and_initialise(const schema &s, const std::vector<item> &attributes,
                                              const std::vector<item> &elements)
{
    std::vector<std::string> lines = {"clear_octets(*record);"};
    for (const item &i : attributes) {
        if (!i.initial.empty())
            lines.push_back("record->" + i.name + " = " + initial_value(s, i) + ";");
    }
    std::vector<std::string> embedded = initialise_embedded(s, elements);
    lines.insert(lines.end(), embedded.begin(), embedded.end());
    return lines;
}

std::string extension_initialiser(const schema &s, const complex_type &type)
{
    return function("void Init_" + type.name + "_2(" + type.name + "_2 *record)",
                    clear_and_initialise(s, {}, type.elements));
}

std::string initialiser(const schema &s, const complex_type &type)
{
    const std::string head = "void Init_" + type.name + "(" + type.name + " *record)";
    if (type.base.empty())
        return function(head, clear_and_initialise(s, type.attributes, type.elements));
    std::vector<std::string> lines = {"Init_" + type.base + "(&record->base);"};
    if (!presence_bits(type).empty())
        lines.push_back("clear_octets(record->has);");
    if (has_extension(type))
        lines.push_back("Init_" + type.name + "_2(&record->ext);");
    for (const item &i : type.attributes)
        lines.push_back("record->" + i.name + " = " + (i.initial.empty() ? "{}" : initial_value(s, i)) + ";");
    return function(head, lines);
}

}  // namespace

std::string write_records_header(const schema &s)
{
    std::string text = header_begin(guard, {"<stdint.h>", "", "\"inv_parser/platform_types.h\""});
    text +=
        comment(
            "Decoded records. `has` holds one bit per optional item, `base` the inherited part, `ext` the "
            "extension's content; absent items keep their initial values. Everything a record points "
            "to lives in the heap of the context that decoded it.") +
        "\n";
    for (const std::string &name : s.decimals)
        text += "typedef double " + name + ";\n\n";
    for (const auto &[name, octets] : s.octet_buffers)
        text += structure(name, "    uint32_t count;\n    uint8_t octets[" + std::to_string(octets) + "];\n");
    for (const complex_type &type : s.types)
        text += record(type);
    text += "/* Bring a record into its initial state, whatever it held. */\n";
    for (const complex_type &type : s.types)
        text += "void Init_" + type.name + "(" + type.name + " *record);\n";
    text +=
        "\n" +
        comment(
            "Token to code and back. A length of -1 stands for NUL-terminated text; the code pointer may be "
            "null and is left alone on failure. Unknown codes give \"_UNKNOWN_\".");
    for (const enumeration &e : s.enumerations) {
        text += "int32_t " + e.name + "_ToEnum(const char *text, int32_t length, uint32_t *code);\n";
        text += "const char *" + e.name + "_ToString(uint32_t code);\n";
    }
    return text + header_end(guard);
}

std::string write_records_source(const schema &s)
{
    std::string text = heading() +
                       "#include \"OrvelianInventorySchema.h\"\n\n#include \"decode/engine.h\"\n"
                       "#include \"decode/name_links.h\"\n\nusing namespace inv::decode;\n\n" +
                       token_declarations(s) + "namespace\n{\n\n";
    for (const enumeration &e : s.enumerations)
        text += enum_rows(e);
    for (const complex_type &type : s.types) {
        if (has_extension(type))
            text += extension_initialiser(s, type);
    }
    text += "}  // namespace\n\n";
    for (const enumeration &e : s.enumerations)
        text += converters(e);
    for (const complex_type &type : s.types)
        text += initialiser(s, type);
    text.pop_back();
    return text;
}

}  // namespace schemac
