// What the commands say of names behind which there is nothing to read: at once, and with a status of its
// own.
#include "invctl_fixture.h"

#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using testing::HasSubstr;

// With FILE in place of the name, and the status of a document at fault.
struct reading_command {
    const char *arguments;
    int finding;
};

constexpr reading_command reading_commands[] = {
    {"tree FILE", 1},
    {"show --all FILE", 1},
    {"find --type sensor FILE", 1},
    {"path --all FILE", 1},
    {"json FILE", 1},
    {"diff FILE SAMPLE", 2},
    {"diff SAMPLE FILE", 2},
    {"path --all --slot 0 --node-type linecard --position 3 --from FILE CARD", 1},
};

class UnreadableFiles : public Invctl
{
protected:
    static std::string filled(std::string text, const std::string &word, const fs::path &path)
    {
        for (size_t at = text.find(word); at != std::string::npos; at = text.find(word))
            text.replace(at, word.size(), quoted(path));
        return text;
    }
    outcome run_on(const char *arguments, const fs::path &path)
    {
        std::string text = filled(arguments, "SAMPLE", samples / "pem.xml");
        text = filled(text, "CARD", samples / "line_card_48.xml");
        return run(filled(text, "FILE", path));
    }
    // Every command refuses the file as trouble of the system, with the reason.
    void expect_trouble(const fs::path &path, const char *reason)
    {
        for (const reading_command &each : reading_commands) {
            outcome result = run_on(each.arguments, path);
            EXPECT_EQ(result.exit_code, 2) << each.arguments << ": " << result.err;
            EXPECT_EQ(result.out, "") << each.arguments;
            EXPECT_THAT(result.err, HasSubstr(path.string() + ": error[-301]: file cannot be opened: "))
                << each.arguments;
            EXPECT_THAT(result.err, HasSubstr(std::string(", ") + reason + "\n")) << each.arguments;
        }
    }
    void expect_trouble_of_check(const fs::path &path, const char *reason)
    {
        for (const char *arguments : {"check FILE", "check --format json FILE", "check --catalog FILE"}) {
            outcome result = run_on(arguments, path);
            EXPECT_EQ(result.exit_code, 2) << arguments;
            EXPECT_EQ(result.err, "invctl: " + path.string() + ": " + reason + "\n") << arguments;
        }
    }
    fs::path fifo(const char *name)
    {
        fs::path path = folder / name;
        EXPECT_EQ(mkfifo(path.c_str(), 0600), 0);
        return path;
    }
};

TEST_F(UnreadableFiles, a_pipe_without_a_writer_is_refused_and_not_waited_for)
{
    fs::path path = fifo("fifo.xml");
    expect_trouble(path, "not a regular file");
    expect_trouble_of_check(path, "not a regular file");
}

TEST_F(UnreadableFiles, a_pipe_with_a_long_name_is_not_waited_for_either)
{
    fs::path deep = folder / std::string(150, 'd') / std::string(150, 'e');
    fs::create_directories(deep);
    ASSERT_EQ(mkfifo((deep / "fifo.xml").c_str(), 0600), 0);
    outcome result = run("tree " + quoted(deep / "fifo.xml"));
    EXPECT_EQ(result.exit_code, 2);
    EXPECT_THAT(result.err, HasSubstr("not a regular file"));
}

TEST_F(UnreadableFiles, a_device_without_an_end_is_refused)
{
    expect_trouble("/dev/zero", "not a regular file");
    expect_trouble_of_check("/dev/zero", "not a regular file");
}

TEST_F(UnreadableFiles, a_folder_is_refused_where_a_document_is_wanted)
{
    expect_trouble(folder, "Is a directory");
    outcome result = run("check --catalog " + quoted(folder));
    EXPECT_EQ(result.exit_code, 2);
    EXPECT_EQ(result.err, "invctl: " + folder.string() + ": Is a directory\n");
}

TEST_F(UnreadableFiles, an_empty_file_is_a_document_at_fault)
{
    fs::path path = write("empty.xml", "");
    for (const reading_command &each : reading_commands) {
        outcome result = run_on(each.arguments, path);
        EXPECT_EQ(result.exit_code, each.finding) << each.arguments;
        EXPECT_THAT(result.err,
                    HasSubstr("empty.xml:1:1: error[-303]: not well-formed XML: no element found"))
            << each.arguments;
    }
    outcome checked = run_on("check FILE", path);
    EXPECT_EQ(checked.exit_code, 1);
    EXPECT_THAT(checked.out, HasSubstr("empty.xml:1:1: error"));
}

// Root may read what it likes, unless it has been told otherwise.
TEST_F(UnreadableFiles, a_file_without_permission_is_refused)
{
    fs::path path = write("locked.xml", "<module/>");
    ASSERT_EQ(chmod(path.c_str(), 0), 0);
    if (geteuid() == 0) {
        ASSERT_EQ(prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE, 0, 0, 0), 0);
        ASSERT_EQ(prctl(PR_CAPBSET_DROP, CAP_DAC_READ_SEARCH, 0, 0, 0), 0);
    }
    expect_trouble(path, "Permission denied");
    expect_trouble_of_check(path, "Permission denied");
}

TEST_F(UnreadableFiles, a_file_above_the_limit_is_refused_before_it_is_read)
{
    fs::path path = write("sparse.xml", "");
    fs::resize_file(path, uint64_t{4} << 30);
    expect_trouble(path, "File too large");
    expect_trouble_of_check(path, "File too large");
}

TEST_F(UnreadableFiles, named_by_a_catalogue_are_a_finding)
{
    fifo("fifo.xml");
    fs::path catalogue = write("catalog.txt", "9 81 PEM * fifo.xml\n");
    outcome result = run("check --catalog " + quoted(catalogue));
    EXPECT_EQ(result.exit_code, 1);
    EXPECT_THAT(result.out, HasSubstr("fifo.xml: not a regular file"));
}

}  // namespace
