// invctl as people and scripts call it: outputs, exit codes, messages.
#include "invctl_fixture.h"

#include <nlohmann/json.hpp>

namespace
{

using testing::HasSubstr;
using testing::StartsWith;

const char entity_attributes[] =
    R"(name="Board" type="ORVL_ENTITY_TYPE_MODULE" subtype="ORVL_ENTITY_SUBTYPE_MODULE_MOTHER_BOARD" )"
    R"(instance="0" replicationScope="ORVL_REPLICATION_TYPE_NODE" xmlInstance="1")";

TEST_F(Invctl, tree_prints_every_entity_of_the_small_card_as_the_golden_file_has_it)
{
    outcome result = run("tree " + quoted(samples / "line_card_small.xml"));
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out, read_file(golden / "tree_line_card_small.txt"));
}

TEST_F(Invctl, tree_of_the_large_card_has_sixty_modules_and_more)
{
    outcome result = run("tree --type module " + quoted(samples / "line_card_48.xml"));
    EXPECT_EQ(result.exit_code, 0);
    size_t modules = 0;
    std::istringstream lines(result.out);
    for (std::string line; std::getline(lines, line);)
        modules += line.find("module.") != std::string::npos;
    EXPECT_GE(modules, 60u);
}

TEST_F(Invctl, tree_of_the_large_card_has_a_line_for_each_of_four_hundred_entities_and_more)
{
    outcome result = run("tree " + quoted(samples / "line_card_48.xml"));
    EXPECT_EQ(result.exit_code, 0);
    std::istringstream lines(result.out);
    size_t entities = 0;
    for (std::string line; std::getline(lines, line); ++entities)
        EXPECT_THAT(line, testing::ContainsRegex(
                              "[a-z_]+[.][a-z0-9_]+[.][0-9]+  \".*\"  xml [0-9]+  owner [a-z_]+$"));
    EXPECT_GE(entities, 400u);
}

TEST_F(Invctl, depth_one_is_the_top_entity_alone)
{
    outcome result = run("tree --depth 1 " + quoted(samples / "line_card_48.xml"));
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_EQ(std::count(result.out.begin(), result.out.end(), '\n'), 1);
    EXPECT_THAT(result.out, StartsWith("module."));
}

TEST_F(Invctl, json_nests_children_and_names_the_kind)
{
    outcome result = run("tree --json " + quoted(samples / "line_card_small.xml"));
    ASSERT_EQ(result.exit_code, 0);
    nlohmann::json object = nlohmann::json::parse(result.out);
    EXPECT_EQ(object["kind"], "module");
    EXPECT_EQ(object["tree"]["type"], "module");
    EXPECT_TRUE(object["tree"]["children"].is_array());
    EXPECT_FALSE(object["tree"]["children"].empty());
}

TEST_F(Invctl, json_of_an_entity_holds_what_its_line_holds)
{
    outcome result = run("tree --json --depth 1 " + quoted(samples / "line_card_small.xml"));
    ASSERT_EQ(result.exit_code, 0);
    nlohmann::json expected = {{"type", "module"},
                               {"subtype", "msc"},
                               {"instance", 0},
                               {"name", "Tutorial card"},
                               {"xml_instance", 1},
                               {"owner", "common"},
                               {"children", nlohmann::json::array()}};
    EXPECT_EQ(nlohmann::json::parse(result.out)["tree"], expected);
}

TEST_F(Invctl, json_does_not_change_the_exit_codes)
{
    outcome finding = run("tree --json " + quoted(write("other.xml", "<inventory/>")));
    EXPECT_EQ(finding.exit_code, 1);
    EXPECT_EQ(finding.out, "");
    EXPECT_EQ(run("tree --json " + quoted(folder / "absent.xml")).exit_code, 2);
    EXPECT_EQ(run("tree --json " + quoted(samples / "line_card_48.xml") + " >/dev/full").exit_code, 2);
}

TEST_F(Invctl, json_survives_a_name_that_the_record_cuts_inside_a_character)
{
    // 63 letters and a two-octet character: the record keeps 64 octets.
    std::string text = std::string("<module ") + entity_attributes + "/>";
    text.replace(text.find("Board"), 5, std::string(63, 'a') + "\xc3\xa4");
    fs::path path = write("cut.xml", text);
    outcome result = run("tree --json " + quoted(path));
    ASSERT_EQ(result.exit_code, 0);
    EXPECT_EQ(nlohmann::json::parse(result.out)["tree"]["name"], std::string(63, 'a') + "\xef\xbf\xbd");
}

TEST_F(Invctl, every_kind_of_document_has_a_tree)
{
    for (const char *name : {"chassis", "route_processor", "line_card_48", "line_card_12", "fabric_card",
                             "fan_tray", "power_shelf", "pem", "cxp_optics"}) {
        outcome result = run("tree " + quoted(samples / (std::string(name) + ".xml")));
        EXPECT_EQ(result.exit_code, 0) << name << ": " << result.err;
        EXPECT_NE(result.out, "") << name;
    }
}

TEST_F(Invctl, a_missing_attribute_is_pointed_at_by_file_line_and_column)
{
    std::string text =
        std::string("<module ") + entity_attributes + ">\n  <module " + entity_attributes + "/>\n</module>\n";
    size_t second = text.rfind("xmlInstance");
    text.replace(second, text.find('/', second) - second, "");
    fs::path path = write("broken.xml", text);
    outcome result = run("tree " + quoted(path));
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, StartsWith(path.string() + ":2:3: error[-36]: "));
    EXPECT_THAT(result.err, HasSubstr("xmlInstance"));
}

TEST_F(Invctl, every_recorded_attribute_error_is_printed)
{
    std::string text = std::string("<module foo=\"1\" bar=\"2\" ") + entity_attributes + "/>";
    outcome result = run("tree " + quoted(write("two.xml", text)));
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_THAT(result.err, HasSubstr(":1:9: error[-33]"));
    EXPECT_THAT(result.err, HasSubstr(":1:17: error[-33]"));
}

TEST_F(Invctl, a_broken_chassis_is_diagnosed_though_its_open_succeeds)
{
    outcome result = run("tree " + quoted(write("chassis.xml", "<chassis>\n</chassis>\n")));
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_THAT(result.err, HasSubstr("chassis.xml:"));
}

TEST_F(Invctl, malformed_xml_is_a_finding_with_its_place)
{
    fs::path path = write("malformed.xml", "<module>\n  <oops\n</module>\n");
    outcome result = run("tree " + quoted(path));
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_THAT(result.err, StartsWith(path.string() + ":"));
}

TEST_F(Invctl, another_root_element_is_a_finding_that_names_it)
{
    outcome result = run("tree " + quoted(write("other.xml", "<inventory/>")));
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_THAT(result.err, HasSubstr("inventory"));
}

TEST_F(Invctl, a_file_that_cannot_be_read_is_trouble_not_a_finding)
{
    EXPECT_EQ(run("tree " + quoted(folder / "absent.xml")).exit_code, 2);
    EXPECT_EQ(run("tree " + quoted(folder)).exit_code, 2);
}

TEST_F(Invctl, wrong_usage_exits_with_two_and_says_why)
{
    for (const char *arguments : {"", "tree", "unknown", "tree --depth 0 x.xml", "tree --depth many x.xml",
                                  "tree --type widget x.xml", "tree --bogus x.xml"}) {
        outcome result = run(arguments);
        EXPECT_EQ(result.exit_code, 2) << arguments;
        EXPECT_NE(result.err, "") << arguments;
    }
}

TEST_F(Invctl, help_exits_with_zero)
{
    EXPECT_EQ(run("--help").exit_code, 0);
    outcome result = run("tree --help");
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_THAT(result.out, HasSubstr("--depth"));
}

TEST_F(Invctl, a_full_disk_is_trouble)
{
    outcome result = run("tree " + quoted(samples / "line_card_48.xml") + " >/dev/full");
    EXPECT_EQ(result.exit_code, 2);
    EXPECT_THAT(result.err, HasSubstr("standard output"));
}

TEST_F(Invctl, a_closed_pipe_is_trouble_not_a_signal)
{
    fs::path status = folder / "status";
    run("tree " + quoted(samples / "line_card_48.xml") + " | true");
    // The command begins when the reader is gone for sure.
    std::string command = "{ sleep 0.2; '" + std::string(INVCTL) + "' tree " +
                          quoted(samples / "line_card_48.xml") + "; echo $? >" + quoted(status) +
                          "; } 2>/dev/null | exec true";
    ASSERT_EQ(std::system(command.c_str()), 0);
    EXPECT_EQ(read_file(status), "2\n");
}

TEST_F(Invctl, a_path_longer_than_the_librarys_file_names_opens_all_the_same)
{
    fs::path deep = folder / std::string(150, 'd') / std::string(150, 'e');
    fs::create_directories(deep);
    fs::copy_file(samples / "line_card_small.xml", deep / "card.xml");
    outcome result = run("tree --depth 1 " + quoted(deep / "card.xml"));
    EXPECT_EQ(result.exit_code, 0) << result.err;
    EXPECT_THAT(result.out, StartsWith("module."));
}

TEST_F(Invctl, a_name_cannot_forge_a_line)
{
    std::string text = std::string("<module ") + entity_attributes + "/>";
    text.replace(text.find("Board"), 5, "a&#10;b&quot;");
    outcome result = run("tree " + quoted(write("forged.xml", text)));
    EXPECT_EQ(result.exit_code, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr(R"("a\x0ab\"")"));
    EXPECT_EQ(std::count(result.out.begin(), result.out.end(), '\n'), 1);
}

}  // namespace
