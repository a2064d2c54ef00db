/* Generated from schema/OrvelianInventory.xsd by schemac; edit the schema instead. */
#ifndef INVENTORY_DERIVATIONSDEC_H
#define INVENTORY_DERIVATIONSDEC_H

#include "inventory_Derivations.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Decode an element of the base type or of the derived type that its xsi:type names. */
int32_t XmlDT_BaseEntityType_derivations(xb_context *ctx, xb_choice *choice);
int32_t XmlDT_BaseContainerType_derivations(xb_context *ctx, xb_choice *choice);
int32_t XmlDT_BaseCEPortType_derivations(xb_context *ctx, xb_choice *choice);
int32_t XmlDT_BaseStorageType_derivations(xb_context *ctx, xb_choice *choice);
int32_t XmlDT_BasePortType_derivations(xb_context *ctx, xb_choice *choice);
int32_t XmlDT_BaseModuleType_derivations(xb_context *ctx, xb_choice *choice);

#ifdef __cplusplus
}
#endif

#endif /* INVENTORY_DERIVATIONSDEC_H */
