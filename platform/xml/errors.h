// Error records of a context and the parameters collected for the next one.
#ifndef PLATFORM_XML_ERRORS_H
#define PLATFORM_XML_ERRORS_H

#include "growing_array.h"
#include "inv_platform/xml_runtime.h"

#include <string_view>

namespace inv::xml
{

constexpr uint32_t max_pending_parameters = 8;

struct error_log {
    xb_error first = {};  // stands here so that the first failure is kept even when memory is out
    growing_array<xb_error> further;
    uint32_t count = 0;
    uint32_t travelling = 0;  // record that a failure still passed up belongs to, plus 1; 0: none
    const char *parameters[max_pending_parameters] = {};
    uint32_t parameter_count = 0;
};

// Copies text; the ninth and later parameters of one error are dropped.
void add_parameter(xb_context_state &state, std::string_view text);

// Records a status at the place where the reader stands, with the collected parameters, whatever
// was recorded before. Returns the status.
int32_t record_error(xb_context_state &state, int32_t status, bool fatal, const char *source, uint32_t line);

// The failure recorded last is dealt with: a later one of the same status is another failure.
void end_travel(error_log &log);

}  // namespace inv::xml

#endif
