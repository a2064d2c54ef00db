#include "check/finding_cases.h"
#include "check/small_document.h"

using namespace small;

TEST(InstanceTooLarge, begins_at_10001)
{
    const std::string text = " is not within 1 to 10000: no access path can lead to or through the entity";
    expect_findings(invctl::check::check_instance_too_large,
                    {
                        {"the greatest possible", card(sensor("A", 10000) + sensor("B", 0)), {}},
                        {"one more",
                         card(sensor("A", 10001)),
                         {"Card/A | xmlInstance=\"10001\" | xml instance 10001" + text}},
                        {"the greatest of the schema",
                         card(sensor("A", 32767)),
                         {"Card/A | xmlInstance=\"32767\" | xml instance 32767" + text}},
                        {"read as 65535",
                         card(sensor("A", -1)),
                         {"Card/A | xmlInstance=\"-1\" | xml instance -1" + text}},
                    });
}
