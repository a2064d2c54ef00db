/* Power records. Documents give power as decimal numbers; records hold whole numbers, truncated
 * toward zero and wrapped to the field's width. */
#ifndef INV_PARSER_POWER_RECORDS_H
#define INV_PARSER_POWER_RECORDS_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Bits of sch_power_consumer_type.field_present. */
#define SCH_POWER_CONSUMER_HAS_MIN_BUDGET 0x01u
#define SCH_POWER_CONSUMER_HAS_MAX_BUDGET 0x02u
#define SCH_POWER_CONSUMER_HAS_EXT_BUDGET 0x04u
#define SCH_POWER_CONSUMER_HAS_POWER_USAGE 0x08u

/* What an entity draws. Unit: as the document counts, usually watts. */
typedef struct sch_power_consumer_type {
    uint16_t min_budget;   /* 16 bits; element minPowerBudget, bit 0x01 */
    uint16_t max_budget;   /* 16 bits; element maxPowerBudget, bit 0x02 */
    uint16_t ext_budget;   /* 16 bits; element extPowerBudget, bit 0x04 */
    uint32_t power_usage;  /* 32 bits; element powerUsage, bit 0x08 */
    uint32_t power_zone;   /* 32 bits; power zone code, 0 to 17; element powerZone, always copied */
    uint8_t field_present; /* SCH_POWER_CONSUMER_HAS_* */
} sch_power_consumer_type;

/* Bits of sch_power_producer_type.field_present. */
#define SCH_POWER_PRODUCER_HAS_MAX_POWER 0x01u
#define SCH_POWER_PRODUCER_HAS_CURRENT_POWER 0x02u

/* What an entity supplies. Unit as above. */
typedef struct sch_power_producer_type {
    uint32_t max_power;     /* 32 bits; element maxPower, bit 0x01 */
    uint32_t current_power; /* 32 bits; element currentPower, bit 0x02 */
    uint8_t field_present;  /* SCH_POWER_PRODUCER_HAS_* */
} sch_power_producer_type;

/* Bit of sch_power_zone_type.field_present. Only the description has one: the other fields of an
 * absent element are 0. */
#define SCH_POWER_ZONE_HAS_DESCRIPTION 0x01u

/* A part of a board that is powered as one. List element. */
typedef struct sch_power_zone_type {
    char description[17];          /* 16 octets + NUL; element description, bit 0x01 */
    uint8_t zone;                  /* 8 bits; power zone code, 0 to 17; element zone */
    uint8_t on_off_capability;     /* 0 or 1; can be switched; element powerOnOffCapability */
    uint8_t power_applied;         /* 0 or 1; element powerApplied */
    uint16_t total_power_required; /* 16 bits; unit as above; element totalPowerRequired */
    uint8_t main_zone;             /* 0 or 1; element mainZone */
    uint16_t pd_zone_number;       /* 16 bits; platform-dependent number; element pdZoneNumber */
    struct sch_power_zone_type *next;
    uint8_t field_present; /* SCH_POWER_ZONE_HAS_DESCRIPTION */
} sch_power_zone_type;

/* The power zones of a board. */
typedef struct sch_power_info_type {
    sch_power_zone_type *power_zone_list; /* elements powerZone, document order; owned */
} sch_power_info_type;

#ifdef __cplusplus
}
#endif

#endif
