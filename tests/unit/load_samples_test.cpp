// The documents that authors are shown, and units of unusual size, opened and closed over and over.
#include "load_world.h"

#include "inv_parser/loaders.h"
#include "support/counting_memory.h"
#include "support/fake_platform.h"
#include "support/trace_recorder.h"

#include <gtest/gtest.h>

#include <malloc.h>

namespace
{

using namespace load_world;

struct sample_case {
    const char *file;
    uint32_t pi_hw_type;
};

void PrintTo(const sample_case &sample, std::ostream *out)
{
    *out << sample.file;
}

class Samples : public testing::TestWithParam<sample_case>
{
};

INSTANTIATE_TEST_SUITE_P(All, Samples,
                         testing::Values(sample_case{"chassis", 1}, sample_case{"line_card_48", 3},
                                         sample_case{"line_card_12", 6}, sample_case{"line_card_small", 14},
                                         sample_case{"route_processor", 4}, sample_case{"fabric_card", 5},
                                         sample_case{"fan_tray", 7}, sample_case{"power_shelf", 8},
                                         sample_case{"pem", 9}, sample_case{"cxp_optics", 12}),
                         [](const auto &info) { return std::string(info.param.file); });

// Memory of this process: what the library holds, and all that the C heap has handed out (0 where a
// sanitizer has its own).
struct memory_state {
    uint64_t blocks = counting_memory::live();
    uint64_t mapped = counting_memory::mapped_octets();
    size_t heap = mallinfo2().uordblks;
    size_t heap_maps = mallinfo2().hblkhd;
};

TEST_P(Samples, opening_and_closing_a_thousand_times_leaves_memory_where_it_was_after_the_tenth)
{
    fresh_library library;
    trace_recorder::reset();
    std::string path = std::string(INV_SOURCE_DIR) + "/inventories/" + GetParam().file + ".xml";
    fake_platform::set_only_file_name(path.c_str());
    memory_state after_the_tenth;
    for (size_t i = 1; i <= 1000; ++i) {
        inv_xml_handle *handle = generations()[i % 2].open(GetParam().pi_hw_type);
        ASSERT_NE(handle, nullptr);
        ASSERT_NE(handle->root, nullptr);
        inv_parser_close_xml_file(handle);
        if (i == 10)
            after_the_tenth = memory_state();
    }
    memory_state at_the_end;
    EXPECT_EQ(at_the_end.blocks, after_the_tenth.blocks);
    EXPECT_EQ(at_the_end.mapped, after_the_tenth.mapped);
    // The C heap caches freed blocks of each size for good, up to some 20,000 octets here. A block of 64
    // octets lost in each round would show; blocks of our own are counted exactly above.
    EXPECT_LT(at_the_end.heap, after_the_tenth.heap + 990 * 64);
    EXPECT_EQ(at_the_end.heap_maps, after_the_tenth.heap_maps);
    EXPECT_EQ(library.live(), 0u);
}

// A document whose chassis has a back plane with this many bare modules.
std::string chassis_with_modules(int count)
{
    std::string text = text_of(path_of(chassis_document()));
    size_t end = text.find("</backPlane>");
    EXPECT_NE(end, std::string::npos);
    std::string modules;
    for (int i = 0; i < count; ++i)
        modules += "<module name=\"m\" type=\"ORVL_ENTITY_TYPE_MODULE\" "
                   "subtype=\"ORVL_ENTITY_SUBTYPE_MODULE_MSC\" instance=\"1\" "
                   "replicationScope=\"ORVL_REPLICATION_TYPE_NODE\" xmlInstance=\"9\"/>";
    return text.insert(end, modules);
}

TEST(Sizes, a_back_plane_of_100000_modules_is_opened_answered_and_closed)
{
    constexpr int modules = 100000;
    fresh_library library;
    trace_recorder::reset();
    std::string path = scratch_file("wide_back_plane.xml", chassis_with_modules(modules));
    inv_xml_handle *handle = open_file(generations()[0], path, 1);
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(entity_count(handle), chassis_document().entities + modules);
    int chained = 0;
    for (const sch_module_type *each = chassis_data->back_plane.module_list; each != nullptr;
         each = each->module_list)
        ++chained;
    EXPECT_GE(chained, modules);
    inv_parser_close_xml_file(handle);
    EXPECT_EQ(library.live(), 0u);
}

}  // namespace
