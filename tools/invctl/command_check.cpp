#include "command_check.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <unistd.h>

#include "check/print_findings.h"
#include "check/run_checks.h"
#include "command_options.h"
#include "exit_codes.h"
#include "nearest.h"
#include "output.h"

namespace
{

using namespace invctl::check;
using invctl::check_options;

// NO_COLOR counts when it is set to anything but nothing.
bool wants_colour()
{
    // The command has one thread when it asks.
    const char *refused = getenv("NO_COLOR");  // NOLINT(concurrency-mt-unsafe)
    const char *terminal = getenv("TERM");     // NOLINT(concurrency-mt-unsafe)
    const bool is_dumb = terminal != nullptr && std::string(terminal) == "dumb";
    return isatty(STDOUT_FILENO) == 1 && !is_dumb && (refused == nullptr || *refused == '\0');
}

severity severity_of(const std::string &word)
{
    for (severity level : {severity::error, severity::warning})
        if (word == word_of(level))
            return level;
    return severity::note;
}

bool is_selected(const finding &each, const check_options &options)
{
    const auto &codes = options.codes;
    return each.row->level >= severity_of(options.least) &&
           (codes.empty() || std::find(codes.begin(), codes.end(), each.row->code) != codes.end());
}

shown_findings select(const check_result &result, const check_options &options)
{
    shown_findings shown;
    shown.result = &result;
    for (const finding &each : result.found.all) {
        if (!is_selected(each, options))
            continue;
        if (++shown.total <= options.max || options.max == 0)
            shown.findings.push_back(&each);
    }
    return shown;
}

std::string printed(const shown_findings &shown, const std::string &format)
{
    if (format == "json")
        return findings_as_json(shown);
    if (format == "sarif")
        return findings_as_sarif(shown);
    return findings_as_text(shown, wants_colour());
}

// Unknown codes are refused with the one that may have been meant.
std::string known_code(const std::string &code)
{
    std::vector<std::string> codes;
    for (const check_row *row : all_rows())
        codes.push_back(row->code);
    if (std::find(codes.begin(), codes.end(), code) != codes.end())
        return "";
    const std::string near = invctl::nearest_word(code, codes);
    return code + " is no finding's code" + (near.empty() ? "" : "; did you mean " + near + "?");
}

// What cannot be asked is no folder: opening it says why.
bool is_folder(const std::string &path)
{
    std::error_code unknown;
    return std::filesystem::is_directory(path, unknown);
}

void add_output_options(CLI::App *check, check_options &options)
{
    invctl::add_word_option(check, "--format", options.format, "How findings are printed; text if not given",
                            "text|json|sarif");
    invctl::add_word_option(check, "--severity", options.least, "The least severe findings to show",
                            "note|warning|error");
    check->add_option("--code", options.codes, "Only findings of these codes; commas part several")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->type_name("CODE")
        ->check(CLI::Validator(known_code, ""));
    check->add_option("--max", options.max, "Findings to show at most, 100 if not given; 0 shows all")
        ->type_name("COUNT")
        ->check(CLI::Range(0, 1'000'000'000).description(""));
    check->add_flag("--quiet", options.quiet, "Print no findings; the exit status tells");
}

}  // namespace

namespace invctl
{

runner declare_check(CLI::App *check)
{
    auto options = std::make_shared<check_options>();
    check->add_option("FILE", options->files, "Documents, or folders whose *.xml are; - is standard input")
        ->type_name("FILE");
    check
        ->add_option("--catalog", options->catalogue,
                     "Check a catalogue, every document that it names, and how they go together")
        ->type_name("FILE");
    add_output_options(check, *options);
    check->callback([options = options.get()] {
        if (options->files.empty() && options->catalogue.empty())
            throw CLI::RequiredError("FILE");
    });
    return [options] { return run_check(*options); };
}

int run_check(const check_options &options)
{
    check_result result;
    if (!options.catalogue.empty())
        check_catalogue(options.catalogue, result);
    for (const std::string &file : options.files)
        is_folder(file) ? check_folder(file, result) : check_file(file, result);
    const shown_findings shown = select(result, options);
    if (!options.quiet)
        write_out(printed(shown, options.format));
    for (const std::string &trouble : result.troubles)
        fprintf(stderr, "invctl: %s\n", printable(trouble.c_str()).c_str());
    return finish_output(!result.troubles.empty() ? exit_trouble : shown.total > 0 ? exit_finding : exit_ok);
}

}  // namespace invctl
