#include "check/finding_cases.h"

TEST(CatalogueLine, tells_lines_that_the_lookup_passes_over)
{
    expect_catalogue_findings(
        invctl::check::check_catalogue_line,
        {
            {"all readable", {"# units", "", "3 17 LC-* * card.xml", "* * * 1.0-2.0 a file.xml"}, {}, {}},
            {"columns missing",
             {"# units", "  3 17 LC-*  "},
             {},
             {"catalog.txt | 3 17 LC-* | five columns are needed: pi_hw_type, pd_hw_type, PID pattern, "
              "hardware versions, file"}},
            {"each by itself",
             {"x 17 LC-* * card.xml", "3 17 LC-* 2.0-1.0 card.xml"},
             {},
             {"catalog.txt | x 17 LC-* * card.xml | pi_hw_type is neither a 32-bit number nor *",
              "catalog.txt | 3 17 LC-* 2.0-1.0 card.xml | the range of hardware versions ends before it "
              "begins"}},
        });
}
