#include "check/finding_cases.h"
#include "check/small_document.h"

using namespace small;

namespace
{

// Instances 10, 11, ... each behind the one before, the topmost first or last in the document.
std::string chain(std::string (*device)(const std::string &, int, int), int count, bool topmost_first)
{
    std::string text;
    for (int i = 0; i + 1 < count; ++i) {
        const std::string each = device("D" + std::to_string(i), 10 + i, 11 + i);
        text = topmost_first ? text + each : each + text;
    }
    return card(text + sensor("End", 9 + count));
}

}  // namespace

TEST(PathTooLong, begins_at_26_hops_on_i2c_and_11_on_pcie)
{
    expect_findings(
        invctl::check::check_path_too_long,
        {
            {"25 I2C", chain(mux_to, 25, true), {}},
            {"10 PCIe", chain(switch_to, 10, true), {}},
            {"26 I2C",
             chain(mux_to, 26, true),
             {R"(Card/D24 | <nodePosition | I2C path to "End" (35) has 26 hops; at most 25 are possible)"}},
            {"11 PCIe",
             chain(switch_to, 11, true),
             {R"(Card/D9 | <nodePosition | PCIe path to "End" (20) has 11 hops; at most 10 are possible)"}},
            {"the other way round in the document",
             chain(switch_to, 11, false),
             {R"(Card/D9 | <nodePosition | PCIe path to "End" (20) has 11 hops; at most 10 are possible)"}},
            {"what is farther down is not told",
             chain(switch_to, 14, true),
             {R"(Card/D9 | <nodePosition | PCIe path to "D10" (20) has 11 hops; at most 10 are possible)"}},
        });
}

TEST(PathTooLong, leaves_circles_to_their_own_check)
{
    expect_findings(invctl::check::check_path_too_long,
                    {
                        {"itself", card(mux_to("M", 10, 10)), {}},
                        {"a tail behind a circle",
                         card(switch_to("S", 10, 11) +
                              pcie_switch("T", 11, pcie_port("00", destination(10) + destination(12))) +
                              switch_to("U", 12, 13) + sensor("A", 13)),
                         {}},
                    });
}
