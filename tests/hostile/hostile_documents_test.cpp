// Documents made to cost much are refused or answered at the cost of a plain document of their size. The
// bounds stand in docs/hostile-documents.md.
#include "hostile/document_cost.h"
#include "hostile/hostile_texts.h"
#include "inv_platform/xml_runtime.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>

namespace
{

using namespace hostile;

// What a document type may make of a small document, whatever its size.
constexpr uint64_t free_expansion = uint64_t{8} << 20;

struct hostile_case {
    const char *name;
    std::string (*text)();
    int64_t entities;
    double most_time;    // times that of a plain document of the same size
    double most_memory;  // likewise
    questions ask = nullptr;
    uint64_t octets_of_plain = 0;  // 0: as many as the hostile document has
};

// Each xml instance, and each entity by its EID.
void all_ways(inv_xml_handle *handle)
{
    for (int32_t instance = 1; instance <= 0xffff; ++instance) {
        sch_i2c_access_seq_type *way = nullptr;
        answers_found += inv_parser_get_i2c_access_sequence_by_xml_inst(handle, instance, &way) == 0;
        inv_parser_free_i2c_access_sequence(way);
    }
}

void all_entities(inv_xml_handle *handle)
{
    sch_eid_type *all = nullptr;
    uint32_t count = 0;
    inv_parser_get_eid_tree(handle, 1, nullptr, &all, &count);
    inv_parser_free_eid_tree(all);
    inv_parser_get_eid_tree(handle, ORVL_ENTITY_OWNER_TYPE_ALL, nullptr, &all, &count);
    for (uint32_t i = 0; i < count; ++i) {
        sch_base_entity_type *record = nullptr;
        answers_found += inv_parser_get_eid_data(handle, &record, all[i]) == 0;
    }
    inv_parser_free_eid_tree(all);
}

const std::string board =
    "<module name=\"b\" type=\"ORVL_ENTITY_TYPE_MODULE\" subtype=\"ORVL_ENTITY_SUBTYPE_MODULE_UNKNOWN\" "
    "instance=\"%\" replicationScope=\"ORVL_REPLICATION_TYPE_NODE\" xmlInstance=\"2\"/>";

std::string one_board()
{
    std::string one = board;
    return one.replace(one.find('%'), 1, "7");
}

std::string board_with_port(const std::string &destinations)
{
    return "<i2c name=\"x\" type=\"ORVL_ENTITY_TYPE_MODULE\" subtype=\"ORVL_ENTITY_SUBTYPE_MODULE_I2C_MUX\" "
           "instance=\"0\" replicationScope=\"ORVL_REPLICATION_TYPE_NODE\" xmlInstance=\"3\"><i2cPort>"
           "<portType>ORVL_PORT_TYPE_MUX</portType><channelNumber>01</channelNumber>" +
           destinations + "</i2cPort></i2c>";
}

// A valid text of any length.
std::string with_text(const std::string &text, const std::string &prolog = "")
{
    return module_text(prolog, "",
                       board_with_port("<dstInfo><description>" + text +
                                       "</description><applicable>ORVL_CTRL_SLOT_ANY</applicable><nodeInfo>"
                                       "<nodeType>ORVL_NODE_TYPE_ENTITY</nodeType></nodeInfo></dstInfo>"));
}

const hostile_case cases[] = {
    {"laughs_in_a_value", [] { return with_text("&e9;", laughs_of("lol")); }, refused, 4, 4, nullptr,
     free_expansion},
    {"laughs_in_an_attribute", [] { return module_text(laughs_of("lol"), " description='&e9;'", ""); },
     refused, 8, 4, nullptr, free_expansion},
    {"laughs_of_elements", [] { return module_text(laughs_of("<led/>"), "", "&e9;"); }, refused, 4, 4,
     nullptr, free_expansion},
    {"quadratic_expansion",
     [] {
         return with_text(repeated("&a;", million / 4),
                          "<!DOCTYPE module [<!ENTITY a '" + repeated("x", million) + "'>]>");
     },
     refused, 4, 4, nullptr, free_expansion},
    {"quadratic_expansion_in_attributes",
     [] {
         return module_text("<!DOCTYPE module [<!ENTITY a '" + repeated("x", million) + "'>]>",
                            " description='" + repeated("&a;", million / 4) + "'", "");
     },
     refused, 16, 20, nullptr, free_expansion},
    {"default_values",
     [] {
         return module_text("<!DOCTYPE module [<!ATTLIST module description CDATA '" + repeated("x", 100000) +
                                "'>]>",
                            "", numbered(board, 20000));
     },
     refused, 4, 4},
    {"external_entity",
     [] { return with_text("&x;", "<!DOCTYPE module [<!ENTITY x SYSTEM 'file:///proc/self/status'>]>"); },
     refused, 4, 4, nullptr, free_expansion},
    {"parameter_entities",
     [] {
         return module_text("<!DOCTYPE module [<!ENTITY % a '" + repeated("x", 1000) + "'>" +
                                numbered("<!ENTITY % b% '&#37;a;&#37;a;'>", 900) + "]>",
                            "", "");
     },
     refused, 4, 4, nullptr, free_expansion},
    {"million_attributes", [] { return module_text("", numbered(" a%='1'", million), ""); }, refused, 20, 12},
    {"million_attributes_behind_a_document_type",
     [] { return module_text("<!DOCTYPE module>", numbered(" a%='1'", million), ""); }, refused, 100, 24},
    {"million_attributes_of_one_hash",
     [] { return module_text("", numbered(" a%-and-sixteen-octets='1'", million), ""); }, refused, 30, 8},
    {"million_times_one_attribute", [] { return module_text("", repeated(" a='1'", million), ""); }, refused,
     20, 8},
    {"million_namespaces", [] { return module_text("", numbered(" xmlns:n%='u'", million), ""); }, 1, 20, 12},
    {"million_siblings", [] { return module_text("", "", repeated(one_board(), million)); }, million + 1, 12,
     16},
    {"siblings_of_one_eid", [] { return module_text("", "", repeated(one_board(), million / 10)); },
     million / 10 + 1, 12, 16, all_entities},
    {"siblings_of_many_eids", [] { return module_text("", "", numbered(board, 32768)); }, 32769, 12, 16,
     all_entities},
    {"million_siblings_that_are_unknown", [] { return module_text("", "", repeated("<x/>", million)); },
     refused, 4, 4},
    {"hundred_thousand_deep", [] { return module_text("", "", repeated("<module>", 100000)); }, refused, 4,
     4},
    {"hundred_thousand_deep_behind_a_document_type",
     [] { return module_text("<!DOCTYPE module>", "", repeated("<module>", 100000)); }, refused, 4, 4},
    {"attribute_of_64_mb",
     [] { return module_text("", " description='" + repeated("x", 64 * million) + "'", ""); }, 1, 4, 4},
    {"attribute_of_64_mb_behind_a_document_type",
     [] {
         return module_text("<!DOCTYPE module>", " description='" + repeated("x", 64 * million) + "'", "");
     },
     1, 8, 8},
    {"value_of_64_mb", [] { return with_text(repeated("x", 64 * million)); }, 2, 4, 4},
    {"million_references", [] { return with_text(repeated("&#65;&amp;", million)); }, 2, 4, 4},
    {"million_comments_in_a_value", [] { return with_text(repeated("a<!---->", million)); }, 2, 4, 4},
    {"instances_in_loops",
     [] {
         std::string loops;
         for (unsigned i = 1; i <= 9999; ++i)
             loops += mux(i, i % 9999 + 1, 1);
         return module_text("", "", loops);
     },
     10000, 4, 4, all_ways},
    {"instances_that_lead_to_all",
     [] {
         std::string graph;
         for (unsigned i = 1; i <= 300; ++i)
             graph += mux(i, 1, 300);
         return module_text("", "", graph);
     },
     301, 4, 4, all_ways},
    {"one_port_to_many_slots",
     [] {
         return module_text("", "",
                            board_with_port(numbered("<dstInfo><description>d</description><applicable>"
                                                     "ORVL_CTRL_SLOT_0</applicable><nodeInfo><nodeType>"
                                                     "ORVL_NODE_TYPE_LINECARD</nodeType><nodePosition>%"
                                                     "</nodePosition></nodeInfo></dstInfo>",
                                                     30000)));
     },
     2, 4, 4},
    {"one_instance_for_all",
     [] {
         std::string graph;
         for (unsigned i = 1; i <= 20000; ++i)
             graph += mux(7, 7, 1);
         return module_text("", "", graph);
     },
     20001, 4, 4, all_ways},
};

void PrintTo(const hostile_case &each, std::ostream *out)
{
    *out << each.name;
}

class HostileDocuments : public testing::TestWithParam<hostile_case>
{
};

INSTANTIATE_TEST_SUITE_P(All, HostileDocuments, testing::ValuesIn(cases),
                         [](const auto &about) { return std::string(about.param.name); });

TEST_P(HostileDocuments, cost_no_more_than_some_times_a_plain_document)
{
    const hostile_case &each = GetParam();
    document of_hostile = make_document(each.text());
    document plain =
        make_document(plain_text(each.octets_of_plain == 0 ? of_hostile.octets : each.octets_of_plain));
    ASSERT_FALSE(of_hostile.path.empty());
    const comparison found = compare(of_hostile, 3, plain, each.ask);
    remove_document(&of_hostile);
    remove_document(&plain);
    printf("%-45s %8.1f ms %8.1f MB, plain %8.1f ms %8.1f MB, answers %llu of %llu\n", each.name,
           found.of_hostile.seconds * 1e3, static_cast<double>(found.of_hostile.peak_octets) / 1e6,
           found.of_plain.seconds * 1e3, static_cast<double>(found.of_plain.peak_octets) / 1e6,
           static_cast<unsigned long long>(found.of_hostile.answers),
           static_cast<unsigned long long>(found.of_plain.answers));
    EXPECT_EQ(found.of_hostile.entities, each.entities);
    ASSERT_GT(found.of_plain.entities, 0);
    if (is_instrumented())
        return;
    EXPECT_LE(found.of_hostile.seconds, found.of_plain.seconds * each.most_time);
    EXPECT_LE(static_cast<double>(found.of_hostile.peak_octets),
              static_cast<double>(found.of_plain.peak_octets) * each.most_memory);
}

// Begins an attribute that goes on with zero octets, which take no room.
document attribute_of_zeros(uint64_t octets)
{
    std::string begin = module_text("", " description='", "");
    begin.resize(begin.find("description='") + strlen("description='"));
    return make_sparse_document(begin, octets);
}

void expect_refused_at_once(const document &huge)
{
    document plain = make_document(plain_text(million));
    const comparison found = compare(huge, 3, plain, nullptr);
    remove_document(&plain);
    EXPECT_EQ(found.of_hostile.entities, refused);
    EXPECT_GT(found.of_plain.entities, 0);
    if (!is_instrumented()) {
        EXPECT_LE(found.of_hostile.seconds, found.of_plain.seconds * 4);
        EXPECT_LE(found.of_hostile.peak_octets, found.of_plain.peak_octets * 4);
    }
}

// A gigabyte that is declared and not there is never looked for: zero octets are no text.
TEST(HostileDocument, with_an_attribute_of_zeros_up_to_the_limit_is_refused_at_its_begin)
{
    document sparse = attribute_of_zeros(XB_MAX_FILE_SIZE);
    expect_refused_at_once(sparse);
    remove_document(&sparse);
}

TEST(HostileDocument, with_an_attribute_of_two_gigabytes_is_refused_unread)
{
    document sparse = attribute_of_zeros(uint64_t{2} << 30);
    expect_refused_at_once(sparse);
    xb_context context = {};
    ASSERT_EQ(rtXmlInitContext(&context), XB_OK);
    EXPECT_EQ(rtxStreamFileCreateReader(&context, sparse.path.c_str()), XB_E_FILE_OPEN);
    rtxFreeContext(&context);
    remove_document(&sparse);
}

// A document of so many octets that is one attribute.
document one_attribute(const char *prolog, uint64_t octets)
{
    const uint64_t rest = module_text(prolog, " description=''", "").size();
    const std::string value(octets - rest, 'x');
    return make_document(module_text(prolog, " description='" + value + "'", ""));
}

struct long_attribute {
    const char *prolog;
    int64_t entities;
    double most_time;  // as above
    double most_memory;
};

// Takes 9 GB of memory and a minute, so it runs where INV_SOAK asks for it. The plain document has a
// sixteenth of the octets, which is counted sixteen times.
TEST(HostileDocument, with_an_attribute_as_long_as_may_be_costs_as_much_for_each_octet_as_a_short_one)
{
    if (getenv("INV_SOAK") == nullptr)
        GTEST_SKIP() << "set INV_SOAK to run it";
    constexpr uint64_t part = 16;
    document plain = make_document(plain_text(XB_MAX_FILE_SIZE / part));
    const cost of_plain = cost_of(plain, 3, nullptr);
    remove_document(&plain);
    ASSERT_GT(of_plain.entities, 0);
    for (const long_attribute &each : {long_attribute{"", 1, 4, 4}, {"<!DOCTYPE module>", 1, 8, 8}}) {
        document huge = one_attribute(each.prolog, XB_MAX_FILE_SIZE);
        const cost found = cost_of(huge, 3, nullptr);
        remove_document(&huge);
        printf("%-20s %.1f s, %.1f GB, plain %.1f s, %.1f GB\n", each.prolog, found.seconds,
               static_cast<double>(found.peak_octets) / 1e9, of_plain.seconds * part,
               static_cast<double>(of_plain.peak_octets) * part / 1e9);
        EXPECT_EQ(found.entities, each.entities);
        EXPECT_LE(found.seconds, of_plain.seconds * part * each.most_time);
        EXPECT_LE(static_cast<double>(found.peak_octets),
                  static_cast<double>(of_plain.peak_octets) * part * each.most_memory);
    }
    document beyond = one_attribute("", uint64_t{XB_MAX_FILE_SIZE} + 1);
    EXPECT_EQ(cost_of(beyond, 3, nullptr).entities, refused);
    remove_document(&beyond);
}

}  // namespace
