// invctl show: full records as text and JSON, and the ways to name an entity.
#include "invctl_fixture.h"

#include <nlohmann/json.hpp>

namespace
{

using json = nlohmann::ordered_json;
using testing::HasSubstr;
using testing::StartsWith;

class Show : public Invctl
{
protected:
    outcome show_sample(const std::string &arguments)
    {
        return run_in_samples("show " + arguments);
    }

    json json_of(const fs::path &file, const std::string &arguments)
    {
        outcome result = run("show --json " + quoted(file) + " " + arguments);
        EXPECT_EQ(result.exit_code, 0) << result.err;
        return json::parse(result.out, nullptr, false);
    }
};

class ShowOfSample : public Show, public testing::WithParamInterface<const char *>
{
};

TEST_P(ShowOfSample, prints_every_field_of_every_entity_as_the_golden_file_has_it)
{
    std::string name = GetParam();
    outcome result = show_sample("--json --all " + name + ".xml");
    ASSERT_EQ(result.exit_code, 0) << result.err;
    EXPECT_EQ(result.err, "");
    compare_with_golden("show_" + name + ".json", result.out);
}

TEST_P(ShowOfSample, shows_as_many_entities_as_the_tree_has)
{
    std::string name = GetParam();
    outcome tree = run("tree " + quoted(samples / (name + ".xml")));
    json dump = json_of(samples / (name + ".xml"), "--all");
    EXPECT_EQ(dump["entities"].size(),
              static_cast<size_t>(std::count(tree.out.begin(), tree.out.end(), '\n')));
}

INSTANTIATE_TEST_SUITE_P(Documents, ShowOfSample,
                         testing::Values("chassis", "cxp_optics", "fabric_card", "fan_tray", "line_card_12",
                                         "line_card_48", "line_card_small", "pem", "power_shelf",
                                         "route_processor"),
                         [](const testing::TestParamInfo<const char *> &info) {
                             return std::string(info.param);
                         });

TEST_F(Show, every_sample_document_has_a_golden_dump)
{
    for (const fs::directory_entry &entry : fs::directory_iterator(samples)) {
        if (entry.path().extension() != ".xml")
            continue;
        EXPECT_TRUE(fs::exists(golden / ("show_" + entry.path().stem().string() + ".json"))) << entry.path();
    }
}

TEST_F(Show, text_of_a_few_entities_is_as_the_golden_file_has_it)
{
    std::string text;
    for (const char *arguments :
         {"line_card_small.xml module.msc.0", "line_card_small.xml module.msc.0/module.i2c_mux.0",
          "line_card_small.xml --instance 10", "chassis.xml chassis.lcc.0",
          "power_shelf.xml module.powershelf_dc.0/container.pem.0", "cxp_optics.xml 9.17.0"}) {
        outcome result = show_sample(arguments);
        EXPECT_EQ(result.exit_code, 0) << arguments << ": " << result.err;
        text += std::string("$ invctl show ") + arguments + "\n" + result.out;
    }
    compare_with_golden("show_text.txt", text);
}

TEST_F(Show, words_tokens_and_numbers_name_the_same_entity)
{
    std::string by_words = show_sample("chassis.xml chassis.lcc.0/backplane.lcc.0").out;
    EXPECT_THAT(by_words,
                StartsWith("chassis.lcc.0/backplane.lcc.0  \"Back plane\"  xml 10\nrecord: back_plane\n"));
    EXPECT_EQ(show_sample("chassis.xml 3.1.0/4.1.0").out, by_words);
    EXPECT_EQ(
        show_sample("chassis.xml ORVL_ENTITY_TYPE_CHASSIS.ORVL_ENTITY_SUBTYPE_CHASSIS_LCC.0/backplane.1.0")
            .out,
        by_words);
    EXPECT_EQ(show_sample("chassis.xml --instance 10").out, by_words);
}

TEST_F(Show, every_printed_eid_names_its_entity)
{
    json dump = json_of(samples / "line_card_small.xml", "--all");
    for (const json &entity : dump["entities"]) {
        json single = json_of(samples / "line_card_small.xml", entity["eid"].get<std::string>());
        EXPECT_EQ(single["record"], entity["record"]);
        EXPECT_EQ(single["fields"], entity["fields"]);
    }
}

TEST_F(Show, json_of_one_entity_names_document_entity_and_record)
{
    json object = json_of(samples / "chassis.xml", "--instance 10");
    EXPECT_EQ(object["kind"], "chassis");
    EXPECT_EQ(object["eid"], "chassis.lcc.0/backplane.lcc.0");
    EXPECT_EQ(object["record"], "back_plane");
    EXPECT_EQ(object["fields"]["base"]["name"], "Back plane");
    EXPECT_EQ(object["fields"]["module_list"][0], "module.daughter_board.0");
}

TEST_F(Show, an_entity_that_is_not_there_is_a_finding)
{
    for (const char *arguments : {"chassis.xml --instance 60000", "chassis.xml chassis.lcc.1",
                                  "chassis.xml backplane.lcc.0", "chassis.xml chassis.lcc.0/chassis.lcc.0"}) {
        outcome result = show_sample(arguments);
        EXPECT_EQ(result.exit_code, 1) << arguments;
        EXPECT_EQ(result.out, "") << arguments;
        EXPECT_EQ(result.err, "chassis.xml: no such entity\n") << arguments;
    }
}

TEST_F(Show, wrong_usage_exits_with_two_and_says_why)
{
    for (const char *arguments :
         {"", "chassis.xml", "chassis.xml chassis", "chassis.xml chassis.lcc.0/",
          "chassis.xml chassis.lcc.65536", "chassis.xml --instance many", "chassis.xml --instance 65536",
          "chassis.xml --instance -1", "chassis.xml --all --instance 1", "chassis.xml chassis.lcc.0 --all",
          "chassis.xml --bogus"}) {
        outcome result = show_sample(arguments);
        EXPECT_EQ(result.exit_code, 2) << arguments;
        EXPECT_EQ(result.out, "") << arguments;
        EXPECT_NE(result.err, "") << arguments;
    }
    EXPECT_EQ(show_sample("absent.xml --all").exit_code, 2);
    EXPECT_EQ(show_sample("chassis.xml --all --json >/dev/full").exit_code, 2);
}

// An element that is an entity; more may follow the attributes.
std::string entity(const std::string &element, const std::string &type, const std::string &subtype,
                   int instance, int xml_instance)
{
    return "<" + element + " name=\"" + element + " " + std::to_string(xml_instance) +
           "\" type=\"ORVL_ENTITY_TYPE_" + type + "\" subtype=\"ORVL_ENTITY_SUBTYPE_" + type + "_" + subtype +
           "\" instance=\"" + std::to_string(instance) +
           "\" replicationScope=\"ORVL_REPLICATION_TYPE_NODE\" xmlInstance=\"" +
           std::to_string(xml_instance) + "\"";
}

std::string module(int instance, int xml_instance, const std::string &content = "")
{
    return entity("module", "MODULE", "MSC", instance, xml_instance) + ">" + content + "</module>";
}

TEST_F(Show, absent_fields_are_marked_absent)
{
    fs::path file = write("bare.xml", module(0, 1));
    std::string text = run("show " + quoted(file) + " --instance 1").out;
    json fields = json_of(file, "--instance 1")["fields"]["base"];
    for (const char *name : {"driver_id", "admin_state", "is_fru", "is_hidden", "obfl_data", "pd_hw_model",
                             "hw_version", "power_consumer", "hw_signals", "i2c_node", "pcie_node"}) {
        EXPECT_THAT(text, HasSubstr("  " + std::string(name) + ": absent\n"));
        ASSERT_TRUE(fields.contains(name)) << name;
        EXPECT_TRUE(fields[name].is_null()) << name;
    }
    EXPECT_THAT(text, HasSubstr("  snmp_entity: true, by default\n"));
    EXPECT_THAT(text, HasSubstr("  spi_port_list: none\n"));
}

std::string chassis_with_back_plane(const std::string &modules)
{
    return entity("chassis", "CHASSIS", "LCC", 0, 1) +
           "><fruBits>0</fruBits><instanceBits>0</instanceBits><rackNumber>0</rackNumber>"
           "<availablePower>0</availablePower><powerInfo><powerZone><zone>ORVL_POWER_ZONE_UNKNOWN</zone>"
           "<powerOnOffCapability>0</powerOnOffCapability><powerApplied>0</powerApplied>"
           "<totalPowerRequired>0</totalPowerRequired><mainZone>0</mainZone><pdZoneNumber>0</pdZoneNumber>"
           "</powerZone></powerInfo>" +
           entity("backPlane", "BACKPLANE", "LCC", 0, 2) + ">" + modules + "</backPlane></chassis>";
}

TEST_F(Show, several_entities_with_one_xml_instance_are_listed_not_guessed)
{
    fs::path file = write("twins.xml", module(0, 7, module(0, 8) + module(1, 8)));
    outcome result = run("show " + quoted(file) + " --instance 8");
    EXPECT_EQ(result.exit_code, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, file.string() + ": 2 entities answer to that:\n" +
                              "  module.msc.0/module.msc.0  \"module 8\"  xml 8\n" +
                              "  module.msc.0/module.msc.1  \"module 8\"  xml 8\n");
    EXPECT_EQ(run("show " + quoted(file) + " --instance 7").exit_code, 0);
    EXPECT_EQ(run("show " + quoted(file) + " module.msc.0/module.msc.1").exit_code, 0);
}

TEST_F(Show, several_entities_with_one_eid_are_listed_not_guessed)
{
    fs::path file = write("twins.xml", module(0, 7, module(3, 8) + module(3, 9)));
    outcome result = run("show " + quoted(file) + " module.msc.0/module.msc.3");
    EXPECT_EQ(result.exit_code, 2);
    EXPECT_THAT(result.err, HasSubstr("\"module 8\""));
    EXPECT_THAT(result.err, HasSubstr("\"module 9\""));
    EXPECT_EQ(run("show " + quoted(file) + " --instance 9").exit_code, 0);
}

TEST_F(Show, an_entity_deeper_than_an_eid_is_named_by_its_last_sixteen_levels)
{
    std::string nested;
    for (int level = 20; level-- > 0;)
        nested = module(level, 100 + level, nested);
    fs::path file = write("deep.xml", nested);
    std::string eid;
    for (int level = 4; level < 20; ++level)
        eid += (level == 4 ? "" : "/") + std::string("module.msc.") + std::to_string(level);
    outcome result = run("show " + quoted(file) + " " + eid);
    EXPECT_EQ(result.exit_code, 0) << result.err;
    EXPECT_THAT(result.out, StartsWith(eid + "  \"module 119\""));
    EXPECT_EQ(run("show " + quoted(file) + " module.msc.4").exit_code, 1);
}

TEST_F(Show, a_back_planes_next_module_hides_the_children_of_the_one_before_but_not_their_records)
{
    std::string sensor = entity("sensor", "SENSOR", "TEMP_VALUE", 0, 20) +
                         "><value>1</value><lastValue>1</lastValue><unit>ORVL_SENSOR_UNIT_CELSIUS</unit>"
                         "<scale>ORVL_SENSOR_SCALE_UNITS</scale></sensor>";
    fs::path file =
        write("chain.xml", chassis_with_back_plane(module(0, 10, module(5, 11, sensor)) + module(1, 12)));
    EXPECT_EQ(json_of(file, "--instance 10")["fields"]["module_list"], json::array({"module.msc.1"}));
    json hidden = json_of(file, "--instance 11");
    EXPECT_EQ(hidden["eid"], "chassis.lcc.0/backplane.lcc.0/module.msc.0/module.msc.5");
    EXPECT_EQ(hidden["record"], "module");
    EXPECT_EQ(hidden["fields"]["sensor_list"], json::array({"sensor.temp_value.0"}));
    EXPECT_EQ(json_of(file, "--instance 20")["record"], "sensor");
}

TEST_F(Show, a_back_plane_with_very_many_modules_is_shown)
{
    std::string modules;
    for (int i = 0; i < 20000; ++i)
        modules += module(i, 100 + i);
    fs::path file = write("chain.xml", chassis_with_back_plane(modules));
    EXPECT_EQ(json_of(file, "--instance 20099")["record"], "module");
}

TEST_F(Show, a_text_cannot_forge_a_line_nor_break_json)
{
    std::string text = module(0, 1);
    text.replace(text.find("module 1"), 8,
                 "a&#10;is_fru: true&quot;" + std::string(50, 'x') + "\xc3\xa4\xc3\xa4");
    fs::path file = write("forged.xml", text);
    EXPECT_THAT(run("show " + quoted(file) + " --all").out, HasSubstr("  name: \"a\\x0ais_fru: true\\\"xxx"));
    EXPECT_THAT(json_of(file, "--all")["entities"][0]["fields"]["base"]["name"].get<std::string>(),
                StartsWith("a\nis_fru: true\"xxx"));
}

TEST_F(Show, a_broken_document_is_a_finding_with_its_place)
{
    fs::path file = write("broken.xml", "<module>\n</module>\n");
    outcome result = run("show " + quoted(file) + " --all");
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_THAT(result.err, StartsWith(file.string() + ":1:"));
}

}  // namespace
