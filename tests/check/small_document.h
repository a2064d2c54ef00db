// Small inventory documents as texts: as many items as a test needs, one start tag to a line.
#ifndef TESTS_CHECK_SMALL_DOCUMENT_H
#define TESTS_CHECK_SMALL_DOCUMENT_H

#include <string>
#include <vector>

namespace small
{

struct item {
    std::string element;
    std::string name;
    std::string type;
    std::string subtype;  // without its prefix
    int xml_instance = 0;
    std::string content = {};
    std::string attributes = {};
};

inline std::string entity(const item &of)
{
    return "<" + of.element + " name=\"" + of.name + "\" type=\"ORVL_ENTITY_TYPE_" + of.type +
           "\" subtype=\"ORVL_ENTITY_SUBTYPE_" + of.subtype +
           "\" instance=\"0\" replicationScope=\"ORVL_REPLICATION_TYPE_RACK\" xmlInstance=\"" +
           std::to_string(of.xml_instance) + "\" " + of.attributes + ">\n" + of.content + "</" + of.element +
           ">\n";
}

inline std::string module(const std::string &name, int xml_instance, const std::string &content = "")
{
    return entity({"module", name, "MODULE", "MODULE_SLICE", xml_instance, content});
}

// The root of most documents: "Card", xml instance 1.
inline std::string card(const std::string &content, const std::string &subtype = "MODULE_MSC")
{
    return entity({"module", "Card", "MODULE", subtype, 1, content});
}

inline std::string i2c_node(const std::string &device, const std::string &model, const std::string &address)
{
    return "<i2cNode><deviceType>ORVL_I2CDEV_TYPE_" + device + "</deviceType><deviceModel>ORVL_HW_MODEL_" +
           model + "</deviceModel><deviceAddress>" + address + "</deviceAddress></i2cNode>\n";
}

// `inner`: what stands in front of the value, thresholds for example.
inline std::string sensor(const std::string &name, int xml_instance, const std::string &inner = "")
{
    return entity({"sensor", name, "SENSOR", "SENSOR_TEMP_VALUE", xml_instance,
                   inner + "<value>25</value><lastValue>25</lastValue><unit>ORVL_SENSOR_UNIT_CELSIUS</unit>"
                           "<scale>ORVL_SENSOR_SCALE_UNITS</scale>\n"});
}

inline std::string threshold(const std::string &element, const std::vector<int> &limits)
{
    static const char *const names[] = {"criticalLow", "majorLow",  "minorLow",
                                        "minorHigh",   "majorHigh", "criticalHigh"};
    std::string text = "<" + element;
    for (size_t i = 0; i < limits.size(); ++i)
        text += std::string(" ") + names[i] + "=\"" + std::to_string(limits[i]) + "\"";
    return text + "/>\n";
}

inline std::string destination(int position, const std::string &node_type = "ENTITY",
                               const std::string &control_slot = "ANY")
{
    return "<dstInfo><description>x</description><applicable>ORVL_CTRL_SLOT_" + control_slot +
           "</applicable><nodeInfo><nodeType>ORVL_NODE_TYPE_" + node_type + "</nodeType><nodePosition>" +
           std::to_string(position) + "</nodePosition></nodeInfo></dstInfo>\n";
}

inline std::string i2c_port(const std::string &channel, const std::string &destinations)
{
    return "<i2cPort><portType>ORVL_PORT_TYPE_MUX</portType><channelNumber>" + channel +
           "</channelNumber>\n" + destinations + "</i2cPort>\n";
}

inline std::string mux(const std::string &name, int xml_instance, const std::string &ports)
{
    return entity({"i2c", name, "MODULE", "MODULE_I2C_MUX", xml_instance, ports});
}

// A mux with one channel and one entity behind it.
inline std::string mux_to(const std::string &name, int xml_instance, int behind)
{
    return mux(name, xml_instance, i2c_port("00", destination(behind)));
}

inline std::string pcie_port(const std::string &number, const std::string &destinations)
{
    return "<pciePort><portNumber>" + number + "</portNumber>\n" + destinations + "</pciePort>\n";
}

inline std::string pcie_switch(const std::string &name, int xml_instance, const std::string &ports)
{
    return entity({"pcieSwitch", name, "MODULE", "MODULE_PCIE_SWITCH", xml_instance, ports});
}

inline std::string switch_to(const std::string &name, int xml_instance, int behind)
{
    return pcie_switch(name, xml_instance, pcie_port("00", destination(behind)));
}

inline std::string eeprom(const std::string &name, int xml_instance, const std::string &content = "")
{
    return entity({"eeprom", name, "MODULE", "MODULE_IDPROM", xml_instance, content,
                   "eepromType=\"ORVL_EEPROM_TYPE_ID\""});
}

inline std::string power_info(const std::vector<std::string> &watts)
{
    std::string text = "<powerInfo>\n";
    for (const std::string &each : watts)
        text += "<powerZone><zone>ORVL_POWER_ZONE_CHASSIS</zone><powerOnOffCapability>false"
                "</powerOnOffCapability><powerApplied>true</powerApplied><totalPowerRequired>" +
                each +
                "</totalPowerRequired><mainZone>false</mainZone><pdZoneNumber>0</pdZoneNumber></powerZone>\n";
    return text + "</powerInfo>\n";
}

inline std::string chassis(const std::string &content, const std::string &zone_watts = "10")
{
    return entity({"chassis", "Chassis", "CHASSIS", "CHASSIS_LCC", 1,
                   "<fruBits>8</fruBits><instanceBits>6</instanceBits><rackNumber>0</rackNumber>\n"
                   "<availablePower>100</availablePower>\n" +
                       power_info({zone_watts}) + content});
}

inline std::string container(const std::string &element, const std::string &name, int xml_instance,
                             int position)
{
    return entity({element, name, "CONTAINER", "CONTAINER_LC", xml_instance, "",
                   "position=\"" + std::to_string(position) + "\""});
}

inline std::string container_list(const std::string &type, int max, const std::string &containers)
{
    return "<entityContainerList><containerType>ORVL_CONTAINER_TYPE_" + type +
           "</containerType>\n<maxContainers>" + std::to_string(max) + "</maxContainers>\n" + containers +
           "</entityContainerList>\n";
}

inline std::string fan(const std::string &name, int xml_instance, const std::string &modules = "")
{
    return entity(
        {"fan", name, "FAN", "FAN_CTRL", xml_instance, sensor(name + " speed", xml_instance + 1) + modules});
}

inline std::string fan_tray(const std::string &content)
{
    return entity({"fanTray", "Fan tray", "MODULE", "MODULE_FANTRAY", 1, content});
}

}  // namespace small

#endif
