#include "hostile/hostile_texts.h"

namespace hostile
{

std::string module_text(const std::string &prolog, const std::string &attributes, const std::string &content)
{
    return prolog +
           "<module name=\"m\" type=\"ORVL_ENTITY_TYPE_MODULE\" "
           "subtype=\"ORVL_ENTITY_SUBTYPE_MODULE_MOTHER_BOARD\" "
           "instance=\"0\" replicationScope=\"ORVL_REPLICATION_TYPE_NODE\" xmlInstance=\"1\"" +
           attributes + ">" + content + "</module>";
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

std::string mux(unsigned instance, unsigned first, unsigned ports)
{
    std::string text =
        "<i2c name=\"x\" type=\"ORVL_ENTITY_TYPE_MODULE\" subtype=\"ORVL_ENTITY_SUBTYPE_MODULE_I2C_MUX\" "
        "instance=\"" +
        std::to_string(instance % 65536) +
        "\" replicationScope=\"ORVL_REPLICATION_TYPE_NODE\" xmlInstance=\"" + std::to_string(instance) +
        "\"><i2cNode><deviceType>ORVL_I2CDEV_TYPE_I2CMUX</deviceType></i2cNode>";
    for (unsigned i = 0; i < ports; ++i)
        text += "<i2cPort><portType>ORVL_PORT_TYPE_MUX</portType><channelNumber>01</channelNumber><dstInfo>"
                "<description>d</description><applicable>ORVL_CTRL_SLOT_ANY</applicable><nodeInfo>"
                "<nodeType>ORVL_NODE_TYPE_ENTITY</nodeType><nodePosition>" +
                std::to_string(first + i) + "</nodePosition></nodeInfo></dstInfo></i2cPort>";
    return text + "</i2c>";
}

}  // namespace hostile
