// Texts of more octets than the library's records hold: clients read the beginning only.
#include <cstddef>
#include <cstring>
#include <span>

#include "checks.h"
#include "inv_parser/inv_parser.h"

namespace
{

using namespace invctl::check;

// Where a decoded record has a text, and how many octets of it the library keeps.
struct text_row {
    const char *name;
    size_t offset;
    size_t limit;
};

// A memory's texts are cut long before their arrays end.
constexpr size_t memory_limit = 8;

constexpr text_row base_texts[] = {
    {"name", offsetof(BaseEntityType, name), sizeof(sch_base_entity_type::name) - 1},
    {"description", offsetof(BaseEntityType, description), sizeof(sch_base_entity_type::description) - 1},
    {"oid", offsetof(BaseEntityType, oid), sizeof(sch_base_entity_type::oid) - 1},
    {"hardwareVersion", offsetof(BaseEntityType, hardwareVersion),
     sizeof(sch_base_entity_type::hw_version) - 1},
    {"softwareVersion", offsetof(BaseEntityType, softwareVersion),
     sizeof(sch_base_entity_type::sw_version) - 1},
    {"firmwareVersion", offsetof(BaseEntityType, firmwareVersion),
     sizeof(sch_base_entity_type::fw_version) - 1},
};

constexpr text_row port_texts[] = {
    {"hwBoardIdentifier", offsetof(BasePortType, ext.hwBoardIdentifier),
     sizeof(sch_port_type::hw_board_identifier) - 1},
};

constexpr size_t destination_name_limit = sizeof(sch_ce_port_type::port_dest_name) - 1;
constexpr text_row ce_port_texts[] = {
    {"CC0PortDestName", offsetof(BaseCEPortType, ext.CC0PortDestName), destination_name_limit},
    {"CC1PortDestName", offsetof(BaseCEPortType, ext.CC1PortDestName), destination_name_limit},
    {"PortDestName", offsetof(BaseCEPortType, ext.PortDestName), destination_name_limit},
};

constexpr size_t eeprom_limit = sizeof(sch_ideeprom_type::vendor_name) - 1;
constexpr text_row ideeprom_texts[] = {
    {"CLEICodeNum", offsetof(BaseIdEEPROMType, ext.CLEICodeNum), eeprom_limit},
    {"manufacturerID", offsetof(BaseIdEEPROMType, ext.manufacturerID), eeprom_limit},
    {"vendorName", offsetof(BaseIdEEPROMType, ext.vendorName), eeprom_limit},
    {"vendorPN", offsetof(BaseIdEEPROMType, ext.vendorPN), eeprom_limit},
    {"PCBRevNumber", offsetof(BaseIdEEPROMType, ext.PCBRevNumber), eeprom_limit},
    {"PCBSerialNumber", offsetof(BaseIdEEPROMType, ext.PCBSerialNumber), eeprom_limit},
    {"yearMD", offsetof(BaseIdEEPROMType, ext.yearMD), eeprom_limit},
    {"monthMD", offsetof(BaseIdEEPROMType, ext.monthMD), eeprom_limit},
    {"dayMD", offsetof(BaseIdEEPROMType, ext.dayMD), eeprom_limit},
    {"lot", offsetof(BaseIdEEPROMType, ext.lot), eeprom_limit},
    {"PID", offsetof(BaseIdEEPROMType, ext.PID), eeprom_limit},
    {"VID", offsetof(BaseIdEEPROMType, ext.VID), eeprom_limit},
    {"PN", offsetof(BaseIdEEPROMType, ext.PN), eeprom_limit},
    {"rev", offsetof(BaseIdEEPROMType, ext.rev), eeprom_limit},
};

constexpr text_row memory_texts[] = {
    {"capacity", offsetof(BaseMemoryType, ext.capacity), memory_limit},
    {"serialNumber", offsetof(BaseMemoryType, ext.serialNumber), memory_limit},
    {"firmwareVersion", offsetof(BaseMemoryType, ext.firmwareVersion), memory_limit},
};

constexpr text_row processor_texts[] = {
    {"clockSpeed", offsetof(BaseProcessorType, ext.clockSpeed), sizeof(sch_processor_type::clock_speed) - 1},
    {"cacheSizeL1", offsetof(BaseProcessorType, ext.cacheSizeL1),
     sizeof(sch_processor_type::cache_size_l1) - 1},
    {"cacheSizeL2", offsetof(BaseProcessorType, ext.cacheSizeL2),
     sizeof(sch_processor_type::cache_size_l2) - 1},
    {"cacheSizeL3", offsetof(BaseProcessorType, ext.cacheSizeL3),
     sizeof(sch_processor_type::cache_size_l3) - 1},
};

constexpr text_row i2c_sequence_texts[] = {
    {"description", offsetof(I2cSequenceType, description), sizeof(sch_i2c_sequence_type::description) - 1},
};
constexpr text_row pci_sequence_texts[] = {
    {"description", offsetof(PciSequenceType, description), sizeof(sch_pci_sequence_type::description) - 1},
};
constexpr text_row spi_destination_texts[] = {
    {"description", offsetof(SpiDestType, description), sizeof(sch_spi_dest_type::description) - 1},
};
constexpr text_row pcie_port_texts[] = {
    {"hwPinLabel", offsetof(BasePCIePortType, hwPinLabel), sizeof(sch_base_pcie_port_type::hw_pin_label) - 1},
};
constexpr text_row power_zone_texts[] = {
    {"description", offsetof(PowerZoneType, description), sizeof(sch_power_zone_type::description) - 1},
};

// What an entity of this kind has beside what every entity has.
std::span<const text_row> own_texts(entity_kind kind)
{
    switch (kind) {
    case entity_kind::port:
    case entity_kind::console:
        return port_texts;
    case entity_kind::ce_port:
        return ce_port_texts;
    case entity_kind::ideeprom:
        return ideeprom_texts;
    case entity_kind::memory:
        return memory_texts;
    case entity_kind::processor:
        return processor_texts;
    default:
        return {};
    }
}

// The texts of one entity, wherever they are in its record.
struct text_check {
    const checked_document &document;
    const entity &of;
    finding_list &found;

    void record(const void *decoded, std::span<const text_row> rows) const
    {
        for (const text_row &row : rows) {
            const char *const *text =
                reinterpret_cast<const char *const *>(static_cast<const char *>(decoded) + row.offset);
            const size_t length = *text == nullptr ? 0 : strlen(*text);
            if (length > row.limit)
                report(found, document, &of, text,
                       std::string(row.name) + " has " + std::to_string(length) +
                           " octets; the library keeps the first " + std::to_string(row.limit))
                    .hint = "shorten it to " + std::to_string(row.limit) + " octets";
        }
    }
    void records(const xb_data_list &list, std::span<const text_row> rows) const
    {
        for (const xb_data_node *node = list.head; node != nullptr; node = node->next)
            if (node->data != nullptr)
                record(node->data, rows);
    }
};

void check_ports(const text_check &texts)
{
    const BaseEntityType &base = *texts.of.base;
    if (base.has.hwSignals && base.hwSignals.has.i2cPath)
        texts.record(&base.hwSignals.i2cPath, i2c_sequence_texts);
    for (const xb_data_node *node = base.spiPort.head; node != nullptr; node = node->next)
        if (const auto *port = static_cast<const SpiPortType *>(node->data))
            texts.records(port->dstInfo, spi_destination_texts);
    texts.records(base.pciePort, pcie_port_texts);
}

void check_container_lists(const text_check &texts, const ChassisEntityType &chassis)
{
    for (const xb_data_node *node = chassis.ext.entityContainerList.head; node != nullptr;
         node = node->next) {
        const auto *list = static_cast<const BaseContainerListType *>(node->data);
        if (list == nullptr)
            continue;
        if (list->has.i2cAccess)
            texts.record(&list->i2cAccess, i2c_sequence_texts);
        if (list->has.i2cIDPROM)
            texts.record(&list->i2cIDPROM, i2c_sequence_texts);
        if (list->has.pciAccess)
            texts.record(&list->pciAccess, pci_sequence_texts);
    }
}

// What units and containers have below them that is no entity of its own.
void check_parts(const text_check &texts)
{
    const void *record = texts.of.record;
    switch (texts.of.kind) {
    case entity_kind::module:
    case entity_kind::optics:
    case entity_kind::pem:
    case entity_kind::fan_tray:
        return texts.records(static_cast<const BaseModuleType *>(record)->ext.powerInfo.powerZone,
                             power_zone_texts);
    case entity_kind::power_shelf:
        return texts.records(static_cast<const PowerShelfType *>(record)->ext.powerInfo.powerZone,
                             power_zone_texts);
    case entity_kind::chassis:
        texts.records(static_cast<const ChassisEntityType *>(record)->ext.powerInfo.powerZone,
                      power_zone_texts);
        return check_container_lists(texts, *static_cast<const ChassisEntityType *>(record));
    case entity_kind::container:
    case entity_kind::pem_bay: {
        const BaseContainerType_2 &own = static_cast<const BaseContainerType *>(record)->ext;
        if (own.has.i2cIDPROM)
            texts.record(&own.i2cIDPROM, i2c_sequence_texts);
        return;
    }
    default:
        return;
    }
}

}  // namespace

namespace invctl::check
{

void check_text_too_long(const checked_document &document, finding_list &found)
{
    for (const entity &each : document.entities) {
        // Of an entity outside of the tree there is no record.
        if (!each.in_tree)
            continue;
        const text_check texts = {document, each, found};
        texts.record(each.base, base_texts);
        texts.record(each.record, own_texts(each.kind));
        check_ports(texts);
        check_parts(texts);
    }
}

}  // namespace invctl::check
