// Prints the microseconds that this process needed to load the library.
#include <chrono>
#include <cstdio>
#include <dlfcn.h>

int main()
{
    const auto start = std::chrono::steady_clock::now();
    if (!dlopen(ZORS_LIBRARY, RTLD_NOW)) return 1;
    const std::chrono::duration<double, std::micro> taken = std::chrono::steady_clock::now() - start;
    std::printf("%.0f\n", taken.count());
    return 0;
}
