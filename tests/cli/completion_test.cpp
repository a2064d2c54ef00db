// invctl completion: the scripts know every command and option, and shells take them.
#include "help_reader.h"

namespace
{

using testing::HasSubstr;

class Completion : public HelpReader
{
protected:
    // What a shell prints for a script of its own; nothing when it is not installed.
    outcome in_shell(const std::string &shell, const std::string &script)
    {
        fs::path file = write("script." + shell, script);
        return run("--version >/dev/null; cd " + quoted(samples) + "; " + shell + " " + quoted(file));
    }

    static bool has_shell(const std::string &shell)
    {
        return std::system(("command -v " + shell + " >/dev/null").c_str()) == 0;
    }

    fs::path script_of(const std::string &shell)
    {
        return write("completion." + shell, run("completion " + shell).out);
    }

    // Words that bash offers when the last of the words is being typed.
    std::set<std::string> offered(const std::vector<std::string> &words)
    {
        std::string script = "source " + quoted(script_of("bash")) + "\nCOMP_WORDS=(invctl";
        for (const std::string &word : words)
            script += " '" + word + "'";
        script += ")\nCOMP_CWORD=" + std::to_string(words.size()) +
                  "\n_invctl\n[[ ${COMPREPLY[*]} ]] && printf '%s\\n' \"${COMPREPLY[@]}\"\n";
        outcome result = in_shell("bash", script);
        EXPECT_EQ(result.err, "");
        std::istringstream lines(result.out);
        std::set<std::string> found;
        for (std::string line; std::getline(lines, line);)
            found.insert(line);
        return found;
    }
};

TEST_F(Completion, bash_offers_every_command_and_every_option_of_each)
{
    std::set<std::string> first = offered({""});
    for (const std::string &command : commands()) {
        EXPECT_TRUE(first.contains(command)) << command;
        std::set<std::string> expected = options(command);
        ASSERT_TRUE(expected.contains("--help")) << command;
        EXPECT_EQ(offered({command, "--"}), expected) << command;
    }
    EXPECT_EQ(offered({"--"}), options(""));
}

TEST_F(Completion, bash_offers_words_files_or_nothing_as_the_option_takes_them)
{
    using words = std::set<std::string>;
    EXPECT_EQ(offered({"tree", "--type", "se"}), words({"sensor"}));
    EXPECT_EQ(offered({"tree", "--type", "=", "se"}), words({"sensor"}));
    EXPECT_EQ(offered({"tree", "--type", "="}).size(), 13u);
    EXPECT_EQ(offered({"path", "x.xml", "--bus", ""}), words({"i2c", "pcie"}));
    EXPECT_EQ(offered({"find", "--owner", "sh"}), words({"shelf"}));
    EXPECT_EQ(offered({"find", "--subtype", "i2c_m"}), words({"i2c_mux"}));
    EXPECT_EQ(offered({"completion", ""}).count("fish"), 1u);
    EXPECT_EQ(offered({"check", "--code", "threshold"}), words({"threshold-order"}));
    EXPECT_EQ(offered({"check", "--format", "s"}), words({"sarif"}));
    EXPECT_EQ(offered({"tree", "--depth", ""}), words());
    words cards = {"line_card_12.xml", "line_card_48.xml", "line_card_small.xml"};
    EXPECT_EQ(offered({"tree", "line"}), cards);
    EXPECT_EQ(offered({"diff", "pem.xml", "line"}), cards);
    EXPECT_EQ(offered({"path", "pem.xml", "--from", "line"}), cards);
}

TEST_F(Completion, every_script_holds_every_command_and_option)
{
    for (const char *shell : {"bash", "zsh", "fish"}) {
        std::string script = read_file(script_of(shell));
        for (const std::string &command : commands()) {
            EXPECT_THAT(script, HasSubstr(command)) << shell;
            for (const std::string &option : options(command))
                EXPECT_THAT(script,
                            HasSubstr(std::string(shell) == "fish" ? " -l " + option.substr(2) : option))
                    << shell << ": " << command;
        }
    }
}

class CompletionIn : public Completion, public testing::WithParamInterface<const char *>
{
};

TEST_P(CompletionIn, shell_accepts_the_script)
{
    std::string shell = GetParam();
    if (!has_shell(shell))
        GTEST_SKIP() << shell << " is not installed";
    outcome result = run("--version >/dev/null; " + shell + " -n " + quoted(script_of(shell)));
    EXPECT_EQ(result.exit_code, 0);
    EXPECT_EQ(result.err, "");
}

INSTANTIATE_TEST_SUITE_P(Shells, CompletionIn, testing::Values("bash", "zsh", "fish"),
                         [](const testing::TestParamInfo<const char *> &info) {
                             return std::string(info.param);
                         });

TEST_F(Completion, fish_offers_every_command_and_option)
{
    if (!has_shell("fish"))
        GTEST_SKIP() << "fish is not installed";
    std::string load = "source " + quoted(script_of("fish")) + "\n";
    std::string first = in_shell("fish", load + "complete -C 'invctl '\n").out;
    for (const std::string &command : commands()) {
        EXPECT_THAT(first, HasSubstr(command + "\t"));
        std::string offered = in_shell("fish", load + "complete -C 'invctl " + command + " --'\n").out;
        for (const std::string &option : options(command))
            EXPECT_THAT(offered, HasSubstr(option + "\t")) << command;
    }
    EXPECT_THAT(in_shell("fish", load + "complete -C 'invctl tree --type se'\n").out, HasSubstr("sensor"));
    EXPECT_THAT(in_shell("fish", load + "complete -C 'invctl diff li'\n").out, HasSubstr("line_card_48.xml"));
}

TEST_F(Completion, zsh_offers_what_its_own_machinery_makes_of_the_script)
{
    if (!has_shell("zsh"))
        GTEST_SKIP() << "zsh is not installed";
    // A terminal of zsh's own, in which the completion is asked for as a user does.
    std::string script = "zmodload zsh/zpty\nzpty shell zsh -f -i\n"
                         "zpty -w shell 'PS1=; autoload -Uz compinit; compinit -u -D'\n"
                         "zpty -w shell 'source " +
                         script_of("zsh").string() +
                         "'\n"
                         "zpty -w shell 'LISTMAX=10000; print READY'\n"
                         "zpty -r shell line '*READY*READY*'\n"
                         "zpty -n -w shell $'invctl find --\t\t'\n"
                         // The options come sorted; ten seconds for the last one.
                         "for ((i = 0; i < 100; i++)); do\n"
                         "    zpty -r -t shell line && print -r -- $line\n"
                         "    [[ $line == *--type* ]] && break\n"
                         "    sleep 0.1\n"
                         "done\nzpty -d shell\n";
    std::string shown = in_shell("zsh", script).out;
    for (const std::string &option : options("find"))
        EXPECT_THAT(shown, HasSubstr(option));
}

TEST_F(Completion, other_shells_are_refused)
{
    EXPECT_EQ(run("completion csh").exit_code, 2);
    EXPECT_EQ(run("completion").exit_code, 2);
}

}  // namespace
