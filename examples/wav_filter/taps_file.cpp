#include "taps_file.h"

#include "common/error.h"
#include "numbers.h"

#include <fstream>
#include <sstream>

namespace wav {
Filter readTaps(const std::filesystem::path& path)
{
    std::vector<Zor64f> taps;
    std::ifstream file(path);
    std::string line, word;
    for (int number = 1; std::getline(file, line); ++number) {
        std::istringstream words(line.substr(0, line.find('#')));
        while (words >> word) {
            const auto tap = finiteNumber(word);
            if (!tap)
                throw example::Error(path.string() + ":" + std::to_string(number) + ": \"" + word +
                                     "\" is not a number");
            taps.push_back(*tap);
        }
    }
    if (!file.eof()) throw example::Error(path.string() + ": cannot read the taps");
    if (taps.empty()) throw example::Error(path.string() + ": the file holds no taps");
    return {.taps = taps, .name = path.filename().string() + ", " + std::to_string(taps.size()) + " taps"};
}

} // namespace wav
