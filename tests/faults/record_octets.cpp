#include "faults/record_octets.h"

#include "record_reader.h"
#include "record_table.h"

#include <functional>
#include <string_view>

namespace
{

using invctl::field_kind;
using invctl::record_field;
using invctl::record_table;

// The field with its value, the address in its table being its name.
void append_value(std::string &octets, const record_field &field, std::string_view value)
{
    if (value.find_first_not_of('\0') == std::string_view::npos)
        return;
    const size_t sum = std::hash<std::string_view>()(value) ^ std::hash<const void *>()(&field) * 31;
    octets.append(reinterpret_cast<const char *>(&sum), sizeof sum);
}

// Each bit by itself: part of a record has part of them.
void append_bits(std::string &octets, const record_field &field, uint64_t mask)
{
    for (; mask != 0; mask &= mask - 1) {
        const uint64_t lowest = mask & -mask;
        append_value(octets, field, {reinterpret_cast<const char *>(&lowest), sizeof lowest});
    }
}

void append_record(std::string &octets, const record_table &table, const void *record, bool with_entities);

void append_linked(std::string &octets, const record_field &field, const void *record, bool with_entities)
{
    const record_table &table = field.record();
    for (const void *each = invctl::pointer_in(field, record); each != nullptr;
         each = invctl::next_in_list(table, each))
        append_record(octets, table, each, with_entities);
}

// Documents of tests are a few levels deep.
void append_record(std::string &octets, const record_table &table, const void *record, bool with_entities)
{
    for (const record_field &field : table.fields) {
        const bool is_entity = field.kind == field_kind::child || field.kind == field_kind::children;
        if (is_entity && !with_entities)
            continue;
        const void *at = invctl::field_address(field, record);
        switch (field.kind) {
        case field_kind::reserved:
        case field_kind::link:
            break;
        case field_kind::nested:
        case field_kind::child:
            append_record(octets, field.record(), at, with_entities);
            break;
        case field_kind::list:
        case field_kind::children:
            append_linked(octets, field, record, with_entities);
            break;
        case field_kind::mask:
        case field_kind::lowest_bit:
            append_bits(octets, field, invctl::number_in(field, record));
            break;
        default:
            append_value(octets, field, {static_cast<const char *>(at), field.width});
        }
    }
}

const record_table &table_of_unit(uint32_t pi_hw_type)
{
    switch (pi_hw_type) {
    case 1:
        return invctl::table_of<sch_chassis_type>();
    case 7:
        return invctl::table_of<sch_fan_tray_type>();
    case 8:
        return invctl::table_of<sch_power_shelf_type>();
    case 9:
        return invctl::table_of<sch_pem_type>();
    case 12:
        return invctl::table_of<sch_cxp_fixed_optics_type>();
    default:
        return invctl::table_of<sch_module_type>();
    }
}

}  // namespace

namespace fault_world
{

std::string record_octets(const sch_base_entity_type &entity)
{
    std::string octets;
    append_record(octets, invctl::table_of<sch_base_entity_type>(), &entity, false);
    return octets;
}

std::string unit_octets(const inv_xml_handle &handle)
{
    std::string octets;
    append_record(octets, table_of_unit(handle.pi_hw_type), handle.root->record, true);
    return octets;
}

}  // namespace fault_world
