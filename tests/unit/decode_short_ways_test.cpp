// Plain values have short ways past the reader's events (rtXmlpDecPlainElements() and the like). Nobody may
// be able to tell: every document is decoded without them by way of expat, without them in place, and with
// them in pieces of several sizes. Compared are all records, field by field, and all errors with their steps.
// INV_SEED and INV_ROUNDS make a longer search.
#include <cstdlib>
#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include "OrvelianInventorySchema.h"
#include "OrvelianInventorySchemaDec.h"
#include "decode/description.h"
#include "inventory_Derivations.h"
#include "platform/xml_roads_documents.h"
#include "xml/context.h"

using namespace inv_testing;
using inv::decode::item;
using inv::decode::item_kind;
using inv::decode::type_description;

namespace
{

bool takes_short_ways;
// Calls that a short way had something to do in.
uint64_t elements_taken_shortly;
uint64_t attributes_taken_shortly;
std::string *journal;

void note(const std::string &text)
{
    if (journal != nullptr)
        journal->append(text).push_back(' ');
}

template <class Value>
void note_value(const char *at)
{
    Value value;
    memcpy(&value, at, sizeof value);
    note(std::to_string(value));
}

void note_octets(const uint8_t *octets, uint32_t count)
{
    note(std::to_string(count) + ":");
    for (uint32_t i = 0; i < count; ++i)
        note(std::to_string(octets[i]));
}

void note_list(const item &row, const char *at)
{
    const auto &list = *reinterpret_cast<const xb_data_list *>(at);
    note(std::to_string(list.count));
    const xb_data_node *previous = nullptr;
    for (const xb_data_node *node = list.head; node != nullptr; previous = node, node = node->next) {
        EXPECT_EQ(node->prev, previous);
        if (row.kind == item_kind::text)
            note(static_cast<const char *>(node->data));
    }
    EXPECT_EQ(list.tail, previous);
}

// Decimals have no short way.
void note_simple(const item &row, const char *at)
{
    uint32_t count = 0;
    memcpy(&count, at, sizeof count);
    if (row.tokens != nullptr)
        note(std::to_string(count));
    else if (row.capacity != 0)
        note_octets(reinterpret_cast<const uint8_t *>(at) + sizeof count, count);
}

void note_single(const item &row, const char *at)
{
    const char *text = nullptr;
    xb_octets octets = {};
    switch (row.kind) {
    case item_kind::int8:
        return note_value<int8_t>(at);
    case item_kind::uint8:
    case item_kind::boolean:
        return note_value<uint8_t>(at);
    case item_kind::int16:
        return note_value<int16_t>(at);
    case item_kind::uint16:
        return note_value<uint16_t>(at);
    case item_kind::int32:
        return note_value<int32_t>(at);
    case item_kind::uint32:
        return note_value<uint32_t>(at);
    case item_kind::int64:
        return note_value<int64_t>(at);
    case item_kind::text:
        memcpy(&text, at, sizeof text);
        return note(text == nullptr ? "none" : text);
    case item_kind::octets:
        memcpy(&octets, at, sizeof octets);
        return note_octets(octets.octets, octets.count);
    case item_kind::simple:
        return note_simple(row, at);
    case item_kind::record:
    case item_kind::group:
        return;  // noted by its own decoder
    }
}

void note_item(const item &row, const void *record)
{
    const char *start = static_cast<const char *>(record);
    note(row.name);
    const bool is_list =
        row.occurs == inv::decode::occurrence::repeated || row.occurs == inv::decode::occurrence::counted;
    if (is_list && row.kind != item_kind::group)
        return note_list(row, start + row.offset);
    if (row.present.mask != 0)
        note((start[row.present.offset] & row.present.mask) != 0 ? "+" : "-");
    note_single(row, start + row.offset);
}

}  // namespace

// The linker puts these in front of the functions of the same names.
extern "C" {

int32_t __real_rtXmlpDecPlainElements(xb_context *, const xb_element_row *, int32_t, const xb_sequence_row *,
                                      const xb_plain_row *, int32_t, int32_t, void *);
int32_t __real_rtXmlpSeePlainElement(xb_context *, const xb_element_row *, int32_t, const xb_sequence_row *,
                                     int32_t);
int32_t __real_rtXmlpDecPlainAttributes(xb_context *, const xb_attribute_row *, int32_t, const xb_plain_row *,
                                        int32_t, void *, uint64_t *);
int32_t __real__ZN3inv6decode11decode_typeEP10xb_contextRKNS0_16type_descriptionEPv(xb_context *,
                                                                                    const type_description &,
                                                                                    void *);

int32_t __wrap_rtXmlpDecPlainElements(xb_context *ctx, const xb_element_row *table, int32_t row_count,
                                      const xb_sequence_row *sequence, const xb_plain_row *plain,
                                      int32_t position, int32_t position_count, void *record)
{
    if (!takes_short_ways)
        return position;
    const int32_t reached = __real_rtXmlpDecPlainElements(ctx, table, row_count, sequence, plain, position,
                                                          position_count, record);
    elements_taken_shortly += reached != position;
    return reached;
}

int32_t __wrap_rtXmlpSeePlainElement(xb_context *ctx, const xb_element_row *table, int32_t row_count,
                                     const xb_sequence_row *sequence, int32_t position)
{
    return takes_short_ways ? __real_rtXmlpSeePlainElement(ctx, table, row_count, sequence, position)
                            : XB_E_BAD_STATE;
}

int32_t __wrap_rtXmlpDecPlainAttributes(xb_context *ctx, const xb_attribute_row *table, int32_t row_count,
                                        const xb_plain_row *plain, int32_t index, void *record,
                                        uint64_t *seen)
{
    if (!takes_short_ways)
        return index;
    const int32_t reached =
        __real_rtXmlpDecPlainAttributes(ctx, table, row_count, plain, index, record, seen);
    attributes_taken_shortly += reached != index;
    return reached;
}

int32_t __wrap__ZN3inv6decode11decode_typeEP10xb_contextRKNS0_16type_descriptionEPv(
    xb_context *ctx, const type_description &type, void *record)
{
    const int32_t status =
        __real__ZN3inv6decode11decode_typeEP10xb_contextRKNS0_16type_descriptionEPv(ctx, type, record);
    note("\n" + std::to_string(status) + " " + type.name + ":");
    for (int32_t i = 0; i < type.attributes.count; ++i)
        note_item(type.attributes.items[i], record);
    for (int32_t i = 0; i < type.content.count; ++i)
        note_item(type.content.items[i], record);
    return status;
}
}

namespace
{

template <class Record, int32_t (*Decode)(xb_context *, Record *)>
int32_t decode_as(xb_context *ctx)
{
    Record decoded;
    return Decode(ctx, &decoded);
}

// In the order of document_kind.
constexpr int32_t (*decoders[])(xb_context *) = {
    decode_as<xb_choice, XmlD_module>,          decode_as<ChassisEntityType, XmlD_chassis>,
    decode_as<PowerShelfType, XmlD_powerShelf>, decode_as<PEMType, XmlD_pem>,
    decode_as<FanTrayType, XmlD_fanTray>,       decode_as<OpticsType, XmlD_optics>,
};

void note_error(const xb_error &error)
{
    note("\nerror " + std::to_string(error.status) + (error.fatal ? " fatal" : "") + " in line " +
         std::to_string(error.line));
    // Expat counts otherwise within what is not well-formed.
    if (error.status != XB_E_MALFORMED)
        note(std::to_string(error.column) + " at " + std::to_string(error.offset));
    note(std::string(error.source) + " " + std::to_string(error.source_line));
    for (uint32_t i = 0; i < error.parameter_count; ++i)
        note(error.parameters[i]);
}

struct way {
    bool by_expat;
    bool is_short;
    size_t piece;  // 0: the usual size
};

std::string decoded(const std::string &document, document_kind kind, way taken)
{
    std::string written;
    journal = &written;
    takes_short_ways = taken.is_short;
    xb_context ctx = {};
    EXPECT_EQ(rtXmlInitContext(&ctx), XB_OK);
    ctx.state->slow_road = taken.by_expat;
    if (taken.piece != 0)
        ctx.state->chunk_size = taken.piece;
    rtxStreamMemoryCreateReader(&ctx, document.data(), document.size());
    note(std::to_string(decoders[static_cast<unsigned>(kind)](&ctx)));
    xb_error error = {};
    for (uint32_t i = 0; rtxErrGet(&ctx, i, &error); ++i)
        note_error(error);
    journal = nullptr;
    rtxFreeContext(&ctx);
    return written;
}

void expect_one_result(const std::string &document, document_kind kind, size_t piece)
{
    const std::string expected = decoded(document, kind, {true, false, 0});
    for (way taken : {way{false, false, 0}, way{true, true, 0}, way{false, true, 0}, way{false, true, piece}})
        EXPECT_EQ(decoded(document, kind, taken), expected)
            << document << "\nby expat: " << taken.by_expat << ", short: " << taken.is_short << ", pieces of "
            << taken.piece;
}

uint64_t number_from(const char *variable, uint64_t usual)
{
    const char *text = getenv(variable);
    return text == nullptr ? usual : strtoull(text, nullptr, 10);
}

// Something odd in the place of a random white space or end of a tag: most leaves stay plain.
std::string with_oddity(std::string document, random_source &random)
{
    static const std::string oddities[] = {
        "<!-- c -->",
        "<?p i?>",
        "&#10;",
        "\r\n",
        "\xC3\xBC",
        "<![CDATA[ ]]>",
        "<![CDATA[x]]>",
        "<x/>",
        "<x>",
        "x",
        "\t \n ",
        "]]>",
        "\x01",
        "<pdNotes>n</pdNotes>",
        "<pdNotes/>",
        " a='1'",
        " ",
        "</",
        "&",
        "<pdNotes>&amp;</pdNotes>",
    };
    const size_t drawn = draw_below(random, document.size());
    const size_t at = document.find_first_of("> <", drawn);
    if (at != std::string::npos)
        document.insert(at + draw_below(random, 2), oddities[draw_below(random, std::size(oddities))]);
    return document;
}

std::string changed(const std::string &valid, random_source &random)
{
    switch (draw_below(random, 4)) {
    case 0:
        return damaged(valid, random);
    case 1:
        return mutate(valid, next_random(random)).document;
    case 2:
        return with_oddity(with_oddity(valid, random), random);
    default:
        return with_oddity(valid, random);
    }
}

TEST(DecodeShortWays, lead_to_what_the_long_way_leads_to)
{
    random_source random{number_from("INV_SEED", 3)};
    const uint64_t rounds = number_from("INV_ROUNDS", 20000) / 4;
    for (uint64_t i = 0; i < rounds && !HasFailure(); ++i) {
        const auto kind = static_cast<document_kind>(draw_below(random, document_kind_count));
        const std::string valid = random_document(next_random(random), kind);
        expect_one_result(i % 8 == 0 ? valid : changed(valid, random), kind, 1 + draw_below(random, 300));
    }
    EXPECT_GT(elements_taken_shortly, rounds);
    EXPECT_GT(attributes_taken_shortly, rounds);
}

}  // namespace
