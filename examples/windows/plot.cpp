#include "plot.h"

#include <csignal>
#include <cstdio>
#include <stdexcept>

namespace windows {
namespace {

void sendPanels(std::FILE* gnuplot, const Window& window, int len)
{
    const auto say = [gnuplot](const std::string& line) { std::fprintf(gnuplot, "%s\n", line.c_str()); };
    say("$weights << end");
    const auto shape = weights(window, len);
    for (std::size_t n = 0; n < shape.size(); ++n)
        std::fprintf(gnuplot, "%zu %.9g\n", n, static_cast<double>(shape[n]));
    say("end\n$spectrum << end");
    for (const Level& level : spectrum(window, len))
        std::fprintf(gnuplot, "%.9g %.9g\n", level.bin, level.decibel);
    say("end");
    say("set title '" + window.name + "'\nset xlabel 'element'\nset ylabel 'weight'");
    say("set xrange [0:" + std::to_string(len - 1) + "]\nset yrange [0:1.05]\nset ytics 0.25\nset xtics 16");
    say("plot $weights with impulses linecolor rgb '#9fb9d0' notitle, "
        "$weights with points pointtype 7 pointsize 0.5 linecolor rgb '#1f4e79' notitle");
    say("set title '" + window.name + ", spectrum'\nset xlabel 'frequency, bins'\nset ylabel 'dB'");
    say("set xrange [0:" + std::to_string(len / 2) + "]\nset yrange [-130:5]\nset ytics 20\nset xtics 4");
    say("plot $spectrum with lines linecolor rgb '#1f4e79' notitle");
}

} // namespace

void draw(const std::string& png, int len)
{
    std::signal(SIGPIPE, SIG_IGN); // a gnuplot that ends early is found by its exit status
    std::FILE* gnuplot = popen("gnuplot -", "w");
    if (!gnuplot) throw std::runtime_error("cannot start gnuplot");
    const std::size_t rows = allWindows().size();
    std::fprintf(gnuplot, "set terminal pngcairo noenhanced size 1500,%zu font 'DejaVu Sans,12'\n",
                 300 * rows);
    std::fprintf(gnuplot, "set output '%s'\nset multiplot layout %zu,2\n", png.c_str(), rows);
    std::fprintf(gnuplot, "set grid linetype 1 linecolor rgb '#e4e4e4'\nset tics out nomirror\n");
    for (const Window& window : allWindows()) sendPanels(gnuplot, window, len);
    std::fprintf(gnuplot, "unset multiplot\nset output\n");
    if (pclose(gnuplot) != 0) throw std::runtime_error("gnuplot failed");
}

} // namespace windows
