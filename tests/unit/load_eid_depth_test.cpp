// Documents as deep as an EID, and one deeper.
#include "inv_parser/inv_parser.h"

#include "unit/load_world.h"

#include <gtest/gtest.h>

using namespace load_world;

namespace
{

// Modules within each other; the top one has instance 0, each further one the next.
std::string nested_modules(int depth)
{
    std::string nested;
    for (int level = depth; level-- > 0;)
        nested = "<module name=\"level\" type=\"ORVL_ENTITY_TYPE_MODULE\" "
                 "subtype=\"ORVL_ENTITY_SUBTYPE_MODULE_MSC\" "
                 "instance=\"" +
                 std::to_string(level) + "\" replicationScope=\"ORVL_REPLICATION_TYPE_NODE\" xmlInstance=\"" +
                 std::to_string(level + 1) + "\" entityOwner=\"ORVL_ENTITY_OWNER_TYPE_SHELF\">" + nested +
                 "</module>";
    return nested;
}

inv_xml_handle *open_nested_modules(int depth)
{
    std::string path = scratch_file("nested.xml", nested_modules(depth));
    return open_file(generations()[0], path, module_document().pi_hw_type);
}

// The EID of the module at the bottom, as the query by type answers it.
sch_eid_type bottom_eid(inv_xml_handle *handle, uint32_t owner, int depth)
{
    sch_eid_type found = {};
    sch_eid_type *eids = nullptr;
    uint16_t count = 0;
    EXPECT_EQ(inv_parser_get_eid_by_type(handle, owner, ORVL_ENTITY_TYPE_MODULE, &count, &eids), 0u);
    EXPECT_EQ(count, depth);
    if (count == depth)
        found = eids[count - 1];
    inv_parser_free_eid_tree(eids);
    return found;
}

// Opens, asks for the bottom module with and without an owner, finds it again, closes.
void expect_bottom(int depth, int first_level)
{
    fresh_library library;
    inv_xml_handle *handle = open_nested_modules(depth);
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(entity_count(handle), static_cast<uint32_t>(depth));
    for (uint32_t owner : {ORVL_ENTITY_OWNER_TYPE_ALL, ORVL_ENTITY_OWNER_TYPE_SHELF}) {
        sch_eid_type eid = bottom_eid(handle, owner, depth);
        EXPECT_EQ(eid.depth, 16);
        EXPECT_EQ(eid.levels[0].instance, first_level);
        EXPECT_EQ(eid.levels[15].instance, depth - 1);
        sch_base_entity_type *entity = nullptr;
        ASSERT_EQ(inv_parser_get_eid_data(handle, &entity, eid), 0u);
        EXPECT_EQ(entity->instance, depth - 1);
    }
    inv_parser_close_xml_file(handle);
    EXPECT_EQ(library.live(), 0u);
}

TEST(EidDepth, of_16_nested_modules_the_last_is_named_by_its_whole_path)
{
    expect_bottom(16, 0);
}

TEST(EidDepth, of_17_nested_modules_the_last_stays_in_the_tree_and_is_named_without_the_top)
{
    expect_bottom(17, 1);
}

}  // namespace
