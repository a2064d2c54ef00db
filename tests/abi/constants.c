/* Prints every constant of the public headers with its value, for constants.sh. Clients have them compiled
 * in. */
#include <stdio.h>

#include "inv_parser/inv_parser.h"
#include "inv_parser/inventory_tokens.h"
#include "inv_parser/loaders.h"
#include "inv_parser/platform_types.h"
#include "inv_parser/record_builders.h"
#include "inv_parser/tree_internal.h"
#include "inv_platform/avl.h"
#include "inv_platform/lookup.h"
#include "inv_platform/trace.h"
#include "inv_platform/xml_runtime.h"

struct constant {
    const char *name;
    long long value;
};

static const struct constant constants[] = {
#include "constant_rows.inc"
};

int main(void)
{
    for (size_t i = 0; i < sizeof constants / sizeof constants[0]; ++i)
        printf("%s %lld\n", constants[i].name, constants[i].value);
    return 0;
}
