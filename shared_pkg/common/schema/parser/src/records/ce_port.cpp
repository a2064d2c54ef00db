// CE ports: embedded in the ports of CE switches, never in a list of their own.
#include "inv_parser/record_builders.h"
#include "inv_parser/release.h"

#include "OrvelianInventorySchema.h"
#include "access/field_copy.h"
#include "frame/trace.h"

using namespace inv;

namespace
{

void fill_settings(sch_ce_port_type *record, const BaseCEPortType_2 &own)
{
    const auto &has = own.has;
    auto &mask = record->field_present;
    copy_optional(has.pd_specific_client, record->pd_specific_client, own.pd_specific_client, mask,
                  SCH_CE_PORT_HAS_PD_SPECIFIC_CLIENT);
    copy_optional(has.CC0nativeVlan, record->cc0_native_vlan, own.CC0nativeVlan, mask,
                  SCH_CE_PORT_HAS_CC0_NATIVE_VLAN);
    copy_optional(has.CC1nativeVlan, record->cc1_native_vlan, own.CC1nativeVlan, mask,
                  SCH_CE_PORT_HAS_CC1_NATIVE_VLAN);
    copy_optional(has.nativeVlan, record->native_vlan, own.nativeVlan, mask, SCH_CE_PORT_HAS_NATIVE_VLAN);
    copy_optional(has.CC0portSpeed, record->cc0_port_speed, own.CC0portSpeed, mask,
                  SCH_CE_PORT_HAS_CC0_PORT_SPEED);
    copy_optional(has.CC1portSpeed, record->cc1_port_speed, own.CC1portSpeed, mask,
                  SCH_CE_PORT_HAS_CC1_PORT_SPEED);
    copy_optional(has.portSpeed, record->port_speed, own.portSpeed, mask, SCH_CE_PORT_HAS_PORT_SPEED);
    copy_optional(has.CC0portMode, record->cc0_port_mode, own.CC0portMode, mask,
                  SCH_CE_PORT_HAS_CC0_PORT_MODE);
    copy_optional(has.CC1portMode, record->cc1_port_mode, own.CC1portMode, mask,
                  SCH_CE_PORT_HAS_CC1_PORT_MODE);
    copy_optional(has.portMode, record->port_mode, own.portMode, mask, SCH_CE_PORT_HAS_PORT_MODE);
    copy_optional(has.CC0mlapFlags, record->cc0_mlap_flags, join_octets(own.CC0mlapFlags.octets), mask,
                  SCH_CE_PORT_HAS_CC0_MLAP_FLAGS);
    copy_optional(has.CC1mlapFlags, record->cc1_mlap_flags, join_octets(own.CC1mlapFlags.octets), mask,
                  SCH_CE_PORT_HAS_CC1_MLAP_FLAGS);
    copy_optional(has.mlapFlags, record->mlap_flags, join_octets(own.mlapFlags.octets), mask,
                  SCH_CE_PORT_HAS_MLAP_FLAGS);
}

void fill_destinations(sch_ce_port_type *record, const BaseCEPortType_2 &own)
{
    const auto &has = own.has;
    auto &mask = record->field_present;
    record->serdes = own.serdes;
    copy_optional(has.CC0portDest, record->cc0_port_dest, own.CC0portDest, mask,
                  SCH_CE_PORT_HAS_CC0_PORT_DEST);
    copy_optional(has.CC1portDest, record->cc1_port_dest, own.CC1portDest, mask,
                  SCH_CE_PORT_HAS_CC1_PORT_DEST);
    copy_optional(has.portDest, record->port_dest, own.portDest, mask, SCH_CE_PORT_HAS_PORT_DEST);
    copy_optional_text(has.CC0PortDestName, record->cc0_port_dest_name, own.CC0PortDestName, mask,
                       SCH_CE_PORT_HAS_CC0_PORT_DEST_NAME);
    copy_optional_text(has.CC1PortDestName, record->cc1_port_dest_name, own.CC1PortDestName, mask,
                       SCH_CE_PORT_HAS_CC1_PORT_DEST_NAME);
    copy_optional_text(has.PortDestName, record->port_dest_name, own.PortDestName, mask,
                       SCH_CE_PORT_HAS_PORT_DEST_NAME);
}

void fill_hardware(sch_ce_port_type *record, const BaseCEPortType_2 &own)
{
    const auto &has = own.has;
    auto &mask = record->field_present;
    record->policing_port_map = own.policingPortMap;
    record->mdio_channel = own.mdioChannel;
    // Kept: these three have no bit.
    if (has.mdioClkSpeed)
        record->mdio_clk_speed = own.mdioClkSpeed;
    if (has.LocalSwitching)
        record->local_switching = own.LocalSwitching;
    if (has.portAdminState)
        record->port_admin_state = own.portAdminState;
    copy_optional(has.sfpController, record->sfp_controller, own.sfpController, mask,
                  SCH_CE_PORT_HAS_SFP_CONTROLLER);
    copy_optional(has.phyType, record->phy_type, own.phyType, mask, SCH_CE_PORT_HAS_PHY_TYPE);
}

}  // namespace

uint32_t parser_retrieve_base_ce_port_data(sch_ce_port_type *record, const BaseCEPortType *from,
                                           sch_base_entity_type *parent)
{
    if (record == nullptr || from == nullptr) {
        trace<msg::ce_port_null>();
        return 0;
    }
    const auto &own = from->ext;
    parser_retrieve_base_entity_data(&record->base, &from->base, parent);
    record->port_number = own.portNumber;
    record->port_usage = from->portUsage;
    record->operating_bandwidth = own.has.operatingBandWidth ? own.operatingBandWidth : 0;
    record->client = own.client;
    fill_settings(record, own);
    fill_destinations(record, own);
    fill_hardware(record, own);
    parser_retrieve_base_led_data_list(&record->led_list, &own.led, &record->base);
    if (own.has.container)
        parser_retrieve_base_container_data(
            &record->container, static_cast<const BaseContainerType *>(own.container.value), &record->base);
    return 0;
}

void inv_schema_free_ce_port_data(sch_ce_port_type *record)
{
    if (record == nullptr)
        return;
    inv_schema_free_base_entity_data(&record->base);
    inv_schema_free_container_data(&record->container);
    inv_schema_free_led_data_list(record->led_list);
}
