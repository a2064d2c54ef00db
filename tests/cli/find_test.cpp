// invctl find: conditions alone and together.
#include "invctl_fixture.h"

#include <nlohmann/json.hpp>

namespace
{

using json = nlohmann::ordered_json;
using testing::HasSubstr;

class Find : public Invctl
{
protected:
    static size_t lines(const std::string &text)
    {
        return static_cast<size_t>(std::count(text.begin(), text.end(), '\n'));
    }
};

TEST_F(Find, outputs_on_the_samples_are_as_the_golden_file_has_them)
{
    std::string text;
    for (const char *arguments :
         {"line_card_small.xml --type sensor", "line_card_small.xml --name '*temperature'",
          "line_card_48.xml --subtype i2c_mux", "line_card_48.xml --subtype i2c_mux --name '*[01] mux'",
          "route_processor.xml --type sensor --subtype led_status", "chassis.xml --owner esd",
          "chassis.xml --type container --name 'Line card slot ?'", "fan_tray.xml --type fan",
          "power_shelf.xml --owner shelf --type container", "pem.xml --name PEM*",
          "cxp_optics.xml --name '*power*'", "fabric_card.xml --type cpu --owner fabric",
          "line_card_12.xml --type stack"}) {
        outcome result = run_in_samples(std::string("find ") + arguments);
        EXPECT_LE(result.exit_code, 1) << arguments << ": " << result.err;
        text += std::string("$ invctl find ") + arguments + "\n" + result.out + "exit " +
                std::to_string(result.exit_code) + "\n";
    }
    compare_with_golden("find_text.txt", text);
}

TEST_F(Find, without_conditions_every_entity_is_found)
{
    EXPECT_EQ(lines(run_in_samples("find line_card_48.xml").out),
              lines(run_in_samples("tree line_card_48.xml").out));
}

TEST_F(Find, types_part_the_entities)
{
    size_t sum = 0;
    for (const char *type : {"dummy", "other", "unknown", "chassis", "backplane", "container", "powersupply",
                             "fan", "sensor", "module", "port", "stack", "cpu"})
        sum += lines(run_in_samples(std::string("find line_card_48.xml --type ") + type).out);
    EXPECT_EQ(sum, lines(run_in_samples("tree line_card_48.xml").out));
}

TEST_F(Find, json_holds_what_the_lines_hold)
{
    json found = json::parse(run_in_samples("find line_card_small.xml --type sensor --json").out);
    EXPECT_EQ(found["kind"], "module");
    std::string text;
    for (const json &each : found["found"])
        text += each["eid"].get<std::string>() + "  \"" + each["name"].get<std::string>() + "\"  xml " +
                std::to_string(each["xml_instance"].get<int>()) + "  owner " +
                each["owner"].get<std::string>() + "\n";
    EXPECT_EQ(run_in_samples("find line_card_small.xml --type sensor").out, text);
}

TEST_F(Find, nothing_found_is_a_finding_and_prints_no_line)
{
    outcome result = run_in_samples("find pem.xml --name nothing");
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(run_in_samples("find pem.xml --name ''").exit_code, 1);
    EXPECT_EQ(json::parse(run_in_samples("find pem.xml --name nothing --json").out)["found"].size(), 0u);
}

TEST_F(Find, words_that_the_schema_lacks_are_refused_with_a_hint)
{
    struct {
        const char *arguments;
        const char *hint;
    } cases[] = {{"--type senser", "did you mean sensor?"},
                 {"--subtype i2c_mxu", "did you mean i2c_mux?"},
                 {"--owner shelff", "did you mean shelf?"}};
    for (const auto &each : cases) {
        outcome result = run_in_samples(std::string("find pem.xml ") + each.arguments);
        EXPECT_EQ(result.exit_code, 2) << each.arguments;
        EXPECT_THAT(result.err, HasSubstr(each.hint));
    }
}

TEST_F(Find, a_pattern_of_many_stars_takes_no_time)
{
    std::string stars;
    for (int i = 0; i < 60; ++i)
        stars += "*a";
    outcome result = run_in_samples("find line_card_48.xml --name '" + stars + "b'");
    EXPECT_EQ(result.exit_code, 1);
}

}  // namespace
