/* Which kind of slot holds a unit of a node type. */
#include "example.h"

int main(void)
{
    for (uint32_t node_type = 0; node_type < ORVL_NODE_TYPE_MAX; ++node_type) {
        uint32_t container_type = inv_parser_convert_node_type_to_container_type(node_type);
        if (container_type != INV_NO_CONTAINER_TYPE)
            printf("node type %2u: container type %2u\n", (unsigned)node_type, (unsigned)container_type);
    }
    return 0;
}
