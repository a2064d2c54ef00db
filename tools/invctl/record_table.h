// Records described by constant tables: what each field is called, where it stands, how it reads.
#ifndef INVCTL_RECORD_TABLE_H
#define INVCTL_RECORD_TABLE_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>

#include "inv_parser/inv_parser.h"

namespace invctl
{

enum class field_kind : uint8_t {
    number,
    signed_number,
    hex,         // a register, an address or a set of bits
    flag,        // 0 or 1
    lowest_bit,  // of a word whose other bits mean nothing
    token,       // code of an enumeration
    text,        // NUL-terminated array
    nested,      // a record that belongs to this one
    list,        // records that belong to this one, linked
    child,       // a record that is an entity of its own
    children,    // such records, linked
    mask,        // the record's presence bits
    reserved,    // never written
    link,        // next record of the list this one stands in
};

struct record_table;

struct record_field {
    const char *name;
    field_kind kind;
    uint32_t offset;
    uint32_t width;
    uint32_t presence = 0;                          // bit in the mask; 0: always there
    uint32_t presence_word = 0;                     // where the bit is; 0: in the record's mask
    bool has_default = false;                       // holds a value when its bit is clear, too
    const char *(*token)(uint32_t code) = nullptr;  // names of the codes
    const record_table &(*record)() = nullptr;      // of nested records, lists and children
};

// A field that readers of the record see.
constexpr bool is_printed(const record_field &field)
{
    return field.kind != field_kind::reserved && field.kind != field_kind::link;
}

// Fields in the order of the record, everything but padding.
struct record_table {
    const char *name;
    size_t size;
    std::span<const record_field> fields;
};

// The table of each record type.
template <class Record>
const record_table &table_of();
template <>
const record_table &table_of<sch_i2c_node_type>();
template <>
const record_table &table_of<sch_node_info_type>();
template <>
const record_table &table_of<sch_i2c_dest_type>();
template <>
const record_table &table_of<sch_i2c_port_type>();
template <>
const record_table &table_of<sch_i2c_sequence_type>();
template <>
const record_table &table_of<sch_pcie_node_type>();
template <>
const record_table &table_of<sch_pcie_dest_type>();
template <>
const record_table &table_of<sch_pci_sequence_type>();
template <>
const record_table &table_of<sch_base_pcie_port_type>();
template <>
const record_table &table_of<sch_spi_dest_type>();
template <>
const record_table &table_of<sch_spi_port_type>();
template <>
const record_table &table_of<sch_hw_reg_type>();
template <>
const record_table &table_of<sch_hw_signals_type>();
template <>
const record_table &table_of<sch_power_consumer_type>();
template <>
const record_table &table_of<sch_power_producer_type>();
template <>
const record_table &table_of<sch_power_zone_type>();
template <>
const record_table &table_of<sch_power_info_type>();
template <>
const record_table &table_of<sch_base_entity_type>();
template <>
const record_table &table_of<sch_led_info_type>();
template <>
const record_table &table_of<sch_led_type>();
template <>
const record_table &table_of<sch_container_type>();
template <>
const record_table &table_of<sch_port_type>();
template <>
const record_table &table_of<sch_threshold_type>();
template <>
const record_table &table_of<sch_console_type>();
template <>
const record_table &table_of<sch_kesto_type>();
template <>
const record_table &table_of<sch_fpga_type>();
template <>
const record_table &table_of<sch_ce_port_type>();
template <>
const record_table &table_of<sch_ce_switch_port_type>();
template <>
const record_table &table_of<sch_ce_switch_type>();
template <>
const record_table &table_of<sch_ideeprom_type>();
template <>
const record_table &table_of<sch_storage_memory_map_type>();
template <>
const record_table &table_of<sch_storage_type>();
template <>
const record_table &table_of<sch_spi_flash_type>();
template <>
const record_table &table_of<sch_sensor_type>();
template <>
const record_table &table_of<sch_pem_bay_type>();
template <>
const record_table &table_of<sch_memory_type>();
template <>
const record_table &table_of<sch_container_list_type>();
template <>
const record_table &table_of<sch_i2c_chip_type>();
template <>
const record_table &table_of<sch_processor_type>();
template <>
const record_table &table_of<sch_pcie_switch_type>();
template <>
const record_table &table_of<sch_volt_margin_type>();
template <>
const record_table &table_of<sch_module_type>();
template <>
const record_table &table_of<sch_back_plane_type>();
template <>
const record_table &table_of<sch_fan_type>();
template <>
const record_table &table_of<sch_cxp_fixed_optics_type>();
template <>
const record_table &table_of<sch_chassis_type>();
template <>
const record_table &table_of<sch_pem_type>();
template <>
const record_table &table_of<sch_fan_tray_type>();
template <>
const record_table &table_of<sch_power_shelf_type>();

std::span<const record_table *const> all_record_tables();

// A member with its type, for the functions below; INVCTL_MEMBER needs the alias `record`.
template <class Type>
struct member {
    const char *name;
    size_t offset;
};
#define INVCTL_MEMBER(name)                                                                                  \
    member<decltype(record::name)>                                                                           \
    {                                                                                                        \
#name, offsetof(record, name)                                                                        \
    }

template <class Type>
constexpr record_field described(member<Type> at, field_kind kind, uint32_t presence)
{
    // NOLINTNEXTLINE(bugprone-sizeof-expression): the size of a pointer, where the field is one
    record_field field = {at.name, kind, static_cast<uint32_t>(at.offset), sizeof(Type)};
    field.presence = presence;
    return field;
}

template <class Type>
constexpr record_field number(member<Type> at, uint32_t presence = 0)
{
    static_assert(std::is_integral_v<Type>);
    return described(at, std::is_signed_v<Type> ? field_kind::signed_number : field_kind::number, presence);
}

template <class Type>
constexpr record_field hex(member<Type> at, uint32_t presence = 0)
{
    static_assert(std::is_unsigned_v<Type>);
    return described(at, field_kind::hex, presence);
}

template <class Type>
constexpr record_field flag(member<Type> at, uint32_t presence = 0)
{
    static_assert(std::is_unsigned_v<Type>);
    return described(at, field_kind::flag, presence);
}

template <class Type>
constexpr record_field token(member<Type> at, const char *(*names)(uint32_t), uint32_t presence = 0)
{
    static_assert(std::is_unsigned_v<Type>);
    record_field field = described(at, field_kind::token, presence);
    field.token = names;
    return field;
}

template <class Type>
constexpr record_field text(member<Type> at, uint32_t presence = 0)
{
    static_assert(std::is_same_v<std::remove_extent_t<Type>, char>);
    return described(at, field_kind::text, presence);
}

template <class Type>
constexpr record_field nested(member<Type> at, uint32_t presence = 0)
{
    static_assert(std::is_class_v<Type>);
    record_field field = described(at, field_kind::nested, presence);
    field.record = table_of<Type>;
    return field;
}

template <class Type>
constexpr record_field child(member<Type> at, uint32_t presence = 0)
{
    record_field field = nested(at, presence);
    field.kind = field_kind::child;
    return field;
}

template <class Type>
constexpr record_field list(member<Type *> at)
{
    record_field field = described(at, field_kind::list, 0);
    field.record = table_of<Type>;
    return field;
}

template <class Type>
constexpr record_field children(member<Type *> at)
{
    record_field field = list(at);
    field.kind = field_kind::children;
    return field;
}

template <class Type>
constexpr record_field mask(member<Type> at)
{
    static_assert(std::is_unsigned_v<Type>);
    return described(at, field_kind::mask, 0);
}

template <class Type>
constexpr record_field reserved(member<Type> at)
{
    return described(at, field_kind::reserved, 0);
}

template <class Type>
constexpr record_field link(member<Type *> at)
{
    return described(at, field_kind::link, 0);
}

constexpr record_field defaulted(record_field field)
{
    field.has_default = true;
    return field;
}

}  // namespace invctl

#endif
