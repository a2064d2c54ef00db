#include "check/finding_cases.h"
#include "check/small_document.h"

using namespace small;

namespace
{

std::string slots(const std::vector<int> &positions)
{
    std::string text;
    for (size_t i = 0; i < positions.size(); ++i) {
        const int number = static_cast<int>(i);
        text += container("entityContainer", "S" + std::to_string(number), 50 + number, positions[i]);
    }
    return text;
}

std::pair<std::string, std::string> chassis_with(const std::string &lists)
{
    return {"chassis.xml", chassis(lists)};
}

std::pair<std::string, std::string> control_card(const std::string &destinations)
{
    return {"rp.xml", card(pcie_switch("P", 10, pcie_port("00", destinations)), "MODULE_RP")};
}

const std::vector<std::string> lines = {"1 1 CH-* * chassis.xml", "4 32 RP-* * rp.xml"};

}  // namespace

TEST(SlotPositions, compares_the_slots_of_a_chassis_with_their_list)
{
    expect_catalogue_findings(
        invctl::check::check_slot_positions,
        {
            {"as many as there may be", lines, {chassis_with(container_list("PM", 3, slots({0, 1, 2})))}, {}},
            {"fewer, in any order", lines, {chassis_with(container_list("PM", 8, slots({7, 0})))}, {}},
            {"too many",
             lines,
             {chassis_with(container_list("PM", 1, slots({0, 1})))},
             {"Chassis | <maxContainers | the list has 2 containers; maxContainers is 1",
              "Chassis/S1 | position=\"1\" | position 1 is not below maxContainers, 1"}},
            {"before the first",
             lines,
             {chassis_with(container_list("PM", 1, slots({-1})))},
             {"Chassis/S0 | position=\"-1\" | position -1 is not below maxContainers, 1"}},
            {"twice",
             lines,
             {chassis_with(container_list("PM", 2, slots({1, 1})))},
             {R"(Chassis/S1 | position="1" | position 1 of this kind of slot is that of "S0" already)"}},
            {"one position for each kind",
             lines,
             {chassis_with(container_list("PM", 1, slots({0})) +
                           container_list("FANTRAYSLOT", 1, container("entityContainer", "F", 60, 0)))},
             {}},
        });
}

TEST(SlotPositions, compares_destinations_with_all_chassis)
{
    const std::string two = container_list("LINECARDSLOT", 2, slots({0, 1}));
    expect_catalogue_findings(
        invctl::check::check_slot_positions,
        {
            {"no chassis", {lines[1]}, {control_card(destination(5, "LINECARD"))}, {}},
            {"both slots",
             lines,
             {chassis_with(two), control_card(destination(0, "LINECARD") + destination(1, "LINECARD"))},
             {}},
            {"one more",
             lines,
             {chassis_with(two), control_card(destination(1, "LINECARD") + destination(2, "LINECARD"))},
             {"Card/P | <nodePosition | no ORVL_CONTAINER_TYPE_LINECARDSLOT of a catalogued chassis has "
              "position 2"}},
            {"another kind",
             lines,
             {chassis_with(two), control_card(destination(0, "PEM"))},
             {"Card/P | <nodeType | no chassis of the catalogue has ORVL_CONTAINER_TYPE_PM, where this "
              "destination leads"}},
            {"in a second chassis",
             {lines[0], lines[1], "2 2 CH-* * large.xml"},
             {chassis_with(two),
              {"large.xml", chassis(container_list("LINECARDSLOT", 3, slots({0, 1, 2})))},
              control_card(destination(2, "LINECARD"))},
             {}},
            {"the ECU's slot",
             lines,
             {chassis_with(container("ecuSlot", "E", 40, 0)),
              control_card(destination(0, "ECU") + destination(1, "ECU"))},
             {"Card/P | <nodePosition | no ORVL_CONTAINER_TYPE_ECUSLOT of a catalogued chassis has position "
              "1"}},
        });
}
