// Every command of invctl with every request of memory failing once, see preload_memory_faults.cpp. Each run
// ends with the right answer, or with status 2 and a message that names memory.
#include "cli/invctl_fixture.h"

namespace
{

// A few units, one of them without a document, so that every request can fail in little time.
constexpr const char *small_catalogue = "9 81 PEM-4K* * pem.xml\n"
                                        "8 80 PSH-DC4 1.x power_shelf.xml\n"
                                        "8 80 PSH-AC * psh.xml\n";

struct swept_command {
    const char *name;
    const char *arguments;
    int status;
    bool also_all_after;  // where the library does much of the work
};

const swept_command commands[] = {
    {"help", "--help", 0, false},
    {"wrong_usage", "tree --bogus x.xml", 2, false},
    {"missing_file", "tree absent.xml", 2, true},
    {"tree", "tree line_card_small.xml", 0, true},
    {"tree_json", "tree --json line_card_small.xml", 0, false},
    {"show_all", "show --all pem.xml", 0, false},
    {"show_json", "show --json --instance 20 line_card_small.xml", 0, true},
    {"path_all", "path --all line_card_small.xml", 0, true},
    {"path_pcie", "path --all --bus pcie route_processor.xml", 0, false},
    {"path_from",
     "path line_card_48.xml --instance 290 --from route_processor.xml --slot 0 --node-type linecard "
     "--position 3",
     0, true},
    {"find", "find --type sensor --name '*temp*' line_card_small.xml", 0, false},
    {"json", "json line_card_small.xml", 0, false},
    {"json_without_file", "json", 2, false},
    {"diff", "diff fan_tray.xml pem.xml", 1, true},
    {"diff_json", "diff --json line_card_small.xml pem.xml", 1, false},
    {"check", "check line_card_small.xml", 0, true},
    {"check_input", "check - <fan_tray.xml", 0, false},
    {"check_broken", "check broken.xml", 1, true},
    {"check_sarif", "check --format sarif broken.xml", 1, false},
    {"check_json", "check --format json broken.xml", 1, false},
    {"check_folder", "check few", 0, false},
    {"check_catalogue", "check --catalog few/catalog.txt", 1, true},
    {"completion_bash", "completion bash", 0, false},
    {"completion_zsh", "completion zsh", 0, false},
    {"completion_fish", "completion fish", 0, false},
    {"manual", "manual", 0, false},
};

std::vector<swept_command> commands_to_sweep_twice()
{
    std::vector<swept_command> some;
    for (const swept_command &each : commands)
        if (each.also_all_after)
            some.push_back(each);
    return some;
}

void PrintTo(const swept_command &command, std::ostream *out)
{
    *out << command.arguments;
}

class CommandFaults : public Invctl, public testing::WithParamInterface<swept_command>
{
protected:
    void SetUp() override
    {
        Invctl::SetUp();
        for (const auto &entry : fs::directory_iterator(samples))
            fs::copy_file(entry.path(), folder / entry.path().filename());
        // Without its fifth line and with a token that nobody knows.
        std::string text = read_file(samples / "pem.xml");
        text.replace(text.find("ORVL_ENTITY_TYPE"), 4, "OVRL");
        text.erase(text.find(" xmlInstance="), 1);
        write("broken.xml", text);
        fs::create_directory(folder / "few");
        for (const char *name : {"pem.xml", "power_shelf.xml", "fan_tray.xml"})
            fs::copy_file(samples / name, folder / "few" / name);
        write("few/catalog.txt", small_catalogue);
    }

    // The report of a sweep.
    std::string sweep(const char *settings)
    {
        const fs::path report = folder / "report";
        const std::string command = "cd " + quoted(folder) + " && env INV_FAULTS_REPORT=" + quoted(report) +
                                    " " + settings + " LD_PRELOAD=" + quoted(INV_PRELOAD) + " " +
                                    quoted(INVCTL) + " " + GetParam().arguments + " >out 2>err";
        const int status = std::system(command.c_str());
        EXPECT_EQ(WEXITSTATUS(status), GetParam().status) << read_file(folder / "err");
        return read_file(report);
    }

    void expect_good_ends(const std::string &report)
    {
        unsigned points = 0, right = 0, told = 0, bad = 1;
        int status = -1;
        const size_t last = report.rfind("status ");
        ASSERT_NE(last, std::string::npos) << report;
        ASSERT_EQ(sscanf(report.c_str() + last, "status %d points %u right %u told %u bad %u", &status,
                         &points, &right, &told, &bad),
                  5);
        EXPECT_EQ(status, GetParam().status);
        EXPECT_EQ(bad, 0U) << report;
        EXPECT_EQ(points, right + told);
        EXPECT_GT(points, 1000U) << "the sweep met hardly any request";
        RecordProperty("points", static_cast<int>(points));
        printf("%u points, %u right answers, %u told\n", points, right, told);
    }
};

std::string name_of(const testing::TestParamInfo<swept_command> &info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Invctl, CommandFaults, testing::ValuesIn(commands), name_of);

TEST_P(CommandFaults, any_one_request_of_memory_may_fail)
{
    expect_good_ends(sweep(""));
}

class CommandWithoutMemory : public CommandFaults
{
};

INSTANTIATE_TEST_SUITE_P(Invctl, CommandWithoutMemory, testing::ValuesIn(commands_to_sweep_twice()), name_of);

TEST_P(CommandWithoutMemory, all_requests_from_any_one_on_may_fail)
{
    expect_good_ends(sweep("INV_FAULTS_ALL_AFTER=1"));
}

}  // namespace
