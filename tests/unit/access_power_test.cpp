#include "support/current_file_fixture.h"

#include <limits>

namespace
{

using PowerRecords = CurrentFile;

sch_power_consumer_type consumer_of(double budget)
{
    PowerConsumerType from = {};
    from.has.minPowerBudget = 1;
    from.minPowerBudget = budget;
    sch_power_consumer_type record = {};
    parser_retrieve_power_consumer_data(&record, &from);
    return record;
}

TEST_F(PowerRecords, decimal_values_are_truncated_toward_zero_and_wrapped)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const struct {
        double value;
        uint16_t stored;
    } cases[] = {
        {99.9, 99},
        {0.999, 0},
        {-0.5, 0},
        {-1.9, 0xFFFF},
        {-99.9, 65437},
        {65535.0, 65535},
        {65536.0, 0},
        {65537.5, 1},
        {1e300, 0xFFFF},
        {-1e300, 0},
        {infinity, 0xFFFF},
        {-infinity, 0},
        {std::numeric_limits<double>::quiet_NaN(), 0},
        {9223372036854775808.0, 0xFFFF},
        {-9223372036854775808.0, 0},
    };
    for (const auto &c : cases)
        EXPECT_EQ(consumer_of(c.value).min_budget, c.stored) << c.value;
}

TEST_F(PowerRecords, a_consumer_has_a_bit_for_each_optional_value_and_its_zone_always)
{
    PowerConsumerType from = {};
    from.minPowerBudget = 1.5;
    from.maxPowerBudget = 2.5;
    from.extPowerBudget = 3.5;
    from.powerUsage = 0xFFFFFFFF;
    from.powerZone = 17;
    sch_power_consumer_type absent = {}, present = {};
    EXPECT_EQ(parser_retrieve_power_consumer_data(&absent, &from), &absent);
    EXPECT_EQ(absent.min_budget + absent.max_budget + absent.ext_budget + absent.power_usage, 0u);
    EXPECT_EQ(absent.power_zone, 17u);
    EXPECT_EQ(absent.field_present, 0);
    from.has = {1, 1, 1, 1};
    parser_retrieve_power_consumer_data(&present, &from);
    EXPECT_EQ(present.min_budget, 1);
    EXPECT_EQ(present.max_budget, 2);
    EXPECT_EQ(present.ext_budget, 3);
    EXPECT_EQ(present.power_usage, 0xFFFFFFFFu);
    EXPECT_EQ(present.field_present, 0x0F);
}

TEST_F(PowerRecords, a_producer_has_32_bit_values)
{
    PowerProducerType from = {};
    from.has = {1, 1};
    from.maxPower = 4294967295.75;
    from.currentPower = 4294967297.0;
    sch_power_producer_type record = {};
    parser_retrieve_power_producer_data(&record, &from);
    EXPECT_EQ(record.max_power, 0xFFFFFFFFu);
    EXPECT_EQ(record.current_power, 1u);
    EXPECT_EQ(record.field_present, 3);
}

TEST_F(PowerRecords, consumer_and_producer_guard_null_pointers_silently)
{
    sch_power_consumer_type consumer = {};
    sch_power_producer_type producer = {};
    PowerConsumerType decoded = {};
    EXPECT_EQ(parser_retrieve_power_consumer_data(nullptr, &decoded), nullptr);
    EXPECT_EQ(parser_retrieve_power_consumer_data(&consumer, nullptr), &consumer);
    parser_retrieve_power_producer_data(nullptr, nullptr);
    parser_retrieve_power_producer_data(&producer, nullptr);
    EXPECT_EQ(parser_retrieve_power_info_data(nullptr, nullptr, nullptr), 0u);
    EXPECT_TRUE(trace_recorder::lines().empty());
}

PowerZoneType zone_named(const char *description)
{
    PowerZoneType zone = {};
    zone.has.description = description != nullptr;
    zone.description = description;
    return zone;
}

TEST_F(PowerRecords, a_zone_description_keeps_its_first_16_octets)
{
    PowerZoneType from = zone_named("12345678901234567890");
    sch_power_zone_type record = {};
    parser_retrieve_power_zone_data(&record, &from);
    EXPECT_STREQ(record.description, "1234567890123456");
    EXPECT_EQ(record.field_present, 1);
}

TEST_F(PowerRecords, all_zone_fields_but_the_description_are_copied_without_a_bit)
{
    PowerZoneType from = zone_named(nullptr);
    from.zone = 17;
    from.powerOnOffCapability = 1;
    from.powerApplied = 1;
    from.totalPowerRequired = 70000.9;
    from.mainZone = 1;
    from.pdZoneNumber = -1;
    sch_power_zone_type record = {};
    EXPECT_EQ(parser_retrieve_power_zone_data(&record, &from), 0u);
    EXPECT_STREQ(record.description, "");
    EXPECT_EQ(record.zone, 17);
    EXPECT_EQ(record.on_off_capability, 1);
    EXPECT_EQ(record.power_applied, 1);
    EXPECT_EQ(record.total_power_required, 70000 - 65536);
    EXPECT_EQ(record.main_zone, 1);
    EXPECT_EQ(record.pd_zone_number, 0xFFFF);
    EXPECT_EQ(record.field_present, 0);
}

TEST_F(PowerRecords, power_info_appends_to_the_zones_already_there)
{
    PowerZoneType a = zone_named("a"), b = zone_named("b"), c = zone_named("c");
    decoded_list first = {&a, &b}, second = {&c};
    PowerInfoType from = {};
    sch_power_info_type record = {};
    from.powerZone = first;
    EXPECT_EQ(parser_retrieve_power_info_data(&record, &from, nullptr), 0u);
    from.powerZone = second;
    EXPECT_EQ(parser_retrieve_power_info_data(&record, &from, nullptr), 0u);
    ASSERT_EQ(length_of(record.power_zone_list), 3u);
    EXPECT_STREQ(record.power_zone_list->description, "a");
    EXPECT_STREQ(record.power_zone_list->next->next->description, "c");
    inv_schema_free_power_info_data(&record);
}

TEST_F(PowerRecords, power_info_returns_0_when_its_zones_find_no_memory)
{
    PowerZoneType a = zone_named("a");
    decoded_list zones = {&a};
    PowerInfoType from = {};
    from.powerZone = zones;
    sch_power_info_type record = {};
    counting_memory::fail_at(1);
    EXPECT_EQ(parser_retrieve_power_info_data(&record, &from, nullptr), 0u);
    EXPECT_EQ(record.power_zone_list, nullptr);
    EXPECT_EQ(trace_recorder::ids(), id_list{130});
}

}  // namespace
