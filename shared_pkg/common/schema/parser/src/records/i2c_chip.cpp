// I2C chips.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_i2c_chip_data(sch_i2c_chip_type *record, const I2cChipType *from,
                                       sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::i2c_chip_null>();
        return 0;
    }
    parser_retrieve_base_entity_data(&record->base, &from->base, parent);
    return 0;
}

namespace
{

struct i2c_chip {
    using record = sch_i2c_chip_type;
    using decoded = I2cChipType;
    using null_list = msg::i2c_chip_list_null;
    using no_memory = msg::i2c_chip_list_no_memory;
    static constexpr auto value = plain_value<I2cChipType>;
    static constexpr auto fill = parser_retrieve_i2c_chip_data;
};

}  // namespace

uint32_t parser_retrieve_i2c_chip_data_list(sch_i2c_chip_type **head, const xb_data_list *list,
                                            sch_base_entity_type *parent)
{
    return append_list<i2c_chip>(head, list, parent);
}

void inv_schema_free_i2c_chip_data(sch_i2c_chip_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_base_entity_data(&record->base);
}

void inv_schema_free_i2c_chip_data_list(sch_i2c_chip_type *first)
{
    free_list(first, inv_schema_free_i2c_chip_data);
}
