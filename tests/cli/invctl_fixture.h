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
