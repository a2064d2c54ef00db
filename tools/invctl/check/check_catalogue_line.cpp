// Lines of the catalogue that the lookup passes over because it cannot read them.
#include "catalogue_model.h"

namespace invctl::check
{

void check_catalogue_line(const catalogue_check &catalogue, finding_list &found)
{
    for (const catalogue_line &line : catalogue.lines) {
        inv::lookup::catalogue_line columns = {};
        const char *reason = nullptr;
        if (inv::lookup::parse_line(line.text, columns, &reason) == inv::lookup::line_kind::broken)
            report_line(found, catalogue, line, {}, reason).hint =
                "the columns are: pi_hw_type, pd_hw_type, PID pattern, hardware versions, file";
    }
}

}  // namespace invctl::check
