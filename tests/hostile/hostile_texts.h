// Documents that are made to cost as much as they can.
#ifndef TESTS_HOSTILE_HOSTILE_TEXTS_H
#define TESTS_HOSTILE_HOSTILE_TEXTS_H

#include <cstdint>
#include <string>

namespace hostile
{

constexpr unsigned million = 1000000;

// A document of a unit's kind: a prolog, the name of its root, more attributes of it, and its content.
std::string unit_text(const std::string &prolog, const std::string &root, const std::string &attributes,
                      const std::string &content);
std::string module_text(const std::string &prolog, const std::string &attributes, const std::string &content);

std::string repeated(const std::string &piece, unsigned times);
// "%" stands for the number, from 0 on.
std::string numbered(const std::string &piece, unsigned times);

// Entities e0 to e9, each of ten of the one before.
std::string laughs_of(const std::string &seed);

// What differs between buses: the node, and the begin and end of a port.
struct bus_text {
    const char *node;
    const char *port;
    const char *end_of_port;
};
inline constexpr bus_text i2c_text = {
    "<i2cNode><deviceType>ORVL_I2CDEV_TYPE_I2CMUX</deviceType></i2cNode>",
    "<i2cPort><portType>ORVL_PORT_TYPE_MUX</portType><channelNumber>01</channelNumber>", "</i2cPort>"};
inline constexpr bus_text pcie_text = {
    "<pcieNode><deviceType>ORVL_DEV_TYPE_PCISWITCH</deviceType></pcieNode>",
    "<pciePort><portNumber>01</portNumber>", "</pciePort>"};

// A device with this xml instance and these ports.
std::string device(const bus_text &bus, unsigned instance, const std::string &ports);
// One port to each of so many xml instances from `first` on.
std::string ports_to(const bus_text &bus, unsigned first, unsigned count);
// One port to so many slots of line cards, from slot 0 on.
std::string port_to_slots(const bus_text &bus, unsigned count);

}  // namespace hostile

#endif
