// Words for the error numbers for which the C library of Windows has none, or others than every other system.
// The linker puts this function in the place of strerror, which the standard library asks.
#include <cerrno>

extern "C" {

char* __real_strerror(int error);

char* __wrap_strerror(int error) {
  const auto words = [](const char* text) { return const_cast<char*>(text); };
  switch (error) {
    case EBUSY:
      return words("Device or resource busy");
    case ECANCELED:
      return words("Operation canceled");
    case ELOOP:
      return words("Too many levels of symbolic links");
    case ENOTSUP:
      return words("Operation not supported");
    default:
      return __real_strerror(error);
  }
}

}  // extern "C"
