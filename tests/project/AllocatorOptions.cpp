// Under AddressSanitizer an allocation that cannot be met aborts the tests with a report;
// with this option it fails as it does without the sanitizer, so that the tests can check
// how the program reports a file too large for the memory there is.
extern "C" const char *__asan_default_options()
{
    return "allocator_may_return_null=1";
}
