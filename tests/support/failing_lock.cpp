#include "support/failing_lock.h"

#include "frame/lock.h"

#include <atomic>
#include <cerrno>
#include <pthread.h>

namespace
{

std::atomic<bool> lock_fails;
std::atomic<bool> unlock_fails;
std::atomic<int> held;
std::atomic<int> calls;

}  // namespace

namespace failing_lock
{

void fail_next_lock()
{
    lock_fails = true;
}

void fail_next_unlock()
{
    unlock_fails = true;
}

void reset()
{
    lock_fails = unlock_fails = false;
    calls = 0;
}

int depth()
{
    return held;
}

int lock_calls()
{
    return calls;
}

}  // namespace failing_lock

// The linker leads every call of the two pthread functions here (--wrap).
extern "C" {

int __real_pthread_mutex_lock(pthread_mutex_t *mutex);
int __real_pthread_mutex_unlock(pthread_mutex_t *mutex);
int __wrap_pthread_mutex_lock(pthread_mutex_t *mutex);
int __wrap_pthread_mutex_unlock(pthread_mutex_t *mutex);

int __wrap_pthread_mutex_lock(pthread_mutex_t *mutex)
{
    if (mutex != &inv::frame::inv_parser_mutex)
        return __real_pthread_mutex_lock(mutex);
    ++calls;
    if (lock_fails.exchange(false))
        return EINVAL;
    int result = __real_pthread_mutex_lock(mutex);
    if (result == 0)
        ++held;
    return result;
}

int __wrap_pthread_mutex_unlock(pthread_mutex_t *mutex)
{
    if (mutex != &inv::frame::inv_parser_mutex)
        return __real_pthread_mutex_unlock(mutex);
    --held;
    int result = __real_pthread_mutex_unlock(mutex);
    return unlock_fails.exchange(false) ? EPERM : result;
}
}
