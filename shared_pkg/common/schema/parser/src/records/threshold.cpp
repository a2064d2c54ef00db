// Limits of sensors.
#include "inv_parser/record_builders.h"

#include "OrvelianInventorySchema.h"
#include "frame/trace.h"

using namespace inv;

uint32_t parser_retrieve_base_threshold_data(sch_threshold_type *record, const BaseThresholdType *from)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::threshold_null>();
        return 0;
    }
    record->critical_low = from->criticalLow;
    record->critical_high = from->criticalHigh;
    record->major_low = from->majorLow;
    record->major_high = from->majorHigh;
    record->minor_low = from->minorLow;
    record->minor_high = from->minorHigh;
    trace<msg::threshold_filled>(record->minor_low, record->minor_high, record->major_low, record->major_high,
                                 record->critical_low, record->critical_high);
    return 0;
}
