// ID EEPROMs.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "records/component_list.h"

using namespace inv;

namespace
{

void fill_texts(sch_ideeprom_type *record, const BaseIdEEPROMType_2 &own)
{
    const auto &has = own.has;
    auto &mask = record->field_present;
    copy_optional_text(has.CLEICodeNum, record->clei_code_num, own.CLEICodeNum, mask,
                       SCH_IDEEPROM_HAS_CLEI_CODE_NUM);
    copy_optional_text(has.manufacturerID, record->manufacturer_id, own.manufacturerID, mask,
                       SCH_IDEEPROM_HAS_MANUFACTURER_ID);
    copy_optional_text(has.vendorName, record->vendor_name, own.vendorName, mask,
                       SCH_IDEEPROM_HAS_VENDOR_NAME);
    copy_optional_text(has.vendorPN, record->vendor_pn, own.vendorPN, mask, SCH_IDEEPROM_HAS_VENDOR_PN);
    copy_optional_text(has.PCBRevNumber, record->pcb_rev_number, own.PCBRevNumber, mask,
                       SCH_IDEEPROM_HAS_PCB_REV_NUMBER);
    copy_optional_text(has.PCBSerialNumber, record->pcb_serial_number, own.PCBSerialNumber, mask,
                       SCH_IDEEPROM_HAS_PCB_SERIAL_NUMBER);
    copy_optional_text(has.yearMD, record->year_md, own.yearMD, mask, SCH_IDEEPROM_HAS_YEAR_MD);
    copy_optional_text(has.monthMD, record->month_md, own.monthMD, mask, SCH_IDEEPROM_HAS_MONTH_MD);
    copy_optional_text(has.dayMD, record->day_md, own.dayMD, mask, SCH_IDEEPROM_HAS_DAY_MD);
    copy_optional_text(has.lot, record->lot, own.lot, mask, SCH_IDEEPROM_HAS_LOT);
    copy_optional_text(has.PID, record->pid, own.PID, mask, SCH_IDEEPROM_HAS_PID);
    copy_optional_text(has.VID, record->vid, own.VID, mask, SCH_IDEEPROM_HAS_VID);
    copy_optional_text(has.PN, record->pn, own.PN, mask, SCH_IDEEPROM_HAS_PN);
    copy_optional_text(has.rev, record->rev, own.rev, mask, SCH_IDEEPROM_HAS_REV);
}

}  // namespace

uint32_t parser_retrieve_base_ideeprom_data(sch_ideeprom_type *record, const BaseIdEEPROMType *from,
                                            sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::ideeprom_null>();
        return 0;
    }
    parser_retrieve_base_entity_data(&record->base, &from->base, parent);
    const auto &own = from->ext;
    auto &mask = record->field_present;
    record->eeprom_type = from->eepromType;
    copy_optional(own.has.hardwareVersion, record->hardware_version, own.hardwareVersion, mask,
                  SCH_IDEEPROM_HAS_HARDWARE_VERSION);
    copy_optional(own.has.size, record->size, own.size, mask, SCH_IDEEPROM_HAS_SIZE);
    fill_texts(record, own);
    copy_optional(own.has.checkSum, record->check_sum, own.checkSum, mask, SCH_IDEEPROM_HAS_CHECK_SUM);
    copy_optional(own.has.boardID, record->board_id, own.boardID, mask, SCH_IDEEPROM_HAS_BOARD_ID);
    return 0;
}

namespace
{

struct ideeprom {
    using record = sch_ideeprom_type;
    using decoded = BaseIdEEPROMType;
    using null_list = msg::ideeprom_list_null;
    using no_memory = msg::ideeprom_list_no_memory;
    static constexpr auto value = plain_value<BaseIdEEPROMType>;
    static constexpr auto fill = parser_retrieve_base_ideeprom_data;
};

}  // namespace

uint32_t parser_retrieve_base_ideeprom_data_list(sch_ideeprom_type **head, const xb_data_list *list,
                                                 sch_base_entity_type *parent)
{
    return append_list<ideeprom>(head, list, parent);
}

void inv_schema_free_ideeprom_data(sch_ideeprom_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_base_entity_data(&record->base);
}

void inv_schema_free_ideeprom_data_list(sch_ideeprom_type *first)
{
    free_list(first, inv_schema_free_ideeprom_data);
}
