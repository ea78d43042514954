#include "beats_csv.h"

#include <fstream>

namespace ecg {

void writeBeats(const std::filesystem::path& path, const Beats& beats)
{
    std::ofstream file(path);
    file << "beat,time (s),R-R interval (s),rate (1/min)\n";
    for (std::size_t i = 0; i < beats.seconds.size(); ++i) {
        char line[96];
        if (i == 0 || isInterruption(beats.intervals[i - 1]))
            std::snprintf(line, sizeof line, "%zu,%.5f,,\n", i + 1, beats.seconds[i]);
        else
            std::snprintf(line, sizeof line, "%zu,%.5f,%.5f,%.2f\n", i + 1, beats.seconds[i],
                          beats.intervals[i - 1], 60 / beats.intervals[i - 1]);
        file << line;
    }
    file.close();
    if (!file) throw Error(path.string() + ": cannot write the beats");
}

} // namespace ecg
