/* A stand-in for a client library: imports platform functions and hands their answers on. */
#ifndef TESTS_PLATFORM_REPLACEMENT_CLIENT_H
#define TESTS_PLATFORM_REPLACEMENT_CLIENT_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

const char *client_file_name(uint32_t pi_hw_type, uint32_t pd_hw_type, const char *pid);
const char *client_file_name_v2(uint32_t pi_hw_type, uint32_t pd_hw_type);

/* Opens a channel, writes one line and returns what writing returned; *kept is the number of lines
 * then in the ring. */
int32_t client_trace(uint32_t *kept);

#ifdef __cplusplus
}
#endif

#endif
