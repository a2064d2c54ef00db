// Limits of measured values that do not rise from the critical low to the critical high one.
#include <array>

#include "checks.h"

namespace
{

using namespace invctl::check;

struct limit {
    const char *name;
    int32_t BaseThresholdType::*value;
};

constexpr std::array<limit, 6> limits = {{
    {"criticalLow", &BaseThresholdType::criticalLow},
    {"majorLow", &BaseThresholdType::majorLow},
    {"minorLow", &BaseThresholdType::minorLow},
    {"minorHigh", &BaseThresholdType::minorHigh},
    {"majorHigh", &BaseThresholdType::majorHigh},
    {"criticalHigh", &BaseThresholdType::criticalHigh},
}};

std::string told(const limit &each, const BaseThresholdType &threshold)
{
    return std::string(each.name) + " " + std::to_string(threshold.*each.value);
}

// One finding for each set of limits, at the first that is below the one before it.
void check_limits(const checked_document &document, const entity &of, const BaseThresholdType &threshold,
                  finding_list &found)
{
    for (size_t i = 1; i < limits.size(); ++i) {
        const int32_t &value = threshold.*limits[i].value;
        const int32_t &before = threshold.*limits[i - 1].value;
        if (value >= before)
            continue;
        report(found, document, &of, &value,
               told(limits[i], threshold) + " is below " + told(limits[i - 1], threshold))
            .hint = "limits rise: criticalLow, majorLow, minorLow, minorHigh, majorHigh, criticalHigh";
        return;
    }
}

}  // namespace

namespace invctl::check
{

void check_threshold_order(const checked_document &document, finding_list &found)
{
    for (const entity &each : document.entities) {
        if (each.kind == entity_kind::sensor) {
            const auto &sensor = *static_cast<const BaseSensorType *>(each.record);
            if (sensor.ext.has.threshold)
                check_limits(document, each, sensor.ext.threshold, found);
        } else if (each.kind == entity_kind::optics) {
            const OpticsType_2 &optics = static_cast<const OpticsType *>(each.record)->ext;
            for (const BaseThresholdType *threshold :
                 {&optics.sensorLosThresholds, &optics.sensorBiasThresholds, &optics.sensorThermoThresholds,
                  &optics.sensorVoltageThresholds})
                check_limits(document, each, *threshold, found);
        }
    }
}

}  // namespace invctl::check
