#include "check/finding_cases.h"
#include "check/small_document.h"

using namespace small;

namespace
{

std::string led(const std::string &type, const std::string &subtype)
{
    return card(entity({"led", "L", type, subtype, 2,
                        "<ledInfo><color>ORVL_LED_COLOR_RED</color><control>ORVL_LED_CONTROL_ON</control>"
                        "</ledInfo>\n"}));
}

std::string told_of(const std::string &type, const std::string &subtype)
{
    return "Card/L | subtype=\"ORVL_ENTITY_SUBTYPE_" + subtype + "\" | ORVL_ENTITY_SUBTYPE_" + subtype +
           " is no subtype of ORVL_ENTITY_TYPE_" + type;
}

}  // namespace

TEST(SubtypeOfOtherType, goes_by_the_groups_of_the_schema)
{
    expect_findings(invctl::check::check_subtype_of_other_type,
                    {
                        {"first of its type", led("FAN", "FAN_DUMMY"), {}},
                        {"last of its type", led("FAN", "FAN_MAX"), {}},
                        {"before the first", led("FAN", "CPU_MAX"), {told_of("FAN", "CPU_MAX")}},
                        {"behind the last", led("FAN", "MODULE_DUMMY"), {told_of("FAN", "MODULE_DUMMY")}},
                        {"a token that is the type's name", led("POWERSUPPLY", "POWERSUPPLY"), {}},
                        {"of no type", led("SENSOR", "INVALID"), {told_of("SENSOR", "INVALID")}},
                        {"a type without subtypes", led("DUMMY", "FAN_CTRL"), {}},
                    });
}

TEST(SubtypeOfOtherType, accepts_each_subtype_for_one_type_only)
{
    const char *const types[] = {"OTHER", "UNKNOWN", "CHASSIS", "BACKPLANE", "CONTAINER", "POWERSUPPLY",
                                 "FAN",   "SENSOR",  "MODULE",  "PORT",      "STACK",     "CPU"};
    size_t accepted = 0;
    for (uint32_t code = 0; code < 236; ++code) {
        const std::string subtype = EidSubType_ToString(code);
        for (const char *type : types) {
            auto document = decoded(led(type, subtype.substr(sizeof "ORVL_ENTITY_SUBTYPE_" - 1)));
            invctl::check::finding_list found;
            invctl::check::check_subtype_of_other_type(*document, found);
            accepted += found.all.empty() ? 1 : 0;
        }
    }
    EXPECT_EQ(accepted, 235u);  // all but the invalid one
}
