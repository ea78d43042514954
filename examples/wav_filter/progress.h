// How far a long run has come, for a user who watches.
#pragma once

#include <zortypes.h>

namespace wav {

// Percent on the standard error, if that is a terminal; gone from the line at the end.
class Progress {
public:
    explicit Progress(Zor64s all);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void at(Zor64s done);

private:
    Zor64s all_, percent_ = -1;
    bool shown_;
};

} // namespace wav
