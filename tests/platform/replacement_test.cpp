// A product's platform functions take over from ours when they come first. Runs twice: with
// replacement_library preloaded and without; $INV_TEST_PLATFORM says which to expect.
#include "platform/replacement_client.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <unistd.h>

namespace
{

bool expects_preloaded()
{
    const char *wanted = getenv("INV_TEST_PLATFORM");
    return wanted != nullptr && strcmp(wanted, "preloaded") == 0;
}

std::string write_catalogue()
{
    std::string path = testing::TempDir() + "replacement_" + std::to_string(getpid()) + ".txt";
    std::ofstream(path) << "* * * * /reference.xml\n";
    setenv("INV_CATALOG", path.c_str(), 1);
    return path;
}

TEST(Replacement, file_lookup_is_answered_by_the_library_that_comes_first)
{
    std::string path = write_catalogue();
    EXPECT_STREQ(client_file_name(3, 1, "PID"), expects_preloaded() ? "preloaded.xml" : "/reference.xml");
    EXPECT_STREQ(client_file_name_v2(3, 1), expects_preloaded() ? "preloaded_v2.xml" : "/reference.xml");
    unlink(path.c_str());
}

TEST(Replacement, trace_lines_go_to_the_library_that_comes_first)
{
    uint32_t kept = 99;
    EXPECT_EQ(client_trace(&kept), expects_preloaded() ? 1007 : 0);
    EXPECT_EQ(kept, expects_preloaded() ? 0u : 1u) << "the rest of the reference platform stays in place";
}

}  // namespace
