#include "check/finding_cases.h"
#include "check/small_document.h"

using namespace small;

namespace
{

std::string with_limits(const std::vector<int> &limits)
{
    return card(sensor("A", 2, threshold("threshold", limits)));
}

std::string optics(const std::vector<int> &los, const std::vector<int> &bias, const std::vector<int> &thermo,
                   const std::vector<int> &voltage)
{
    std::string content = "<numberChannels>1</numberChannels><sensorPerChannel>false</sensorPerChannel>"
                          "<xmlInstanceStart>10</xmlInstanceStart>\n" +
                          threshold("sensorLosThresholds", los) + threshold("sensorBiasThresholds", bias) +
                          threshold("sensorThermoThresholds", thermo) +
                          threshold("sensorVoltageThresholds", voltage);
    for (const char *each :
         {"LosTx", "FaultTx", "BiasTx", "ModuleTx", "LosRx", "FaultRx", "BiasRx", "ModuleRx"})
        content += "<summary" + std::string(each) + ">false</summary" + each + ">\n";
    return entity({"optics", "Optics", "MODULE", "MODULE_OPTICS_CXP", 1, content});
}

}  // namespace

TEST(ThresholdOrder, tells_the_first_limit_that_is_below_the_one_before)
{
    expect_findings(
        invctl::check::check_threshold_order,
        {
            {"rising", with_limits({-3, -2, -1, 1, 2, 3}), {}},
            {"equal ones", with_limits({0, 0, 0, 5, 5, 5}), {}},
            {"no thresholds", card(sensor("A", 2)), {}},
            {"critical low above major low",
             with_limits({2, 1, 3, 4, 5, 6}),
             {R"(Card/A | majorLow="1" | majorLow 1 is below criticalLow 2)"}},
            {"lows above highs",
             with_limits({4, 5, 6, 1, 2, 3}),
             {R"(Card/A | minorHigh="1" | minorHigh 1 is below minorLow 6)"}},
            {"falling: told once",
             with_limits({6, 5, 4, 3, 2, 1}),
             {R"(Card/A | majorLow="5" | majorLow 5 is below criticalLow 6)"}},
            {"critical high the least",
             with_limits({1, 2, 3, 4, 5, -6}),
             {R"(Card/A | criticalHigh="-6" | criticalHigh -6 is below majorHigh 5)"}},
            {"each set of optics by itself",
             optics({1, 2, 3, 4, 5, 0}, {1, 2, 3, 4, 5, 6}, {1, 2, 3, 4, 0, 6}, {1, 0, 3, 4, 5, 6}),
             {R"(Optics | criticalHigh="0" | criticalHigh 0 is below majorHigh 5)",
              R"(Optics | majorHigh="0" | majorHigh 0 is below minorHigh 4)",
              R"(Optics | majorLow="0" | majorLow 0 is below criticalLow 1)"}},
        });
}
