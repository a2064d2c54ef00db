// State of the trace channel. Written by channel.cpp; tests put it back.
#ifndef FRAME_CHANNEL_H
#define FRAME_CHANNEL_H

#include <atomic>
#include <stdint.h>

namespace inv::frame
{

// What the frame answers while there is no channel.
inline constexpr uint32_t channel_not_ready = 22;

extern void *inv_schema_trace_handle;     // null until the channel is open
extern std::atomic<uint8_t> trace_ready;  // 1 once it is open and its dump at exit armed
extern uint8_t debug_console;             // non-zero: frame functions echo their names on standard error

}  // namespace inv::frame

#endif
