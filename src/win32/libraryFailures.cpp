// What the standard library does where it would throw an exception of its own. Nothing catches one: the
// program ends either way. The library's own routines name the failure on a console that this program does
// not have, and with what they bring along they are a fifth of it.
//
// Of the program alone: the library refuses two definitions where something else of it needs its own.
#include <cstdlib>
#include <exception>
#include <string>

namespace __gnu_cxx {
void __verbose_terminate_handler() {
    std::abort();
}
} // namespace __gnu_cxx

namespace std {

void __throw_bad_alloc() {
    std::abort();
}

void __throw_bad_array_new_length() {
    std::abort();
}

void __throw_bad_function_call() {
    std::abort();
}

void __throw_length_error(const char* /*what*/) {
    std::abort();
}

void __throw_logic_error(const char* /*what*/) {
    std::abort();
}

void __throw_out_of_range_fmt(const char* /*format*/, ...) {
    std::abort();
}

} // namespace std
