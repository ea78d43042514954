// Draws every window with its spectrum and prints how far down its side lobes are.
#include "plot.h"

#include <cstdio>
#include <exception>

int main(int argc, char** argv)
try {
    constexpr int len = 64;
    if (argc > 2) {
        std::fprintf(stderr, "usage: windows [PICTURE.png]\n");
        return 2;
    }
    std::printf("%-28s highest side lobe\n", "window");
    for (const auto& window : windows::allWindows())
        std::printf("%-28s %8.1f dB\n", window.name.c_str(),
                    windows::highestSideLobe(windows::spectrum(window, len)));
    const std::string png = argc == 2 ? argv[1] : "windows.png";
    windows::draw(png, len);
    std::printf("drawn: %s\n", png.c_str());
    return 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "windows: %s\n", error.what());
    return 1;
}
