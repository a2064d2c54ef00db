#include "load/document_kind.h"

#include "inv_parser/loaders.h"
#include "inv_parser/release.h"

#include <stddef.h>

namespace inv::load
{

namespace
{

using enum document_kind;

// By pi_hw_type; the numbers are the platform's.
constexpr document_kind kinds[] = {
    none,   chassis,    chassis, module, module, module, module, fan_tray, power_shelf, pem,     none,
    module, cxp_optics, module,  module, module, module, module, module,   module,      chassis, module,
};
constexpr uint32_t second_generation_module = 13;

// In the order of document_kind.
constexpr kind_actions actions[] = {
    {"Chassis", parser_retrieve_chassis_data, inv_schema_free_chassis_data, true},
    {"Module", parser_retrieve_module_data, inv_schema_free_base_module_data, false},
    {"FanTray", parser_retrieve_fantray_xml_data, inv_schema_free_fan_tray_data, true},
    {"Powershelf", parser_retrieve_powershelf_xml_data, inv_schema_free_power_shelf_data, true},
    {"PEM", parser_retrieve_pem_xml_data, inv_schema_free_pem_data, true},
    {"CXP", parser_retrieve_cxp_fixed_optics_xml_data, inv_schema_free_port_module_data, true},
};

}  // namespace

document_kind kind_of(uint32_t pi_hw_type)
{
    return pi_hw_type < sizeof kinds / sizeof kinds[0] ? kinds[pi_hw_type] : none;
}

document_kind kind_of_first_generation(uint32_t pi_hw_type)
{
    // Kept: type 13 opens by the second generation only, and closes as a module.
    return pi_hw_type == second_generation_module ? none : kind_of(pi_hw_type);
}

const kind_actions &actions_of(document_kind kind)
{
    return actions[static_cast<size_t>(kind) - 1];
}

}  // namespace inv::load
