// The pages of findings: docs/findings/README.md lists them all, each page tells what the tables tell.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "checks.h"
#include "run_checks.h"

using namespace invctl::check;

namespace
{

const std::filesystem::path pages = std::filesystem::path(INV_SOURCE_DIR) / "docs/findings";

std::string read_page(const std::string &name)
{
    std::ifstream stream(pages / (name + ".md"), std::ios::binary);
    std::stringstream text;
    text << stream.rdbuf();
    return text.str();
}

}  // namespace

TEST(FindingIndex, has_a_line_for_every_finding)
{
    const std::string index = read_page("README");
    size_t lines = 0;
    for (const check_row *row : all_rows()) {
        const std::string code = row->code;
        EXPECT_THAT(index, testing::HasSubstr("| [" + code + "](" + code + ".md) | " + word_of(row->level) +
                                              " | " + row->title + " |\n"));
        ++lines;
    }
    EXPECT_GE(lines, 20u);
    EXPECT_EQ(static_cast<size_t>(std::count(index.begin(), index.end(), '[')), lines);
}

TEST(FindingIndex, every_page_names_the_severity_and_shows_an_example_and_a_remedy)
{
    auto expect_page = [](const check_row &row) {
        const std::string page = read_page(row.code);
        EXPECT_THAT(page, testing::StartsWith("# " + std::string(row.code) + "\n\n" + row.title +
                                              ".\n\nSeverity: " + word_of(row.level) + "."));
        EXPECT_THAT(page, testing::HasSubstr(std::string(word_of(row.level)) + "[" + row.code + "]: "));
        EXPECT_THAT(page, testing::HasSubstr("\n## How to mend it\n\n"));
    };
    for (const check &each : all_checks())
        expect_page(each.row);
    for (const catalogue_check_row &each : all_catalogue_checks())
        expect_page(each.row);
}
