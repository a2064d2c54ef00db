// Findings as text for people, as JSON and as SARIF for programs.
#ifndef INVCTL_CHECK_PRINT_FINDINGS_H
#define INVCTL_CHECK_PRINT_FINDINGS_H

#include <string>
#include <vector>

#include "run_checks.h"

namespace invctl::check
{

// What is shown of a result.
struct shown_findings {
    std::vector<const finding *> findings;
    size_t total = 0;  // of which these are the first
    const check_result *result = nullptr;
};

std::string findings_as_text(const shown_findings &shown, bool colour);
std::string findings_as_json(const shown_findings &shown);
std::string findings_as_sarif(const shown_findings &shown);

}  // namespace invctl::check

#endif
