// The library takes the platform functions that come first. Runs twice: with replacement_library
// preloaded and without; $INV_TEST_PLATFORM says which to expect.
#include "inv_parser/inv_parser.h"
#include "inv_platform/trace.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>
#include <unistd.h>

namespace
{

bool expects_preloaded()
{
    const char *wanted = getenv("INV_TEST_PLATFORM");
    return wanted != nullptr && std::string(wanted) == "preloaded";
}

TEST(LibraryReplacement, the_library_asks_the_lookup_that_comes_first)
{
    std::string path = testing::TempDir() + "library_replacement_" + std::to_string(getpid()) + ".txt";
    std::ofstream(path) << "* * * * /reference.xml\n";
    setenv("INV_CATALOG", path.c_str(), 1);
    fru_xml_loc_info loc = {};
    EXPECT_STREQ(inv_parser_get_file_name(inv_parser_get_xml_handle(0, 3, 1, "PID")),
                 expects_preloaded() ? "preloaded.xml" : "/reference.xml");
    EXPECT_STREQ(inv_parser_get_file_name(inv_parser_get_xml_handle_v2(0, &loc)),
                 expects_preloaded() ? "preloaded_v2.xml" : "/reference.xml");
    unlink(path.c_str());
}

TEST(LibraryReplacement, the_library_traces_to_the_channel_that_comes_first)
{
    ASSERT_EQ(inv_parser_init(nullptr), 0u);
    inv_parser_close_xml_file(nullptr);
    void *channel = nullptr;
    ASSERT_EQ(inv_schema_get_qtrace_hdl(&channel), 0u);
    std::string last;
    auto keep = [](void *user, uint32_t, const char *text) { *static_cast<std::string *>(user) = text; };
    qtrace_read(channel, keep, &last);
    EXPECT_EQ(last, expects_preloaded() ? "" : "Called with Invalid Handle\n");
}

}  // namespace
