#include "picture.h"

#include "error.h"

#include <csignal>
#include <fstream>
#include <sys/wait.h>
#include <utility>

namespace example {

namespace fs = std::filesystem;

std::string quoted(const std::string& text)
{
    std::string result = "'";
    for (const char c : text) {
        if (c == '\'') result += c;
        result += c == '\n' ? ' ' : c;
    }
    return result + "'";
}

std::string number(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.9g", value);
    return text;
}

Picture::Picture(const fs::path& png, const Layout& layout, const std::string& caption) : png_(png)
{
    std::signal(SIGPIPE, SIG_IGN); // a gnuplot that ends early is found by its exit status
    fs::remove(png);
    if (!std::ofstream(png)) fail(); // gnuplot would write it to the standard output
    pipe_ = popen("command -v gnuplot >/dev/null || exit 127; export LC_ALL=C.UTF-8; exec gnuplot -", "w");
    if (!pipe_) throw Error("cannot start gnuplot");
    say("set encoding utf8");
    say("set terminal pngcairo noenhanced size 1600," + std::to_string(layout.height) +
        " font 'DejaVu Sans,13'");
    say("set output " + quoted(png.string()));
    say("set tics out nomirror\nset xlabel offset 0,0.4");
    say("set multiplot layout " + std::to_string(layout.panels) + ",1 margins " + layout.margins);
    say("set label 1 " + quoted(caption) + " at screen 0.985,0.015 right font ',10'");
}

Picture::~Picture()
{
    if (!pipe_) return;
    pclose(pipe_);
    std::error_code ignored;
    fs::remove(png_, ignored); // half a picture is none
}

void Picture::say(const std::string& line)
{
    std::fprintf(pipe_, "%s\n", line.c_str());
}

void Picture::point(double x, double y)
{
    std::fprintf(pipe_, "%.9g %.9g\n", x, y);
}

void Picture::point(double x, double y, double z)
{
    std::fprintf(pipe_, "%.9g %.9g %.9g\n", x, y, z);
}

void Picture::series(const std::string& name, std::span<const float> signal, double begin, int rate)
{
    say(name + " << end");
    for (std::size_t i = 0; i < signal.size(); ++i)
        point(begin + static_cast<double>(i) / rate, static_cast<double>(signal[i]));
    say("end");
}

void Picture::range(const std::string& axis, double begin, double end)
{
    say("set " + axis + "range [" + number(begin) + ":" + number(end) + "]");
}

void Picture::plot(const std::string& title, const std::string& what)
{
    say("set title " + quoted(title) + "\nplot " + what);
    say("unset label 1"); // the caption stands once
}

void Picture::finish()
{
    say("unset multiplot\nset output");
    const int status = pclose(std::exchange(pipe_, nullptr));
    if (status == 0 && fs::exists(png_) && !fs::is_empty(png_)) return;
    fs::remove(png_);
    if (WIFEXITED(status) && WEXITSTATUS(status) == 127) throw Error("gnuplot is not installed");
    if (status != 0) throw Error("gnuplot failed");
    fail();
}

void Picture::fail() const
{
    throw Error(png_.string() + ": cannot write the picture");
}

} // namespace example
