// PCIe switches.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "records/component_list.h"

using namespace inv;

uint32_t parser_retrieve_base_pcie_switch_data(sch_pcie_switch_type *record, const BasePCIeSwitchType *from,
                                               sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::pcie_switch_null>();
        return 0;
    }
    parser_retrieve_base_entity_data(&record->base, &from->base, parent);
    const auto &own = from->ext;
    if (own.has.sensor) {
        parser_retrieve_base_sensor_data(&record->sensor, &own.sensor, &record->base);
        mark_present(record->field_present, SCH_PCIE_SWITCH_HAS_SENSOR);
    }
    parser_retrieve_base_fpga_data_list(&record->fpga_list, &own.fpga, &record->base);
    return 0;
}

namespace
{

struct pcie_switch {
    using record = sch_pcie_switch_type;
    using decoded = BasePCIeSwitchType;
    using null_list = msg::pcie_switch_list_null;
    using no_memory = msg::pcie_switch_list_no_memory;
    static constexpr auto value = plain_value<BasePCIeSwitchType>;
    static constexpr auto fill = parser_retrieve_base_pcie_switch_data;
};

}  // namespace

uint32_t parser_retrieve_base_pcie_switch_data_list(sch_pcie_switch_type **head, const xb_data_list *list,
                                                    sch_base_entity_type *parent)
{
    return append_list<pcie_switch>(head, list, parent);
}

void inv_schema_free_pcie_switch_data(sch_pcie_switch_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_base_entity_data(&record->base);
    inv_schema_free_sensor_data(&record->sensor);
    inv_schema_free_fpga_data_list(record->fpga_list);
}

void inv_schema_free_pcie_switch_data_list(sch_pcie_switch_type *first)
{
    free_list(first, inv_schema_free_pcie_switch_data);
}
