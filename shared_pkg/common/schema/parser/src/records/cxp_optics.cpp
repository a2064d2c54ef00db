// Fixed CXP optics.
#include "inv_parser/record_builders.h"

#include "OrvelianInventorySchema.h"
#include "frame/trace.h"

using namespace inv;

namespace
{

void fill_optics_part(sch_cxp_fixed_optics_type *record, const OpticsType_2 &own)
{
    record->number_channels = static_cast<uint16_t>(own.numberChannels);
    record->sensor_per_channel = own.sensorPerChannel;
    record->xml_instance_start = static_cast<uint16_t>(own.xmlInstanceStart);
    record->summary_los_tx = own.summaryLosTx;
    record->summary_fault_tx = own.summaryFaultTx;
    record->summary_bias_tx = own.summaryBiasTx;
    record->summary_module_tx = own.summaryModuleTx;
    record->summary_los_rx = own.summaryLosRx;
    record->summary_fault_rx = own.summaryFaultRx;
    record->summary_bias_rx = own.summaryBiasRx;
    record->summary_module_rx = own.summaryModuleRx;
    parser_retrieve_base_threshold_data(&record->los_thresholds, &own.sensorLosThresholds);
    parser_retrieve_base_threshold_data(&record->bias_thresholds, &own.sensorBiasThresholds);
    parser_retrieve_base_threshold_data(&record->thermo_thresholds, &own.sensorThermoThresholds);
    parser_retrieve_base_threshold_data(&record->voltage_thresholds, &own.sensorVoltageThresholds);
}

}  // namespace

uint32_t parser_retrieve_cxp_fixed_optics_data(sch_cxp_fixed_optics_type *record, const OpticsType *from)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::cxp_optics_part_null>();
        return 0;
    }
    fill_optics_part(record, from->ext);
    return 0;
}

uint32_t parser_retrieve_cxp_fixed_optics_entity_data(sch_cxp_fixed_optics_type *record,
                                                      const OpticsType *from)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::cxp_entity_null>();
        return 0;
    }
    parser_retrieve_base_module_entity_data(&record->module, &from->base, nullptr);
    fill_optics_part(record, from->ext);
    return 0;
}
