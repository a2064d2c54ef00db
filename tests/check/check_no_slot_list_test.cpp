#include "check/finding_cases.h"
#include "check/small_document.h"

using namespace small;

TEST(NoSlotList, tells_the_only_node_type_without_one)
{
    expect_findings(
        invctl::check::check_no_slot_list,
        {
            {"the last one with a list", card(mux("M", 10, i2c_port("00", destination(0, "BPID2")))), {}},
            {"an entity", card(mux_to("M", 10, 10)), {}},
            {"I2C",
             card(mux("M", 10, i2c_port("00", destination(0, "MAX")))),
             {"Card/M | <nodeType | ORVL_NODE_TYPE_MAX has no slot list: this I2C destination is never "
              "found"}},
            {"PCIe",
             card(pcie_switch("S", 10, pcie_port("01", destination(0, "LINECARD") + destination(1, "MAX")))),
             {"Card/S | <nodeType | ORVL_NODE_TYPE_MAX has no slot list: this PCIe destination is never "
              "found"}},
        });
}
