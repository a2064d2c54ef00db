// The command invctl check: what it takes and how it ends.
#include "../json_checks.h"

#include <nlohmann/json.hpp>

namespace
{

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

const fs::path sample = samples / "line_card_small.xml";

class Check : public Invctl
{
protected:
    // A copy of the sample with pieces of text replaced.
    fs::path damaged(std::initializer_list<std::pair<const char *, const char *>> replacements,
                     const std::string &name = "damaged.xml")
    {
        std::string text = read_file(sample);
        for (auto [before, after] : replacements) {
            const size_t at = text.find(before);
            EXPECT_NE(at, std::string::npos) << before;
            text.replace(at, std::string(before).size(), after);
        }
        return write(name, text);
    }
};

TEST_F(Check, samples_are_clean)
{
    const outcome result = run("check " + quoted(samples));
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "");
}

TEST_F(Check, catalogue_of_the_samples_is_clean)
{
    const outcome result = run_in_samples("check --catalog catalog.txt");
    EXPECT_EQ(result.exit_code, 0) << result.out;
}

TEST_F(Check, one_run_finds_everything)
{
    const outcome result = run("check " + quoted(damaged({{"<size>2097152", "<size>2 MB"},
                                                          {"xmlInstance=\"11\"", "xmlInstance=\"eleven\""},
                                                          {"<i2cNode>", "<i2cNoode/><i2cNode>"}})));
    EXPECT_EQ(result.exit_code, 1);
    for (const char *code : {"integer-malformed", "element-missing"})
        EXPECT_THAT(result.out, HasSubstr("error[" + std::string(code) + "]: "));
    EXPECT_THAT(result.out, HasSubstr("3 findings\n"));
}

TEST_F(Check, what_follows_from_a_schema_finding_is_not_reported)
{
    // Destinations lead to instance 11, which is not known now.
    const outcome result = run("check " + quoted(damaged({{"xmlInstance=\"11\"", ""}})));
    EXPECT_THAT(result.out, HasSubstr("error[attribute-missing]"));
    EXPECT_THAT(result.out, HasSubstr("\n1 finding\n"));
}

TEST_F(Check, place_counts_characters)
{
    const fs::path file = damaged({{"name=\"Card control FPGA\"", "name=\"K\xC3\xA4rtchen\" nme=\"\""}});
    const std::string text = read_file(file);
    const size_t line = text.rfind('\n', text.find("nme=")) + 1;
    const size_t octets = text.find("nme=") - line;
    EXPECT_THAT(run("check " + quoted(file)).out, HasSubstr(":" + std::to_string(octets) + ": error"));
}

TEST_F(Check, standard_input_is_read)
{
    const outcome result = run("check - <" + quoted(damaged({{"<size>2097152", "<size>big"}})));
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_THAT(result.out, testing::StartsWith("<stdin>:"));
}

TEST_F(Check, folder_is_checked_by_name_order)
{
    fs::create_directory(folder / "docs");
    damaged({{"<size>2097152", "<size>b"}}, "docs/b.xml");
    damaged({{"<size>2097152", "<size>a"}}, "docs/a.xml");
    write("docs/notes.txt", "no document");
    const json found = json::parse(run("check --format json " + quoted(folder / "docs")).out);
    ASSERT_EQ(found["files"].size(), 2u);
    EXPECT_THAT(std::string(found["files"][0]), testing::EndsWith("a.xml"));
    EXPECT_EQ(found["total"], 2);
}

TEST_F(Check, missing_file_is_trouble_and_the_rest_is_checked)
{
    const outcome result = run("check no_such.xml " + quoted(damaged({{"<size>2097152", "<size>b"}})));
    EXPECT_EQ(result.exit_code, 2);
    EXPECT_THAT(result.err, HasSubstr("no_such.xml: No such file or directory"));
    EXPECT_THAT(result.out, HasSubstr("integer-malformed"));
}

TEST_F(Check, a_path_that_cannot_be_asked_is_trouble_and_the_rest_is_checked)
{
    fs::create_symlink("loop", folder / "loop");
    const outcome result =
        run("check " + quoted(damaged({{"<size>2097152", "<size>b"}})) + " " + quoted(folder / "loop"));
    EXPECT_EQ(result.exit_code, 2);
    EXPECT_THAT(result.err, HasSubstr("loop: Too many levels of symbolic links"));
    EXPECT_THAT(result.out, HasSubstr("integer-malformed"));
}

TEST_F(Check, a_folder_without_documents_is_trouble)
{
    fs::create_directories(folder / "nothing" / "below.xml");
    const outcome result = run("check " + quoted(folder / "nothing"));
    EXPECT_EQ(result.exit_code, 2);
    EXPECT_THAT(result.err, HasSubstr("nothing: no documents (*.xml) in this folder"));
}

TEST_F(Check, a_schema_finding_hides_no_name_or_instance_that_is_used_twice)
{
    const fs::path file =
        damaged({{"<size>2097152", "<size>b"}, {"xmlInstance=\"21\"", "xmlInstance=\"20\""}});
    const outcome result = run("check " + quoted(file));
    EXPECT_THAT(result.out, HasSubstr("integer-malformed"));
    EXPECT_THAT(result.out, HasSubstr("instance-used-twice"));
}

TEST_F(Check, usage_is_trouble)
{
    EXPECT_EQ(run("check").exit_code, 2);
    EXPECT_EQ(run("check --max -1 " + quoted(sample)).exit_code, 2);
    EXPECT_EQ(run("check --max 99999999999999999999999 " + quoted(sample)).exit_code, 2);
    const outcome code = run("check --code tokn-unknown " + quoted(sample));
    EXPECT_EQ(code.exit_code, 2);
    EXPECT_THAT(code.err, HasSubstr("did you mean token-unknown?"));
    EXPECT_EQ(run("check --format xml " + quoted(sample)).exit_code, 2);
    EXPECT_EQ(run("check --severity fatal " + quoted(sample)).exit_code, 2);
}

TEST_F(Check, code_selects)
{
    const fs::path file =
        damaged({{"<size>2097152", "<size>b"}, {"xmlInstance=\"11\"", "xmlInstance=\"99999\""}});
    const outcome one = run("check --code number-out-of-range " + quoted(file));
    EXPECT_THAT(one.out, Not(HasSubstr("integer-malformed")));
    EXPECT_THAT(one.out, HasSubstr("\n1 finding\n"));
    EXPECT_EQ(run("check --code not-well-formed " + quoted(file)).exit_code, 0);
    EXPECT_THAT(run("check --code number-out-of-range,integer-malformed " + quoted(file)).out,
                HasSubstr("\n2 findings\n"));
}

TEST_F(Check, severity_is_the_least_that_is_shown)
{
    const fs::path file = damaged({{"name=\"Sensor mux\"", "name=\"Card control FPGA\""}});
    EXPECT_EQ(run("check " + quoted(file)).exit_code, 1);
    EXPECT_EQ(run("check --severity error " + quoted(file)).exit_code, 0);
}

TEST_F(Check, quiet_leaves_the_exit_status)
{
    const outcome result = run("check --quiet " + quoted(damaged({{"<size>2097152", "<size>b"}})));
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_EQ(result.out + result.err, "");
}

TEST_F(Check, a_hundred_findings_are_shown_unless_more_are_asked_for)
{
    std::string many = read_file(sample);
    const std::string wrong = "  <wrong/>\n";
    for (int i = 0; i < 150; ++i)
        many.insert(many.rfind("</module>"), wrong);
    const fs::path file = write("many.xml", many);
    EXPECT_THAT(run("check " + quoted(file)).out, HasSubstr("100 of 150 findings shown"));
    EXPECT_THAT(run("check --max 7 " + quoted(file)).out, HasSubstr("7 of 150 findings shown"));
    EXPECT_THAT(run("check --max 0 " + quoted(file)).out, HasSubstr("\n150 findings\n"));
}

TEST_F(Check, colour_goes_to_terminals_only_and_never_against_no_color)
{
    const std::string command = "check " + quoted(damaged({{"<size>2097152", "<size>b"}}));
    const auto on_terminal = [&](const std::string &environment) {
        // script(1) gives its command a terminal.
        const std::string inner = environment + " '" INVCTL "' " + command;
        return run("--version >/dev/null; script -qec \"" + inner + "\" /dev/null").out;
    };
    EXPECT_THAT(run(command).out, Not(HasSubstr("\x1b[")));
    EXPECT_THAT(on_terminal("env -u NO_COLOR TERM=xterm"), HasSubstr("\x1b["));
    EXPECT_THAT(on_terminal("env NO_COLOR=1 TERM=xterm"), Not(HasSubstr("\x1b[")));
    EXPECT_THAT(on_terminal("env -u NO_COLOR TERM=dumb"), Not(HasSubstr("\x1b[")));
}

TEST_F(Check, hostile_text_cannot_forge_output)
{
    const fs::path file =
        damaged({{"name=\"Sensor mux\"", "name=\"x&#10;y:1:1: error[forged]: z\" nme=\"\""}});
    const outcome result = run("check " + quoted(file));
    EXPECT_THAT(result.out, Not(HasSubstr("\ny:1:1")));
    EXPECT_THAT(result.out, HasSubstr("\\x0a"));
}

TEST_F(Check, long_lines_are_shown_around_the_caret)
{
    std::string flat = read_file(sample);
    std::replace(flat.begin(), flat.end(), '\n', ' ');
    const size_t at = flat.find("2097152");
    flat.replace(at, 7, "big");
    const outcome result = run("check " + quoted(write("flat.xml", flat)));
    std::istringstream lines(result.out);
    std::string heading, source, caret;
    std::getline(lines, heading);
    std::getline(lines, source);
    std::getline(lines, caret);
    EXPECT_LT(source.size(), 300u);
    EXPECT_EQ(source.substr(caret.find('^'), 3), "big");
}

TEST_F(Check, outputs_of_a_clean_document_are_valid_by_their_schemas)
{
    for (auto [format, schema] : {std::pair("json", "invctl-check.schema.json"),
                                  std::pair("sarif", "sarif-2.1.0-subset.schema.json")}) {
        const outcome result = run("check --format " + std::string(format) + " " + quoted(sample));
        EXPECT_EQ(result.exit_code, 0);
        EXPECT_EQ(schema_faults(schema, write("out", result.out)), "");
    }
}

TEST_F(Check, schemas_refuse_what_is_no_such_output)
{
    const json good =
        json::parse(run("check --format sarif " + quoted(damaged({{"<size>2097152", "<size>b"}}))).out);
    for (const char *pointer : {"/version", "/runs", "/runs/0/tool", "/runs/0/results/0/message",
                                "/runs/0/results/0/locations/0/physicalLocation/artifactLocation/uri"}) {
        json bad = good;
        bad[json::json_pointer(pointer)] = 7;
        EXPECT_NE(schema_faults("sarif-2.1.0-subset.schema.json", write("bad", bad.dump())), "") << pointer;
    }
}

}  // namespace
