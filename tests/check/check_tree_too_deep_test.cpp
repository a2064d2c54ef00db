#include "check/finding_cases.h"
#include "check/small_document.h"

using namespace small;

namespace
{

// Modules down to the level, the content in the lowest.
std::string card_of_levels(int levels, const std::string &content)
{
    std::string text = content;
    for (int level = levels; level > 1; --level)
        text = module("L" + std::to_string(level), level, text);
    return card(text);
}

std::string names_to(int level)
{
    std::string names = "Card";
    for (int each = 2; each <= level; ++each)
        names += "/L" + std::to_string(each);
    return names;
}

}  // namespace

TEST(TreeTooDeep, tells_every_entity_on_level_17_and_none_below)
{
    const std::string text = "the entity is on level 17 of the tree; an EID has 16";
    expect_findings(invctl::check::check_tree_too_deep,
                    {
                        {"16 levels", card_of_levels(16, ""), {}},
                        {"17 levels", card_of_levels(17, ""), {names_to(17) + " | <module | " + text}},
                        {"20 levels", card_of_levels(20, ""), {names_to(17) + " | <module | " + text}},
                        {"two on level 17",
                         card_of_levels(16, sensor("A", 50) + sensor("B", 51)),
                         {names_to(16) + "/A | <sensor | " + text, names_to(16) + "/B | <sensor | " + text}},
                    });
}

TEST(TreeTooDeep, counts_no_entities_that_are_not_in_the_tree)
{
    // A fan's module is read by nobody, however deep it is.
    std::string deep = sensor("A", 90);
    for (int level = 0; level < 20; ++level)
        deep = module("M", 50 + level, deep);
    expect_findings(invctl::check::check_tree_too_deep, {{"fan", fan_tray(fan("F", 2, deep)), {}}});
}
