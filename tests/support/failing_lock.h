// Makes the library's lock fail on demand. Other mutexes of the test are left alone.
// Belongs to tests declared with inv_add_test(... FAKE_PLATFORM), in plain and sanitizer builds alike.
#ifndef TESTS_SUPPORT_FAILING_LOCK_H
#define TESTS_SUPPORT_FAILING_LOCK_H

namespace failing_lock
{

// The next taking of the library lock fails with EINVAL and takes nothing.
void fail_next_lock();

// The next release of the library lock reports EPERM although it does release.
void fail_next_unlock();

// Takes unused orders back and counts from zero again.
void reset();

// Successful takings less releases: 0 unless an entry point is inside. Releases include the failing ones.
int depth();

// Takings since reset(), failing ones included.
int lock_calls();

}  // namespace failing_lock

#endif
