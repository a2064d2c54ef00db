/* Generated from schema/OrvelianInventory.xsd by schemac; edit the schema instead. */
#ifndef INVENTORY_DERIVATIONS_H
#define INVENTORY_DERIVATIONS_H

#include "OrvelianInventorySchema.h"
#include "inv_platform/xml_runtime.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Nothing chosen: tag and pointer cleared. */
void Init_BaseEntityType_derivations(xb_choice *choice);
void Init_BaseContainerType_derivations(xb_choice *choice);
void Init_BaseCEPortType_derivations(xb_choice *choice);
void Init_BaseStorageType_derivations(xb_choice *choice);
void Init_BasePortType_derivations(xb_choice *choice);
void Init_BaseModuleType_derivations(xb_choice *choice);

/* Types that xsi:type may name in place of the base; the tag is the row number plus one. */
extern const xb_type_name_row BaseEntityType_type_names[30];
extern const xb_type_name_row BaseContainerType_type_names[2];
extern const xb_type_name_row BaseCEPortType_type_names[2];
extern const xb_type_name_row BaseStorageType_type_names[2];
extern const xb_type_name_row BasePortType_type_names[2];
extern const xb_type_name_row BaseModuleType_type_names[4];

#ifdef __cplusplus
}
#endif

#endif /* INVENTORY_DERIVATIONS_H */
