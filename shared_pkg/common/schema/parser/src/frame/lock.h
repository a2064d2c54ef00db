// The lock of the library's entry points, and how an entry point reports that it cannot be taken or released.
#ifndef FRAME_LOCK_H
#define FRAME_LOCK_H

#include "frame/trace.h"

#include <pthread.h>

namespace inv::frame
{

// Default (non-recursive) mutex; never nested. Taken through the functions below only.
extern pthread_mutex_t inv_parser_mutex;

// Each true on success.
bool lock() noexcept;
bool unlock() noexcept;

}  // namespace inv::frame

namespace inv
{

// The forms for an entry point: a failure is reported with the entry point's own message, e.g.
//     if (!lock_or_trace<msg::close_lock_failed>())
//         return 0;
template <class Failed>
bool lock_or_trace() noexcept
{
    bool taken = frame::lock();
    if (!taken)
        trace<Failed>();
    return taken;
}

template <class Failed>
bool unlock_or_trace() noexcept
{
    bool released = frame::unlock();
    if (!released)
        trace<Failed>();
    return released;
}

}  // namespace inv

#endif
