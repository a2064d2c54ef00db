#include "check/finding_cases.h"
#include "check/small_document.h"

namespace
{

std::string hidden(const std::string &line, int by)
{
    return "catalog.txt | " + line + " | no unit reaches this line: line " + std::to_string(by) +
           " takes all of them";
}

}  // namespace

TEST(UnitUnreached, tells_documents_that_no_line_leads_to)
{
    const std::pair<std::string, std::string> card = {"card.xml", small::card("")};
    expect_catalogue_findings(
        invctl::check::check_unit_unreached,
        {
            {"reached", {"3 17 LC-* * card.xml"}, {card}, {}},
            {"by another spelling", {"3 17 LC-* * ./card.xml"}, {card}, {}},
            {"not named",
             {"# nothing"},
             {card},
             {"card.xml |  | no line of catalog.txt leads to this document"}},
            {"no inventory document", {"# nothing"}, {{"notes.xml", "<notes/>"}, {"broken.xml", "<mod"}}, {}},
            {"no document", {"# nothing"}, {{"card.txt", small::card("")}}, {}},
        });
}

TEST(UnitUnreached, tells_lines_that_an_earlier_one_hides)
{
    const std::vector<std::pair<std::string, std::string>> a = {{"a.xml", small::card("")}};
    struct {
        const char *title;
        std::string earlier;
        std::string later;
        bool is_hidden;
    } pairs[] = {
        {"the same", "3 17 A * a.xml", "3 17 A * a.xml", true},
        {"another PID", "3 17 A * a.xml", "3 17 B * a.xml", false},
        {"a wider PID", "3 17 A* * a.xml", "3 17 A-1* * a.xml", true},
        {"a narrower PID", "3 17 A-1* * a.xml", "3 17 A* * a.xml", false},
        {"? is one character only", "3 17 A? * a.xml", "3 17 A* * a.xml", false},
        {"? covers a character", "3 17 A? * a.xml", "3 17 AB * a.xml", true},
        {"any type", "* * * * a.xml", "3 17 A * a.xml", true},
        {"any second type", "3 * * * a.xml", "3 17 A * a.xml", true},
        {"another type", "4 * * * a.xml", "3 17 A * a.xml", false},
        {"later any", "3 17 * * a.xml", "3 * * * a.xml", false},
        {"within the versions", "3 17 A 1.0-2.9 a.xml", "3 17 A 1.5-2.9 a.xml", true},
        {"beyond the versions", "3 17 A 1.0-2.9 a.xml", "3 17 A 2.9-2.10 a.xml", false},
        {"any version behind some", "3 17 A 1.0-2.9 a.xml", "3 17 A * a.xml", false},
    };
    for (const auto &each : pairs)
        expect_catalogue_findings(
            invctl::check::check_unit_unreached,
            {{each.title,
              {each.earlier, each.later},
              a,
              each.is_hidden ? std::vector{hidden(each.later, 1)} : std::vector<std::string>()}});
}

TEST(UnitUnreached, does_not_count_a_hidden_line_as_a_way_to_its_file)
{
    expect_catalogue_findings(
        invctl::check::check_unit_unreached,
        {{"hidden",
          {"3 17 A* * a.xml", "3 17 A-1 * b.xml"},
          {{"a.xml", small::card("")}, {"b.xml", small::card("")}},
          {hidden("3 17 A-1 * b.xml", 1), "b.xml |  | no line of catalog.txt leads to this document"}}});
}
