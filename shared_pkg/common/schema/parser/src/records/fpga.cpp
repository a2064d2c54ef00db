// FPGAs.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "records/component_list.h"

using namespace inv;

namespace
{

void fill_versions(sch_fpga_type *record, const BaseFPGAType_2 &own)
{
    const auto &has = own.has;
    auto &mask = record->field_present;
    copy_optional(has.hardwareVersionMajor, record->hw_version_major, own.hardwareVersionMajor, mask,
                  SCH_FPGA_HAS_HW_VERSION_MAJOR);
    copy_optional(has.hardwareVersionMinor, record->hw_version_minor, own.hardwareVersionMinor, mask,
                  SCH_FPGA_HAS_HW_VERSION_MINOR);
    copy_optional(has.minimumHardwareVersionMajor, record->min_hw_version_major,
                  own.minimumHardwareVersionMajor, mask, SCH_FPGA_HAS_MIN_HW_VERSION_MAJOR);
    copy_optional(has.minimumHardwareVersionMinor, record->min_hw_version_minor,
                  own.minimumHardwareVersionMinor, mask, SCH_FPGA_HAS_MIN_HW_VERSION_MINOR);
    copy_optional(has.firmwareVersionMajor, record->fw_version_major, own.firmwareVersionMajor, mask,
                  SCH_FPGA_HAS_FW_VERSION_MAJOR);
    copy_optional(has.firmwareVersionMinor, record->fw_version_minor, own.firmwareVersionMinor, mask,
                  SCH_FPGA_HAS_FW_VERSION_MINOR);
    copy_optional(has.minimumFirmwareVersionMajor, record->min_fw_version_major,
                  own.minimumFirmwareVersionMajor, mask, SCH_FPGA_HAS_MIN_FW_VERSION_MAJOR);
    copy_optional(has.minimumFirmwareVersionMinor, record->min_fw_version_minor,
                  own.minimumFirmwareVersionMinor, mask, SCH_FPGA_HAS_MIN_FW_VERSION_MINOR);
    copy_optional(has.installedFirmwareVersionMajor, record->installed_fw_version_major,
                  own.installedFirmwareVersionMajor, mask, SCH_FPGA_HAS_INSTALLED_FW_VERSION_MAJOR);
    copy_optional(has.installedFirmwareVersionMinor, record->installed_fw_version_minor,
                  own.installedFirmwareVersionMinor, mask, SCH_FPGA_HAS_INSTALLED_FW_VERSION_MINOR);
}

}  // namespace

uint32_t parser_retrieve_base_fpga_data(sch_fpga_type *record, const BaseFPGAType *from,
                                        sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::fpga_null>();
        return 0;
    }
    parser_retrieve_base_entity_data(&record->base, &from->base, parent);
    const auto &own = from->ext;
    auto &mask = record->field_present;
    record->field_upgradable = own.fieldUpgradable;
    record->size = own.size;
    fill_versions(record, own);
    copy_optional(own.has.configSpiFlash, record->config_spi_flash, own.configSpiFlash, mask,
                  SCH_FPGA_HAS_CONFIG_SPI_FLASH);
    copy_optional(own.has.secureBootType, record->secure_boot_type, own.secureBootType, mask,
                  SCH_FPGA_HAS_SECURE_BOOT_TYPE);
    return 0;
}

namespace
{

struct fpga {
    using record = sch_fpga_type;
    using decoded = BaseFPGAType;
    using null_list = msg::fpga_list_null;
    using no_memory = msg::fpga_list_no_memory;
    static constexpr auto value = plain_value<BaseFPGAType>;
    static constexpr auto fill = parser_retrieve_base_fpga_data;
};

}  // namespace

uint32_t parser_retrieve_base_fpga_data_list(sch_fpga_type **head, const xb_data_list *list,
                                             sch_base_entity_type *parent)
{
    return append_list<fpga>(head, list, parent);
}

void inv_schema_free_fpga_data(sch_fpga_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_base_entity_data(&record->base);
}

void inv_schema_free_fpga_data_list(sch_fpga_type *first)
{
    free_list(first, inv_schema_free_fpga_data);
}
