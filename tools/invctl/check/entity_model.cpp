#include "entity_model.h"

#include <cstring>
#include <iterator>

#include "checked_document.h"
#include "entity_words.h"

namespace
{

using namespace invctl::check;

// How much of a decoded record the library's loaders read.
enum class extent : uint8_t {
    nothing,   // not even the entity itself
    base,      // what every entity has
    declared,  // the type that the schema declares at this place, not what xsi:type adds to it
    whole
};

struct walker {
    checked_document &document;
    std::vector<size_t> parents;  // by entity; of the root its own index

    // Lists the entity and answers its index.
    size_t add(const void *record, entity_kind kind, size_t parent, extent read);
};

// What could not be decoded is a question mark.
std::string level_of(const checked_document &document, const BaseEntityType &base)
{
    sch_base_entity_type entity = {};
    entity.type = static_cast<uint8_t>(base.type);
    entity.global_subtype = static_cast<uint16_t>(base.subtype);
    entity.instance = static_cast<uint16_t>(base.instance);
    const bool has_type = place_of(document, &base.type).has_value();
    const bool has_subtype = has_type && place_of(document, &base.subtype).has_value();
    const bool has_instance = place_of(document, &base.instance).has_value();
    return (has_type ? invctl::type_word(entity) : "?") + "." +
           (has_subtype ? invctl::subtype_word(entity) : "?") + "." +
           (has_instance ? std::to_string(entity.instance) : "?");
}

size_t walker::add(const void *record, entity_kind kind, size_t parent, extent read)
{
    const size_t index = document.entities.size();
    const auto *base = static_cast<const BaseEntityType *>(record);
    entity added;
    added.base = base;
    added.record = record;
    added.kind = kind;
    added.where = place_of(document, record).value_or(place());
    added.names = shown_name(base->name);
    added.eid = level_of(document, *base);
    added.in_tree = read != extent::nothing;
    if (index != 0) {
        const entity &above = document.entities[parent];
        added.names = above.names + "/" + added.names;
        added.eid = above.eid + "/" + added.eid;
        added.in_tree = added.in_tree && above.in_tree;
    }
    document.entities.push_back(std::move(added));
    parents.push_back(parent);
    return index;
}

// Of a document with schema findings a list may hold nodes without a value.
template <class Record, class Each>
void for_each(const xb_data_list &list, Each each)
{
    for (const xb_data_node *node = list.head; node != nullptr; node = node->next)
        if (node->data != nullptr)
            each(static_cast<const Record *>(node->data));
}

// The kinds of the types that xsi:type may choose in place of a base type, by tag - 1.
struct family {
    const entity_kind *kinds;
    size_t count;
};

constexpr entity_kind container_kinds[] = {entity_kind::container, entity_kind::pem_bay};
constexpr entity_kind storage_kinds[] = {entity_kind::storage, entity_kind::spi_flash};
constexpr entity_kind port_kinds[] = {entity_kind::port, entity_kind::console};
constexpr entity_kind module_kinds[] = {entity_kind::module, entity_kind::optics, entity_kind::pem,
                                        entity_kind::fan_tray};
// In the order of BaseEntityType_type_names.
constexpr entity_kind base_kinds[] = {entity_kind::base_entity, entity_kind::led,
                                      entity_kind::container,   entity_kind::pem_bay,
                                      entity_kind::ce_port,     entity_kind::ce_port,
                                      entity_kind::fpga,        entity_kind::ideeprom,
                                      entity_kind::storage,     entity_kind::spi_flash,
                                      entity_kind::sensor,      entity_kind::i2c_chip,
                                      entity_kind::pcie_switch, entity_kind::volt_margin,
                                      entity_kind::processor,   entity_kind::memory,
                                      entity_kind::ce_switch,   entity_kind::kesto,
                                      entity_kind::port,        entity_kind::console,
                                      entity_kind::module,      entity_kind::optics,
                                      entity_kind::pem,         entity_kind::fan_tray,
                                      entity_kind::back_plane,  entity_kind::fan,
                                      entity_kind::module_test, entity_kind::craft_interface,
                                      entity_kind::chassis,     entity_kind::power_shelf};
static_assert(std::size(base_kinds) == std::size(BaseEntityType_type_names));
static_assert(std::size(module_kinds) == std::size(BaseModuleType_type_names));
static_assert(std::size(port_kinds) == std::size(BasePortType_type_names));
static_assert(std::size(storage_kinds) == std::size(BaseStorageType_type_names));
static_assert(std::size(container_kinds) == std::size(BaseContainerType_type_names));

constexpr family containers = {container_kinds, std::size(container_kinds)};
constexpr family storages = {storage_kinds, std::size(storage_kinds)};
constexpr family ports = {port_kinds, std::size(port_kinds)};
constexpr family modules = {module_kinds, std::size(module_kinds)};
constexpr family entities = {base_kinds, std::size(base_kinds)};

void walk(walker &walk_of, const void *record, entity_kind kind, size_t parent, extent read);

extent read_when(bool is_read)
{
    return is_read ? extent::whole : extent::nothing;
}

extent as_declared(extent read)
{
    return read == extent::whole ? extent::declared : read;
}

// One place of the document with everything below it. Depth is bounded by what the reader takes.
struct children {
    walker &of;
    size_t parent;

    void one(const void *record, entity_kind kind, extent read) const
    {
        walk(of, record, kind, parent, read);
    }
    void list(const xb_data_list &records, entity_kind kind, extent read) const
    {
        for_each<void>(records, [&](const void *record) { one(record, kind, read); });
    }
    void choice(const xb_choice &chosen, const family &types, extent read) const
    {
        if (chosen.value == nullptr)
            return;
        const size_t row = chosen.tag == 0 || chosen.tag > types.count ? 0 : chosen.tag - 1;
        one(chosen.value, types.kinds[row], read);
    }
    void choices(const xb_data_list &chosen, const family &types, extent read) const
    {
        for_each<xb_choice>(chosen, [&](const xb_choice *each) { choice(*each, types, read); });
    }
};

// Below a module type that the schema declares everything is read, and nothing of what xsi:type adds.
void walk_module(const children &below, const BaseModuleType &module, extent all)
{
    const BaseModuleType_2 &own = module.ext;
    below.list(own.fpga, entity_kind::fpga, all);
    below.list(own.i2c, entity_kind::i2c_chip, all);
    below.list(own.pcieSwitch, entity_kind::pcie_switch, all);
    below.list(own.sensor, entity_kind::sensor, all);
    below.list(own.voltMargin, entity_kind::volt_margin, all);
    below.list(own.storageSPI, entity_kind::spi_flash, all);
    below.choices(own.storageHDD, storages, as_declared(all));
    below.list(own.processor, entity_kind::processor, all);
    below.list(own.memory, entity_kind::memory, all);
    below.list(own.ceSwitch, entity_kind::ce_switch, all);
    below.list(own.security, entity_kind::kesto, all);
    below.list(own.console, entity_kind::console, all);
    below.choices(own.module, modules, as_declared(all));
    below.choices(own.container, containers, as_declared(all));
    below.list(own.eeprom, entity_kind::ideeprom, all);
    below.choices(own.fixedPorts, ports, as_declared(all));
    below.list(own.led, entity_kind::led, all);
}

void walk_chassis(const children &below, const ChassisEntityType &chassis, extent all)
{
    const ChassisEntityType_2 &own = chassis.ext;
    if (own.has.backPlane)
        below.one(&own.backPlane, entity_kind::back_plane, all);
    below.choice(own.ecuSlot, containers, as_declared(all));
    below.choice(own.craftInterfaceSlot, containers, as_declared(all));
    for_each<BaseContainerListType>(own.entityContainerList, [&](const BaseContainerListType *list) {
        below.choices(list->entityContainer, containers, as_declared(all));
    });
    below.list(own.led, entity_kind::led, all);
}

// Of a power shelf's modules the loader reads the first only.
void walk_power_shelf(const children &below, const PowerShelfType &shelf, extent all)
{
    const PowerShelfType_2 &own = shelf.ext;
    below.list(own.i2c, entity_kind::i2c_chip, all);
    below.list(own.eeprom, entity_kind::ideeprom, all);
    below.list(own.sensor, entity_kind::sensor, all);
    below.list(own.pemBay, entity_kind::pem_bay, all);
    const xb_data_node *first = own.module.head;
    for (const xb_data_node *node = first; node != nullptr; node = node->next) {
        const bool is_read = node == first && all == extent::whole;
        if (node->data != nullptr)
            below.choice(*static_cast<const xb_choice *>(node->data), modules,
                         as_declared(read_when(is_read)));
    }
}

void walk_back_plane(const children &below, const BackPlaneType &plane, extent all)
{
    below.list(plane.ext.eeprom, entity_kind::ideeprom, all);
    below.list(plane.ext.sensor, entity_kind::sensor, all);
    below.choices(plane.ext.module, modules, as_declared(all));
}

// A fan's modules are never read. Its sensor is required, but may be missing where the schema was not kept.
void walk_fan(const children &below, const FanType &fan, extent all)
{
    if (place_of(below.of.document, &fan.ext.sensor))
        below.one(&fan.ext.sensor, entity_kind::sensor, all);
    below.choices(fan.ext.module, modules, extent::nothing);
}

// A storage device's own ID EEPROMs are never read.
void walk_storage(const children &below, const BaseStorageType &storage, extent all)
{
    below.list(storage.ext.fpga, entity_kind::fpga, all);
    below.list(storage.ext.eeprom, entity_kind::ideeprom, extent::nothing);
}

void walk_port(const children &below, const xb_data_list &leds, const xb_choice &container, extent all)
{
    below.list(leds, entity_kind::led, all);
    below.choice(container, containers, as_declared(all));
}

void walk_pcie_switch(const children &below, const BasePCIeSwitchType &device, extent all)
{
    if (device.ext.has.sensor)
        below.one(&device.ext.sensor, entity_kind::sensor, all);
    below.list(device.ext.fpga, entity_kind::fpga, all);
}

void walk_ce_switch(const children &below, const BaseCESwitchType &device, extent all)
{
    below.list(device.ext.port, entity_kind::ce_port, all);
    below.list(device.ext.fpga, entity_kind::fpga, all);
}

void walk_craft_interface(const children &below, const BaseCraftInterfaceType &panel, extent all)
{
    below.list(panel.ext.eeprom, entity_kind::ideeprom, all);
    below.list(panel.ext.fpga, entity_kind::fpga, all);
    below.choice(panel.ext.spiFlash, storages, as_declared(all));
}

template <class Record>
const Record &as(const void *record)
{
    return *static_cast<const Record *>(record);
}

// `own`: what of the type's own content is read; `added`: what of that which it adds to a declared type.
void walk_children(const children &below, const void *record, entity_kind kind, extent own, extent added)
{
    switch (kind) {
    case entity_kind::module:
    case entity_kind::optics:
        return walk_module(below, as<BaseModuleType>(record), own);
    case entity_kind::pem:
        walk_module(below, as<BaseModuleType>(record), own);
        return below.list(as<PEMType>(record).ext.fan, entity_kind::fan, added);
    case entity_kind::fan_tray:
        walk_module(below, as<BaseModuleType>(record), own);
        return below.list(as<FanTrayType>(record).ext.fan, entity_kind::fan, added);
    case entity_kind::chassis:
        return walk_chassis(below, as<ChassisEntityType>(record), own);
    case entity_kind::power_shelf:
        return walk_power_shelf(below, as<PowerShelfType>(record), own);
    case entity_kind::back_plane:
        return walk_back_plane(below, as<BackPlaneType>(record), own);
    case entity_kind::fan:
        return walk_fan(below, as<FanType>(record), own);
    case entity_kind::storage:
    case entity_kind::spi_flash:
        return walk_storage(below, as<BaseStorageType>(record), own);
    case entity_kind::port:
    case entity_kind::console:
        return walk_port(below, as<BasePortType>(record).ext.led, as<BasePortType>(record).ext.container,
                         own);
    case entity_kind::ce_port:
        return walk_port(below, as<BaseCEPortType>(record).ext.led, as<BaseCEPortType>(record).ext.container,
                         own);
    case entity_kind::pem_bay:
        return below.choice(as<PemBayType>(record).ext.i2cSensorAccess, entities,
                            added == extent::whole ? extent::base : extent::nothing);
    case entity_kind::pcie_switch:
        return walk_pcie_switch(below, as<BasePCIeSwitchType>(record), own);
    case entity_kind::ce_switch:
        return walk_ce_switch(below, as<BaseCESwitchType>(record), own);
    case entity_kind::craft_interface:
        return walk_craft_interface(below, as<BaseCraftInterfaceType>(record), own);
    default:
        return;
    }
}

void walk(walker &walk_of, const void *record, entity_kind kind, size_t parent, extent read)
{
    const size_t index = walk_of.add(record, kind, parent, read);
    walk_children({walk_of, index}, record, kind, read_when(read >= extent::declared),
                  read_when(read == extent::whole));
}

struct root_row {
    document_kind kind;
    entity_kind record;
};

constexpr root_row roots[] = {
    {document_kind::chassis, entity_kind::chassis}, {document_kind::power_shelf, entity_kind::power_shelf},
    {document_kind::pem, entity_kind::pem},         {document_kind::fan_tray, entity_kind::fan_tray},
    {document_kind::optics, entity_kind::optics},
};

}  // namespace

namespace invctl::check
{

std::string shown_name(const char *name)
{
    // As much as the library's records keep; the rest is of no use to a client either.
    constexpr size_t limit = sizeof(sch_base_entity_type::name) - 1;
    if (name == nullptr)
        return "?";
    size_t length = strnlen(name, limit + 1);
    if (length <= limit)
        return name;
    // Whole characters only.
    for (length = limit; length > 0 && (static_cast<unsigned char>(name[length]) & 0xC0) == 0x80;)
        --length;
    return std::string(name, length) + "...";
}

void list_entities(checked_document &document)
{
    document.entities.clear();
    if (document.root == nullptr)
        return;
    walker walk_of = {document, {}};
    if (document.kind == document_kind::module)
        children{walk_of, 0}.choice({document.root_tag, const_cast<void *>(document.root)}, modules,
                                    extent::declared);
    for (const root_row &row : roots)
        if (row.kind == document.kind)
            walk(walk_of, document.root, row.record, 0, extent::whole);
    for (size_t index = 1; index < document.entities.size(); ++index)
        document.entities[index].parent = &document.entities[walk_of.parents[index]];
}

}  // namespace invctl::check
