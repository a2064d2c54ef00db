#include "child.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ;

namespace inv_bench
{
namespace
{

// Starts the program with its standard output in the pipe; 0 when that is not possible.
pid_t start(const std::string &program, const std::vector<std::string> &arguments, const int (&ends)[2])
{
    std::vector<char *> words = {const_cast<char *>(program.c_str())};
    for (const std::string &argument : arguments)
        words.push_back(const_cast<char *>(argument.c_str()));
    words.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    pid_t child = 0;
    if (posix_spawn(&child, program.c_str(), &actions, nullptr, words.data(), environ) != 0)
        child = 0;
    posix_spawn_file_actions_destroy(&actions);
    return child;
}

std::string read_all(int descriptor)
{
    std::string text;
    char part[512];
    ssize_t got;
    while ((got = read(descriptor, part, sizeof part)) > 0)
        text.append(part, static_cast<std::size_t>(got));
    return text;
}

}  // namespace

figures run_child(const std::string &program, const std::vector<std::string> &arguments)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return {};
    const pid_t child = start(program, arguments, ends);
    close(ends[1]);
    const std::string text = child != 0 ? read_all(ends[0]) : "";
    close(ends[0]);
    int status = 0;
    if (child == 0 || waitpid(child, &status, 0) != child || status != 0)
        return {};
    figures all;
    std::istringstream lines(text);
    std::string name;
    double value = 0;
    while (lines >> name >> value)
        all.emplace_back(name, value);
    return all;
}

void print_figures(const figures &all)
{
    for (const auto &[name, value] : all)
        std::printf("%s %.17g\n", name.c_str(), value);
}

std::string own_program()
{
    return std::filesystem::read_symlink("/proc/self/exe").string();
}

std::string program_beside(const std::string &name)
{
    return (std::filesystem::path(own_program()).parent_path() / name).string();
}

}  // namespace inv_bench
