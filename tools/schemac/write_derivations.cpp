#include "names.h"
#include "text.h"
#include "writers.h"

namespace schemac
{
namespace
{

constexpr const char *guard = "INVENTORY_DERIVATIONS_H";
constexpr const char *choosers_guard = "INVENTORY_DERIVATIONSDEC_H";

std::string names_table(const schema &s, const std::string &base)
{
    return "const xb_type_name_row " + base + "_type_names[" + std::to_string(family_of(s, base).size()) +
           "]";
}

std::string init_head(const std::string &base)
{
    return "void Init_" + base + "_derivations(xb_choice *choice)";
}

std::string chooser_head(const std::string &base)
{
    return "int32_t XmlDT_" + base + "_derivations(xb_context *ctx, xb_choice *choice)";
}

std::string choice_rows(const schema &s, const std::string &base, uint32_t first_step)
{
    const std::vector<std::string> family = family_of(s, base);
    std::string text = "constexpr choice_row " + base + "_rows[] = {\n";
    for (const std::string &type : family)
        text += table_row({".size = sizeof(" + type + ")", ".init = init<Init_" + type + ">",
                           ".decode = child<XmlDT_" + type + ">"});
    return text + "};\nconstexpr choice_description " + base +
           "_choices = {\n    .first_step = " + std::to_string(first_step) + ",\n    .names = " + base +
           "_type_names,\n    .rows = " + base + "_rows,\n    .count = " + std::to_string(family.size()) +
           "};\n\n";
}

}  // namespace

std::string write_derivations_header(const schema &s)
{
    std::string text =
        header_begin(guard, {"\"OrvelianInventorySchema.h\"", "\"inv_platform/xml_runtime.h\""});
    text += "/* Nothing chosen: tag and pointer cleared. */\n";
    for (const std::string &base : polymorphic_bases(s))
        text += init_head(base) + ";\n";
    text +=
        "\n/* Types that xsi:type may name in place of the base; the tag is the row number plus one. */\n";
    for (const std::string &base : polymorphic_bases(s))
        text += "extern " + names_table(s, base) + ";\n";
    return text + header_end(guard);
}

std::string write_derivations_source(const schema &s)
{
    std::string text = heading() + "#include \"inventory_Derivations.h\"\n\n";
    for (const std::string &base : polymorphic_bases(s)) {
        text += names_table(s, base) + " = {\n";
        for (const std::string &type : family_of(s, base))
            text += table_row({".name = " + quoted(type), ".name_length = " + std::to_string(type.size())});
        text += "};\n\n";
    }
    for (const std::string &base : polymorphic_bases(s))
        text += function(init_head(base), {"*choice = {};"});
    text.pop_back();
    return text;
}

std::string write_choosers_header(const schema &s)
{
    std::string text = header_begin(choosers_guard, {"\"inventory_Derivations.h\""});
    text += "/* Decode an element of the base type or of the derived type that its xsi:type names. */\n";
    for (const std::string &base : polymorphic_bases(s))
        text += chooser_head(base) + ";\n";
    return text + header_end(choosers_guard);
}

std::string write_choosers_source(const schema &s)
{
    std::string text = heading() +
                       "#include \"inventory_DerivationsDec.h\"\n\n"
                       "#include \"OrvelianInventorySchemaDec.h\"\n#include \"decode/engine.h\"\n\n"
                       "using namespace inv::decode;\n\nnamespace\n{\n\n";
    uint32_t step = 0;
    for (const std::string &base : polymorphic_bases(s))
        text += choice_rows(s, base, step += 100);
    text += "}  // namespace\n\n";
    for (const std::string &base : polymorphic_bases(s))
        text += function(chooser_head(base), {"return decode_choice(ctx, " + base + "_choices, choice);"});
    text.pop_back();
    return text;
}

}  // namespace schemac
