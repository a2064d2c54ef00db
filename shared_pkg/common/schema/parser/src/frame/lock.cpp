#include "frame/lock.h"

namespace inv::frame
{

pthread_mutex_t inv_parser_mutex = PTHREAD_MUTEX_INITIALIZER;

bool lock() noexcept
{
    return pthread_mutex_lock(&inv_parser_mutex) == 0;
}

bool unlock() noexcept
{
    return pthread_mutex_unlock(&inv_parser_mutex) == 0;
}

}  // namespace inv::frame
