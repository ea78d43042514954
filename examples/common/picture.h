// Pictures by gnuplot.
#pragma once

#include <cstdio>
#include <filesystem>
#include <span>
#include <string>

namespace example {

// gnuplot's single-quoted text, which cannot run on to another line.
std::string quoted(const std::string& text);
std::string number(double value);

// A PNG of panels below one another, by a running gnuplot that takes commands.
class Picture {
public:
    struct Layout {
        std::size_t panels;
        std::size_t height;  // pixels; the width is 1600
        const char* margins; // left, right, bottom, top of the picture and between the panels
    };

    Picture(const std::filesystem::path& png, const Layout& layout, const std::string& caption);
    ~Picture();
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    void say(const std::string& line);
    void point(double x, double y);
    void point(double x, double y, double z);
    // The data block of this name: a signal from the time `begin` on.
    void series(const std::string& name, std::span<const float> signal, double begin, int rate);
    void range(const std::string& axis, double begin, double end);
    void plot(const std::string& title, const std::string& what); // the next panel
    void finish();                                                // throws where there is no picture then

private:
    [[noreturn]] void fail() const;

    std::filesystem::path png_;
    std::FILE* pipe_;
};

} // namespace example
