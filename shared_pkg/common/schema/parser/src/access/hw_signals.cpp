// Hardware registers and signals.
#include "inv_parser/record_builders.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "frame/trace.h"

using namespace inv;

uint32_t parser_retrieve_hw_reg_data(sch_hw_reg_type *record, const HardwareRegistersType *from)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::hw_reg_null>();
        return 0;
    }
    copy_optional(from->has.wordOffset, record->word_offset, from->wordOffset, record->field_present,
                  SCH_HW_REG_HAS_WORD_OFFSET);
    copy_optional(from->has.bitNumber, record->bit_number, from->bitNumber, record->field_present,
                  SCH_HW_REG_HAS_BIT_NUMBER);
    return 0;
}

uint32_t parser_retrieve_hw_signals_data(sch_hw_signals_type *record, const HwSignalsType *from)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::hw_signals_null>();
        return 0;
    }
    record->direct = from->direct;
    parser_retrieve_hw_reg_data(&record->alert, &from->alert);
    parser_retrieve_hw_reg_data(&record->present, &from->present);
    parser_retrieve_hw_reg_data(&record->reset, &from->reset);
    if (from->has.i2cPath) {
        parser_retrieve_i2c_sequence_data(&record->i2c_path, &from->i2cPath);
        mark_present(record->field_present, SCH_HW_SIGNALS_HAS_I2C_PATH);
    }
    return 0;
}
