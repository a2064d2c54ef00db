#include "check/finding_cases.h"
#include "check/small_document.h"

using namespace small;

TEST(ParentLoop, tells_each_circle_once_at_the_destination_that_closes_it)
{
    const std::string text = "path comes back to where it began: ";
    expect_findings(
        invctl::check::check_parent_loop,
        {
            {"a chain", card(mux_to("M", 10, 11) + mux_to("N", 11, 20) + sensor("A", 20)), {}},
            {"itself",
             card(mux_to("M", 10, 10)),
             {"Card/M | <nodePosition | I2C " + text + R"("M" (10) behind "M" (10))"}},
            {"two, with others behind them",
             card(mux_to("M", 10, 11) +
                  mux("N", 11, i2c_port("00", destination(10)) + i2c_port("01", destination(20))) +
                  sensor("A", 20)),
             {"Card/N | <nodePosition | I2C " + text + R"("M" (10) behind "N" (11) behind "M" (10))"}},
            {"two ways to one entity, no circle",
             card(switch_to("S", 10, 12) + switch_to("T", 11, 10) + pcie_switch("U", 12, "") +
                  switch_to("V", 13, 12)),
             {}},
            {"two circles",
             card(switch_to("S", 10, 10) + switch_to("T", 11, 11)),
             {"Card/S | <nodePosition | PCIe " + text + R"("S" (10) behind "S" (10))",
              "Card/T | <nodePosition | PCIe " + text + R"("T" (11) behind "T" (11))"}},
            {"each bus by itself", card(mux_to("M", 10, 11) + switch_to("S", 11, 10)), {}},
        });
}

TEST(ParentLoop, goes_by_the_last_destination_that_names_an_entity)
{
    // The index keeps one way to an entity: that from N, so M's own destination counts for nothing.
    expect_findings(invctl::check::check_parent_loop,
                    {{"two ways", card(mux_to("M", 10, 10) + mux_to("N", 11, 10)), {}}});
}

TEST(ParentLoop, tells_the_beginning_of_a_long_circle)
{
    std::string muxes;
    for (int i = 0; i < 20; ++i)
        muxes += mux_to("M" + std::to_string(i), 10 + i, i == 19 ? 10 : 11 + i);
    expect_findings(
        invctl::check::check_parent_loop,
        {{"20 muxes",
          card(muxes),
          {R"(Card/M19 | <nodePosition | I2C path comes back to where it began: "M0" (10))"
           R"( behind "M19" (29) behind "M18" (28) behind "M17" (27) behind "M16" (26) behind "M15" (25))"
           R"( behind "M14" (24) behind "M13" (23) behind "M12" (22) behind ...)"}}});
}
