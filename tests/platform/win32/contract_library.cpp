// The closed library of the contract suites: two functions, and the string table of its resources.
#include <cstdint>

#define CONTRACT_EXPORT extern "C" __declspec(dllexport)

CONTRACT_EXPORT std::int32_t __stdcall AddOne(std::int32_t number) {
  return number + 1;
}

CONTRACT_EXPORT std::int32_t __stdcall Negate(std::int32_t number) {
  return -number;
}
