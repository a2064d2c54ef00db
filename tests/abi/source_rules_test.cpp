// Rules that the compiler cannot check: which folder may include which, one call site per trace
// message.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace
{

namespace fs = std::filesystem;

const fs::path source_folder = fs::path(INV_SOURCE_DIR) / "shared_pkg/common/schema/parser/src";
const fs::path list_folder = fs::path(INV_SOURCE_DIR) / "shared_pkg/common/schema/parser/lib_inv_parser";

// Lowest first: a folder may include itself and what stands before it.
const std::vector<std::string> folder_order = {"frame", "decode", "tree", "access", "records", "load"};

struct source_file {
    std::string folder;  // "" for the generated files
    std::string name;
    std::string text;
};

std::string read_file(const fs::path &path)
{
    std::ifstream stream(path, std::ios::binary);
    std::stringstream text;
    text << stream.rdbuf();
    return text.str();
}

std::vector<source_file> library_sources()
{
    std::vector<source_file> files;
    for (const auto &entry : fs::recursive_directory_iterator(source_folder)) {
        std::string extension = entry.path().extension();
        if (extension != ".cpp" && extension != ".h")
            continue;
        fs::path folder = fs::relative(entry.path().parent_path(), source_folder);
        files.push_back(
            {folder == "." ? "" : folder.string(), entry.path().filename(), read_file(entry.path())});
    }
    return files;
}

size_t rank_of(const std::string &folder)
{
    auto at = std::find(folder_order.begin(), folder_order.end(), folder);
    return static_cast<size_t>(at - folder_order.begin());
}

// The folder that an include line of a library source leads to; generated files count as decode.
std::string folder_of_include(const std::string &include)
{
    size_t slash = include.find('/');
    return slash == std::string::npos ? "decode" : include.substr(0, slash);
}

// Names of the catalogue by id, and the ids that are still to get a call site.
std::map<int, std::string> catalogue()
{
    std::map<int, std::string> names;
    std::string text = read_file(source_folder / "frame/trace_messages.def");
    std::regex row(R"(^INV_TRACE_MESSAGE\(\s*(\d+)\s*,\s*\d+\s*,\s*"[sdD]*"\s*,\s*(\w+)\s*,)",
                   std::regex::multiline);
    for (std::sregex_iterator it(text.begin(), text.end(), row), end; it != end; ++it)
        names[std::stoi((*it)[1])] = (*it)[2];
    return names;
}

std::set<int> pending_ids()
{
    std::set<int> ids;
    std::istringstream lines(read_file(list_folder / "pending_names.txt"));
    std::regex range(R"(^(\d+)(?:-(\d+))?\s*$)");
    std::smatch match;
    for (std::string line; std::getline(lines, line);)
        if (std::regex_match(line, match, range))
            for (int id = std::stoi(match[1]);
                 id <= (match[2].matched ? std::stoi(match[2]) : std::stoi(match[1])); ++id)
                ids.insert(id);
    return ids;
}

TEST(SourceRules, no_folder_includes_one_that_stands_later)
{
    std::regex include(R"re(^\s*#\s*include\s*"([^"]+)")re", std::regex::multiline);
    size_t checked = 0;
    for (const source_file &file : library_sources()) {
        size_t own_rank = rank_of(file.folder.empty() ? "decode" : file.folder);
        ASSERT_LT(own_rank, folder_order.size()) << "unknown folder " << file.folder;
        for (std::sregex_iterator it(file.text.begin(), file.text.end(), include), end; it != end; ++it) {
            std::string target = folder_of_include((*it)[1]);
            if (target == "inv_parser" || target == "inv_platform")
                continue;
            ++checked;
            EXPECT_LT(rank_of(target), folder_order.size()) << file.name << " includes " << (*it)[1];
            EXPECT_LE(rank_of(target), own_rank)
                << file.folder << '/' << file.name << " includes " << (*it)[1];
        }
    }
    EXPECT_GT(checked, 50u);
}

TEST(SourceRules, the_platform_includes_nothing_of_the_library_but_the_shared_types)
{
    std::regex include(R"re(^\s*#\s*include\s*"([^"]+)")re", std::regex::multiline);
    const std::set<std::string> allowed = {"inv_parser/platform_types.h", "inv_parser/handle.h"};
    size_t checked = 0;
    for (const auto &entry : fs::recursive_directory_iterator(fs::path(INV_SOURCE_DIR) / "platform")) {
        if (!entry.is_regular_file())
            continue;
        std::string text = read_file(entry.path());
        for (std::sregex_iterator it(text.begin(), text.end(), include), end; it != end; ++it) {
            std::string target = (*it)[1];
            ++checked;
            if (target.starts_with("inv_parser/")) {
                EXPECT_TRUE(allowed.contains(target)) << entry.path() << " includes " << target;
            } else {
                EXPECT_FALSE(std::find(folder_order.begin(), folder_order.end(), folder_of_include(target)) !=
                                 folder_order.end() &&
                             target.find('/') != std::string::npos)
                    << entry.path() << " includes " << target;
            }
        }
    }
    EXPECT_GT(checked, 10u);
}

std::string without_line_comments(const std::string &text)
{
    return std::regex_replace(text, std::regex("//[^\n]*"), "");
}

TEST(SourceRules, each_trace_message_is_used_in_one_place_unless_it_is_pending)
{
    std::map<int, std::string> names = catalogue();
    ASSERT_EQ(names.size(), 259u);
    std::set<int> pending = pending_ids();
    std::map<std::string, int> uses;
    std::regex use(R"(\bmsg::(\w+))");
    for (const source_file &file : library_sources()) {
        if (file.folder == "frame" && file.name.starts_with("trace"))
            continue;
        std::string code = without_line_comments(file.text);
        for (std::sregex_iterator it(code.begin(), code.end(), use), end; it != end; ++it)
            ++uses[(*it)[1]];
    }
    for (const auto &[id, name] : names)
        EXPECT_EQ(uses[name], pending.contains(id) ? 0 : 1) << "message " << id << " " << name;
}

}  // namespace
