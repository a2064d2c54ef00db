// The manual pages: of the command, from its table, and of the documents, from the schema.
#include "help_reader.h"

namespace
{

using testing::HasSubstr;

const fs::path top = INV_SOURCE_DIR;

class Manual : public HelpReader
{
protected:
    // The page as a reader sees it, without the marks that troff leaves.
    static std::string unmarked(const std::string &source)
    {
        std::string text = source;
        for (const char *mark : {"\\-", "\\fB", "\\fI", "\\fR", "\\%"})
            for (size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at))
                text.replace(at, std::string(mark).size(), std::string(mark) == "\\-" ? "-" : "");
        return text;
    }

    outcome run_other(const std::string &command)
    {
        return run("--version >/dev/null; " + command);
    }
};

TEST_F(Manual, committed_page_of_the_command_is_what_the_command_prints)
{
    outcome result = run("manual");
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_EQ(result.out, read_file(top / "docs/man/invctl.1")) << "make regenerate rewrites it";
}

TEST_F(Manual, page_of_the_command_tells_of_every_command_and_option)
{
    std::string page = unmarked(run("manual").out);
    for (const std::string &command : commands()) {
        size_t begin = page.find(".SS invctl " + command + "\n");
        ASSERT_NE(begin, std::string::npos) << command;
        std::string section = page.substr(begin, page.find("\n.S", begin + 1) - begin);
        for (const std::string &option : options(command))
            EXPECT_THAT(section, HasSubstr(option)) << command;
    }
}

TEST_F(Manual, committed_page_of_the_documents_is_what_the_schema_gives)
{
    outcome result = run_other(std::string(SCHEMAMAN) + " " + quoted(top / "schema/OrvelianInventory.xsd"));
    EXPECT_EQ(result.exit_code, 0) << result.err;
    EXPECT_EQ(result.out, read_file(top / "docs/man/inventory.5")) << "make regenerate rewrites it";
}

TEST_F(Manual, page_of_the_documents_has_every_name_and_token_of_the_schema)
{
    std::string schema = read_file(top / "schema/OrvelianInventory.xsd");
    std::string page = unmarked(read_file(top / "docs/man/inventory.5"));
    size_t names = 0;
    for (const char *key : {" name=\"", "<xs:enumeration value=\""})
        for (size_t at = schema.find(key); at != std::string::npos; at = schema.find(key, at + 1), ++names) {
            size_t begin = at + std::string(key).size();
            std::string name = schema.substr(begin, schema.find('"', begin) - begin);
            EXPECT_THAT(page, HasSubstr(name));
        }
    EXPECT_GT(names, 1000u);
}

TEST_F(Manual, example_of_the_documents_is_one)
{
    std::string page = unmarked(read_file(top / "docs/man/inventory.5"));
    size_t begin = page.find(".EX\n") + 4;
    fs::path file = write("example.xml", page.substr(begin, page.find(".EE", begin) - begin));
    outcome result = run("tree " + quoted(file));
    EXPECT_EQ(result.exit_code, 0) << result.err;
    EXPECT_EQ(result.out, "module.fantray.0  \"Fan tray\"  xml 1  owner shelf\n");
}

TEST_F(Manual, pages_are_sound_troff)
{
    if (std::system("command -v mandoc >/dev/null") != 0)
        GTEST_SKIP() << "mandoc is not installed";
    for (const char *page : {"docs/man/invctl.1", "docs/man/inventory.5"}) {
        outcome result = run_other("mandoc -T lint -W error " + quoted(top / page));
        EXPECT_EQ(result.exit_code, 0) << result.out;
    }
}

TEST_F(Manual, generator_refuses_what_is_no_schema)
{
    EXPECT_EQ(run_other(SCHEMAMAN).exit_code, 2);
    EXPECT_EQ(run_other(std::string(SCHEMAMAN) + " " + quoted(folder / "none.xsd")).exit_code, 2);
    fs::path other = write("other.xsd", "<banana/>");
    EXPECT_EQ(run_other(std::string(SCHEMAMAN) + " " + quoted(other)).exit_code, 2);
}

}  // namespace
