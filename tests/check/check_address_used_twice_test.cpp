#include "check/finding_cases.h"
#include "check/small_document.h"

using namespace small;

namespace
{

const std::string thermometer = i2c_node("I2CSLAVEADDRESS", "TEMPERATURE_SENSOR_LOCAL", "48");
const std::string monitor = i2c_node("I2CPMBUS", "POWER_MONITOR_2CH", "48");
const std::string elsewhere = i2c_node("I2CPMBUS", "POWER_MONITOR_2CH", "49");

// A mux with these ports and two sensors with these devices.
std::string bus(const std::string &ports, const std::string &device_20, const std::string &device_21)
{
    return card(mux("M", 10, ports) + sensor("A", 20, device_20) + sensor("B", 21, device_21));
}

}  // namespace

TEST(AddressUsedTwice, tells_devices_of_different_models_on_one_channel)
{
    const std::string one_port = i2c_port("01", destination(20) + destination(21));
    // Each sensor's start tag is followed by its device.
    const std::string b_is_a =
        R"(Card/B | <deviceAddress | address 0x48 behind channel 1 of "M" (10) is that of "A" (20) on line )";
    expect_findings(
        invctl::check::check_address_used_twice,
        {
            {"two addresses", bus(one_port, thermometer, elsewhere), {}},
            {"one address", bus(one_port, thermometer, monitor), {b_is_a + "8 too"}},
            {"parts of one device", bus(one_port, monitor, monitor), {}},
            {"no device", bus(one_port, thermometer, ""), {}},
            {"two channels",
             bus(i2c_port("01", destination(20)) + i2c_port("02", destination(21)), thermometer, monitor),
             {}},
            {"one channel, two ports",
             bus(i2c_port("01", destination(20)) + i2c_port("01", destination(21)), thermometer, monitor),
             {b_is_a + "10 too"}},
            {"the same channel of two muxes",
             card(mux_to("M", 10, 20) + mux_to("N", 11, 21) + sensor("A", 20, thermometer) +
                  sensor("B", 21, monitor)),
             {}},
        });
}

TEST(AddressUsedTwice, tells_control_cards_apart)
{
    auto ports = [](const std::string &slot_a, const std::string &slot_b) {
        return i2c_port("01", destination(20, "ENTITY", slot_a) + destination(21, "ENTITY", slot_b));
    };
    const std::string told =
        R"(Card/B | <deviceAddress | address 0x48 behind channel 1 of "M" (10) is that of "A" (20) on line 8 too)";
    expect_findings(invctl::check::check_address_used_twice,
                    {
                        {"one each", bus(ports("0", "1"), thermometer, monitor), {}},
                        {"both the same", bus(ports("1", "1"), thermometer, monitor), {told}},
                        {"one and both", bus(ports("0", "ANY"), thermometer, monitor), {told}},
                        {"both and one", bus(ports("ANY", "1"), thermometer, monitor), {told}},
                    });
}
