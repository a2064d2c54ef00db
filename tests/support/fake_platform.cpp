#include "support/fake_platform.h"

#include "inv_platform/lookup.h"

#include <string>

namespace
{

fake_platform::file_name_source source_of_names;

const char *answer(const fake_platform::lookup &asked)
{
    return source_of_names ? source_of_names(asked) : nullptr;
}

}  // namespace

namespace fake_platform
{

void set_file_name(file_name_source source)
{
    source_of_names = std::move(source);
}

void set_only_file_name(const char *name)
{
    if (name == nullptr)
        source_of_names = nullptr;
    else
        source_of_names = [kept = std::string(name)](const lookup &) { return kept.c_str(); };
}

}  // namespace fake_platform

const char *platform_get_inv_xml_file_name(uint32_t pi_hw_type, uint32_t pd_hw_type, const char *pid)
{
    return answer({pi_hw_type, pd_hw_type, pid, 0, 0, nullptr});
}

const char *platform_get_inv_xml_file_name_v2(const fru_xml_loc_info *loc)
{
    if (loc == nullptr)
        return nullptr;
    return answer({loc->pi_hw_type, loc->pd_hw_type, loc->pid, loc->hw_maj_ver, loc->hw_min_ver, loc});
}
