// Bays for power entry modules.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_pem_bay_data(sch_pem_bay_type *record, const PemBayType *from,
                                      sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::pem_bay_null>();
        return 0;
    }
    parser_retrieve_base_container_data(&record->container, &from->base, parent);
    if (from->ext.has.i2cSensorAccess) {
        parser_retrieve_base_entity_data(&record->sensor_access,
                                         static_cast<const BaseEntityType *>(from->ext.i2cSensorAccess.value),
                                         &record->container.base);
        mark_present(record->field_present, SCH_PEM_BAY_HAS_SENSOR_ACCESS);
    }
    return 0;
}

namespace
{

struct pem_bay {
    using record = sch_pem_bay_type;
    using decoded = PemBayType;
    using null_list = msg::pem_bay_list_null;
    using no_memory = msg::pem_bay_list_no_memory;
    static constexpr auto value = plain_value<PemBayType>;
    static constexpr auto fill = parser_retrieve_pem_bay_data;
};

}  // namespace

uint32_t parser_retrieve_pem_bay_data_list(sch_pem_bay_type **head, const xb_data_list *list,
                                           sch_base_entity_type *parent)
{
    return append_list<pem_bay>(head, list, parent);
}

void inv_schema_free_pem_bay_data(sch_pem_bay_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_container_data(&record->container);
    inv_schema_free_base_entity_data(&record->sensor_access);
}

void inv_schema_free_pem_bay_data_list(sch_pem_bay_type *first)
{
    free_list(first, inv_schema_free_pem_bay_data);
}
