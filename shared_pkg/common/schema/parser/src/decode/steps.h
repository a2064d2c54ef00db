// Numbers of the failing steps within one type; the type's first_step is added.
#ifndef SRC_DECODE_STEPS_H
#define SRC_DECODE_STEPS_H

#include <cstdint>

namespace inv::decode
{

enum type_step : uint32_t {
    step_xmlns = 0,
    step_xsi = 1,
    step_attribute_count = 2,
    step_unknown_attribute = 3,
    step_missing_attribute = 4,
    step_lookup = 5,
    step_not_empty = 6,
    step_first_attribute = 10,
    step_first_item = 100
};

enum item_step : uint32_t {
    step_decode = 0,
    step_end_tag = 1,
    step_allocate = 2,
    step_append = 3,
    step_next = 4,
    step_count = 5,
    steps_per_item = 10
};

}  // namespace inv::decode

#endif
