// Authentication chips.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_base_kesto_data(sch_kesto_type *record, const BaseKestoType *from,
                                         sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::kesto_null>();
        return 0;
    }
    parser_retrieve_base_entity_data(&record->base, &from->base, parent);
    record->is_validated = static_cast<uint8_t>(from->ext.isValidated);
    return 0;
}

namespace
{

struct kesto {
    using record = sch_kesto_type;
    using decoded = BaseKestoType;
    using null_list = msg::kesto_list_null;
    using no_memory = msg::kesto_list_no_memory;
    static constexpr auto value = plain_value<BaseKestoType>;
    static constexpr auto fill = parser_retrieve_base_kesto_data;
};

}  // namespace

uint32_t parser_retrieve_base_kesto_data_list(sch_kesto_type **head, const xb_data_list *list,
                                              sch_base_entity_type *parent)
{
    return append_list<kesto>(head, list, parent);
}

void inv_schema_free_kesto_data(sch_kesto_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_base_entity_data(&record->base);
}

void inv_schema_free_kesto_data_list(sch_kesto_type *first)
{
    free_list(first, inv_schema_free_kesto_data);
}
