// The commands and options that the help of invctl tells of: what completion and manual are held against.
#ifndef TESTS_CLI_HELP_READER_H
#define TESTS_CLI_HELP_READER_H

#include "invctl_fixture.h"

#include <set>
#include <vector>

class HelpReader : public Invctl
{
protected:
    std::vector<std::string> commands()
    {
        std::string help = run("--help").out;
        std::istringstream lines(help.substr(help.find("Subcommands:\n") + 13));
        std::vector<std::string> names;
        for (std::string line; std::getline(lines, line) && line.starts_with("  ");)
            names.push_back(line.substr(2, line.find(' ', 2) - 2));
        return names;
    }

    // Long options; of invctl itself with an empty command.
    std::set<std::string> options(const std::string &command)
    {
        std::istringstream lines(run(command + " --help").out);
        std::set<std::string> found;
        for (std::string line; std::getline(lines, line) && !line.starts_with("Exit status");) {
            std::string start = line.substr(0, line.find_first_of(" ", line.find_first_not_of(" ,")));
            for (const std::string &word : words_with_dashes(line.starts_with("  ") ? start : ""))
                found.insert(word);
        }
        return found;
    }

    // "--word" wherever it stands.
    static std::vector<std::string> words_with_dashes(const std::string &text)
    {
        std::vector<std::string> words;
        for (size_t at = text.find("--"); at != std::string::npos; at = text.find("--", at + 2)) {
            size_t end = text.find_first_not_of("abcdefghijklmnopqrstuvwxyz-", at);
            words.push_back(text.substr(at, end - at));
        }
        return words;
    }
};

#endif
