#include "check/finding_cases.h"
#include "check/small_document.h"

using namespace small;

TEST(NameUsedTwice, compares_entities_under_one_parent)
{
    expect_findings(
        invctl::check::check_name_used_twice,
        {
            {"different names", card(sensor("A", 2) + sensor("a", 3)), {}},
            {"the parent's own name", card(sensor("Card", 2)), {}},
            {"under different parents",
             card(module("M", 2, sensor("A", 3)) + module("N", 4, sensor("A", 5))),
             {}},
            {"of different kinds",
             card(mux("A", 2, "") + sensor("A", 3)),
             {R"(Card/A | name="A" | the name "A" is that of another entity here, on line 2)"}},
            {"three of them",
             card(sensor("A", 2) + sensor("A", 3) + sensor("A", 4)),
             {R"(Card/A | name="A" | the name "A" is that of another entity here, on line 2)",
              R"(Card/A | name="A" | the name "A" is that of another entity here, on line 2)"}},
            {"slots of two lists",
             chassis(container_list("FANTRAYSLOT", 1, container("entityContainer", "S", 2, 0)) +
                     container_list("LINECARDSLOT", 1, container("entityContainer", "S", 3, 0))),
             {R"(Chassis/S | name="S" | the name "S" is that of another entity here, on line 9)"}},
        });
}
