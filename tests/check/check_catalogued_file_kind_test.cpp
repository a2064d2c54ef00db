#include "check/finding_cases.h"
#include "check/small_document.h"

TEST(CataloguedFileKind, compares_the_root_with_the_hardware_type)
{
    const std::pair<std::string, std::string> card = {"card.xml", small::card("")};
    const std::pair<std::string, std::string> tray = {"tray.xml", small::fan_tray("")};
    expect_catalogue_findings(
        invctl::check::check_catalogued_file_kind,
        {
            {"right ones", {"3 17 LC-* * card.xml", "7 64 FAN-* * tray.xml"}, {card, tray}, {}},
            {"the second generation's module", {"13 17 LC-* * card.xml"}, {card}, {}},
            {"any type", {"* 17 LC-* * tray.xml"}, {tray}, {}},
            {"a file that is missing", {"7 64 FAN-* * tray.xml"}, {}, {}},
            {"another kind",
             {"0x3 17 LC-* * tray.xml"},
             {tray},
             {"catalog.txt | tray.xml | tray.xml is a \"fanTray\" document; pi_hw_type 3 stands for "
              "\"module\""}},
            {"no kind at all",
             {"0 17 LC-* * card.xml", " 22 17 LC-* * card.xml"},
             {card},
             {"catalog.txt | 0 | pi_hw_type 0 stands for no kind of document",
              "catalog.txt | 22 | pi_hw_type 22 stands for no kind of document"}},
        });
}
