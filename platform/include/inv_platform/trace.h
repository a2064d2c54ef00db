/* Trace channel: what every trace site of the library imports, and the means to read it.
 *
 * The reference implementation keeps binary records in a ring: arguments are stored, text is made
 * only when somebody looks. Every function may be called by several threads at once, for
 * different variables where one is given.
 */
#ifndef INV_PLATFORM_TRACE_H
#define INV_PLATFORM_TRACE_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Limits of the reference implementation. */
#define QTRACE_MAX_ARGUMENTS 16 /* more in one line: E2BIG */
#define QTRACE_MAX_TEXT 256     /* octets kept of one text argument; the rest is cut off */
#define QTRACE_MIN_BUFFER 64    /* smallest ring */

/* Configuration of a channel, taken by qtrace_enable_configuration(). A null configuration
 * means: ring only. */
typedef struct qtrace_configuration {
    uint32_t size;         /* sizeof(qtrace_configuration), so that it can grow; what a smaller one
                              does not cover is absent */
    uint32_t live;         /* non-zero: every line also goes to standard error at once */
    const char *dump_path; /* file for the dump at exit; null: no dump. Copied. No folder is made. */
} qtrace_configuration;

/* Opens a channel and stores it in *handle. name and path are copied; buffer_size is the ring's
 * size in octets; flags, catalogue_id and zero are carried for readers of the dump. A channel stays
 * open as long as the process. Returns 0 or an errno value: EINVAL for a null handle or too small
 * a ring, ENOMEM; then *handle is untouched. */
int32_t qtrace_open_internal(void **handle, const char *name, uint32_t buffer_size, uint32_t flags,
                             const char *path, const char *catalogue_id, uint32_t zero);

/* Writes one line; the oldest ones make room. kinds has one letter per argument: s a text (const
 * char *, null allowed), d an int32_t, D a 64-bit value or pointer. size_word and has_string are
 * constants of the call site that tell other implementations the record's size.
 *
 * Texts are copied; kinds and format are not: both must be constants that stay where they are until
 * the process ends, so a library that traces must not be unloaded before.
 *
 * Formats may have %s (for s), %d %u %x (d), the same with l (D), %p (D), each with -, 0 and a
 * width, and %%. Where format and kinds disagree the text reads "<?>".
 *
 * Returns 0 or an errno value: EINVAL for a null handle or format or an unknown kind, E2BIG, ENOSPC
 * when the line is larger than the ring. */
int32_t qtrace_internal(void *handle, uint32_t id, uint32_t size_word, uint32_t has_string, const char *kinds,
                        const char *format, ...);

/* Applies a configuration (qtrace_configuration or null). Returns 0 or an errno value: EINVAL for a
 * null handle or a size that does not cover `live`, ENOMEM; then the previous one stays. */
int32_t qtrace_enable_configuration(void *handle, void *config);

/* Arms (on non-zero) or disarms the dump at process exit, which goes to the configuration's
 * dump_path when one is set, after the last atexit() handler. A file that cannot be opened means no
 * dump. Returns 0, or EINVAL for a null handle. */
int32_t qtrace_set_dump_on_exit(void *handle, uint32_t on);

/* Receives one formatted line of a channel, oldest first. May itself trace. */
typedef void (*qtrace_line_reader)(void *user, uint32_t id, const char *text);

/* Formats the records now in the ring and hands them to reader (null: only counts). Returns their
 * number. */
uint32_t qtrace_read(void *handle, qtrace_line_reader reader, void *user);

#ifdef __cplusplus
}
#endif

#endif
