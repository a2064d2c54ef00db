// The reader takes one of two roads through a document: in place, or by way of expat. Nobody must be able
// to tell which. INV_SEED and INV_ROUNDS make a longer search of the property tests.
#include "OrvelianInventorySchema.h"
#include "OrvelianInventorySchemaDec.h"
#include "inventory_Derivations.h"
#include "platform/xml_roads_documents.h"
#include "platform/xml_roads_walk.h"
#include "xml/context.h"

#include <cstdlib>
#include <gtest/gtest.h>

using namespace inv_testing;

namespace
{

constexpr size_t chunk_sizes[] = {0, 1, 2, 3, 7, 64, 4096};

// Sanitizers make a walk some twenty times as long.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr uint64_t usual_rounds = 4000;
#elif defined(__has_feature)
constexpr uint64_t usual_rounds =
    __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) ? 4000 : 50000;
#else
constexpr uint64_t usual_rounds = 50000;
#endif

uint64_t number_from(const char *variable, uint64_t usual)
{
    const char *text = getenv(variable);
    return text == nullptr ? usual : strtoull(text, nullptr, 10);
}

std::string readable(std::string_view text)
{
    std::string written;
    for (char c : text) {
        char form[8];
        snprintf(form, sizeof form, c >= 0x20 && c < 0x7F ? "%c" : "\\x%02X", static_cast<unsigned char>(c));
        written += form;
    }
    return written;
}

void expect_agreement(const std::string &document, uint64_t seed)
{
    const std::string found = compare_roads(document, chunk_sizes, seed);
    EXPECT_EQ(found, "") << readable(document) << "\nwalked with seed " << seed;
}

// Of each drawn document itself and a few of its mutants.
void expect_agreement_on_mutants(std::string (*draw_document)(random_source &))
{
    random_source random{number_from("INV_SEED", 1)};
    const uint64_t rounds = number_from("INV_ROUNDS", usual_rounds);
    std::string document;
    for (uint64_t i = 0; i < rounds && !testing::Test::HasFailure(); ++i) {
        const bool is_new = i % 20 == 0;
        if (is_new)
            document = draw_document(random);
        expect_agreement(is_new ? document : damaged(document, random), next_random(random));
    }
}

TEST(XmlRoads, agree_on_arbitrary_markup_and_its_mutants)
{
    expect_agreement_on_mutants(random_markup);
}

// The beginning suffices of a long one: a cut is one of the mutations.
TEST(XmlRoads, agree_on_documents_of_the_schema_and_their_mutants)
{
    expect_agreement_on_mutants([](random_source &random) {
        const auto kind = static_cast<document_kind>(draw_below(random, document_kind_count));
        return random_document(next_random(random), kind).substr(0, 1500);
    });
}

TEST(XmlRoads, agree_on_whole_documents_of_the_schema)
{
    random_source random{number_from("INV_SEED", 1)};
    for (unsigned i = 0; i < 60; ++i) {
        const auto kind = static_cast<document_kind>(i % document_kind_count);
        expect_agreement(random_document(next_random(random), kind), i);
    }
}

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

// The errors that decoding records, each in a line. Columns are left out where documents are broken.
std::string errors_of(const std::string &document, document_kind kind, road which)
{
    xb_context ctx = {};
    EXPECT_EQ(rtXmlInitContext(&ctx), XB_OK);
    ctx.state->slow_road = which.slow;
    if (which.chunk_size != 0)
        ctx.state->chunk_size = which.chunk_size;
    rtxStreamMemoryCreateReader(&ctx, document.data(), document.size());
    std::string errors = std::to_string(decoders[static_cast<unsigned>(kind)](&ctx));
    xb_error error = {};
    for (uint32_t i = 0; rtxErrGet(&ctx, i, &error); ++i) {
        errors += "\n" + std::to_string(error.status) + " " + std::to_string(error.line);
        if (error.status != XB_E_MALFORMED)
            errors += ":" + std::to_string(error.column) + "@" + std::to_string(error.offset);
        for (uint32_t k = 0; k < error.parameter_count; ++k)
            errors.append(" ").append(error.parameters[k]);
    }
    rtxFreeContext(&ctx);
    return errors;
}

// Decoders have short ways of their own past the events of the fast road.
TEST(XmlRoads, decoding_records_the_same_errors_on_both)
{
    random_source random{number_from("INV_SEED", 2)};
    const uint64_t rounds = number_from("INV_ROUNDS", usual_rounds) / 10;
    for (uint64_t i = 0; i < rounds && !HasFailure(); ++i) {
        const auto kind = static_cast<document_kind>(draw_below(random, document_kind_count));
        const std::string valid = random_document(next_random(random), kind);
        const std::string document =
            one_in(random, 2) ? damaged(valid, random) : mutate(valid, next_random(random)).document;
        const std::string expected = errors_of(document, kind, {true, 0});
        for (size_t chunk_size : {size_t{0}, 1 + draw_below(random, 300)})
            EXPECT_EQ(errors_of(document, kind, {false, chunk_size}), expected) << readable(document);
    }
}

// What the roads once differed in, or would without a rule of its own.
const std::string documents[] = {
    // Behind the root element: expat's names for what may not stand there.
    "<a/>x",
    "<a/>\"literal\n\x01\"",
    "<a/>'never closed\n",
    "<a/><b>",
    "<a/></a>",
    "<a/><",
    "<a/><!",
    "<a/><!\xC6--->",
    "<a/><!-",
    "<a/><!--\n",
    "<a/><!DOCTYPE a>",
    "<a/><?xml version='1.0'?>",
    "<a/><?pi",
    "<a/>\r\n<!-J-->",
    "<a/>]",
    "<a/>%\n",
    "<a/>\n\n&amp;",
    "<a/>\xC3",
    "<a/>\xEF\xBB\xBF",
    "<a/>" + std::string(300, '\n') + "name-that-goes-on-" + std::string(300, 'x') + "\x01",
    "<a/>\"" + std::string(89, '\n') + "\"1",
    "<a/>'" + std::string(2000, 'x') + "'1",
    "<a/><!--" + std::string(200, '-') + ">name\x01",
    "<a/><!--" + std::string(197, 'x') + "-->" + std::string(40, 'x') + "\x01",
    // Where an end comes too early.
    "<a>",
    "<a>\n\r",
    "<a>\n text \r",
    "<a>\n text",
    "<a>]",
    "<a>]]",
    "<a>]]\r",
    "<a>&",
    "<a>&a",
    "<a>&#",
    "<a>\n<!",
    "<a>\n<!-",
    "<a>\n<!--",
    "<a>\n<![",
    "<a>\n<![CDA",
    "<a>\n<![CDATA",
    "<a>\n<![CDX",
    "<a>\n<![CDXYZ[",
    "<a>\n<![CDATA[",
    "<a>\n<![CDATA[ \n ",
    "<a>\n<![CDATA[ \n\r",
    "<a>\n<![CDATA[ \nx\r",
    "<a>\n<![CDATA[]",
    "<a>\n<![CDATA[]]",
    "<a>\n<![CDATA[]]]",
    "<a>\n<![CDATA[x]]\x0B",
    "<a>\n<![CDATA[]\x0B",
    "<a>\n<![C\xEF\xBB",
    "<a>\n<![\xCA",
    "<a>\n<![CDATA\xC3",
    "<a>\n<![CDATA[]\xC3",
    "<a>\n<![CDATA[x\xE2\x82",
    "<a>\n</a",
    "<a>\n</a\n",
    "<a>\n<b c='\n",
    "<a>\n<?pi \n",
    // Within a character.
    "<a>\xC3",
    "<a>x\n\xE2\x82",
    "<a>\n</a\xC2",
    "<a>\n<b c='\n\xF0\x9F",
    "<a><?p:i \xC3",
    "<a>\n<!-- \xE2",
    "<a>\xC0",
    "<a>\xC1\x80</a>",
    "<a>\xC0",
    "<a>\xF5",
    "<a>\xE0\x41",
    // Mistakes in the middle.
    "<a>text]]></a>",
    "<a>text\n]]></a>",
    "<a>text\rmore]]></a>",
    "<a>text&amp;more]]></a>",
    "<a>text<![CDATA[]]>]]></a>",
    "<a>]]]></a>",
    "<a>\n<![CDATA[ \n text\x01]]></a>",
    "<a>\n<![CDATA[ \n \x01]]></a>",
    "<a>\n<b c='1'\n d='&unknown;'/></a>",
    "<a>\n<b c='1'\n d='&#0;'/></a>",
    "<a>\n<b c='&#0;'\n c='&unknown;'/></a>",
    "<a>\n<b c='1'\n\n c='&unknown;'/></a>",
    "<a>\n<?xml version='1.0'?></a>",
    "<a>\n<?XML?></a>",
    // In front of the root element.
    "",
    "\n",
    "\n<",
    "\n<1/>",
    "\n<?xml version='1.0'?><a/>",
    "<?xml version='1.1'?>\n<a/>x",
    "<?xml version='1.0' encoding='x'?>\n<a/>",
    "\xEF\xBB\xBF",
    "\xEF\xBB\xBF\n<a>\xFF</a>",
    // A leaf's end is read along with its tag.
    "<a><b>1</b><b> </b><b></b><b>\t1 </b>2<b>]</b><b>&amp;</b><b>\r\n1</b><b\n>1</b\n></a>",
    "<a>1</a>x",
    "<a>1</a \n",
    "<a>\n<b>1</c></a>",
};

TEST(XmlRoads, agree_on_what_they_once_differed_in)
{
    for (const std::string &document : documents) {
        for (uint64_t seed = 0; seed < 6; ++seed)
            expect_agreement(document, seed);
    }
}

TEST(XmlRoads, agree_on_every_prefix_of_a_document_that_has_everything)
{
    const std::string document =
        "\xEF\xBB\xBF<?xml version='1.0'?>\r\n<!-- c --><a xmlns:p='u' b=\"1\" p:c = "
        "'&#x41;&lt;\n\r\n\xC3\xBC'\n  d=''><b a=\"x\"/>\r text &amp; \xE2\x82\xAC"
        "<![CDATA[ ]]]>\r\n<b>1</b><?p i?>]] <p:\xC3\xA9t\xC3\xA9>\xF0\x9F\x98\x80"
        "</p:\xC3\xA9t\xC3\xA9 ></a>\n<!-- -->\r\n<?p?>";
    for (size_t length = 0; length <= document.size(); ++length)
        expect_agreement(document.substr(0, length), length);
}

TEST(XmlRoads, agree_on_tokens_longer_than_any_piece)
{
    const std::string big(300000, 'x');
    const std::string lines = [] {
        std::string text;
        for (int i = 0; i < 30000; ++i)
            text += "\xC3\xBC line\r\n";
        return text;
    }();
    for (const std::string &document :
         {"<a>" + big + "<b c='" + big + "'/>" + lines + "</a>",
          "<a c='" + lines + "' d='&amp;'>" + lines + "<b/>]]></a>",
          "<a><![CDATA[" + lines + "]]><!--" + lines + "--><?p " + lines + "?><b/>&",
          "<a/>\"" + lines + "\x01\""}) {
        const size_t sizes[] = {0, 64, 4096};
        EXPECT_EQ(compare_roads(document, sizes, 1), "") << document.substr(0, 20);
    }
}

}  // namespace
