// invctl json: the whole document, its schema, and that the same document gives the same bytes.
#include "json_checks.h"

#include <nlohmann/json.hpp>

namespace
{

using json = nlohmann::ordered_json;
using testing::HasSubstr;

class Json : public Invctl
{
};

class JsonOfSample : public Json, public testing::WithParamInterface<const char *>
{
};

TEST_P(JsonOfSample, is_valid_by_the_published_schema)
{
    outcome result = run_in_samples(std::string("json ") + GetParam() + ".xml");
    ASSERT_EQ(result.exit_code, 0) << result.err;
    EXPECT_EQ(schema_faults("invctl-json.schema.json", write("document.json", result.out)), "");
}

TEST_P(JsonOfSample, holds_every_record_as_show_prints_it)
{
    std::string name = GetParam();
    json whole = json::parse(run_in_samples("json " + name + ".xml").out);
    json shown = json::parse(run_in_samples("show --all --json " + name + ".xml").out);
    ASSERT_EQ(whole["entities"].size(), shown["entities"].size());
    EXPECT_EQ(whole["kind"], shown["kind"]);
    for (size_t i = 0; i < shown["entities"].size(); ++i)
        for (const char *key : {"eid", "record", "fields"})
            EXPECT_EQ(whole["entities"][i][key].dump(), shown["entities"][i][key].dump()) << i << " " << key;
}

TEST_P(JsonOfSample, does_not_depend_on_place_or_environment)
{
    std::string name = std::string(GetParam()) + ".xml";
    std::string here = run_in_samples("json " + name).out;
    fs::path copy = write("elsewhere.xml", read_file(samples / name));
    EXPECT_EQ(run("json " + quoted(copy)).out, here);
    setenv("LC_ALL", "de_DE.UTF-8", 1);
    setenv("MALLOC_PERTURB_", "165", 1);
    EXPECT_EQ(run("json " + quoted(copy)).out, here);
    unsetenv("MALLOC_PERTURB_");
    unsetenv("LC_ALL");
}

TEST_P(JsonOfSample, depths_give_the_tree_back)
{
    json whole = json::parse(run_in_samples(std::string("json ") + GetParam() + ".xml").out);
    std::vector<std::string> above;
    for (const json &entity : whole["entities"]) {
        size_t depth = entity["depth"];
        ASSERT_GE(depth, 1u);
        ASSERT_LE(depth, above.size() + 1);
        above.resize(depth - 1);
        std::string eid = entity["eid"];
        size_t last = eid.rfind('/');
        EXPECT_EQ(last == std::string::npos ? "" : eid.substr(0, last), above.empty() ? "" : above.back());
        above.push_back(eid);
    }
}

INSTANTIATE_TEST_SUITE_P(Documents, JsonOfSample,
                         testing::Values("chassis", "cxp_optics", "fabric_card", "fan_tray", "line_card_12",
                                         "line_card_48", "line_card_small", "pem", "power_shelf",
                                         "route_processor"),
                         [](const testing::TestParamInfo<const char *> &info) {
                             return std::string(info.param);
                         });

TEST_F(Json, of_the_small_card_is_as_the_golden_file_has_it)
{
    compare_with_golden("json_line_card_small.json", run_in_samples("json line_card_small.xml").out);
}

TEST_F(Json, schema_that_is_printed_is_the_published_one)
{
    outcome result = run("json --schema");
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_EQ(result.out, read_file(fs::path(INV_SOURCE_DIR) / "schema/invctl-json.schema.json"));
}

TEST_F(Json, schema_refuses_what_is_no_inventory)
{
    std::string good = run_in_samples("json pem.xml").out;
    struct {
        const char *what;
        const char *path;
        json value;
    } faults[] = {
        {"another kind", "/kind", "toaster"},
        {"no entities", "/entities", json::array()},
        {"a record that its fields are not of", "/entities/0/record", "fan"},
        {"a text for a number", "/entities/0/fields/base/xml_instance", "one"},
        {"a number too large for the record", "/entities/0/fields/base/xml_instance", 65536},
        {"a key that is not known", "/entities/0/fields/colour", "red"},
        {"an EID without levels", "/entities/0/eid", "pem"},
    };
    for (const auto &fault : faults) {
        json document = json::parse(good);
        document[json::json_pointer(fault.path)] = fault.value;
        EXPECT_THAT(schema_faults("invctl-json.schema.json", write("bad.json", document.dump())),
                    HasSubstr("exit 1"))
            << fault.what;
    }
}

TEST_F(Json, of_texts_that_records_cut_and_codes_without_tokens_is_valid)
{
    std::string text = read_file(samples / "line_card_small.xml");
    std::string name = "Tutorial card";
    std::string twisted(62, 'a');
    twisted += "\xc3\xa4\xc3\xa4\xc3\xa4";
    text.replace(text.find(name), name.size(), twisted);
    outcome result = run("json " + quoted(write("cut.xml", text)));
    ASSERT_EQ(result.exit_code, 0) << result.err;
    EXPECT_EQ(schema_faults("invctl-json.schema.json", write("cut.json", result.out)), "");
}

TEST_F(Json, trouble_and_findings_have_their_exit_codes)
{
    EXPECT_EQ(run("json " + quoted(folder / "none.xml")).exit_code, 2);
    EXPECT_EQ(run("json").exit_code, 2);
    EXPECT_EQ(run("json --schema " + quoted(samples / "pem.xml")).exit_code, 2);
    outcome broken = run("json " + quoted(write("broken.xml", "<module/>")));
    EXPECT_EQ(broken.exit_code, 1);
    EXPECT_EQ(broken.out, "");
}

}  // namespace
