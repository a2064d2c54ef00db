#include "check/finding_cases.h"
#include "check/small_document.h"

using namespace small;

namespace
{

std::string octets(size_t count)
{
    return std::string(count, 'x');
}

std::string element(const std::string &name, size_t length)
{
    return "<" + name + ">" + octets(length) + "</" + name + ">\n";
}

std::string sequence(const std::string &name, size_t length)
{
    return "<" + name + "><seqType>ORVL_SEQ_PART</seqType>\n" + element("description", length) + "</" + name +
           ">\n";
}

// How a document is made with a text of some length, and what the finding says about the text.
struct limit_case {
    const char *title;
    size_t limit;
    std::string (*document)(size_t length);
    std::string at;    // names and what stands over the caret
    std::string name;  // of the text
};

std::string port(size_t length)
{
    return card(entity({"fixedPorts", "P", "PORT", "PORT_SFP", 2,
                        "<maxBandWidth>1</maxBandWidth><operatingBandWidth>1</operatingBandWidth>\n" +
                            element("hwBoardIdentifier", length),
                        "portUsage=\"ORVL_PORT_USAGE_OTHER\""}));
}

std::string memory(const std::string &name, size_t length)
{
    std::string content;
    for (const char *each : {"capacity", "serialNumber", "firmwareVersion"})
        content += element(each, each == name ? length : 1);
    return card("<firmwareVersion>1</firmwareVersion>\n" +
                entity({"memory", "M", "MODULE", "MODULE_DIMM", 2, content}));
}

std::string processor(size_t length)
{
    return card(entity({"processor", "P", "CPU", "CPU_NPU", 2,
                        "<cores>1</cores>\n" + element("clockSpeed", 1) + element("cacheSizeL1", 1) +
                            element("cacheSizeL2", 1) + element("cacheSizeL3", length)}));
}

std::string zone(size_t length)
{
    std::string info = power_info({"1"});
    return info.insert(info.find("<zone>"), "\n" + element("description", length));
}

const limit_case limits[] = {
    {"description", 128,
     [](size_t n) {
         return card(
             entity({"i2c", "M", "MODULE", "MODULE_I2C", 2, "", "description=\"" + octets(n) + "\""}));
     },
     "Card/M | description=\"", "description"},
    {"oid", 128,
     [](size_t n) {
         return card(entity({"i2c", "M", "MODULE", "MODULE_I2C", 2, "", "oid=\"" + octets(n) + "\""}));
     },
     "Card/M | oid=\"", "oid"},
    {"hardware version", 64, [](size_t n) { return card(element("hardwareVersion", n)); },
     "Card | <hardwareVersion", "hardwareVersion"},
    {"software version", 64, [](size_t n) { return card(element("softwareVersion", n)); },
     "Card | <softwareVersion", "softwareVersion"},
    {"firmware version", 64, [](size_t n) { return card(element("firmwareVersion", n)); },
     "Card | <firmwareVersion", "firmwareVersion"},
    {"port", 64, port, "Card/P | <hwBoardIdentifier", "hwBoardIdentifier"},
    {"memory", 8, [](size_t n) { return memory("serialNumber", n); }, "Card/M | <serialNumber",
     "serialNumber"},
    {"ID EEPROM", 25, [](size_t n) { return card(eeprom("E", 2, element("vendorPN", n))); },
     "Card/E | <vendorPN", "vendorPN"},
    {"processor", 64, processor, "Card/P | <cacheSizeL3", "cacheSizeL3"},
    {"power zone", 16, [](size_t n) { return card(zone(n)); }, "Card | <description", "description"},
    {"container", 8,
     [](size_t n) {
         return card(entity({"container", "C", "CONTAINER", "CONTAINER_USB", 2, sequence("i2cIDPROM", n)}));
     },
     "Card/C | <description", "description"},
    {"container list", 8, [](size_t n) { return chassis(container_list("PM", 1, sequence("i2cAccess", n))); },
     "Chassis | <description", "description"},
    {"SPI destination", 64,
     [](size_t n) {
         return card("<spiPort><channel>00</channel><dstInfo>" + element("description", n) +
                     "</dstInfo></spiPort>\n");
     },
     "Card | <description", "description"},
    {"PCIe pin", 64,
     [](size_t n) {
         return card("<pciePort>" + element("hwPinLabel", n) + "<portNumber>00</portNumber></pciePort>\n");
     },
     "Card | <hwPinLabel", "hwPinLabel"},
};

}  // namespace

TEST(TextTooLong, begins_with_the_first_octet_that_is_lost)
{
    for (const limit_case &each : limits) {
        SCOPED_TRACE(each.title);
        invctl::check::finding_list found;
        invctl::check::check_text_too_long(*decoded(each.document(each.limit)), found);
        EXPECT_THAT(told(found), testing::IsEmpty());
        auto document = decoded(each.document(each.limit + 1));
        invctl::check::check_text_too_long(*document, found);
        ASSERT_EQ(found.all.size(), 1u);
        EXPECT_THAT(told(found)[0], testing::StartsWith(each.at));
        EXPECT_THAT(told(found)[0],
                    testing::EndsWith(" | " + each.name + " has " + std::to_string(each.limit + 1) +
                                      " octets; the library keeps the first " + std::to_string(each.limit)));
        EXPECT_EQ(found.all[0].hint, "shorten it to " + std::to_string(each.limit) + " octets");
    }
}

TEST(TextTooLong, counts_octets_and_passes_over_what_the_library_does_not_keep)
{
    const std::string umlauts = "\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4\xC3\xA4";
    expect_findings(
        invctl::check::check_text_too_long,
        {
            {"5 characters, 10 octets",
             card(entity(
                 {"memory", "M", "MODULE", "MODULE_DIMM", 2,
                  "<capacity>" + umlauts +
                      "</capacity><serialNumber>1</serialNumber><firmwareVersion>1</firmwareVersion>"})),
             {"Card/M | <capacity | capacity has 10 octets; the library keeps the first 8"}},
            {"a destination's description",
             card("<i2cPort><portType>ORVL_PORT_TYPE_MUX</portType><channelNumber>00</"
                  "channelNumber><dstInfo>" +
                  element("description", 200) +
                  "<applicable>ORVL_CTRL_SLOT_ANY</applicable><nodeInfo><nodeType>ORVL_NODE_TYPE_FAN</"
                  "nodeType>"
                  "</nodeInfo></dstInfo></i2cPort>\n"),
             {}},
            {"an entity outside of the tree",
             fan_tray(fan("F", 2, module("M", 4, element("hardwareVersion", 100)))),
             {}},
        });
}
