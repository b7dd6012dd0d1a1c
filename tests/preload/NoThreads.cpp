// Preloaded into vorlane-cli by the tests of a system that gives no thread: every attempt to
// start one fails as it does when a process or container has reached its limit.
#include <cerrno>

#include <pthread.h>

extern "C" int pthread_create(pthread_t *, const pthread_attr_t *, void *(*)(void *), void *)
{
    return EAGAIN;
}
