#include "check/finding_cases.h"
#include "check/small_document.h"

using namespace small;

namespace
{

// Empty texts are left out.
std::string consumer(const std::string &least, const std::string &most, const std::string &extended,
                     const std::string &usage)
{
    std::string text = "<powerConsumer>\n";
    const std::pair<const char *, const std::string *> figures[] = {{"minPowerBudget", &least},
                                                                    {"maxPowerBudget", &most},
                                                                    {"extPowerBudget", &extended},
                                                                    {"powerUsage", &usage}};
    for (const auto &[name, value] : figures)
        if (!value->empty())
            text += std::string("<") + name + ">" + *value + "</" + name + ">\n";
    return text + "<powerZone>ORVL_POWER_ZONE_CHASSIS</powerZone></powerConsumer>\n";
}

}  // namespace

TEST(PowerBudget, compares_the_figures_of_a_consumer)
{
    expect_findings(invctl::check::check_power_budget,
                    {
                        {"rising", card(consumer("10", "20", "30", "25")), {}},
                        {"all equal", card(consumer("10", "10", "10", "10")), {}},
                        {"only one", card(consumer("", "10", "", "")), {}},
                        {"least above most",
                         card(consumer("20.5", "20", "", "")),
                         {"Card | <minPowerBudget | minPowerBudget 20.5 is more than maxPowerBudget 20"}},
                        {"least above the extended one, no other given",
                         card(consumer("20", "", "10", "")),
                         {"Card | <minPowerBudget | minPowerBudget 20 is more than extPowerBudget 10"}},
                        {"most above the extended one",
                         card(consumer("", "20", "10", "")),
                         {"Card | <maxPowerBudget | maxPowerBudget 20 is more than extPowerBudget 10"}},
                        {"usage above most, no extended one",
                         card(consumer("", "20", "", "21")),
                         {"Card | <powerUsage | powerUsage 21 is more than maxPowerBudget 20"}},
                        {"usage within the extended one", card(consumer("", "20", "30", "21")), {}},
                    });
}

TEST(PowerBudget, compares_zones_with_what_the_unit_may_draw)
{
    expect_findings(
        invctl::check::check_power_budget,
        {
            {"just enough", card(consumer("", "20.3", "", "") + power_info({"10.1", "10.2"})), {}},
            {"no budget", card(power_info({"1000"})), {}},
            {"too much",
             card(consumer("", "20", "", "") + power_info({"10", "11"})),
             {"Card | <maxPowerBudget | maxPowerBudget 20 is less than totalPowerRequired of all zones, 21"}},
            {"enough for the extended budget", card(consumer("", "20", "25", "") + power_info({"21"})), {}},
            {"a chassis: enough", chassis("", "100"), {}},
            {"a chassis: too much",
             chassis("", "101"),
             {"Chassis | <availablePower | availablePower 100 is less than totalPowerRequired of all zones, "
              "101"}},
        });
}

TEST(PowerBudget, compares_the_figures_of_a_producer)
{
    auto producer = [](const std::string &most, const std::string &current) {
        return card("<powerProducer><maxPower>" + most + "</maxPower><currentPower>" + current +
                    "</currentPower></powerProducer>\n");
    };
    expect_findings(invctl::check::check_power_budget,
                    {
                        {"all of it", producer("50", "50"), {}},
                        {"more than there is",
                         producer("50", "50.5"),
                         {"Card | <currentPower | currentPower 50.5 is more than maxPower 50"}},
                    });
}
