/* Compares every public record with the committed list of offsets and sizes, which clients rely on.
 *   record_layouts record_layouts.txt
 * INV_REGENERATE_GOLDEN=1 rewrites the list; a new record or member is first added to it by name.
 */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "inv_parser/inv_parser.h"
#include "inv_parser/platform_types.h"
#include "inv_platform/trace.h"
#include "inv_platform/xml_runtime.h"

typedef struct layout_row {
    const char *record;
    const char *member; /* null: the record itself, whose offset is its alignment */
    size_t offset;
    size_t size;
} layout_row;

/* The list has under a thousand lines of under a hundred octets. */
#define LIST_SIZE 100000

static size_t first_bit(const void *record, size_t size)
{
    const unsigned char *octets = record;
    for (size_t bit = 0; bit < size * 8; ++bit)
        if (octets[bit / 8] & (1u << bit % 8))
            return bit;
    return size * 8;
}

static size_t append(char *text, size_t length, const layout_row *row)
{
    int written = row->member == NULL ? snprintf(text + length, LIST_SIZE - length, "%s %zu %zu\n",
                                                 row->record, row->size, row->offset)
                                      : snprintf(text + length, LIST_SIZE - length, "  %s %zu %zu\n",
                                                 row->member, row->offset, row->size);
    return written < 0 ? length : length + (size_t)written;
}

static void describe(char *text)
{
    const layout_row rows[] = {
#include "record_layout_rows.inc"
    };
    size_t length = (size_t)snprintf(
        text, LIST_SIZE, "%s",
        "# Layouts that clients rely on: each record with size and alignment, its members with "
        "offset and size in octets\n"
        "# (a bit-field with its first bit and width).\n");
    for (size_t i = 0; i < sizeof rows / sizeof rows[0] && length + 200 < LIST_SIZE; ++i)
        length = append(text, length, &rows[i]);
}

/* Prints the lines that differ; both lists name the same records and members. */
static int compare(const char *committed, const char *compiled)
{
    int differences = 0;
    char record[100] = "";
    while (*committed != '\0' && *compiled != '\0') {
        int length = (int)strcspn(committed, "\n");
        int new_length = (int)strcspn(compiled, "\n");
        if (*committed != ' ')
            snprintf(record, sizeof record, "%.*s", (int)strcspn(committed, " "), committed);
        if (length != new_length || memcmp(committed, compiled, (size_t)length) != 0) {
            printf("%s: committed \"%.*s\", compiled \"%.*s\"\n", record, length, committed, new_length,
                   compiled);
            ++differences;
        }
        committed += length + (committed[length] == '\n');
        compiled += new_length + (compiled[new_length] == '\n');
    }
    if (*committed != *compiled)
        printf("one list is longer\n");
    return differences + (*committed != *compiled);
}

int main(int argc, char **argv)
{
    static char committed[LIST_SIZE];
    static char compiled[LIST_SIZE];
    if (argc != 2)
        return 2;
    const char *regenerate = getenv("INV_REGENERATE_GOLDEN");
    int rewrite = regenerate != NULL && strcmp(regenerate, "1") == 0;
    describe(compiled);
    FILE *list = fopen(argv[1], rewrite ? "w" : "r");
    if (list == NULL) {
        perror(argv[1]);
        return 2;
    }
    if (rewrite)
        fputs(compiled, list);
    else
        committed[fread(committed, 1, LIST_SIZE - 1, list)] = '\0';
    if (fclose(list) != 0)
        return 2;
    return rewrite ? 0 : compare(committed, compiled) != 0;
}
