#include "taps_file.h"

#include "common/error.h"

#include <charconv>
#include <cmath>
#include <fstream>
#include <sstream>

namespace wav {
namespace {

// The same in every locale. Infinities are no taps.
bool parse(const std::string& word, Zor64f& value)
{
    const char *const begin = word.data() + word.starts_with('+'), *const end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(begin, end, value);
    return error == std::errc{} && stop == end && std::isfinite(value);
}

} // namespace

Filter readTaps(const std::filesystem::path& path)
{
    Filter filter;
    std::ifstream file(path);
    std::string line, word;
    for (int number = 1; std::getline(file, line); ++number) {
        std::istringstream words(line.substr(0, line.find('#')));
        while (words >> word) {
            Zor64f tap = 0;
            if (!parse(word, tap))
                throw example::Error(path.string() + ":" + std::to_string(number) + ": \"" + word +
                                     "\" is not a number");
            filter.taps.push_back(tap);
        }
    }
    if (!file.eof()) throw example::Error(path.string() + ": cannot read the taps");
    if (filter.taps.empty()) throw example::Error(path.string() + ": the file holds no taps");
    return filter;
}

} // namespace wav
