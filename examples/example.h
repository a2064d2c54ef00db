/* What the examples share: opening units of the sample router and printing hops. */
#ifndef EXAMPLE_H
#define EXAMPLE_H

#include <inttypes.h>
#include <stdio.h>
#include <stdlib.h>

#include <inv_parser/inv_parser.h>

/* The reference platform finds the file of a unit in the catalogue that $INV_CATALOG names. */
static inline inv_xml_handle *open_unit(uint32_t pi_hw_type, uint32_t pd_hw_type, const char *pid)
{
    inv_xml_handle *handle = inv_parser_open_xml_file(0, pi_hw_type, pd_hw_type, pid);
    if (handle == NULL) {
        fprintf(stderr, "no inventory file for %s: is INV_CATALOG set?\n", pid);
        exit(1);
    }
    return handle;
}

static inline inv_xml_handle *open_line_card(void)
{
    return open_unit(3, 17, "LC-48X10");
}

static inline inv_xml_handle *open_control_card(void)
{
    return open_unit(4, 32, "RP-2");
}

static inline inv_xml_handle *open_chassis(void)
{
    return open_unit(1, 1, "CH-8");
}

/* Ends the example when a call fails that must not. */
static inline void check(uint32_t result, const char *what)
{
    if (result == 0)
        return;
    fprintf(stderr, "%s failed\n", what);
    exit(1);
}

static inline void print_i2c(const char *heading, const sch_i2c_access_seq_type *sequence)
{
    puts(heading);
    for (int i = 0; sequence != NULL && i < sequence->hop_count; ++i) {
        const sch_i2c_access_hop_type *hop = &sequence->hops[i];
        printf("  xml %3u  type %2" PRIu32 "  address 0x%02x  channel %" PRIu32 "\n",
               (unsigned)hop->xml_instance, hop->device_type, (unsigned)hop->device_address, hop->channel);
    }
}

static inline void print_pcie(const char *heading, const sch_pcie_access_seq_type *sequence)
{
    puts(heading);
    for (int i = 0; sequence != NULL && i < sequence->hop_count; ++i) {
        const sch_pcie_access_hop_type *hop = &sequence->hops[i];
        printf("  xml %3u  type %" PRIu32 "  link port 0x%02x  device id 0x%04x\n",
               (unsigned)hop->xml_instance, hop->device_type, (unsigned)hop->link_port,
               (unsigned)hop->device_id);
    }
}

/* The n-th entity of a type; the caller's copy. */
static inline sch_eid_type nth_eid(inv_xml_handle *handle, uint8_t type, unsigned n)
{
    uint16_t count = 0;
    sch_eid_type *eids = NULL;
    check(inv_parser_get_eid_by_type(handle, ORVL_ENTITY_OWNER_TYPE_ALL, type, &count, &eids),
          "query by type");
    if (n >= count) {
        fprintf(stderr, "fewer than %u entities of type %u\n", n + 1, (unsigned)type);
        exit(1);
    }
    sch_eid_type eid = eids[n];
    inv_parser_free_eid_tree(eids);
    return eid;
}

#endif
