// invctl path: the ways through the sample router, and why there is none.
#include "invctl_fixture.h"

#include <algorithm>
#include <cstring>
#include <set>

#include <nlohmann/json.hpp>

namespace
{

using nlohmann::json;
using testing::HasSubstr;

class Path : public Invctl
{
protected:
    // Runs in the folder of the samples, so that outputs name files without a path.
    outcome path(const std::string &arguments)
    {
        fs::path before = fs::current_path();
        fs::current_path(samples);
        outcome result = run("path " + arguments);
        fs::current_path(before);
        return result;
    }

    // With INV_REGENERATE_GOLDEN=1 in the environment the golden file is written instead.
    void expect_golden(const std::string &name, const std::string &text)
    {
        const char *rewrite = getenv("INV_REGENERATE_GOLDEN");
        if (rewrite != nullptr && rewrite[0] == '1')
            std::ofstream(golden / name, std::ios::binary) << text;
        EXPECT_NE(text, "");
        EXPECT_EQ(read_file(golden / name), text) << name;
    }
};

// An I2C device with what it contains, on a line of its own.
std::string device(const std::string &name, int instance, const std::string &ports)
{
    return "<i2c name=\"" + name +
           "\" type=\"ORVL_ENTITY_TYPE_MODULE\" subtype=\"ORVL_ENTITY_SUBTYPE_MODULE_I2C_MUX\" instance=\"" +
           std::to_string(instance) + "\" replicationScope=\"ORVL_REPLICATION_TYPE_NODE\" xmlInstance=\"" +
           std::to_string(instance) +
           "\"><i2cNode><deviceType>ORVL_I2CDEV_TYPE_I2CMUX</deviceType><deviceAddress>70</deviceAddress></"
           "i2cNode>" +
           ports + "</i2c>\n";
}

std::string port(int channel, int destination)
{
    return "<i2cPort><portType>ORVL_PORT_TYPE_MUX</portType><channelNumber>0" + std::to_string(channel) +
           "</channelNumber><dstInfo><description>d</description><applicable>ORVL_CTRL_SLOT_ANY</applicable>"
           "<nodeInfo><nodeType>ORVL_NODE_TYPE_ENTITY</nodeType><nodePosition>" +
           std::to_string(destination) + "</nodePosition></nodeInfo></dstInfo></i2cPort>";
}

// The same for PCIe.
std::string pcie_device(int instance, const std::string &ports)
{
    return "<module name=\"Device\" type=\"ORVL_ENTITY_TYPE_MODULE\" "
           "subtype=\"ORVL_ENTITY_SUBTYPE_MODULE_MSC\" instance=\"" +
           std::to_string(instance) + "\" replicationScope=\"ORVL_REPLICATION_TYPE_NODE\" xmlInstance=\"" +
           std::to_string(instance) +
           "\"><pcieNode><deviceType>ORVL_DEV_TYPE_PCISWITCH</deviceType><portNumber>00</portNumber>"
           "</pcieNode>" +
           ports + "</module>\n";
}

std::string pcie_port(int destination)
{
    return "<pciePort><portNumber>01</portNumber><dstInfo><description>d</description>"
           "<applicable>ORVL_CTRL_SLOT_ANY</applicable><deviceId>00000001</deviceId><nodeInfo>"
           "<nodeType>ORVL_NODE_TYPE_ENTITY</nodeType><nodePosition>" +
           std::to_string(destination) + "</nodePosition></nodeInfo></dstInfo></pciePort>";
}

struct plugged_unit {
    const char *name;  // of the golden file
    const char *file;
    const char *card;
    const char *node_type;
    const char *position;
    bool has_pcie;
    bool from_slot1 = true;
};

// The whole router: every unit as the control cards see it, the optics as their fabric card does. The card in
// slot 1 is seen by its peer in slot 0 only.
constexpr plugged_unit units[] = {
    {"line_card_48", "line_card_48.xml", "route_processor.xml", "linecard", "3", true},
    {"line_card_12", "line_card_12.xml", "route_processor.xml", "linecard", "0", true},
    {"line_card_small", "line_card_small.xml", "route_processor.xml", "linecard", "7", false},
    {"route_processor", "route_processor.xml", "route_processor.xml", "peercontrolcard", "1", true, false},
    {"fabric_card", "fabric_card.xml", "route_processor.xml", "fabriccard", "5", true},
    {"fan_tray", "fan_tray.xml", "route_processor.xml", "fantray", "2", false},
    {"power_shelf", "power_shelf.xml", "route_processor.xml", "powershelf", "1", false},
    {"pem", "pem.xml", "route_processor.xml", "pem", "4", false},
    {"back_plane", "chassis.xml", "route_processor.xml", "midplaneid", "0", false},
    {"cxp_optics", "cxp_optics.xml", "fabric_card.xml", "optics", "1", false},
};

class PathToUnit : public Path, public testing::WithParamInterface<plugged_unit>
{
protected:
    std::string arguments(const std::string &bus) const
    {
        const plugged_unit &unit = GetParam();
        return std::string(unit.file) + " --all --bus " + bus + " --from " + unit.card + " --node-type " +
               unit.node_type + " --position " + unit.position;
    }
};

INSTANTIATE_TEST_SUITE_P(Router, PathToUnit, testing::ValuesIn(units),
                         [](const auto &about) { return about.param.name; });

TEST_P(PathToUnit, every_i2c_device_is_reached_from_both_control_cards_as_the_golden_file_has_it)
{
    outcome result = path(arguments("i2c"));
    EXPECT_EQ(result.exit_code, 0) << result.err;
    EXPECT_EQ(result.err, "");
    EXPECT_THAT(result.out, HasSubstr("slot 0: "));
    EXPECT_EQ(result.out.find("slot 1: ") != std::string::npos, GetParam().from_slot1);
    expect_golden(std::string("path_i2c_") + GetParam().name + ".txt", result.out);
}

TEST_P(PathToUnit, every_pcie_device_is_reached_from_both_control_cards_as_the_golden_file_has_it)
{
    outcome result = path(arguments("pcie"));
    EXPECT_EQ(result.exit_code, GetParam().has_pcie ? 0 : 1);
    if (GetParam().has_pcie)
        expect_golden(std::string("path_pcie_") + GetParam().name + ".txt", result.out);
    else
        EXPECT_THAT(result.err, HasSubstr("no device of"));
}

TEST_F(Path, every_sensor_of_a_line_card_has_an_i2c_way_from_both_slots)
{
    const std::pair<std::string, size_t> line_cards[] = {
        {"line_card_48", 170}, {"line_card_12", 82}, {"line_card_small", 3}};
    for (const auto &[card, sensor_count] : line_cards) {
        outcome result =
            path(card + ".xml --all --json --from route_processor.xml --node-type 6 --position 3");
        ASSERT_EQ(result.exit_code, 0) << result.err;
        std::set<std::string> reached;
        json all = json::parse(result.out);
        for (const json &device : all["devices"])
            if (device["paths"].size() == 2)
                reached.insert(device["target"]["eid"]);
        json records = json::parse(run("show --all --json " + quoted(samples / (card + ".xml"))).out);
        size_t sensors = 0;
        for (const json &entity : records["entities"]) {
            bool is_sensor = entity["record"] == "sensor";
            sensors += is_sensor;
            EXPECT_TRUE(!is_sensor || reached.contains(entity["eid"])) << card << " " << entity["eid"];
        }
        EXPECT_EQ(sensors, sensor_count) << card;
    }
}

TEST_F(Path, a_way_inside_one_document_and_one_across_two_stand_in_full)
{
    std::string text;
    for (const char *arguments : {"line_card_small.xml 'Inlet temperature'",
                                  "line_card_48.xml --instance 290 --from route_processor.xml --slot 0 "
                                  "--node-type linecard --position 3",
                                  "line_card_48.xml --instance 204 --from route_processor.xml --slot 1 "
                                  "--node-type linecard --position 3 "
                                  "--bus pcie"}) {
        outcome result = path(arguments);
        EXPECT_EQ(result.exit_code, 0) << result.err;
        text += std::string("$ invctl path ") + arguments + "\n" + result.out;
    }
    expect_golden("path_text.txt", text);
}

TEST_F(Path, name_eid_in_words_or_numbers_and_instance_name_one_device)
{
    std::string by_name = path("line_card_small.xml 'Inlet temperature'").out;
    EXPECT_THAT(by_name, HasSubstr("xml 20"));
    for (const char *target :
         {"module.msc.0/sensor.temp_value.0", "ORVL_ENTITY_TYPE_MODULE.msc.0/SENSOR.temp_value.0",
          "9.13.0/8.25.0",
          "9.ORVL_ENTITY_SUBTYPE_MODULE_MSC.0/sensor.ORVL_ENTITY_SUBTYPE_SENSOR_TEMP_VALUE.0",
          "--instance 20"})
        EXPECT_EQ(path(std::string("line_card_small.xml ") + target).out, by_name) << target;
}

TEST_F(Path, json_holds_the_hops_with_words_and_numbers)
{
    outcome result = path("line_card_small.xml --json --instance 20");
    ASSERT_EQ(result.exit_code, 0) << result.err;
    json object = json::parse(result.out);
    EXPECT_EQ(object["bus"], "i2c");
    EXPECT_EQ(object["target"]["name"], "Inlet temperature");
    json hops = object["paths"][0]["hops"];
    ASSERT_EQ(hops.size(), 3u);
    EXPECT_EQ(hops[1]["device_type"], "i2cmux");
    EXPECT_EQ(hops[1]["address"], "0x70");
    EXPECT_EQ(hops[1]["select"], "channel 0x00");
    EXPECT_EQ(hops[1]["xml_instance"], 11);
    EXPECT_TRUE(hops[2]["select"].is_null());
}

TEST_F(Path, an_ambiguous_name_lists_all_and_exits_with_two)
{
    outcome result = path("route_processor.xml 'PCIe switch' --bus pcie");
    EXPECT_EQ(result.exit_code, 0) << result.err;
    fs::path file = write("twins.xml", R"(<module name="Card" type="ORVL_ENTITY_TYPE_MODULE"
        subtype="ORVL_ENTITY_SUBTYPE_MODULE_MSC" instance="0" replicationScope="ORVL_REPLICATION_TYPE_NODE"
        xmlInstance="1">)" + device("Twin", 5, "") +
                                           device("Twin", 6, "") + "</module>");
    result = path(quoted(file) + " Twin");
    EXPECT_EQ(result.exit_code, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, HasSubstr("2 entities are called Twin"));
    EXPECT_THAT(result.err, HasSubstr("xml 5"));
    EXPECT_THAT(result.err, HasSubstr("xml 6"));
}

TEST_F(Path, behind_lists_what_is_reached_through_a_mux_with_its_channel)
{
    outcome result = path("--behind line_card_small.xml --instance 11");
    EXPECT_EQ(result.exit_code, 0) << result.err;
    EXPECT_THAT(result.out,
                HasSubstr("channel 0x04  module.msc.0/port.ether_10gb.0/container.optics_sfp_plus.0"));
    EXPECT_EQ(std::count(result.out.begin(), result.out.end(), '\n'), 7);
    result = path("--behind line_card_small.xml --instance 10");
    EXPECT_THAT(result.out, HasSubstr("channel 0x00  module.msc.0/module.i2c_mux.0"));
    EXPECT_THAT(result.out, HasSubstr("+1 hops  module.msc.0/sensor.temp_value.0"));
    EXPECT_THAT(path("--behind line_card_small.xml --instance 20").out, HasSubstr("nothing"));
    json object = json::parse(path("--behind --json line_card_small.xml --instance 11").out);
    EXPECT_EQ(object["entities"].size(), 6u);
    EXPECT_EQ(object["entities"][2]["select"], "channel 0x04");
    result = path("--behind route_processor.xml --instance 210 --bus pcie");
    EXPECT_THAT(result.out, HasSubstr("  port 0x05  module.rp.0/module.cpu_complex.0/module.ssd.0"));
}

// ---- Devices without a path ----------------------------------------------------------------------------

class NoPath : public Path
{
protected:
    // A card on one line, with the devices each on a line of its own, from line 2 on.
    outcome path_in(const std::string &devices, const std::string &arguments)
    {
        std::string text = "<module name=\"Card\" type=\"ORVL_ENTITY_TYPE_MODULE\" "
                           "subtype=\"ORVL_ENTITY_SUBTYPE_MODULE_MSC\" instance=\"0\" "
                           "replicationScope=\"ORVL_REPLICATION_TYPE_NODE\" xmlInstance=\"1\">\n" +
                           devices + "</module>\n";
        file = write("card.xml", text);
        return path(quoted(file) + " " + arguments);
    }
    // The reason stands alone on standard error and the exit code says that it is a finding.
    void expect_reason(const outcome &result, const std::string &reason)
    {
        EXPECT_EQ(result.exit_code, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.err, HasSubstr(reason));
    }
    std::string place(int line) const
    {
        return file.string() + ":" + std::to_string(line) + ":1";
    }

    fs::path file;
};

TEST_F(NoPath, an_instance_that_the_document_does_not_have)
{
    expect_reason(path_in(device("Mux", 5, port(1, 6)), "--instance 7"), "has no xml instance 7");
    expect_reason(path_in("", "--instance 0"), "xml instance 0 names no device");
    expect_reason(path_in("", "Nobody"), "has no entity Nobody");
    expect_reason(path_in("", "module.msc.7"), "has no entity module.msc.7");
}

TEST_F(NoPath, a_port_that_leads_to_no_entity_is_pointed_at)
{
    outcome result = path_in(device("Mux", 5, port(1, 6)), "--instance 6");
    expect_reason(result,
                  "no entity has xml instance 6, to which a port of \"Mux\" (xml 5, " + place(2) + ")");
}

TEST_F(NoPath, an_instance_above_10000_is_pointed_at)
{
    outcome result = path_in(device("Far", 10001, port(1, 6)) + device("Sensor", 6, ""), "--instance 6");
    expect_reason(result, "\"Far\" (xml 10001, " + place(2) + ")");
    EXPECT_THAT(result.err, HasSubstr("above 10000"));
}

TEST_F(NoPath, a_loop_is_pointed_at)
{
    outcome result = path_in(device("One", 5, port(1, 6)) + device("Two", 6, port(1, 5)), "--instance 6");
    expect_reason(result, "the ports form a loop at \"Two\" (xml 6, " + place(3) + ")");
    EXPECT_EQ(path("--behind " + quoted(file) + " --instance 5").exit_code, 0) << "ends all the same";
}

TEST_F(NoPath, a_chain_with_more_hops_than_fit_is_counted)
{
    std::string devices;
    for (int i = 0; i < 26; ++i)
        devices += device("Mux", 20 + i, i < 25 ? port(1, 21 + i) : "");
    outcome result = path_in(devices, "--instance 45");
    expect_reason(result, "the way has 26 hops, 25 are allowed");
    EXPECT_THAT(result.err, HasSubstr("the first too many is \"Mux\" (xml 20, " + place(2) + ")"));
    EXPECT_EQ(path(quoted(file) + " --instance 44").exit_code, 0);
}

TEST_F(NoPath, over_pcie_has_the_same_reasons)
{
    std::string devices;
    for (int i = 0; i < 11; ++i)
        devices += pcie_device(20 + i, i < 10 ? pcie_port(21 + i) : "");
    outcome result = path_in(devices, "--bus pcie --instance 30");
    expect_reason(result, "the way has 11 hops, 10 are allowed");
    EXPECT_THAT(result.err, HasSubstr("the first too many is \"Device\" (xml 20, " + place(2) + ")"));
    EXPECT_EQ(path(quoted(file) + " --bus pcie --instance 29").exit_code, 0);

    result = path_in(pcie_device(5, pcie_port(6)) + pcie_device(6, pcie_port(5)), "--bus pcie --instance 6");
    expect_reason(result, "the ports form a loop at \"Device\" (xml 6, " + place(3) + ")");
    expect_reason(path_in(pcie_device(10001, pcie_port(6)) + pcie_device(6, ""), "--bus pcie --instance 6"),
                  "\"Device\" (xml 10001, " + place(2) + ")");
    expect_reason(path_in(pcie_device(5, pcie_port(6)), "--bus pcie --instance 6"),
                  "no entity has xml instance 6, to which a port of \"Device\" (xml 5, " + place(2) + ")");
}

TEST_F(NoPath, a_fault_on_the_control_cards_part_is_pointed_at_in_its_file)
{
    std::string slot = port(1, 3);
    slot.replace(slot.find("NODE_TYPE_ENTITY"), strlen("NODE_TYPE_ENTITY"), "NODE_TYPE_LINECARD");
    path_in(device("One", 5, port(1, 6) + slot) + device("Two", 6, port(1, 5)), "--instance 6");
    for (const char *target : {"--instance 290", "'Slice 0 inlet temperature'"}) {
        outcome result = path("line_card_48.xml " + std::string(target) + " --from " + quoted(file) +
                              " --node-type linecard --position 3");
        expect_reason(result, "no path by " + file.string() + ": the ports form a loop at \"One\" (xml 5, " +
                                  place(2) + ")");
    }
}

TEST_F(NoPath, an_entity_that_is_no_device_of_the_bus)
{
    outcome result = path_in("", "--instance 1");
    expect_reason(result, "\"Card\" (xml 1, " + place(1) + ") has no device on this bus");
    expect_reason(path_in(device("Mux", 5, ""), "--instance 5 --bus pcie"), "has no device on this bus");
}

// The library would answer with the way to the other one.
TEST_F(NoPath, an_entity_whose_xml_instance_another_one_took)
{
    std::string first = device("First", 5, ""), second = device("Second", 5, "");
    outcome result = path_in(first + second, "First");
    expect_reason(result, "\"Second\" (xml 5, " + place(3) + ") has the xml instance 5 of \"First\" as well");
    EXPECT_THAT(path(quoted(file) + " Second").out, HasSubstr("\"Second\""));
    EXPECT_THAT(path(quoted(file) + " --instance 5").out, HasSubstr("\"Second\""));
}

TEST_F(NoPath, a_slot_that_the_control_card_does_not_know)
{
    outcome result =
        path("line_card_48.xml --instance 290 --from route_processor.xml --node-type linecard --position 9");
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_THAT(result.err,
                HasSubstr("no port of route_processor.xml leads to linecard 9 from control-card slot 0"));
    EXPECT_THAT(result.err, HasSubstr("slot 1"));
}

TEST_F(Path, wrong_usage_exits_with_two)
{
    for (const char *arguments :
         {"", "line_card_small.xml", "line_card_small.xml a --instance 1",
          "line_card_small.xml --instance 65536", "line_card_small.xml --instance -1",
          "line_card_small.xml --instance 1 --bus spi", "line_card_small.xml --instance 1 --slot 0",
          "line_card_small.xml --instance 1 --from x.xml",
          "line_card_small.xml --instance 1 --from route_processor.xml --node-type car --position 1",
          "line_card_small.xml --instance 1 --from route_processor.xml --node-type 21 --position 1",
          "line_card_small.xml --instance 1 --from route_processor.xml --node-type 6 --position 1 --slot 2",
          "line_card_small.xml --behind --all", "no_such_file.xml --instance 1"})
        EXPECT_EQ(path(arguments).exit_code, 2) << arguments;
    EXPECT_EQ(path("--help").exit_code, 0);
}

}  // namespace
