#include "check/finding_cases.h"
#include "check/small_document.h"

using namespace small;

TEST(InstanceUsedTwice, tells_every_further_entity_and_the_first_one_s_line)
{
    expect_findings(
        invctl::check::check_instance_used_twice,
        {
            {"each its own", card(sensor("A", 2) + sensor("B", 3)), {}},
            {"root and child",
             card(sensor("A", 1)),
             {R"(Card/A | xmlInstance="1" | xml instance 1 belongs to "Card" on line 1 already)"}},
            {"three of them, in other branches",
             card(sensor("A", 5) + module("M", 6, sensor("B", 5)) + module("N", 7, sensor("C", 5))),
             {R"(Card/M/B | xmlInstance="5" | xml instance 5 belongs to "A" on line 2 already)",
              R"(Card/N/C | xmlInstance="5" | xml instance 5 belongs to "A" on line 2 already)"}},
            {"0 is no instance", card(sensor("A", 0) + sensor("B", 0)), {}},
            {"a name that would forge a line",
             card(sensor("A&#10;B", 5) + sensor("C", 5)),
             {R"(Card/C | xmlInstance="5" | xml instance 5 belongs to "A\x0aB" on line 2 already)"}},
        });
}
