// invctl diff: what is the same, and that each difference is named and nothing else.
#include "json_checks.h"

#include <nlohmann/json.hpp>
#include <sys/resource.h>

#include <optional>

namespace
{

using json = nlohmann::ordered_json;

// The end of the start tag that begins at `begin`: quoted values may hold '>'.
size_t end_of_tag(const std::string &text, size_t begin)
{
    char quote = 0;
    for (size_t at = begin; at < text.size(); ++at) {
        if (quote != 0)
            quote = text[at] == quote ? '\0' : quote;
        else if (text[at] == '"' || text[at] == '\'')
            quote = text[at];
        else if (text[at] == '>')
            return at;
    }
    return text.size();
}

// name="value" parts of a start tag, from behind the element's name.
std::vector<std::string> attributes_in(const std::string &tag)
{
    std::vector<std::string> attributes;
    for (size_t at = tag.find_first_not_of(" \n\r\t"); at != std::string::npos && tag[at] != '/';) {
        size_t open = tag.find_first_of("\"'", at);
        size_t close = tag.find(tag[open], open + 1);
        attributes.push_back(tag.substr(at, close + 1 - at));
        at = tag.find_first_not_of(" \n\r\t", close + 1);
    }
    return attributes;
}

// The document with the attributes of every element in the reverse order, one a line.
std::string with_shuffled_attributes(const std::string &text)
{
    std::string result;
    for (size_t at = 0; at < text.size();) {
        if (text.compare(at, 4, "<!--") == 0) {
            size_t end = text.find("-->", at);
            result += text.substr(at, end - at);
            at = end;
        }
        if (text[at] != '<' || isalpha(static_cast<unsigned char>(text[at + 1])) == 0) {
            result += text[at++];
            continue;
        }
        size_t end = end_of_tag(text, at);
        size_t name_end = text.find_first_of(" \n\r\t/>", at);
        std::vector<std::string> attributes = attributes_in(text.substr(name_end, end - name_end));
        result += text.substr(at, name_end - at);
        for (auto each = attributes.rbegin(); each != attributes.rend(); ++each)
            result += "\n  " + *each;
        result += text[end - 1] == '/' ? "/>" : ">";
        at = end + 1;
    }
    return result;
}

class Diff : public Invctl
{
protected:
    // A sample after the edits: each replaces the first place where its text stands, which must exist.
    struct edit {
        std::string text;
        std::string by;
    };
    fs::path edited(const std::string &sample, const std::vector<edit> &edits,
                    const char *name = "edited.xml")
    {
        std::string text = read_file(samples / sample);
        for (const edit &each : edits) {
            size_t at = text.find(each.text);
            EXPECT_NE(at, std::string::npos) << each.text;
            text.replace(at, each.text.size(), each.by);
        }
        return write(name, text);
    }

    // The element that opens with `head` as it stands in the sample, with all it holds, `level` blanks deep.
    static std::string element(const std::string &sample, const std::string &head, const std::string &name)
    {
        std::string text = read_file(samples / sample);
        size_t begin = text.find(head);
        size_t line = text.rfind('\n', begin) + 1;
        std::string end = "\n" + text.substr(line, begin - line) + "</" + name + ">\n";
        return text.substr(line, text.find(end, begin) + end.size() - line);
    }

    outcome diff(const fs::path &before, const fs::path &after, const std::string &options = "")
    {
        return run("diff " + options + " " + quoted(before) + " " + quoted(after));
    }

    // Text of the differences, after a check that the JSON says as many and is valid.
    std::string differences(const fs::path &before, const fs::path &after)
    {
        outcome text = diff(before, after);
        outcome as_json = diff(before, after, "--json");
        EXPECT_EQ(as_json.exit_code, text.exit_code);
        EXPECT_EQ(schema_faults("invctl-diff.schema.json", write("diff.json", as_json.out)), "");
        json parsed = json::parse(as_json.out);
        EXPECT_EQ(parsed["equal"].get<bool>(), text.exit_code == 0);
        EXPECT_EQ(parsed["changes"].size(), changes_in(text.out)) << text.out;
        return text.out;
    }

    // Entities that are told of: what is said of each stands behind blanks.
    static size_t changes_in(const std::string &text)
    {
        size_t changes = 0;
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);)
            changes += line.starts_with(" ") ? 0 : 1;
        return changes;
    }
};

const char *const all_samples[] = {"chassis",      "cxp_optics",     "fabric_card",     "fan_tray",
                                   "line_card_12", "line_card_48",   "line_card_small", "pem",
                                   "power_shelf",  "route_processor"};

class DiffOfSample : public Diff, public testing::WithParamInterface<const char *>
{
};

TEST_P(DiffOfSample, is_equal_to_itself_and_to_its_twin_with_shuffled_attributes)
{
    fs::path sample = samples / (std::string(GetParam()) + ".xml");
    std::string twin = with_shuffled_attributes(read_file(sample));
    ASSERT_NE(twin, read_file(sample));
    for (const fs::path &other : {sample, write("twin.xml", twin)}) {
        outcome result = diff(sample, other);
        EXPECT_EQ(result.exit_code, 0) << result.out << result.err;
        EXPECT_EQ(result.out, "");
    }
}

INSTANTIATE_TEST_SUITE_P(Documents, DiffOfSample, testing::ValuesIn(all_samples),
                         [](const testing::TestParamInfo<const char *> &info) {
                             return std::string(info.param);
                         });

TEST_F(Diff, names_exactly_a_changed_threshold)
{
    fs::path after = edited("line_card_small.xml", {{"majorHigh=\"65\"", "majorHigh=\"66\""}});
    EXPECT_EQ(differences(samples / "line_card_small.xml", after),
              "changed module.msc.0/sensor.temp_value.0  \"Inlet temperature\"  xml 20\n"
              "    threshold.major_high: 65 -> 66\n");
    json parsed = json::parse(diff(samples / "line_card_small.xml", after, "--json").out);
    EXPECT_EQ(parsed["changes"].dump(),
              R"([{"change":"changed","eid":"module.msc.0/sensor.temp_value.0","name":"Inlet temperature",)"
              R"("xml_instance":20,"fields":[{"field":"threshold.major_high","from":65,"to":66}]}])");
}

TEST_F(Diff, names_a_field_that_came_or_went_as_absent)
{
    fs::path after = edited("line_card_small.xml", {{"<firmwareVersion>1.04</firmwareVersion>", ""}});
    EXPECT_EQ(differences(samples / "line_card_small.xml", after),
              "changed module.msc.0/module.fpga.0  \"Card control FPGA\"  xml 10\n"
              "    base.fw_version: \"1.04\" -> absent\n");
    EXPECT_EQ(differences(after, samples / "line_card_small.xml"),
              "changed module.msc.0/module.fpga.0  \"Card control FPGA\"  xml 10\n"
              "    base.fw_version: absent -> \"1.04\"\n");
}

TEST_F(Diff, a_default_written_out_is_no_difference)
{
    fs::path after =
        edited("line_card_small.xml", {{"fruable=\"true\"", "fruable=\"true\" snmpEntity=\"true\""}});
    EXPECT_EQ(differences(samples / "line_card_small.xml", after), "");
}

TEST_F(Diff, an_item_that_went_from_a_list_leaves_the_others_alone)
{
    std::string text = read_file(samples / "line_card_small.xml");
    size_t begin = text.find("<dstInfo>", text.find("Sensor mux\" description"));
    size_t end = text.find("</dstInfo>", begin) + 10;
    fs::path after = write("edited.xml", text.erase(begin, end - begin));
    std::string found = differences(samples / "line_card_small.xml", after);
    std::istringstream lines(found);
    std::string line;
    std::getline(lines, line);
    EXPECT_EQ(line, "changed module.msc.0/module.i2c_mux.0  \"Sensor mux\"  xml 11");
    size_t fields = 0;
    for (; std::getline(lines, line); ++fields) {
        EXPECT_TRUE(line.starts_with("    base.i2c_port_list[0].dest_list[0].")) << line;
        EXPECT_TRUE(line.ends_with(" -> absent")) << line;
    }
    EXPECT_GE(fields, 3u);
}

TEST_F(Diff, names_a_removed_and_an_added_entity_with_what_is_below)
{
    std::string board = element("line_card_small.xml", "<module name=\"Mother board\"", "module");
    fs::path after = edited("line_card_small.xml", {{board, ""}});
    EXPECT_EQ(differences(samples / "line_card_small.xml", after),
              "removed module.msc.0/module.mother_board.0  \"Mother board\"  xml 30  and 3 below\n");
    EXPECT_EQ(differences(after, samples / "line_card_small.xml"),
              "added   module.msc.0/module.mother_board.0  \"Mother board\"  xml 30  and 3 below\n");
}

TEST_F(Diff, names_a_renamed_entity_by_its_name_alone)
{
    fs::path after = edited("line_card_small.xml", {{"name=\"Mother board\"", "name=\"Main board\""}});
    EXPECT_EQ(differences(samples / "line_card_small.xml", after),
              "changed module.msc.0/module.mother_board.0  \"Mother board\"  xml 30\n"
              "    base.name: \"Mother board\" -> \"Main board\"\n");
}

TEST_F(Diff, an_entity_with_another_instance_was_moved_and_what_is_below_follows)
{
    fs::path after =
        edited("line_card_small.xml",
               {{"MODULE_MOTHER_BOARD\" instance=\"0\"", "MODULE_MOTHER_BOARD\" instance=\"4\""}});
    EXPECT_EQ(differences(samples / "line_card_small.xml", after),
              "moved   module.msc.0/module.mother_board.0  \"Mother board\"  xml 30\n"
              "    to module.msc.0/module.mother_board.4\n");
}

TEST_F(Diff, an_entity_below_another_parent_was_moved)
{
    std::string sensor = element("line_card_small.xml", "<sensor name=\"NPU temperature\"", "sensor");
    fs::path after =
        edited("line_card_small.xml",
               {{sensor, ""},
                {"  </sensor>\n  <!-- Boards -->", "  </sensor>\n" + sensor + "  <!-- Boards -->"},
                {"<sensor name=\"NPU temperature\"", "<sensor  name=\"NPU temperature\""}});
    std::string moved = read_file(after);
    size_t at = moved.find("instance=\"0\"", moved.find("NPU temperature\"\n"));
    write("edited.xml", moved.replace(at, 12, "instance=\"2\""));
    EXPECT_EQ(
        differences(samples / "line_card_small.xml", after),
        "moved   module.msc.0/module.mother_board.0/module.pse.0/sensor.temp_value.0  \"NPU temperature\"  "
        "xml 32\n"
        "    to module.msc.0/sensor.temp_value.2\n");
}

TEST_F(Diff, entities_pushed_back_by_a_new_one_are_moved_not_renamed)
{
    fs::path after = edited("line_card_small.xml",
                            {{"SENSOR_TEMP_VALUE\" instance=\"1\"", "SENSOR_TEMP_VALUE\" instance=\"2\""},
                             {"SENSOR_TEMP_VALUE\" instance=\"0\"", "SENSOR_TEMP_VALUE\" instance=\"1\""}});
    EXPECT_EQ(differences(samples / "line_card_small.xml", after),
              "moved   module.msc.0/sensor.temp_value.0  \"Inlet temperature\"  xml 20\n"
              "    to module.msc.0/sensor.temp_value.1\n"
              "moved   module.msc.0/sensor.temp_value.1  \"Outlet temperature\"  xml 21\n"
              "    to module.msc.0/sensor.temp_value.2\n");
}

TEST_F(Diff, a_moved_entity_whose_parent_went_is_told_apart_from_it)
{
    std::string sensor = element("line_card_small.xml", "<sensor name=\"NPU temperature\"", "sensor");
    std::string board = element("line_card_small.xml", "<module name=\"Mother board\"", "module");
    fs::path after = edited("line_card_small.xml",
                            {{board, ""}, {"  </sensor>\n  <!-- Boards -->", "  </sensor>\n" + sensor}});
    EXPECT_EQ(
        differences(samples / "line_card_small.xml", after),
        "removed module.msc.0/module.mother_board.0  \"Mother board\"  xml 30  and 2 below\n"
        "moved   module.msc.0/module.mother_board.0/module.pse.0/sensor.temp_value.0  \"NPU temperature\"  "
        "xml 32\n"
        "    to module.msc.0/sensor.temp_value.0\n");
}

TEST_F(Diff, of_twins_with_one_eid_and_name_the_last_one_is_the_one_that_went)
{
    std::string sensor = element("line_card_small.xml", "<sensor name=\"Outlet temperature\"", "sensor");
    fs::path twins = edited("line_card_small.xml", {{sensor, sensor + sensor}}, "twins.xml");
    EXPECT_EQ(differences(twins, twins), "");
    EXPECT_EQ(differences(twins, samples / "line_card_small.xml"),
              "removed module.msc.0/sensor.temp_value.1  \"Outlet temperature\"  xml 21\n");
    EXPECT_EQ(differences(samples / "line_card_small.xml", twins),
              "added   module.msc.0/sensor.temp_value.1  \"Outlet temperature\"  xml 21\n");
}

TEST_F(Diff, swapping_the_documents_swaps_the_words)
{
    json there = json::parse(run_in_samples("diff --json line_card_12.xml line_card_48.xml").out);
    json back = json::parse(run_in_samples("diff --json line_card_48.xml line_card_12.xml").out);
    auto count = [](const json &diff, const char *word) {
        return std::count_if(diff["changes"].begin(), diff["changes"].end(),
                             [&](const json &change) { return change["change"] == word; });
    };
    EXPECT_EQ(count(there, "added"), count(back, "removed"));
    EXPECT_EQ(count(there, "removed"), count(back, "added"));
    EXPECT_EQ(count(there, "changed"), count(back, "changed"));
    EXPECT_EQ(count(there, "moved"), count(back, "moved"));
    EXPECT_GT(count(there, "added"), 0);
}

TEST_F(Diff, every_entity_is_accounted_for)
{
    json parsed = json::parse(run_in_samples("diff --json line_card_12.xml line_card_48.xml").out);
    long difference = 0;
    for (const json &change : parsed["changes"])
        if (change.contains("below"))
            difference += (change["change"] == "added" ? 1 : -1) * (1 + change["below"].get<long>());
    auto entities = [this](const char *sample) {
        std::string tree = run_in_samples(std::string("tree ") + sample).out;
        return static_cast<long>(std::count(tree.begin(), tree.end(), '\n'));
    };
    EXPECT_EQ(difference, entities("line_card_48.xml") - entities("line_card_12.xml"));
}

TEST_F(Diff, units_of_two_kinds_differ_and_nothing_more_is_said)
{
    EXPECT_EQ(differences(samples / "pem.xml", samples / "pem.xml"), "");
    outcome result = diff(samples / "pem.xml", samples / "fan_tray.xml");
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_EQ(result.out, "kind    pem -> fanTray\n");
    outcome as_json = diff(samples / "pem.xml", samples / "fan_tray.xml", "--json");
    EXPECT_EQ(schema_faults("invctl-diff.schema.json", write("diff.json", as_json.out)), "");
    json parsed = json::parse(as_json.out);
    EXPECT_FALSE(parsed["equal"].get<bool>());
    EXPECT_EQ(parsed["before"]["kind"], "pem");
    EXPECT_EQ(parsed["after"]["kind"], "fanTray");
}

TEST_F(Diff, of_the_two_line_cards_is_as_the_golden_file_has_it)
{
    outcome result = run_in_samples("diff line_card_12.xml line_card_48.xml");
    EXPECT_EQ(result.exit_code, 1);
    compare_with_golden("diff_line_cards.txt", result.out);
}

TEST_F(Diff, a_document_that_cannot_be_opened_is_trouble)
{
    fs::path broken = write("broken.xml", "<module/>");
    // Of a load that failed the library keeps the handle; a sanitizer would end the process with its own
    // status.
    setenv("ASAN_OPTIONS", "detect_leaks=0", 1);
    for (const fs::path &bad : {broken, folder / "none.xml"}) {
        EXPECT_EQ(diff(bad, samples / "pem.xml").exit_code, 2) << bad;
        outcome second = diff(samples / "pem.xml", bad);
        EXPECT_EQ(second.exit_code, 2) << bad;
        EXPECT_NE(second.err, "");
    }
    EXPECT_EQ(run("diff " + quoted(samples / "pem.xml")).exit_code, 2);
    unsetenv("ASAN_OPTIONS");
}

// A card with many boards; `name` and `instance` are what the i-th one has.
std::string card_with_boards(int count, const char *prefix, int shift)
{
    std::string text = "<module name='Card' type='ORVL_ENTITY_TYPE_MODULE' "
                       "subtype='ORVL_ENTITY_SUBTYPE_MODULE_MSC' instance='0' "
                       "replicationScope='ORVL_REPLICATION_TYPE_NONE' xmlInstance='1'>\n";
    for (int i = 0; i < count; ++i)
        text += std::string("<module name='") + prefix + std::to_string(i) +
                "' type='ORVL_ENTITY_TYPE_MODULE' subtype='ORVL_ENTITY_SUBTYPE_MODULE_PSE' instance='" +
                std::to_string((i + shift) % count) +
                "' replicationScope='ORVL_REPLICATION_TYPE_NONE' xmlInstance='" +
                std::to_string(2 + i % 9000) + "'/>\n";
    return text + "</module>\n";
}

double seconds_of_children()
{
    rusage usage;
    getrusage(RUSAGE_CHILDREN, &usage);
    return static_cast<double>(usage.ru_utime.tv_sec) + static_cast<double>(usage.ru_utime.tv_usec) * 1e-6;
}

TEST_F(Diff, ten_thousand_entities_take_time_linear_to_their_number)
{
    struct {
        const char *what;
        const char *prefix;
        int shift;
        size_t changes_of_ten_thousand;
    } cases[] = {
        {"equal", "Board ", 0, 0},
        {"all renamed", "Plate ", 0, 10000},
        {"all moved", "Board ", 1, 10000},
        {"all renamed and shifted", "Plate ", 5000, 10000},
    };
    auto seconds = [&](int count, const char *prefix, int shift, size_t *changes) {
        fs::path before = write("before.xml", card_with_boards(count, "Board ", 0));
        fs::path after = write("after.xml", card_with_boards(count, prefix, shift));
        double least = 1e9;
        for (int round = 0; round < 3; ++round) {
            double start = seconds_of_children();
            outcome result = diff(before, after);
            least = std::min(least, seconds_of_children() - start);
            *changes = changes_in(result.out);
        }
        return least;
    };
    for (const auto &each : cases) {
        size_t changes = 0;
        double small = seconds(2500, each.prefix, each.shift, &changes);
        double large = seconds(10000, each.prefix, each.shift, &changes);
        EXPECT_EQ(changes, each.changes_of_ten_thousand) << each.what;
        // Four times the entities; sixteen times the time would be quadratic.
        EXPECT_LT(large, 9 * small + 0.05) << each.what << ": " << small << " s and " << large << " s";
    }
}

}  // namespace
