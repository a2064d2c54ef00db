// Power figures of one entity that cannot all be right.
#include <cstdio>

#include "checks.h"

namespace
{

using namespace invctl::check;

// A figure that the document may leave out.
struct figure {
    const char *name;
    bool given;
    const void *item;
    double watts;
};

std::string told(const figure &of)
{
    char text[64];
    snprintf(text, sizeof text, "%.10g", of.watts);
    return std::string(of.name) + " " + text;
}

// The lower of the two must not be the greater one.
void check_order(const checked_document &document, const entity &of, const figure &lower, const figure &upper,
                 finding_list &found)
{
    if (lower.given && upper.given && lower.watts > upper.watts)
        report(found, document, &of, lower.item, told(lower) + " is more than " + told(upper)).hint =
            "the figures rise: minPowerBudget, powerUsage, maxPowerBudget, extPowerBudget";
}

// What the entity may draw at most, as far as it is said.
figure greatest_budget(const PowerConsumerType &consumer)
{
    if (consumer.has.extPowerBudget)
        return {"extPowerBudget", true, &consumer.extPowerBudget, consumer.extPowerBudget};
    return {"maxPowerBudget", consumer.has.maxPowerBudget != 0, &consumer.maxPowerBudget,
            consumer.maxPowerBudget};
}

void check_consumer(const checked_document &document, const entity &of, const PowerConsumerType &consumer,
                    finding_list &found)
{
    const figure least = {"minPowerBudget", consumer.has.minPowerBudget != 0, &consumer.minPowerBudget,
                          consumer.minPowerBudget};
    const figure most = {"maxPowerBudget", consumer.has.maxPowerBudget != 0, &consumer.maxPowerBudget,
                         consumer.maxPowerBudget};
    const figure usage = {"powerUsage", consumer.has.powerUsage != 0, &consumer.powerUsage,
                          static_cast<double>(consumer.powerUsage)};
    const figure greatest = greatest_budget(consumer);
    check_order(document, of, least, most.given ? most : greatest, found);
    if (consumer.has.extPowerBudget)
        check_order(document, of, most, greatest, found);
    check_order(document, of, usage, greatest, found);
}

void check_producer(const checked_document &document, const entity &of, const PowerProducerType &producer,
                    finding_list &found)
{
    if (producer.has.maxPower && producer.has.currentPower && producer.currentPower > producer.maxPower)
        report(found, document, &of, &producer.currentPower,
               told({"currentPower", true, nullptr, producer.currentPower}) + " is more than " +
                   told({"maxPower", true, nullptr, producer.maxPower}))
            .hint = "a producer cannot supply more than its maximum";
}

struct unit_power {
    const PowerInfoType *zones;
    figure available;
};

// The zones of a unit and what they have to make do with.
unit_power power_of(const entity &of)
{
    switch (of.kind) {
    case entity_kind::module:
    case entity_kind::optics:
    case entity_kind::pem:
    case entity_kind::fan_tray:
        return {&static_cast<const BaseModuleType *>(of.record)->ext.powerInfo,
                greatest_budget(of.base->powerConsumer)};
    case entity_kind::power_shelf:
        return {&static_cast<const PowerShelfType *>(of.record)->ext.powerInfo,
                greatest_budget(of.base->powerConsumer)};
    case entity_kind::chassis: {
        const ChassisEntityType_2 &own = static_cast<const ChassisEntityType *>(of.record)->ext;
        return {&own.powerInfo,
                {"availablePower", true, &own.availablePower, static_cast<double>(own.availablePower)}};
    }
    default:
        return {nullptr, {}};
    }
}

void check_zones(const checked_document &document, const entity &of, finding_list &found)
{
    const unit_power power = power_of(of);
    if (power.zones == nullptr || !power.available.given)
        return;
    figure total = {"totalPowerRequired of all zones,", true, power.available.item, 0};
    for (const xb_data_node *node = power.zones->powerZone.head; node != nullptr; node = node->next)
        if (const auto *zone = static_cast<const PowerZoneType *>(node->data))
            total.watts += zone->totalPowerRequired;
    // Sums of decimal fractions are not exact.
    if (total.watts > power.available.watts + 1e-6)
        report(found, document, &of, total.item, told(power.available) + " is less than " + told(total))
            .hint = "the zones together must not need more than the whole has";
}

}  // namespace

namespace invctl::check
{

void check_power_budget(const checked_document &document, finding_list &found)
{
    for (const entity &each : document.entities) {
        if (each.base->has.powerConsumer)
            check_consumer(document, each, each.base->powerConsumer, found);
        if (each.base->has.powerProducer)
            check_producer(document, each, each.base->powerProducer, found);
        check_zones(document, each, found);
    }
}

}  // namespace invctl::check
