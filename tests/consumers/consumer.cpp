// A C++20 client of the installed library and of its platform: the way to the small line card's first sensor.
#include <inv_parser/inv_parser.h>
#include <inv_parser/loaders.h>
#include <inv_parser/record_builders.h>
#include <inv_parser/tree_internal.h>
#include <inv_platform/avl.h>
#include <inv_platform/lookup.h>
#include <inv_platform/trace.h>
#include <inv_platform/xml_runtime.h>

#include <cstdio>
#include <memory>
#include <span>
#include <string_view>

namespace
{

// The file is asked for here as well: a client may call the platform by itself.
bool same_file(inv_xml_handle *card)
{
    const char *name = platform_get_inv_xml_file_name(14, 19, "LC-SMALL");
    return name != nullptr && std::string_view(name) == inv_parser_get_file_name(card);
}

void print_way(inv_xml_handle *card, const sch_eid_type &eid)
{
    sch_i2c_access_seq_type *way = nullptr;
    if (inv_parser_get_i2c_access_sequence_by_eid(card, &eid, &way) != 0)
        return;
    for (const auto &hop : std::span(way->hops, way->hop_count))
        std::printf("%u at 0x%02x channel %u\n", unsigned{hop.xml_instance}, unsigned{hop.device_address},
                    unsigned{hop.channel});
    inv_parser_free_i2c_access_sequence(way);
}

}  // namespace

int main()
{
    if (inv_parser_init(nullptr) != 0)
        return 1;
    inv_xml_handle *card = inv_parser_open_xml_file(0, 14, 19, "LC-SMALL");
    if (card == nullptr || !same_file(card))
        return 2;
    std::puts("opened by C++");
    sch_eid_type *first = nullptr;
    uint16_t count = 0;
    if (inv_parser_get_eid_by_type(card, ORVL_ENTITY_OWNER_TYPE_ALL, ORVL_ENTITY_TYPE_SENSOR, &count,
                                   &first) != 0)
        return 3;
    std::unique_ptr<sch_eid_type, void (*)(sch_eid_type *)> sensors(first, inv_parser_free_eid_tree);
    if (count != 0)
        print_way(card, *sensors);
    return inv_parser_close_xml_file(card) == 0 ? 0 : 4;
}
