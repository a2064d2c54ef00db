// Findings of the library's own decoding: one kind for each status of the runtime.
#ifndef INVCTL_CHECK_SCHEMA_FINDINGS_H
#define INVCTL_CHECK_SCHEMA_FINDINGS_H

#include <span>

#include "finding.h"

namespace invctl::check
{

struct schema_row {
    int32_t status;  // xb_status
    check_row row;
};

std::span<const schema_row> schema_rows();

// Reports every error that the decode recorded. Those of the system (memory, reading) are not findings.
void report_schema_findings(checked_document &document, finding_list &found);

}  // namespace invctl::check

#endif
