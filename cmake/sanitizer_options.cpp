// Built into every program under the sanitizers.

extern "C" const char* __asan_default_options()
{
    // Where a plug-in's thread-local memory happens to begin 16 bytes into a page,
    // this runtime takes what lies before it for a header, and the search for
    // leaks ends in a crash of its own.
    return "intercept_tls_get_addr=0";
}
