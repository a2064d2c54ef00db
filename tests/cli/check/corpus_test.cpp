// Faulty documents, a folder for each kind of finding: what is printed of them, as text and as SARIF. Kinds
// that go across files have a folder with a catalogue for each case.
#include "../json_checks.h"

#include <algorithm>
#include <set>

#include <nlohmann/json.hpp>

namespace
{

using nlohmann::json;

const fs::path corpus = fs::path(INV_SOURCE_DIR) / "tests/cli/check/corpus";
const fs::path pages = fs::path(INV_SOURCE_DIR) / "docs/findings";

// Kinds that no document can have: no element of the schema must be empty.
const std::set<std::string> impossible_kinds = {"element-not-empty"};

std::vector<fs::path> folders_in(const fs::path &parent)
{
    std::vector<fs::path> folders;
    for (const auto &entry : fs::directory_iterator(parent))
        if (entry.is_directory())
            folders.push_back(entry.path());
    std::sort(folders.begin(), folders.end());
    return folders;
}

// One run of the command: in a folder, over the documents or by the catalogue in it.
struct corpus_case {
    std::string code;
    fs::path folder;
    std::string arguments;
};

void PrintTo(const corpus_case &each, std::ostream *out)
{
    *out << each.folder;
}

std::vector<corpus_case> all_cases()
{
    std::vector<corpus_case> cases;
    for (const fs::path &kind : folders_in(corpus)) {
        const std::string code = kind.filename().string();
        for (const fs::path &folder : folders_in(kind))
            cases.push_back({code, folder, "--catalog catalog.txt"});
        if (folders_in(kind).empty())
            cases.push_back({code, kind, "*.xml"});
    }
    return cases;
}

std::string name_of(const testing::TestParamInfo<corpus_case> &info)
{
    std::string name = fs::relative(info.param.folder, corpus).string();
    std::replace_if(
        name.begin(), name.end(), [](char c) { return c == '-' || c == '/'; }, '_');
    return name;
}

class Corpus : public Invctl, public testing::WithParamInterface<corpus_case>
{
protected:
    outcome check(const std::string &options)
    {
        const fs::path before = fs::current_path();
        fs::current_path(GetParam().folder);
        outcome result = run("check --max 0 " + options + " " + GetParam().arguments);
        fs::current_path(before);
        return result;
    }

    static void compare(const std::string &name, const std::string &text)
    {
        compare_with_golden(fs::relative(GetParam().folder / name, golden).string(), text);
    }
};

TEST_P(Corpus, findings_are_printed_as_text)
{
    const outcome result = check("");
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_EQ(result.err, "");
    compare("expected.txt", result.out);
}

TEST_P(Corpus, findings_are_printed_as_sarif_that_its_schema_accepts)
{
    const outcome result = check("--format sarif");
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_EQ(schema_faults("sarif-2.1.0-subset.schema.json", write("log.sarif", result.out)), "");
    // The tool and its rules are the same in every log.
    json log = json::parse(result.out);
    log["runs"][0].erase("tool");
    for (json &each : log["runs"][0]["results"])
        each.erase("ruleIndex");
    compare("expected.sarif", log.dump(1) + "\n");
}

TEST_P(Corpus, findings_are_printed_as_json_that_its_schema_accepts)
{
    const outcome result = check("--format json");
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_EQ(schema_faults("invctl-check.schema.json", write("findings.json", result.out)), "");
}

TEST_P(Corpus, every_document_has_a_finding_of_the_kind)
{
    const corpus_case &tried = GetParam();
    const json found = json::parse(check("--format json --code " + tried.code).out);
    ASSERT_GT(found["total"], 0);
    if (tried.arguments != "*.xml")
        return;
    std::set<std::string> files;
    for (const json &each : found["findings"])
        files.insert(each["file"]);
    EXPECT_EQ(files.size(), found["files"].size());
    EXPECT_GE(files.size(), 3u);
}

INSTANTIATE_TEST_SUITE_P(Kinds, Corpus, testing::ValuesIn(all_cases()), name_of);

class Kinds : public Invctl
{
protected:
    json rules()
    {
        const outcome result = run_in_samples("check --format sarif line_card_small.xml");
        EXPECT_EQ(result.exit_code, 0);
        return json::parse(result.out)["runs"][0]["tool"]["driver"]["rules"];
    }
};

TEST_F(Kinds, each_has_a_page_and_three_cases)
{
    const std::vector<corpus_case> cases = all_cases();
    std::set<std::string> codes;
    for (const json &rule : rules()) {
        const std::string code = rule["id"];
        EXPECT_TRUE(codes.insert(code).second) << code << " is there twice";
        EXPECT_THAT(read_file(pages / (code + ".md")), testing::StartsWith("# " + code + "\n"));
        if (impossible_kinds.contains(code))
            continue;
        ASSERT_TRUE(fs::is_directory(corpus / code)) << code;
        const auto count = std::count_if(cases.begin(), cases.end(),
                                         [&](const corpus_case &each) { return each.code == code; });
        EXPECT_TRUE(count >= 3 || (count == 1 && folders_in(corpus / code).empty())) << code;
    }
}

TEST_F(Kinds, no_page_and_no_corpus_is_of_an_unknown_kind)
{
    std::set<std::string> codes;
    for (const json &rule : rules())
        codes.insert(rule["id"]);
    for (const auto &entry : fs::directory_iterator(pages))
        EXPECT_TRUE(entry.path().stem() == "README" || codes.contains(entry.path().stem().string()))
            << entry.path();
    for (const fs::path &kind : folders_in(corpus))
        EXPECT_TRUE(codes.contains(kind.filename().string())) << kind;
}

}  // namespace
