#include "names.h"
#include "text.h"
#include "writers.h"

namespace schemac
{
namespace
{

constexpr const char *guard = "ORVELIANINVENTORYSCHEMADEC_H";

std::string head(const std::string &name, const std::string &type, const std::string &parameter)
{
    return "int32_t XmlDT_" + name + "(xb_context *ctx, " + type + " *" + parameter + ")";
}

std::string record_head(const std::string &name)
{
    return head(name, name, "record");
}

struct root_target {
    std::string record;   // C type that the document is decoded into
    std::string decoder;  // name behind Init_ and XmlDT_
};

root_target target_of(const schema &s, const root &r)
{
    if (has_derived(s, r.type))
        return {"xb_choice", r.type + "_derivations"};
    return {r.type, r.type};
}

std::string root_head(const schema &s, const root &r)
{
    return "int32_t XmlD_" + r.element + "(xb_context *ctx, " + target_of(s, r).record + " *record)";
}

std::string type_decoder(const std::string &name)
{
    return function(record_head(name), {"return decode_type(ctx, " + name + "_description, record);"});
}

// Simple types and roots take their steps behind those of the complex types.
struct step_counter {
    uint32_t next;
};

std::string take_step(step_counter &steps)
{
    steps.next += 10;
    return std::to_string(steps.next - 10);
}

std::string simple_decoders(const schema &s, step_counter &steps)
{
    std::string text;
    for (const enumeration &e : s.enumerations)
        text +=
            function(head(e.name, "uint32_t", "code"), {"return decode_enumeration(ctx, " + take_step(steps) +
                                                        ", " + e.name + "_ToEnum, code);"});
    for (const std::string &name : s.decimals)
        text += function(head(name, name, "value"),
                         {"return decode_decimal(ctx, " + take_step(steps) + ", value);"});
    for (const auto &[name, octets] : s.octet_buffers)
        text += function(head(name, name, "value"),
                         {"return decode_octet_buffer(ctx, " + quoted(name) + ", " + take_step(steps) +
                              ", value->octets, sizeof value->octets,",
                          "                           &value->count);"});
    return text;
}

std::string root_decoder(const schema &s, const root &r, step_counter &steps)
{
    const root_target target = target_of(s, r);
    return function(
        root_head(s, r),
        {"static constexpr root_description root = {.element = " + quoted(r.element) + ",",
         "                                          .first_step = " + take_step(steps) + ",",
         "                                          .init = init<Init_" + target.decoder + ">,",
         "                                          .decode = child<XmlDT_" + target.decoder + ">};",
         "return decode_document(ctx, root, record);"});
}

}  // namespace

std::string write_decoders_header(const schema &s)
{
    std::string text = header_begin(guard, {"\"OrvelianInventorySchema.h\""});
    text += comment(
        "Decode what the context's reader stands on, up to its end tag. 0 or a negative status, which is "
        "recorded in the context. `_2` reads the extension's part of an element that is open already.");
    for (const complex_type &type : s.types) {
        text += record_head(type.name) + ";\n";
        if (has_extension(type))
            text += record_head(type.name + "_2") + ";\n";
    }
    text += "\n/* Simple types: the selected attribute or the text of the current element. */\n";
    for (const enumeration &e : s.enumerations)
        text += head(e.name, "uint32_t", "code") + ";\n";
    for (const std::string &name : s.decimals)
        text += head(name, name, "value") + ";\n";
    for (const auto &[name, octets] : s.octet_buffers)
        text += head(name, name, "value") + ";\n";
    text += "\n" + comment("Decode the whole document of the context's input into the record. The result is "
                           "that of the first "
                           "recorded error, also of those that did not end the decode.");
    for (const root &r : s.roots)
        text += root_head(s, r) + ";\n";
    return text + header_end(guard);
}

std::string write_decoders_source(const schema &s)
{
    std::string text = heading() +
                       "#include \"OrvelianInventorySchemaDec.h\"\n\n#include \"decode/engine.h\"\n"
                       "#include \"decode/tables.h\"\n#include \"inventory_DerivationsDec.h\"\n\n"
                       "using namespace inv::decode;\n\n" +
                       token_declarations(s) + "namespace\n{\n\n" + write_type_tables(s) +
                       "}  // namespace\n\n";
    for (const complex_type &type : s.types) {
        text += type_decoder(type.name);
        if (has_extension(type))
            text += type_decoder(type.name + "_2");
    }
    step_counter steps = {first_step_of(s, "", false)};
    text += simple_decoders(s, steps);
    for (const root &r : s.roots)
        text += root_decoder(s, r, steps);
    text.pop_back();
    return text;
}

}  // namespace schemac
