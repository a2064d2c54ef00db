#include "check/finding_cases.h"
#include "check/small_document.h"

using namespace small;

TEST(NotInTree, tells_the_topmost_entity_that_is_not_read)
{
    const std::string text = "the entity will not be in the entity tree: the library does not read it here";
    const std::string disk = "<maxCapacity>10</maxCapacity>\n";
    expect_findings(
        invctl::check::check_not_in_tree,
        {
            {"a fan", fan_tray(fan("F", 2)), {}},
            {"a fan's module", fan_tray(fan("F", 2, module("M", 4))), {"Fan tray/F/M | <module | " + text}},
            {"with one entity in it",
             fan_tray(fan("F", 2, module("M", 4, sensor("A", 5)))),
             {"Fan tray/F/M | <module | " + text + ", nor the entity in it"}},
            {"with a branch in it, others behind",
             fan_tray(fan("F", 2, module("M", 4, sensor("A", 5) + module("N", 6, sensor("B", 7)))) +
                      fan("G", 8)),
             {"Fan tray/F/M | <module | " + text + ", nor the 3 in it"}},
            {"a disk's EEPROM",
             card(entity({"storageHDD", "D", "MODULE", "MODULE_HDD", 2, disk + eeprom("E", 3)})),
             {"Card/D/E | <eeprom | " + text}},
        });
}
