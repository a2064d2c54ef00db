#include "check/finding_cases.h"
#include "check/small_document.h"

using namespace small;

namespace
{

std::pair<std::string, std::string> control_card(const std::string &destinations)
{
    return {"rp.xml", card(mux("M", 10, i2c_port("00", destinations)), "MODULE_RP")};
}

}  // namespace

TEST(SlotWithoutUnit, tells_each_kind_of_slot_that_nothing_fits_once)
{
    const std::string text = "Card/M | <nodeType | no unit of the catalogue fits ";
    const std::string rest = ", where this destination leads";
    const std::string rp_line = "4 32 RP-* * rp.xml";
    expect_catalogue_findings(
        invctl::check::check_slot_without_unit,
        {
            {"its own peer", {rp_line}, {control_card(destination(1, "PEERCONTROLCARD"))}, {}},
            {"line cards without any",
             {rp_line},
             {control_card(destination(0, "LINECARD") + destination(1, "LINECARD"))},
             {text + "ORVL_CONTAINER_TYPE_LINECARDSLOT" + rest}},
            {"a line card",
             {rp_line, "3 17 LC-* * card.xml"},
             {control_card(destination(0, "LINECARD")), {"card.xml", card("")}},
             {}},
            {"a fan tray by its kind, none for the PEM",
             {rp_line, "7 64 FAN-* * tray.xml"},
             {control_card(destination(0, "FANTRAY") + destination(0, "PEM")), {"tray.xml", fan_tray("")}},
             {text + "ORVL_CONTAINER_TYPE_PM" + rest}},
            {"a fan tray as a module",
             {rp_line, "3 64 FAN-* * tray.xml"},
             {control_card(destination(0, "FANTRAY")), {"tray.xml", card("", "MODULE_FANTRAY")}},
             {}},
            {"slots whose parts need no document",
             {rp_line},
             {control_card(destination(0, "ECU") + destination(0, "POWERFILTER") + destination(0, "OPTICS"))},
             {}},
        });
}
