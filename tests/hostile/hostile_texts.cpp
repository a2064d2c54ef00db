#include "hostile/hostile_texts.h"

namespace hostile
{

namespace
{

std::string destination(const char *applicable, const char *node_type, unsigned position)
{
    return std::string("<dstInfo><description>d</description><applicable>") + applicable +
           "</applicable><nodeInfo><nodeType>" + node_type + "</nodeType><nodePosition>" +
           std::to_string(position) + "</nodePosition></nodeInfo></dstInfo>";
}

}  // namespace

std::string unit_text(const std::string &prolog, const std::string &root, const std::string &attributes,
                      const std::string &content)
{
    return prolog + "<" + root +
           " name=\"m\" type=\"ORVL_ENTITY_TYPE_MODULE\" "
           "subtype=\"ORVL_ENTITY_SUBTYPE_MODULE_MOTHER_BOARD\" "
           "instance=\"0\" replicationScope=\"ORVL_REPLICATION_TYPE_NODE\" xmlInstance=\"1\"" +
           attributes + ">" + content + "</" + root + ">";
}

std::string module_text(const std::string &prolog, const std::string &attributes, const std::string &content)
{
    return unit_text(prolog, "module", attributes, content);
}

std::string repeated(const std::string &piece, unsigned times)
{
    std::string text;
    text.reserve(piece.size() * times);
    for (unsigned i = 0; i < times; ++i)
        text += piece;
    return text;
}

std::string numbered(const std::string &piece, unsigned times)
{
    std::string text;
    for (unsigned i = 0; i < times; ++i) {
        for (char c : piece)
            c == '%' ? text += std::to_string(i) : text += c;
    }
    return text;
}

std::string laughs_of(const std::string &seed)
{
    std::string text = "<!DOCTYPE module [<!ENTITY e0 '" + seed + "'>";
    for (unsigned i = 1; i <= 9; ++i) {
        const std::string number = std::to_string(i);
        text += "<!ENTITY e" + number + " '" + repeated("&e" + std::to_string(i - 1) + ";", 10) + "'>";
    }
    return text + "]>";
}

std::string device(const bus_text &bus, unsigned instance, const std::string &ports)
{
    const std::string number = std::to_string(instance);
    return "<i2c name=\"x\" type=\"ORVL_ENTITY_TYPE_MODULE\" subtype=\"ORVL_ENTITY_SUBTYPE_MODULE_I2C_MUX\" "
           "instance=\"" +
           number + "\" replicationScope=\"ORVL_REPLICATION_TYPE_NODE\" xmlInstance=\"" + number + "\">" +
           bus.node + ports + "</i2c>";
}

std::string ports_to(const bus_text &bus, unsigned first, unsigned count)
{
    std::string text;
    for (unsigned i = 0; i < count; ++i)
        text += bus.port + destination("ORVL_CTRL_SLOT_ANY", "ORVL_NODE_TYPE_ENTITY", first + i) +
                bus.end_of_port;
    return text;
}

std::string port_to_slots(const bus_text &bus, unsigned count)
{
    std::string text = bus.port;
    for (unsigned i = 0; i < count; ++i)
        text += destination("ORVL_CTRL_SLOT_0", "ORVL_NODE_TYPE_LINECARD", i);
    return text + bus.end_of_port;
}

}  // namespace hostile
