// The command line itself: version, help on every level, hints for what was mistyped.
#include "help_reader.h"

namespace
{

using testing::HasSubstr;
using testing::MatchesRegex;

class CommandLine : public HelpReader
{
};

TEST_F(CommandLine, version_is_printed_in_one_line)
{
    outcome result = run("--version");
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_THAT(result.out, MatchesRegex("invctl [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST_F(CommandLine, help_on_every_level_has_a_summary_and_examples_that_call_it)
{
    EXPECT_THAT(run("--help").out, HasSubstr("Examples:\n  invctl "));
    ASSERT_GE(commands().size(), 8u);
    for (const std::string &command : commands()) {
        outcome help = run(command + " --help");
        EXPECT_EQ(help.exit_code, 0);
        EXPECT_THAT(help.out, HasSubstr("Example")) << command;
        EXPECT_THAT(help.out, HasSubstr("invctl " + command)) << command;
        EXPECT_THAT(help.out, HasSubstr("Exit status: 0 ")) << command;
        EXPECT_EQ(run(command + " -h").out, help.out);
    }
}

TEST_F(CommandLine, examples_in_the_help_use_options_that_exist)
{
    for (const std::string &command : commands()) {
        std::string help = run(command + " --help").out;
        std::set<std::string> known = options(command);
        for (const std::string &word : words_with_dashes(help.substr(help.find("Example"))))
            EXPECT_TRUE(known.contains(word)) << command << ": " << word;
    }
}

TEST_F(CommandLine, mistyped_commands_and_options_get_a_hint)
{
    std::string card = " " + quoted(samples / "line_card_small.xml");
    struct {
        std::string arguments;
        const char *message;
    } cases[] = {
        {"tre" + card, "unknown command tre; did you mean tree?"},
        {"hsow" + card, "unknown command hsow; did you mean show?"},
        {"difff a b", "unknown command difff; did you mean diff?"},
        {"--versoin", "unknown option --versoin; did you mean --version?"},
        {"tree --dept 2" + card, "unknown option --dept; did you mean --depth?"},
        {"tree --dept=2" + card, "unknown option --dept; did you mean --depth?"},
        {"show --instace 20" + card, "unknown option --instace; did you mean --instance?"},
        {"path --node-typ linecard" + card, "unknown option --node-typ; did you mean --node-type?"},
        {"find --naem x" + card, "unknown option --naem; did you mean --name?"},
        {"completion bsah", "did you mean bash?"},
    };
    for (const auto &each : cases) {
        outcome result = run(each.arguments);
        EXPECT_EQ(result.exit_code, 2) << each.arguments;
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.err, HasSubstr(each.message)) << each.arguments;
    }
}

TEST_F(CommandLine, what_is_near_to_nothing_gets_no_hint)
{
    for (const char *arguments : {"banana", "tree --banana x", "--banana", ""}) {
        outcome result = run(arguments);
        EXPECT_EQ(result.exit_code, 2) << arguments;
        EXPECT_EQ(result.err.find("did you mean"), std::string::npos) << result.err;
        EXPECT_THAT(result.err, HasSubstr("--help for what it takes")) << arguments;
    }
    EXPECT_THAT(run("banana").err, HasSubstr("unknown command banana"));
    EXPECT_THAT(run("").err, HasSubstr("a command is required"));
}

TEST_F(CommandLine, every_mistyping_by_one_letter_of_every_option_is_recognised)
{
    for (const std::string &command : commands())
        for (const std::string &option : options(command)) {
            if (option.size() < 5)
                continue;
            std::string typed = option.substr(0, option.size() - 1) + "q";
            EXPECT_THAT(run(command + " " + typed).err, HasSubstr("did you mean " + option + "?")) << typed;
        }
}

TEST_F(CommandLine, a_mistyped_word_cannot_forge_a_line)
{
    EXPECT_EQ(run("\"$(printf 'tre\\n')x\"").err.find("\nx"), std::string::npos);
    EXPECT_THAT(run("$'tre\\033'").err, testing::Not(HasSubstr("\033")));
}

}  // namespace
