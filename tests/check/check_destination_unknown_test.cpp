#include "check/finding_cases.h"
#include "check/small_document.h"

using namespace small;

TEST(DestinationUnknown, tells_destinations_without_an_entity)
{
    expect_findings(
        invctl::check::check_destination_unknown,
        {
            {"all known", card(mux_to("M", 10, 20) + switch_to("S", 11, 20) + sensor("A", 20)), {}},
            {"before and behind", card(mux_to("M", 10, 11) + mux_to("N", 11, 10)), {}},
            {"I2C",
             card(mux_to("M", 10, 21) + sensor("A", 20)),
             {R"(Card/M | <nodePosition | I2C destination 21 of "M" is the xml instance of no entity)"}},
            {"PCIe",
             card(switch_to("S", 11, 21) + sensor("A", 20)),
             {R"(Card/S | <nodePosition | PCIe destination 21 of "S" is the xml instance of no entity)"}},
            {"instance 0 is no entity",
             card(mux_to("M", 10, 0) + sensor("A", 0)),
             {R"(Card/M | <nodePosition | I2C destination 0 of "M" is the xml instance of no entity)"}},
            {"units in slots are elsewhere",
             card(mux("M", 10, i2c_port("00", destination(7, "LINECARD") + destination(9, "UNKNOWN")))),
             {}},
            {"the index widens a negative position",
             card(mux_to("M", 10, -1) + sensor("A", -1)),
             {R"(Card/M | <nodePosition | I2C destination -1 of "M" is the xml instance of no entity)"}},
            {"an entity outside of the tree",
             card(mux_to("M", 10, 31) + entity({"storageHDD", "D", "MODULE", "MODULE_HDD", 30,
                                                "<maxCapacity>10</maxCapacity>\n" + eeprom("E", 31)})),
             {R"(Card/M | <nodePosition | I2C destination 31 of "M" is the xml instance of no entity)"}},
        });
}

TEST(DestinationUnknown, points_at_the_destination_that_gives_no_position)
{
    const std::string node =
        "<dstInfo><description>x</description><applicable>ORVL_CTRL_SLOT_ANY</applicable><nodeInfo>"
        "<nodeType>ORVL_NODE_TYPE_ENTITY</nodeType></nodeInfo></dstInfo>\n";
    expect_findings(
        invctl::check::check_destination_unknown,
        {{"no position",
          card(mux("M", 10, i2c_port("00", node))),
          {R"(Card/M | <nodeInfo | I2C destination 0 of "M" is the xml instance of no entity)"}}});
}
