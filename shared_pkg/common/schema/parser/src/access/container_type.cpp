#include "inv_parser/access_sequences.h"
#include "inv_parser/inventory_tokens.h"

namespace
{

struct holding {
    uint32_t node_type;
    uint32_t container_type;
};

// The control card itself is missing: a slot holds the peer's.
constexpr holding holdings[] = {
    {ORVL_NODE_TYPE_FABRICCARD, ORVL_CONTAINER_TYPE_FABRICCARDSLOT},
    {ORVL_NODE_TYPE_FANTRAY, ORVL_CONTAINER_TYPE_FANTRAYSLOT},
    {ORVL_NODE_TYPE_LINECARD, ORVL_CONTAINER_TYPE_LINECARDSLOT},
    {ORVL_NODE_TYPE_PEM, ORVL_CONTAINER_TYPE_PM},
    {ORVL_NODE_TYPE_PEERCONTROLCARD, ORVL_CONTAINER_TYPE_CONTROLCARDSLOT},
    {ORVL_NODE_TYPE_POWERSHELF, ORVL_CONTAINER_TYPE_POWERSHELFSLOT},
    {ORVL_NODE_TYPE_SWITCHCARD, ORVL_CONTAINER_TYPE_SWITCHCARDSLOT},
    {ORVL_NODE_TYPE_ECU, ORVL_CONTAINER_TYPE_ECUSLOT},
    {ORVL_NODE_TYPE_POWERFILTER, ORVL_CONTAINER_TYPE_POWERFILTERSLOT},
    {ORVL_NODE_TYPE_SYSTEMCONTCARD, ORVL_CONTAINER_TYPE_SYSTEMCONTSLOT},
    {ORVL_NODE_TYPE_ECU_DISK, ORVL_CONTAINER_TYPE_ECUDISKSLOT},
    {ORVL_NODE_TYPE_BPID2, ORVL_CONTAINER_TYPE_BPID2SLOT},
};

}  // namespace

uint32_t inv_parser_convert_node_type_to_container_type(uint32_t node_type)
{
    for (const holding &each : holdings)
        if (each.node_type == node_type)
            return each.container_type;
    return INV_NO_CONTAINER_TYPE;
}
