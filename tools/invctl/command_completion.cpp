#include "command_completion.h"

#include "exit_codes.h"
#include "output.h"

namespace
{

struct shell_script {
    const char *shell;
    std::string (*script)(const CLI::App &app);
};

constexpr shell_script scripts[] = {
    {"bash", invctl::bash_completion},
    {"zsh", invctl::zsh_completion},
    {"fish", invctl::fish_completion},
};

}  // namespace

namespace invctl
{

int run_completion(const CLI::App &app, const std::string &shell)
{
    for (const shell_script &each : scripts)
        if (shell == each.shell)
            write_out(each.script(app));
    return exit_ok;
}

}  // namespace invctl
