// The entities of a decoded document.
#ifndef INVCTL_CHECK_ENTITY_MODEL_H
#define INVCTL_CHECK_ENTITY_MODEL_H

#include <cstdint>
#include <string>
#include <vector>

#include "OrvelianInventorySchema.h"
#include "finding.h"

namespace invctl::check
{

// The decoded record type that an entity has; the names are those of the schema's types.
enum class entity_kind : uint8_t {
    base_entity,  // BaseEntityType by itself
    led,
    container,
    pem_bay,
    ce_port,
    fpga,
    ideeprom,
    storage,
    spi_flash,
    sensor,
    i2c_chip,
    pcie_switch,
    volt_margin,
    processor,
    memory,
    ce_switch,
    kesto,
    port,
    console,
    module,
    optics,
    pem,
    fan_tray,
    back_plane,
    fan,
    module_test,
    craft_interface,
    chassis,
    power_shelf
};

struct entity {
    const BaseEntityType *base = nullptr;
    const void *record = nullptr;  // of the type that `kind` names; same address as base
    entity_kind kind = entity_kind::base_entity;
    const entity *parent = nullptr;  // in the document, in the library's tree or not; null: the root
    bool in_tree = true;             // the library builds its record and hangs it into its tree
    place where;                     // its start tag
    std::string names;               // "Card/Control FPGA", the root's name first
    std::string eid;                 // "module.msc.0/module.fpga.0", as invctl prints EIDs
};

struct checked_document;

// A name as messages and paths of names have it: a long one is cut, so that what is told of many entities
// under one with a huge name stays small. "?" for null.
std::string shown_name(const char *name);

// Fills document.entities out of document.root and the places. Parents are pointers into the finished list.
void list_entities(checked_document &document);

}  // namespace invctl::check

#endif
