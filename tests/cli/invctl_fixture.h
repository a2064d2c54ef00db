// Runs invctl as people and scripts call it.
#ifndef TESTS_CLI_INVCTL_FIXTURE_H
#define TESTS_CLI_INVCTL_FIXTURE_H

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace fs = std::filesystem;

inline const fs::path samples = fs::path(INV_SOURCE_DIR) / "inventories";
inline const fs::path golden = fs::path(INV_SOURCE_DIR) / "tests/cli/golden";

struct outcome {
    int exit_code = -1;
    std::string out;
    std::string err;
};

inline std::string read_file(const fs::path &path)
{
    std::ifstream stream(path, std::ios::binary);
    std::stringstream text;
    text << stream.rdbuf();
    return text.str();
}

// With INV_REGENERATE_GOLDEN=1 in the environment the golden file is written instead.
inline void compare_with_golden(const std::string &name, const std::string &text)
{
    const char *rewrite = getenv("INV_REGENERATE_GOLDEN");
    if (rewrite != nullptr && rewrite[0] == '1')
        std::ofstream(golden / name, std::ios::binary) << text;
    std::string expected = read_file(golden / name);
    ASSERT_NE(expected, "") << name << " is missing";
    std::istringstream got_lines(text), expected_lines(expected);
    size_t number = 1;
    for (std::string got, line; std::getline(expected_lines, line); ++number) {
        ASSERT_TRUE(std::getline(got_lines, got)) << name << " goes on at line " << number;
        ASSERT_EQ(got, line) << name << ":" << number;
    }
    EXPECT_EQ(text.size(), expected.size()) << name;
}

class Invctl : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string pattern = (fs::temp_directory_path() / "invctl_XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        folder = pattern;
    }
    void TearDown() override
    {
        fs::remove_all(folder);
    }

    // Runs the command through the shell; `arguments` may redirect.
    outcome run(const std::string &arguments)
    {
        fs::path out = folder / "out";
        fs::path err = folder / "err";
        std::string command = std::string("'") + INVCTL + "' " + arguments;
        command = "{ " + command + "; } 2>'" + err.string() + "' >'" + out.string() + "'";
        int status = std::system(command.c_str());
        return {WEXITSTATUS(status), read_file(out), read_file(err)};
    }

    // Runs in the folder of the samples, so that outputs name files without a path.
    outcome run_in_samples(const std::string &arguments)
    {
        fs::path before = fs::current_path();
        fs::current_path(samples);
        outcome result = run(arguments);
        fs::current_path(before);
        return result;
    }

    fs::path write(const std::string &name, const std::string &text)
    {
        fs::path path = folder / name;
        std::ofstream(path, std::ios::binary) << text;
        return path;
    }

    fs::path folder;
};

inline std::string quoted(const fs::path &path)
{
    return "'" + path.string() + "'";
}

#endif
