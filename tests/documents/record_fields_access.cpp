// Access records: how devices are reached.
#include "record_fields.h"

namespace record_fields
{

namespace
{

const sch_base_entity_type &root(const inv_xml_handle &file)
{
    return *file.root->record;
}

const sch_pci_sequence_type &container_pci_access(const inv_xml_handle &file)
{
    return reinterpret_cast<const sch_chassis_type *>(file.root->record)->container_list_list->pci_access;
}

samples hardware_models()
{
    return tokens("ORVL_HW_MODEL_UNKNOWN", "ORVL_HW_MODEL_AUTHENTICITY_CHIP", 144);
}

samples node_types()
{
    return tokens("ORVL_NODE_TYPE_UNKNOWN", "ORVL_NODE_TYPE_MAX", 21);
}

samples control_slots()
{
    return tokens("ORVL_CTRL_SLOT_0", "ORVL_CTRL_SLOT_ANY", 2);
}

const char *const node_type = "<nodeType>ORVL_NODE_TYPE_UNKNOWN</nodeType>";

// An element of the node's type inside another: its kind, or its position.
std::string with_node_type(const std::string &element)
{
    return "<" + element + "><nodeType>%</nodeType></" + element + ">";
}
std::string with_node_position(const std::string &element)
{
    return "<" + element + ">" + node_type + "<nodePosition>%</nodePosition></" + element + ">";
}

record_case i2c_node()
{
    using record = sch_i2c_node_type;
    return {"i2c_node",
            module_kind,
            module_before() + "<i2cNode",
            "</i2cNode>" + module_after(),
            {required("deviceType", "ORVL_I2CDEV_TYPE_CCC"),
             {"deviceModel"},
             {"deviceAddress"},
             {"controlRegister"},
             {"dataRegister"},
             {"secondCtrlReg"},
             {"secondDataReg"},
             {"xmlInstance"},
             {"resetOnly"}},
            [](const inv_xml_handle &file) { return &root(file).i2c_node; },
            FIELD(field_present),
            {number(FIELD(device_type), "deviceType",
                    tokens("ORVL_I2CDEV_TYPE_CCC", "ORVL_I2CDEV_TYPE_PCISWITCH", 16)),
             number(FIELD(device_model), "deviceModel", hardware_models(), 0x01),
             number(FIELD(device_address), "deviceAddress", hex_octet(), 0x02),
             number(FIELD(control_register), "controlRegister", hex_word(), 0x04),
             number(FIELD(data_register), "dataRegister", hex_word(), 0x08),
             number(FIELD(second_control_register), "secondCtrlReg", hex_word(), 0x10),
             number(FIELD(second_data_register), "secondDataReg", hex_word(), 0x20),
             number(FIELD(xml_instance), "xmlInstance", signed_16(), 0x40),
             number(FIELD(reset_only), "resetOnly", boolean(), 0x80)},
            {"next"}};
}

record_case node_info()
{
    using record = sch_node_info_type;
    return {"node_info",
            chassis_kind,
            chassis_before() + "<entityContainerList><containerType>ORVL_CONTAINER_TYPE_PM</containerType>"
                               "<maxContainers>0</maxContainers><pciAccess><description/><dstInfo",
            "</dstInfo></pciAccess></entityContainerList></chassis>",
            {required("nodeType", "ORVL_NODE_TYPE_UNKNOWN"), {"nodePosition"}},
            [](const inv_xml_handle &file) { return &container_pci_access(file).dst_info; },
            FIELD(field_present),
            {number(FIELD(node_type), "nodeType", node_types()),
             number(FIELD(node_position), "nodePosition", signed_16(), 0x01)}};
}

record_case i2c_dest()
{
    using record = sch_i2c_dest_type;
    std::string node = "<nodeInfo>" + std::string(node_type) + "</nodeInfo>";
    return {
        "i2c_dest",
        module_kind,
        module_before() +
            "<i2cPort><portType>ORVL_PORT_TYPE_MASTER</portType><channelNumber>00</channelNumber>"
            "<dstInfo",
        "</dstInfo></i2cPort>" + module_after(),
        {required("description", "not carried"), required("applicable", "ORVL_CTRL_SLOT_0"),
         required("nodeInfo", "ORVL_NODE_TYPE_UNKNOWN", with_node_type("nodeInfo"))},
        [](const inv_xml_handle &file) { return root(file).i2c_port_list->dest_list; },
        {},
        {untouched(FIELD(description), "description"),
         number(FIELD(applicable), "applicable", control_slots()),
         with_markup(number(FIELD(node_type), "nodeInfo", node_types()), with_node_type("nodeInfo")),
         with_markup(number(FIELD(node_position), "nodeInfo", signed_16()), with_node_position("nodeInfo"))},
        {"next"}};
}

record_case i2c_port()
{
    using record = sch_i2c_port_type;
    return {"i2c_port",
            module_kind,
            module_before() + "<i2cPort",
            "</i2cPort>" + module_after(),
            {required("portType", "ORVL_PORT_TYPE_MASTER"), required("channelNumber", "00"), {"dstInfo"}},
            [](const inv_xml_handle &file) { return root(file).i2c_port_list; },
            {},
            {number(FIELD(port_type), "portType", tokens("ORVL_PORT_TYPE_MASTER", "ORVL_PORT_TYPE_SMBUS", 3)),
             number(FIELD(channel_number), "channelNumber", hex_first_octet()),
             list(FIELD(dest_list), "dstInfo",
                  "<dstInfo><description/><applicable>ORVL_CTRL_SLOT_0</applicable><nodeInfo>" +
                      std::string(node_type) + "</nodeInfo></dstInfo>")},
            {"next"}};
}

record_case i2c_sequence()
{
    using record = sch_i2c_sequence_type;
    return {
        "i2c_sequence",
        module_kind,
        module_before() + "<hwSignals><direct>0</direct><alert/><present/><reset/><i2cPath",
        "</i2cPath></hwSignals>" + module_after(),
        {{"applicable"},
         required("seqType", "ORVL_SEQ_FULL"),
         required("description", "a"),
         {"srcInfo"},
         {"cmdInfo"},
         {"dstInfo"}},
        [](const inv_xml_handle &file) { return &root(file).hw_signals.i2c_path; },
        FIELD(field_present),
        {number(FIELD(applicable), "applicable", control_slots(), 0x01),
         number(FIELD(seq_type), "seqType", tokens("ORVL_SEQ_FULL", "ORVL_SEQ_LINK", 2)),
         text(FIELD(description), "description", text_up_to(8)),
         with_markup(number(FIELD(src_node_type), "srcInfo", node_types(), 0x02), with_node_type("srcInfo")),
         with_markup(number(FIELD(src_node_position), "srcInfo", signed_16(), 0x02),
                     with_node_position("srcInfo")),
         with_markup(number(FIELD(dst_node_type), "dstInfo", node_types(), 0x04), with_node_type("dstInfo")),
         with_markup(number(FIELD(dst_node_position), "dstInfo", signed_16(), 0x04),
                     with_node_position("dstInfo")),
         list(FIELD(command_list), "cmdInfo",
              "<cmdInfo><deviceType>ORVL_I2CDEV_TYPE_CCC</deviceType></cmdInfo>")}};
}

record_case pcie_node()
{
    using record = sch_pcie_node_type;
    return {"pcie_node",
            module_kind,
            module_before() + "<pcieNode",
            "</pcieNode>" + module_after(),
            {{"deviceModel"},
             required("deviceType", "ORVL_DEV_TYPE_PCISWITCH"),
             {"portNumber"},
             {"numOfFunctions"}},
            [](const inv_xml_handle &file) { return &root(file).pcie_node; },
            FIELD(field_present),
            {number(FIELD(device_type), "deviceType",
                    tokens("ORVL_DEV_TYPE_PCISWITCH", "ORVL_DEV_TYPE_UNKNOWN", 2)),
             number(FIELD(device_model), "deviceModel", hardware_models(), 0x02),
             number(FIELD(port_number), "portNumber", hex_octet(), 0x01),
             number(FIELD(num_functions), "numOfFunctions", signed_16(), 0x08)}};
}

record_case pcie_dest()
{
    using record = sch_pcie_dest_type;
    return {
        "pcie_dest",
        module_kind,
        module_before() + "<pciePort><portNumber>00</portNumber><dstInfo",
        "</dstInfo></pciePort>" + module_after(),
        {required("description", ""),
         required("applicable", "ORVL_CTRL_SLOT_0"),
         {"deviceId"},
         required("nodeInfo", "ORVL_NODE_TYPE_UNKNOWN", with_node_type("nodeInfo"))},
        [](const inv_xml_handle &file) { return root(file).pcie_port_list->dest_list; },
        FIELD(field_present),
        {number(FIELD(applicable), "applicable", control_slots()),
         with_markup(number(FIELD(node_type), "nodeInfo", node_types()), with_node_type("nodeInfo")),
         with_markup(number(FIELD(node_position), "nodeInfo", signed_16()), with_node_position("nodeInfo")),
         number(FIELD(device_id), "deviceId",
                {{"00000000", 0}, {"FFFFFFFF", 0xffff}, {"12345678", 0x5678}, {"FFFF0001", 1}}, 0x01)},
        {"next"}};
}

record_case pci_sequence()
{
    using record = sch_pci_sequence_type;
    return {
        "pci_sequence",
        chassis_kind,
        chassis_before() + "<entityContainerList><containerType>ORVL_CONTAINER_TYPE_PM</containerType>"
                           "<maxContainers>0</maxContainers><pciAccess",
        "</pciAccess></entityContainerList></chassis>",
        {{"pdNotes"}, {"applicable"}, required("description", "a"), {"dstPci"}, {"dstInfo"}, {"xmlInstance"}},
        [](const inv_xml_handle &file) { return &container_pci_access(file); },
        FIELD(field_present),
        {number(FIELD(applicable), "applicable", control_slots(), 0x01),
         text(FIELD(description), "description", text_up_to(128)),
         with_markup(
             number(FIELD_INSIDE(dst_pci, sch_pcie_node_type, num_functions), "dstPci", signed_16(), 0x02),
             "<dstPci><deviceType>ORVL_DEV_TYPE_PCISWITCH</deviceType>"
             "<numOfFunctions>%</numOfFunctions></dstPci>"),
         with_markup(
             number(FIELD_INSIDE(dst_info, sch_node_info_type, node_position), "dstInfo", signed_16(), 0x04),
             with_node_position("dstInfo"))},
        {"next"}};
}

record_case base_pcie_port()
{
    using record = sch_base_pcie_port_type;
    return {"base_pcie_port",
            module_kind,
            module_before() + "<pciePort",
            "</pciePort>" + module_after(),
            {{"width"},
             {"isTransparentPort"},
             {"isPrimary"},
             {"hwPinLabel"},
             required("portNumber", "00"),
             {"pciGen"},
             {"pciLink"},
             {"dstInfo"}},
            [](const inv_xml_handle &file) { return root(file).pcie_port_list; },
            FIELD(field_present),
            {number(FIELD(width), "width", signed_16(), 0x01),
             number(FIELD(is_transparent), "isTransparentPort", boolean(), 0x02),
             number(FIELD(is_primary), "isPrimary", boolean(), 0x04),
             text(FIELD(hw_pin_label), "hwPinLabel", text_up_to(64), 0x08),
             number(FIELD(port_number), "portNumber", hex_octet()),
             number(FIELD(pci_gen), "pciGen", tokens("ORVL_PCI_GEN_DMI1", "ORVL_PCI_GEN_GEN4", 6), 0x10),
             list(FIELD(dest_list), "dstInfo",
                  "<dstInfo><description/><applicable>ORVL_CTRL_SLOT_0</applicable><nodeInfo>" +
                      std::string(node_type) + "</nodeInfo></dstInfo>"),
             untouched(FIELD(link_list), "pciLink", "<pciLink><description>%</description></pciLink>")},
            {"next"}};
}

record_case spi_dest()
{
    using record = sch_spi_dest_type;
    return {"spi_dest",
            module_kind,
            module_before() + "<spiPort><channel>00</channel><dstInfo",
            "</dstInfo></spiPort>" + module_after(),
            {required("description", "a"), {"deviceAddress"}},
            [](const inv_xml_handle &file) { return root(file).spi_port_list->dest_list; },
            FIELD(field_present),
            {text(FIELD(description), "description", text_up_to(64)),
             number(FIELD(device_address), "deviceAddress", hex_octet(), 0x01)},
            {"next"}};
}

record_case spi_port()
{
    using record = sch_spi_port_type;
    return {"spi_port",
            module_kind,
            module_before() + "<spiPort",
            "</spiPort>" + module_after(),
            {required("channel", "00"), {"dstInfo"}},
            [](const inv_xml_handle &file) { return root(file).spi_port_list; },
            {},
            {number(FIELD(channel), "channel", hex_first_octet()),
             list(FIELD(dest_list), "dstInfo", "<dstInfo><description/></dstInfo>")},
            {"next"}};
}

record_case hw_reg()
{
    using record = sch_hw_reg_type;
    return {"hw_reg",
            module_kind,
            module_before() + "<hwSignals><direct>0</direct><alert",
            "</alert><present/><reset/></hwSignals>" + module_after(),
            {{"@wordOffset"}, {"@bitNumber"}},
            [](const inv_xml_handle &file) { return &root(file).hw_signals.alert; },
            FIELD(field_present),
            {number(FIELD(word_offset), "@wordOffset", unsigned_32(), 0x01),
             number(FIELD(bit_number), "@bitNumber", unsigned_32(), 0x02)}};
}

record_case hw_signals()
{
    using record = sch_hw_signals_type;
    auto signal = [](place bit_number, const std::string &name) {
        return with_markup(number(bit_number, name, {{"0", 0}, {"4294967295", UINT32_MAX}}),
                           "<" + name + " bitNumber=\"%\"/>");
    };
    auto usual = [](const std::string &name) {
        return required(name, "0", "<" + name + " bitNumber=\"%\"/>");
    };
    return {"hw_signals",
            module_kind,
            module_before() + "<hwSignals",
            "</hwSignals>" + module_after(),
            {required("direct", "0"), usual("alert"), usual("present"), usual("reset"), {"i2cPath"}},
            [](const inv_xml_handle &file) { return &root(file).hw_signals; },
            FIELD(field_present),
            {number(FIELD(direct), "direct", boolean()),
             signal(FIELD_INSIDE(alert, sch_hw_reg_type, bit_number), "alert"),
             signal(FIELD_INSIDE(present, sch_hw_reg_type, bit_number), "present"),
             signal(FIELD_INSIDE(reset, sch_hw_reg_type, bit_number), "reset"),
             with_markup(number(FIELD_INSIDE(i2c_path, sch_i2c_sequence_type, seq_type), "i2cPath",
                                tokens("ORVL_SEQ_FULL", "ORVL_SEQ_LINK", 2), 0x01),
                         "<i2cPath><seqType>%</seqType><description/></i2cPath>")}};
}

}  // namespace

const std::vector<record_case> &access_cases()
{
    static const std::vector<record_case> cases = {
        i2c_node(),     node_info(),      i2c_dest(), i2c_port(), i2c_sequence(), pcie_node(), pcie_dest(),
        pci_sequence(), base_pcie_port(), spi_dest(), spi_port(), hw_reg(),       hw_signals()};
    return cases;
}

}  // namespace record_fields
